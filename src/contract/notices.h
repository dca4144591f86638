#pragma once

#include "contract/records/udrd_buffer.h"
#include "contract/table_store.h"

#include <cstddef>
#include <vector>

class CDBDoc;
class CView;
class CObject;

/// Hints of a change notice.
namespace Hint {

inline constexpr long long write = 0;
inline constexpr long long undo = 1;
inline constexpr long long redo = 3;
inline constexpr long long units = 4;
inline constexpr long long selection = 5;
inline constexpr long long selectionOfOtherView = 6;
inline constexpr long long leavePost = 7;
inline constexpr long long leaveModel = 8;

/// Whether model data changed, so that the change buffer is to be read.
constexpr bool isData(long long hint)
{
    return hint == write || hint == undo || hint == redo;
}

}  // namespace Hint

/// A listener of change notices. The constructor joins the listeners of the current document, the destructor leaves.
///
/// `OnUpdate` is called on the thread of the write, inside it. A listener may open, close and write from inside a notice.
class CDBUpdateConnector {
public:
    CDBUpdateConnector();
    CDBUpdateConnector(const CDBUpdateConnector&) = delete;
    CDBUpdateConnector& operator=(const CDBUpdateConnector&) = delete;
    virtual ~CDBUpdateConnector();

    virtual void OnUpdate(CView* sender, long long hint, CObject* object) = 0;
};

/// Position in the change buffer; nil (null) behind its end.
using POSITION = const T_UDRD_BUFFER*;

/// The record of the last change: what a listener walks in `UpdateBuffer`. While a listener writes from inside a notice the
/// buffer holds the inner change; when that write returns it holds the outer one again.
class CViewBuff {
public:
    struct Entry {
        T_UDRD_BUFFER buffer;
        zel::Key key = 0;
        int kind = 0;
        zel::RecordPtr record;
    };

    [[nodiscard]] int GetCount() const { return static_cast<int>(m_buffers.size()); }
    [[nodiscard]] POSITION GetStartBuffer() const { return m_buffers.empty() ? nullptr : m_buffers.data(); }
    [[nodiscard]] T_UDRD_BUFFER GetNextBuffer(POSITION& position) const;

    /// Loads the changed record of a buffer into the current key and record of `handle`.
    /// @throws std::invalid_argument  for an index outside the buffer
    template <class Handle> void GetData(int index, Handle& handle) const
    {
        const Entry& entry = at(index);
        handle.load(entry.kind, entry.key, entry.record);
    }

    [[nodiscard]] const Entry& at(int index) const;

    /// Takes the entries of a new change; for the model database.
    void assign(std::vector<Entry> entries);
    void swap(CViewBuff& other) noexcept;

private:
    std::vector<Entry> m_entries;
    std::vector<T_UDRD_BUFFER> m_buffers;
};
