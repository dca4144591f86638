#pragma once

#include "command/held_record.h"
#include "command/model_listener.h"
#include "command/record_fields.h"
#include "command/view_buffer.h"
#include "contract/forms/forms.h"

/// A dialog over a table of one record. Its controls name the fields that they show; OK writes the record, Cancel leaves it. When another
/// window writes the record meanwhile, the form shows it afresh.
template <class Handle> class CRecordDialog : public CDlgMove, public zel::ModelListener {
public:
    using Record = decltype(Handle::currentRecord);

protected:
    using CDlgMove::CDlgMove;

    // Where dialogs differ.

    /// Sets what a new record starts with beyond the defaults of the table.
    virtual void StartRecord(Record& /*record*/) {}
    /// The record into the form, and out of it. False, reported where it is to be, keeps the dialog open.
    virtual void Data2Dlg() { zel::showFields(*this, m_record.edited); }
    virtual bool Dlg2Data() { return zel::readFields(*this, m_record.edited); }
    /// Whether OK closes the dialog also when the table refuses the record.
    [[nodiscard]] virtual bool ClosesWhenRefused() const { return false; }

    // The cycle.

    int OnInitDialog() override
    {
        m_pDoc = CDBDoc::GetDocPoint();
        CDlgMove::OnInitDialog();
        ReadRecord();
        Data2Dlg();
        return 1;
    }

    void OnOK() override
    {
        if (Dlg2Data() && (WriteRecord() || ClosesWhenRefused()))
            EndDialog(IDOK);
    }

    void UpdateBuffer(const CViewBuff& buffer) override
    {
        bool written = false;
        zel::readChanges(buffer, zel::TableWatch<Handle>{.added = [&](const Handle& /*now*/) { written = true; }});
        if (!written)
            return;
        ReadRecord();
        Data2Dlg();
        RecordRead();
    }
    /// Another window has written the record, and the form shows it.
    virtual void RecordRead() {}

    /// The values of the record are in the new units from now on. Fields with a unit follow by themselves.
    void UnitChanged() override { m_record.convertUnits(); }

    [[nodiscard]] bool canUpdate() const override { return IsWindow(); }

    zel::HeldRecord<Handle> m_record;
    CDBDoc* m_pDoc = nullptr;

private:
    void ReadRecord()
    {
        m_record.open();
        StartRecord(m_record.edited);  // not changed where the model holds a record
        Handle table;
        if constexpr (requires { table.Get(table.currentRecord); }) {
            if (table.Get(table.currentRecord) != 0)
                m_record.open(table.currentRecord);
        } else {
            if (table.Get() != 0)
                m_record.open(table.currentRecord);
        }
    }

    bool WriteRecord()
    {
        Handle table;
        table.currentRecord = m_record.edited;
        if constexpr (requires { table.Add(m_record.edited); })
            return table.Add(m_record.edited) != 0;
        else
            return table.Modify() != 0;  // of one record: it need not be there
    }
};
