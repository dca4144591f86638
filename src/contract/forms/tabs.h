#pragma once

#include "contract/forms/control.h"
#include "contract/forms/dialog.h"

#include <vector>

/// A dialog that is a page of a tab strip. The page owns nothing of the dialog around it and lives as long as its owner says.
class CDlgChild : public CInternationalDlg {
public:
    using CInternationalDlg::CInternationalDlg;

protected:
    // The keys and buttons of a page are the dialog's: a page has no end of its own.
    void OnOK() override {}
    void OnCancel() override {}
};

/// A strip of tabs, each with a page or, for a dialog that shows one form under all tabs, without.
class CDlgTabCtrl : public zel::Control {
public:
    /// @param onSelect  the user has chosen another tab
    CDlgTabCtrl(const zel::Place& place, std::string_view id, zel::Action<> onSelect = {});
    ~CDlgTabCtrl() override;

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::tabs; }

    /// Adds a tab at the end and returns its index. The first one is chosen by it. The page's window is made here, or with
    /// the window of the dialog around it.
    int AddPage(const CString& title, CDlgChild& page);
    int AddTab(const CString& title);
    /// Takes all tabs away and closes their pages.
    void DeleteAllPages();

    [[nodiscard]] int GetPageCount() const { return static_cast<int>(m_tabs.size()); }
    [[nodiscard]] CDlgChild* GetPage(int index) const;
    [[nodiscard]] const CString& GetTitle(int index) const;
    /// Chooses a tab; returns 0 for an index without one.
    int SetCurSel(int index);
    /// The chosen tab; -1 for none.
    [[nodiscard]] int GetCurSel() const { return m_selected; }
    [[nodiscard]] CDlgChild* GetActivePage() const { return GetPage(m_selected); }
    void onSelect(zel::Action<> action) { m_onSelect = std::move(action); }

    /// Chooses a tab by text or number.
    zel::Taken choose(const zel::UserValue& value) override;
    void describe(zel::IFieldWriter& writer) const override;
    [[nodiscard]] std::vector<Nested> nested() const override;
    void forget(const CDialog& page) override;

private:
    struct Tab {
        CString title;
        CDlgChild* page = nullptr;
    };

    zel::Action<> m_onSelect;
    std::vector<Tab> m_tabs;
    int m_selected = -1;
};
