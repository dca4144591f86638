#pragma once

#include "contract/forms/control.h"
#include "contract/forms/dialog.h"

class CChildDialog;
class CEdit;

/// A place in a dialog that shows one child dialog at a time. It is not listed itself; the controls of its child are.
class CPanel : public zel::Control {
public:
    CPanel(const zel::Place& place, std::string_view id);
    ~CPanel() override;

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::label; }
    [[nodiscard]] bool isListed() const override { return false; }
    void describe(zel::IFieldWriter& /*writer*/) const override {}
    [[nodiscard]] std::vector<Nested> nested() const override;
    void forget(const CDialog& child) override;

    /// The child that is shown; null for none.
    [[nodiscard]] CChildDialog* child() const { return m_child; }

private:
    friend class CChildDialog;

    CChildDialog* m_child = nullptr;
};

/// A dialog inside a panel. It can be created and ended many times; each creation runs OnInitDialog.
class CChildDialog : public CDialog {
public:
    CChildDialog(unsigned templateId, CWnd* parent = nullptr) : CDialog(templateId, {}, parent) {}

    /// Makes the window in a panel, in place of the child that stood there. Return 0 if it is created already.
    virtual int CreateInit(CPanel& panel);
    /// The same at a place in the panel [pixels], which only a host with a screen regards.
    virtual int CreateInit(CPanel& panel, int x, int y);
    /// Takes the window away; the object and its values stay. Returns 0 if there is none.
    virtual int End();
    [[nodiscard]] bool IsCreated() const { return IsWindow(); }

    /// Moves the values between the fields and the object's members.
    /// @param loading  true: from the fields; false: into the fields
    /// @return 0 when a field holds what it can't take; it has been reported and the focus stands on it
    virtual int DoDataExchange(bool loading);

protected:
    void OnOK() override {}
    void OnCancel() override {}
    /// Something happened in the child that the dialog around it may want to know.
    virtual void PrivateNotifyToParent(int /*code*/) {}

    /// Exchange one field within a closed range, with the report of a value that is no number or outside it.
    int exchange(bool loading, CEdit& field, double& value, double lowest, double highest);
    int exchange(bool loading, CEdit& field, int& value, int lowest, int highest);
};
