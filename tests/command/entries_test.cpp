#include "command/command.h"
#include "command/dialog_table.h"
#include "command/exported_dialogs.h"
#include "contract/forms/loading_status.h"
#include "contract/forms/open_dialogs.h"
#include "load/dialog_test.h"

#include <algorithm>
#include <dlfcn.h>
#include <map>
#include <set>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using zel::test::DialogTest;
using zel::test::Form;

/// The way into the library.
class Entries : public DialogTest {
protected:
    static CDialog* openLoadCases() { return CMD_DoModeless(D_CMD_MODEL_LOAD_LOADCASE, nullptr); }

    [[nodiscard]] int opened(const CString& dialogClass) const { return static_cast<int>(std::ranges::count(user.events, "opened " + dialogClass)); }
};

TEST_F(Entries, TheThirteenIdsAreDistinctAndRegisteredInTheOrderOfTheTable)
{
    unsigned last = 0;
    for (const zel::ModelessDialog& row : zel::modelessDialogs) {
        EXPECT_GT(*row.id, last) << row.name;
        last = *row.id;
    }
    EXPECT_THAT(zel::modelessDialogs, SizeIs(13));
}

TEST_F(Entries, LoadingTheLibraryIsReported)
{
    Init_ZEL_cmddll();
    EXPECT_THAT(zel::loadedModules(), Contains("ZEL_cmd"));
}

TEST_F(Entries, AModelessDialogIsOpenedUnderItsIdWithTemplateAndTitle)
{
    CDialog* dialog = openLoadCases();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->ClassName(), "CCMLoadCaseDlg");
    EXPECT_EQ(dialog->templateId(), 14047U);
    EXPECT_EQ(dialog->GetWindowText(), "Static Load Cases");
    EXPECT_FALSE(dialog->isModal());
    EXPECT_TRUE(dialog->IsWindowVisible());
    EXPECT_EQ(model->GetDlgCtrl()->GetDlg(D_CMD_MODEL_LOAD_LOADCASE), dialog);
    EXPECT_EQ(zel::activeDialog(), dialog);
}

TEST_F(Entries, ASecondCallBringsTheOpenDialogToTheFrontAsTheUserLeftIt)
{
    CDialog* dialog = openLoadCases();
    Form(*dialog).set("Name", "typed");
    CDialog* other = new CDBDlgBase(1, "other");
    static_cast<CDBDlgBase*>(other)->Create(CDBDlgBase::RegisterDialog(), 1, nullptr);
    other->SetActiveWindow();
    EXPECT_EQ(zel::activeDialog(), other);

    EXPECT_EQ(openLoadCases(), dialog);
    EXPECT_EQ(zel::activeDialog(), dialog);
    EXPECT_EQ(Form(*dialog).text("Name"), "typed");
    EXPECT_EQ(opened("CCMLoadCaseDlg"), 1);
    EXPECT_THAT(user.events, Contains("activated CCMLoadCaseDlg"));
}

TEST_F(Entries, AnIdThatWasClosedBuildsANewDialogThatReadsTheModelAfresh)
{
    Form(*openLoadCases()).set("Name", "typed");
    Form(*openLoadCases()).press("Close");
    zel::deleteClosedDialogs();
    addCase("DL", "D");
    CDialog* dialog = openLoadCases();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(opened("CCMLoadCaseDlg"), 2);
    EXPECT_EQ(Form(*dialog).text("Name"), "");
    EXPECT_EQ(Form(*dialog).at<CTBGrid>("grid").GetDataRowCount(), 1);
}

TEST_F(Entries, AnUnknownIdOpensNothing)
{
    for (const unsigned id : {0U, 14047U, D_CMD_MODEL_LOAD_SPDI + 1000})
        EXPECT_EQ(CMD_DoModeless(id, nullptr), nullptr) << id;
    EXPECT_THAT(user.events, IsEmpty());
}

TEST_F(Entries, ANumberThatOpensNothingReturnsZero)
{
    for (const unsigned number : {0U, 6U, 7U, 29U, 4000000000U})
        EXPECT_EQ(CMD_DoModal(number, nullptr, 0), 0) << number;
    EXPECT_THAT(user.events, IsEmpty());
}

TEST_F(Entries, WithoutAModelNothingOpens)
{
    model.reset();
    EXPECT_EQ(openLoadCases(), nullptr);
    EXPECT_EQ(CMD_DoModal(1, nullptr, 0), 0);
}

// The tables

