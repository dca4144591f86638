#pragma once

#include "contract/records/lcom.h"
#include "contract/records/load_attr.h"
#include "contract/table_handle.h"

#include <vector>

/// Load combinations. Every operation has a leading design kind: 1 general, 2 steel, 3 concrete, 4 footing, 5 SRC. Keys, names
/// and the sequence are a space of their own for each kind. The table sets `kind` and `number` of a record itself.
class CDataLcom : public CDBData {
public:
    ZEL_UPDATE_CODES(LCOM)

    /// Items that one combination may gain by `Merge`.
    static constexpr int mergeLimit = 50;

    CDataLcom() : CDBData(zel::tableOfRecord<T_LCOM_D>()) {}

    zel::Key currentKey = 0;
    T_LCOM_D currentRecord{};

    /// Takes a changed record out of the change buffer; its kind stands in the record.
    void load(int kind, zel::Key key, const zel::RecordPtr& record);

    int GetCount(int kind) const { return store().count(kind); }
    int GetKeyList(int kind, std::vector<zel::Key>& keys) const;
    int GetList(int kind, std::vector<zel::Key>& keys, std::vector<T_LCOM_D>& records) const;
    int GetNameList(int kind, std::vector<CString>& names) const;
    int Get(int kind, zel::Key key);
    int Get(int kind, const CString& name);
    int Get(int kind, zel::Key key, T_LCOM_D& record) const;
    int Exist(int kind, const CString& name) const { return static_cast<int>(store().keyByName(kind, name) != 0); }
    zel::Key GetNewKey(int kind) const { return store().freeKeyAbove(kind, store().largestKey(kind)); }

    int Add(int kind, const T_LCOM_D& record);
    /// Adds several in one change.
    int Add(int kind, const std::vector<T_LCOM_D>& records);
    /// The same, taking the records over without a copy.
    int Add(int kind, std::vector<T_LCOM_D>&& records);
    /// Replaces the combination of that name by the current record; its key stays unless the current key is another.
    int Modify(int kind, const CString& oldName);
    /// Replaces several combinations, each under its key, in one change.
    int Modify(int kind, const std::vector<zel::Key>& keys, const std::vector<T_LCOM_D>& records);
    int Del(int kind, zel::Key key) { return store().remove(kind, {key}); }
    /// Deletes several in one change.
    int Del(int kind, const std::vector<zel::Key>& keys) { return store().remove(kind, keys); }
    int Del(int kind, const std::vector<CString>& names);
    int ChangeSequence(int kind, const std::vector<zel::Key>& keys, zel::Key afterKey) { return store().changeSequence(kind, keys, afterKey); }
    void Initialize() { currentRecord = T_LCOM_D{}; }

    /// Appends the items of `source` to `target`. Returns 0, with the target unchanged, when the sum exceeds 50 items.
    int Merge(T_LCOM_D& target, const T_LCOM_D& source) const;

    /// Adds the loads of each static load case of `combination`, times its factor, to the static load case `targetKey`. One change of
    /// the model. The combination may contain the target: everything is read before anything is written.
    ///
    /// Self weight: the factors are added up. Point loads, specified displacements and their interpolations: copied; those at the same
    /// place and of the same sub-load case are added up. Line and area loads: each assigned type that holds a case of the combination
    /// gives a new type, named by the old name and the first free number, assigned to the same objects.
    /// @param attributes   which kinds of loads
    /// @param deleteFlag   not 0: the target's own loads of these kinds are removed first
    int MakeLoadsByCombination(const T_LCOM_D& combination, zel::Key targetKey, const T_LOAD_ATTR& attributes, int deleteFlag);

private:
    static const T_LCOM_D& typed(const zel::RecordPtr& record) { return *static_cast<const T_LCOM_D*>(record.get()); }
};
