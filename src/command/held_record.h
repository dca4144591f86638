#pragma once

#include "command/view_buffer.h"
#include "contract/document.h"
#include "contract/table_handle.h"

namespace zel {

/// The three values of a record in a form: what a new one starts with, what the model holds, and what the user has made of it.
/// All are in the current units of the model, and stay so by `convertUnits`.
template <class Handle> class HeldRecord {
public:
    using Record = decltype(Handle::currentRecord);

    Record initial{};  ///< what a form starts with where the model holds nothing
    Record stored{};   ///< what the model holds, or `initial`
    Record edited{};   ///< what OK writes

    /// Starts with the defaults of the table, in current units.
    void open()
    {
        initial = Record{};
        convertDefaults(info(), &initial);
        open(initial);
    }
    /// Starts with a record of the model.
    void open(const Record& found) { stored = edited = found; }

    /// The units of the model have just changed.
    void convertUnits()
    {
        for (Record* each : {&initial, &stored, &edited})
            convertRecordFromPrevious(info(), each);
    }

private:
    static const TableInfo& info() { return CDBDoc::GetDocPoint()->table(tableOfHandle<Handle>()).info(); }
};

}  // namespace zel