TEST(DialogTable, HasEveryModalCommandUnderItsNumber)
{
    for (std::size_t i = 0; i < zel::modalCommands.size(); ++i)
        EXPECT_EQ(zel::modalCommands[i].number, i + 1);
    EXPECT_THAT(zel::modalCommands, SizeIs(28));
    for (const unsigned number : {0U, 6U, 7U, 29U})
        EXPECT_EQ(zel::findModalCommand(number), nullptr) << number;
    EXPECT_EQ(zel::findModalCommand(28)->dialogClass, "CModelThikScaleDlg");
}

TEST(DialogTable, RecordsAreReadForTheItemDialogsAlone)
{
    for (const zel::ModalCommand& command : zel::modalCommands) {
        const bool isItem = command.number >= 16 && command.number <= 26;
        EXPECT_EQ(!command.record.empty(), isItem) << command.number;
        if (isItem) {
            EXPECT_NE(zel::findTable(command.record), nullptr) << command.number;
        }
    }
}

TEST(DialogTable, OneClassHasOneTemplateAndOneTitle)
{
    std::map<std::string_view, std::pair<unsigned, std::string_view>> forms;
    const auto check = [&forms](const auto& row) {
        if (row.dialogClass.empty())
            return;
        const auto form = std::make_pair(row.templateId, row.title);
        EXPECT_EQ(forms.emplace(row.dialogClass, form).first->second, form) << row.dialogClass;
    };
    std::ranges::for_each(zel::modelessDialogs, check);
    std::ranges::for_each(zel::modalCommands, check);
}

// What the library shows

TEST(ExportedDialogs, AreFoundByNameAndBuiltWithTheNameOfTheirClass)
{
    const auto model = zel::ModelDocument::inMemory();
    for (const zel::ExportedDialog& each : zel::exportedDialogs) {
        EXPECT_EQ(zel::findExportedDialog(each.name)->name, each.name);
        EXPECT_EQ(each.make()->ClassName(), each.name);
    }
    EXPECT_TRUE(std::ranges::is_sorted(zel::exportedDialogs, {}, &zel::ExportedDialog::name));
    EXPECT_EQ(zel::findExportedDialog("CCMLoadCaseDlg"), nullptr);  // only its id opens it
}

TEST(ExportedDialogs, AreAmongTheClassesThatHostsMayBuild)
{
    const std::set<std::string_view> allowed{
        "CCMLoadMLLCDlg",         "CCMLoadSPDIGrid",
        "CCMLoadTypeDlg",         "CCmdSetOrthoLCDlg",
        "CDgnGenSeisFactor",      "CLoadCaseUndergroundDlg",
        "CLoadCaseWindDirectDlg", "CModelAssignBasemat",
        "CModelDefProperty",      "CModelDefSupport",
        "CModelDomainDlg",        "CModelSectScaleDlg",
        "CModelThikScaleDlg",     "CStripDesignControlDataDlg",
        "CThfcListDlg",           "CThisListDlg",
        "CUnderSeisFactor",
    };
    EXPECT_THAT(allowed, SizeIs(17));
    for (const zel::ExportedDialog& each : zel::exportedDialogs)
        EXPECT_TRUE(allowed.contains(each.name)) << each.name;
}

/// Names are as the compiler writes them: "_ZTV" and the class is a class's table of functions.
TEST(ExportedDialogs, EntriesIdsAndClassesAreVisibleAndWhatStandsBehindThemIsNot)
{
    Dl_info library{};
    ASSERT_NE(dladdr(reinterpret_cast<void*>(&Init_ZEL_cmddll), &library), 0);
    void* handle = dlopen(library.dli_fname, RTLD_NOW | RTLD_NOLOAD);
    ASSERT_NE(handle, nullptr);
    const auto isVisible = [handle](const CString& symbol) { return dlsym(handle, symbol.c_str()) != nullptr; };
    const auto tableOf = [](std::string_view name) { return "_ZTV" + std::to_string(name.size()) + CString(name); };

    for (const zel::ModelessDialog& row : zel::modelessDialogs)
        EXPECT_TRUE(isVisible(CString(row.name))) << row.name;
    for (const zel::ExportedDialog& each : zel::exportedDialogs)
        EXPECT_TRUE(isVisible(tableOf(each.name))) << each.name;
    for (const char* hidden : {"CCMLoadCaseDlg", "CCMLoadCaseGrid", "CLoadCaseUnderMainGrid"})
        EXPECT_FALSE(isVisible(tableOf(hidden))) << hidden;
    dlclose(handle);
}

}  // namespace
