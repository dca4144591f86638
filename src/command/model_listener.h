#pragma once

#include "contract/document.h"
#include "contract/notices.h"

namespace zel {

/// The second base of a dialog that shows model data: sorts change notices.
///
/// A change of model data, its undo and its redo come as UpdateBuffer, unless the buffer is empty; a change of the unit system as
/// UnitChanged. All other hints are passed over; a dialog that wants them overrides OnUpdate as well.
class ModelListener : public CDBUpdateConnector {
public:
    void OnUpdate(CView* /*sender*/, long long hint, CObject* /*object*/) override
    {
        if (!canUpdate())
            return;
        if (Hint::isData(hint)) {
            const CViewBuff* buffer = CDBDoc::GetDocPoint()->GetViewBuff();
            if (buffer->GetCount() > 0)
                UpdateBuffer(*buffer);
        } else if (hint == Hint::units) {
            UnitChanged();
        }
    }

protected:
    /// Model data have changed: read what concerns the dialog, by `readChanges`.
    virtual void UpdateBuffer(const CViewBuff& buffer) = 0;
    virtual void UnitChanged() {}
    /// Whether the dialog can take a notice now: its window is there.
    [[nodiscard]] virtual bool canUpdate() const = 0;
};

}  // namespace zel
