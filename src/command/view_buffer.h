#pragma once

#include "contract/notices.h"
#include "contract/table_handle.h"

#include <functional>
#include <optional>

/// The reading of the change buffer, once for all dialogs.
namespace zel {

/// What a dialog does about the changes of one table. A handler that is left out passes them over.
///
///     zel::readChanges(buffer, zel::TableWatch<CDataStld>{
///         .added = [&](const CDataStld& now) { ... },
///         .modified = [&](const CDataStld& now, const CDataStld& before) { ... },
///     });
///
/// The handles hold key and record. A modification has both states: as it is now and as it was before.
template <class Handle> struct TableWatch {
    std::function<void(const Handle& now)> added = nullptr;
    std::function<void(const Handle& before)> deleted = nullptr;
    std::function<void(const Handle& now, const Handle& before)> modified = nullptr;
};

/// Takes the entries of one table out of a buffer, in order, and pairs the two halves of each modification.
template <class Handle> class TableReader {
public:
    explicit TableReader(const TableWatch<Handle>& watch) : m_watch(watch) {}

    void take(const CViewBuff& buffer, const T_UDRD_BUFFER& entry)
    {
        if (entry.updateCode == code(Change::added))
            call(m_watch.added, load(buffer, entry));
        else if (entry.updateCode == code(Change::deleted))
            call(m_watch.deleted, load(buffer, entry));
        else if (entry.updateCode == code(Change::modified))
            m_now.emplace(load(buffer, entry));
        else if (entry.updateCode == code(Change::modifiedFrom) && m_now.has_value()) {
            const Handle now = *m_now;
            m_now.reset();
            call(m_watch.modified, now, load(buffer, entry));
        }
    }

private:
    static std::int32_t code(Change change) { return updateCode(tableOfHandle<Handle>(), change); }

    static Handle load(const CViewBuff& buffer, const T_UDRD_BUFFER& entry)
    {
        Handle handle;
        buffer.GetData(entry.dataIndex, handle);
        return handle;
    }

    template <class... Handles> static void call(const std::function<void(const Handles&...)>& handler, const Handles&... handles)
    {
        if (handler)
            handler(handles...);
    }

    const TableWatch<Handle>& m_watch;
    std::optional<Handle> m_now;  ///< first half of a modification
};

/// Walks the buffer once, from start to end, and tells each watch what concerns its table.
template <class... Handles> void readChanges(const CViewBuff& buffer, const TableWatch<Handles>&... watches)
{
    const auto walk = [&buffer](auto... readers) {
        POSITION position = buffer.GetStartBuffer();
        while (position != nullptr) {
            const T_UDRD_BUFFER entry = buffer.GetNextBuffer(position);
            (readers.take(buffer, entry), ...);
        }
    };
    walk(TableReader<Handles>(watches)...);
}

/// Whether a buffer holds a change of the table.
template <class Handle> bool concerns(const CViewBuff& buffer)
{
    const Table table = tableOfHandle<Handle>();
    POSITION position = buffer.GetStartBuffer();
    while (position != nullptr) {
        const std::int32_t code = buffer.GetNextBuffer(position).updateCode;
        if (code >= updateCode(table, Change::added) && code <= updateCode(table, Change::modifiedFrom))
            return true;
    }
    return false;
}

}  // namespace zel
