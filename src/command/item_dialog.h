#pragma once

#include "command/dialog_class.h"
#include "command/held_record.h"
#include "command/model_listener.h"
#include "command/record_fields.h"
#include "contract/forms/forms.h"
#include "contract/number_text.h"

#include <optional>

/// A modal dialog over one record of a table: OK writes it and closes, Apply writes it and stays. Left alone it adds a record, under a
/// new key; `openToModify` makes it modify one, `openToAddUnder` add under a given key. Its controls name the fields that they show.
///
/// Tables that are written by name modify the record of the name that it had; all others that of the key that it had.
template <class Handle> class CItemDialog : public CDlgMove, public zel::IItemArguments, public zel::ModelListener {
public:
    using Record = decltype(Handle::currentRecord);

    void openToModify(zel::Key key, const void* record) override { openToModify(key, *static_cast<const Record*>(record)); }
    void openToModify(zel::Key key, const Record& record)
    {
        m_modify = true;
        m_key = m_oldKey = key;
        m_record.open(record);
    }

    void openToAddUnder(zel::Key key) override
    {
        m_hasPresetKey = true;
        m_key = m_oldKey = key;
    }

protected:
    using CDlgMove::CDlgMove;

    // Where dialogs differ.

    /// The edit of the key, where the form has one, and the message when it holds no number.
    virtual CEdit* KeyEdit() { return nullptr; }
    [[nodiscard]] virtual const char* InvalidKey() const { return ""; }
    /// Sets what a new record starts with beyond the defaults of the table.
    virtual void StartRecord(Record& /*record*/) {}
    /// The record into the form, and out of it, the key apart. False, reported where it is to be, stops OK and Apply.
    virtual void Data2Dlg() { zel::showFields(*this, m_record.edited); }
    virtual bool Dlg2Data() { return zel::readFields(*this, m_record.edited); }
    /// Whether the record that was read can be written: checks across fields; reported if not.
    virtual bool ValidItem(const Record& /*record*/) { return true; }
    /// Apply has added a record: a free key and an empty name await the next one.
    virtual void ReadyForNext()
    {
        if constexpr (requires(const Handle& table) { table.GetNewKey(m_key); })
            m_key = Handle().GetNewKey(m_key);
        ShowKey();
        for (zel::Control* control : ownControls()) {
            if (control->field().template isOf<Record>() && control->field().name() == "name") {
                control->SetWindowText("");
                control->SetFocus();
            }
        }
    }

    // The cycle.

    int OnInitDialog() override
    {
        CDlgMove::OnInitDialog();
        const Record given = m_record.stored;
        m_record.open();
        if (m_modify) {
            m_record.open(given);
        } else {
            if constexpr (requires(const Handle& table) { table.GetNewKey(); })
                m_key = m_hasPresetKey ? m_key : Handle().GetNewKey();
            StartRecord(m_record.edited);
        }
        ShowKey();
        Data2Dlg();
        return 1;
    }

    /// Reads the form and writes the record; false, with the form as it stands, if either can't be done.
    bool SaveData()
    {
        if (!ReadKey() || !Dlg2Data() || !ValidItem(m_record.edited) || !WriteRecord())
            return false;
        m_record.stored = m_record.edited;
        m_oldKey = m_key;
        return true;
    }

    void OnOK() override
    {
        if (SaveData())
            CDlgMove::OnOK();
    }

    void OnApply()
    {
        if (SaveData() && !m_modify)
            ReadyForNext();
    }

    /// A record that is being entered follows no change of the model but that of its units.
    void UpdateBuffer(const CViewBuff& /*buffer*/) override {}
    void UnitChanged() override { m_record.convertUnits(); }
    [[nodiscard]] bool canUpdate() const override { return IsWindow(); }

    bool m_modify = false;        ///< OK modifies
    bool m_hasPresetKey = false;  ///< the key is given: no new one is asked for
    zel::Key m_key = 0;           ///< shown in the form
    zel::Key m_oldKey = 0;        ///< of the record in the model
    zel::HeldRecord<Handle> m_record;

private:
    void ShowKey()
    {
        if (CEdit* edit = KeyEdit())
            edit->SetWindowText(std::to_string(m_key));
    }

    bool ReadKey()
    {
        CEdit* edit = KeyEdit();
        if (edit == nullptr)
            return true;
        const std::optional<int> key = zel::number::readInteger(edit->GetWindowText());
        if (key && *key >= 0) {
            m_key = static_cast<zel::Key>(*key);
            return true;
        }
        edit->refuseEntry();
        if (*InvalidKey() != '\0')
            zel::showMessage(InvalidKey());
        return false;
    }

    bool WriteRecord()
    {
        Handle table;
        const Record& record = table.currentRecord = m_record.edited;
        if constexpr (requires(const CString& oldName) { table.Modify(oldName); }) {
            return (m_modify ? table.Modify(m_record.stored.name) : table.Add(record)) != 0;
        } else {
            table.currentKey = m_key;
            if (m_modify)
                return table.Modify(m_oldKey) != 0;
            if constexpr (requires { table.Add(m_key, record); })
                return table.Add(m_key, record) != 0;
            else
                return table.Add(record) != 0;
        }
    }
};
