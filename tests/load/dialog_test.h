#pragma once

#include "contract/forms/find_control.h"
#include "contract/messages.h"
#include "contract/tables/load_set_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "load/cmd_set_ortho_lc_dlg.h"
#include "load/dgn_gen_seis_factor.h"
#include "load/load_case_underground_dlg.h"
#include "load/load_case_wind_direct_dlg.h"
#include "load/under_seis_factor.h"
#include "loadcomb/envelopes/cm_load_mllc_dlg.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/messages/message_catalogue.h"
#include "platform/modeldb/model_document.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace zel::test {

using Texts = std::vector<CString>;

/// A dialog as a person sees it: controls by their labels, used through the user's channel. What a control refuses fails the test.
class Form {
public:
    explicit Form(CDialog& dialog) : m_dialog(dialog) {}

    [[nodiscard]] CDialog& dialog() const { return m_dialog; }

    template <class As = Control> As& at(std::string_view name) const
    {
        const FoundControl found = findControl(m_dialog, name);
        auto* control = dynamic_cast<As*>(found.control);
        if (control == nullptr)
            throw std::runtime_error(found.error.empty() ? CString(name) + " is of another kind" : found.error);
        return *control;
    }

    void set(std::string_view name, const char* value) const { done(at(name).set(CString(value))); }
    void choose(std::string_view name, int place) const { done(at(name).set(static_cast<double>(place))); }
    void tick(std::string_view name, bool on) const { done(at(name).set(on)); }
    void press(std::string_view name) const { done(at(name).press()); }
    void select(std::string_view name, const std::vector<int>& rows) const { done(at(name).select(rows)); }

    [[nodiscard]] CString text(std::string_view name) const { return at(name).GetWindowText(); }
    [[nodiscard]] bool enabled(std::string_view name) const { return at(name).IsWindowEnabled(); }
    [[nodiscard]] bool visible(std::string_view name) const { return at(name).IsWindowVisible(); }
    [[nodiscard]] int chosen(std::string_view name) const { return at<CComboBox>(name).GetCurSel(); }
    [[nodiscard]] Texts items(std::string_view name) const { return at<ItemControl>(name).items(); }

    [[nodiscard]] Texts row(int row, std::string_view list = "list") const
    {
        const auto& control = at<CListCtrl>(list);
        Texts texts;
        for (std::size_t column = 0; column < control.columns().size(); ++column)
            texts.push_back(control.GetItemText(row, static_cast<int>(column)));
        return texts;
    }
    [[nodiscard]] std::vector<Texts> rows(std::string_view list = "list") const
    {
        std::vector<Texts> all;
        for (int each = 0; each < at<CListCtrl>(list).GetItemCount(); ++each)
            all.push_back(row(each, list));
        return all;
    }
    [[nodiscard]] std::vector<int> selected(std::string_view list = "list") const { return at<CListCtrl>(list).GetSelectedItems(); }

private:
    static void done(const Taken& taken) { EXPECT_TRUE(taken.ok()) << taken.refusal; }

    CDialog& m_dialog;
};

/// A fresh model in memory and a user without a screen. Texts show their keys, so that boxes can be told by key.
class DialogTest : public testing::Test {
protected:
    DialogTest() { MessageCatalogue::builtIn().showKeys(true); }
    ~DialogTest() override
    {
        MessageCatalogue::builtIn().showKeys(false);
        EXPECT_TRUE(user.allDone()) << "something that the user was to do was never asked for";
    }

    /// A text of the catalogue as it is shown here.
    static CString shown(const char* key) { return CMsgDll::pfuncLoadStr(key, 0); }

    Key addCase(const char* name, const char* type)
    {
        T_STLD_D record;
        record.name = name;
        record.type = type;
        CDataStld cases;
        EXPECT_NE(cases.Add(record), 0);
        return cases.GetKeyByName(name);
    }

    void changeCase(const char* oldName, const std::function<void(T_STLD_D&)>& change)
    {
        CDataStld cases;
        ASSERT_NE(cases.Get(CString(oldName)), 0);
        change(cases.currentRecord);
        ASSERT_NE(cases.Modify(CString(oldName)), 0);
    }

    void renameCase(const char* oldName, const char* newName)
    {
        changeCase(oldName, [newName](T_STLD_D& record) { record.name = newName; });
    }

    void deleteCase(const char* name) { ASSERT_NE(CDataStld().Del(CString(name)), 0); }

    /// Runs a dialog; `use` is what the user does in it. Returns the end code: 2 when `use` leaves it open.
    template <class Dialog> int run(const std::function<void(const Form&)>& use)
    {
        user.inModal([&use](CDialog& dialog) { use(Form(dialog)); });
        Dialog dialog;
        return dialog.DoModal();
    }

    /// Notices that no dialog here reacts to: other hints, and an empty buffer after a write to a table without update codes.
    void tellOfNoChange()
    {
        for (const long long hint : {2LL, 5LL, 6LL, 7LL, 8LL, 9LL, 100LL, -1LL, -4LL})
            model->notify(nullptr, hint, nullptr);
        ASSERT_NE(CDataSurs().Add(T_SURS_D()), 0);
        ASSERT_EQ(model->GetViewBuff()->GetCount(), 0);
    }

    /// Keys of the boxes so far; forgets them.
    std::vector<CString> boxes()
    {
        const std::vector<CString> keys = user.keys();
        user.boxes.clear();
        return keys;
    }

    std::unique_ptr<ModelDocument> model = ModelDocument::inMemory();
    HeadlessUserInterface user;
};

}  // namespace zel::test
