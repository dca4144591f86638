#pragma once

#include "contract/table_store.h"
#include "platform/modeldb/change.h"

#include <map>
#include <unordered_map>
#include <vector>

namespace zel {

/// One table of the open model in memory. It checks a write and hands the batch to the change sink, which calls `apply` back.
class StoredTable final : public ITable {
public:
    StoredTable(const TableInfo& info, ChangeSink& sink);

    [[nodiscard]] const TableInfo& info() const override { return m_info; }
    [[nodiscard]] int count(int kind) const override;
    [[nodiscard]] std::vector<Key> keys(int kind) const override;
    [[nodiscard]] RecordPtr find(int kind, Key key) const override;
    [[nodiscard]] Key keyByName(int kind, const CString& name) const override;
    [[nodiscard]] Key largestKey(int kind) const override;
    [[nodiscard]] Key freeKeyAbove(int kind, Key key) const override;
    [[nodiscard]] Key nextInSequence(int kind, Key key) const override;

    int add(int kind, const std::vector<Key>& keys, std::vector<RecordPtr> records, bool replace) override;
    int modify(int kind, const std::vector<Key>& oldKeys, const std::vector<Key>& newKeys, std::vector<RecordPtr> records) override;
    int remove(int kind, const std::vector<Key>& keys) override;
    int changeSequence(int kind, const std::vector<Key>& keys, Key afterKey) override;

    /// Puts a checked batch into memory.
    void apply(const Batch& batch);

private:
    /// Keys, names and sequence of one design kind.
    struct Space {
        std::map<Key, RecordPtr> records;
        std::unordered_map<CString, Key> names;  ///< folded name to key
        std::vector<Key> order;                  ///< only with a sequence
        bool orderStale = false;
    };

    [[nodiscard]] bool sequenced() const { return m_info.sequenceField != nullptr; }
    [[nodiscard]] bool named() const { return m_info.names != NameRule::none; }
    [[nodiscard]] const Space* space(int kind) const;
    [[nodiscard]] bool acceptable(int kind, const std::vector<Step>& steps) const;
    [[nodiscard]] bool acceptableName(const CString& name) const;
    [[nodiscard]] bool namesStayUnique(const Space& space, const std::vector<Step>& steps) const;
    /// Appends the steps that give the records of `order` the places from `place` on.
    void appendRenumbering(int kind, const Space& space, const std::vector<Key>& order, std::int32_t place, std::vector<Step>& steps) const;
    [[nodiscard]] CString describeChange(const char* verb, const std::vector<Step>& steps) const;
    void applyStep(Space& space, const Step& step);
    void insert(Space& space, Key key, const RecordPtr& record);
    void rebuildOrder(Space& space) const;

    const TableInfo& m_info;
    ChangeSink& m_sink;
    std::vector<Space> m_spaces;  ///< by kind; one alone for a table without kinds
};

}  // namespace zel
