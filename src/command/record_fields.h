#pragma once

#include "command/messages.h"
#include "contract/forms/control.h"
#include "contract/forms/dialog.h"

/// Records and the controls of a dialog that name their fields. A dialog may show fields of several record types, say of a set and of an
/// entry in its list: each is shown and read by itself.
namespace zel {

/// Shows a record in the controls that name its fields.
template <class Record> void showFields(const CDialog& dialog, const Record& record)
{
    for (Control* control : dialog.ownControls()) {
        if (control->field().isOf<Record>())
            control->showField(&record);
    }
}

/// Reads the controls that name fields of a record, in reading order. The first one that can't be taken ends it: the record is as it was,
/// the control has the focus and a mark, and its message is shown where its declaration names one.
template <class Record> bool readFields(const CDialog& dialog, Record& record)
{
    Record read = record;
    for (Control* control : dialog.ownControls()) {
        const Field& field = control->field();
        if (!field.isOf<Record>() || (field.isReadIfEnabled() && !control->IsWindowEnabled()) || control->readField(&read))
            continue;
        control->refuseEntry();
        if (*field.message() != '\0')
            showMessage(field.message());
        return false;
    }
    record = read;
    return true;
}

}  // namespace zel
