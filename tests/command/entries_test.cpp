#include "build_paths.h"
#include "command/command.h"
#include "command/dialog_table.h"
#include "contract/forms/loading_status.h"
#include "contract/forms/open_dialogs.h"
#include "load/dialog_test.h"

#include <algorithm>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

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
    std::ranges::for_each(zel::dialogRows, check);
}

TEST(DialogTable, ARowIsOpenedInOneWayAndOfferedInAMenu)
{
    std::set<std::string_view> entries;
    for (const zel::DialogRow& row : zel::dialogRows) {
        EXPECT_FALSE(row.way.id != nullptr && row.way.number != 0) << row.dialogClass;
        EXPECT_TRUE(row.way.id != nullptr || row.way.number != 0 || row.exported == zel::Exported::yes) << row.dialogClass << " is opened by nothing";
        EXPECT_TRUE(row.entry.menu.starts_with('&') && !row.entry.text.empty()) << row.dialogClass;
        EXPECT_TRUE(entries.insert(row.entry.text).second || row.entry.menu == "&Results") << row.entry.text;
    }
}

/// What is built is opened under the template and the title of its row.
TEST_F(Entries, ADialogIsOpenedUnderTheTemplateAndTheTitleOfItsRow)
{
    int built = 0;
    for (const zel::DialogRow& row : zel::dialogRows) {
        if (!zel::hasDialogClass(row.dialogClass))
            continue;
        ++built;
        const auto check = [&row](const CDialog& dialog) {
            EXPECT_EQ(dialog.ClassName(), row.dialogClass);
            EXPECT_EQ(dialog.templateId(), row.templateId) << row.dialogClass;
            EXPECT_EQ(dialog.GetWindowText(), row.title) << row.dialogClass;
        };
        if (row.exported == zel::Exported::yes) {
            check(*zel::makeExportedDialog(row.dialogClass));
        } else if (row.way.id != nullptr) {
            check(*CMD_DoModeless(*row.way.id, nullptr));
        } else {
            user.inModal(check);
            CMD_DoModal(row.way.number, nullptr, 0);
        }
    }
    EXPECT_GE(built, 9);
}

TEST(DialogTable, EveryClassThatIsMadeKnownHasARow)
{
    const std::regex known("^ZEL_DIALOG\\((\\w+)\\)");
    int found = 0;
    for (const auto& file : std::filesystem::recursive_directory_iterator(zel::test::sourceFolder() + "/src")) {
        if (file.path().extension() != ".cpp")
            continue;
        std::ifstream source(file.path());
        std::smatch match;
        for (std::string line; std::getline(source, line);) {
            if (!line.starts_with("ZEL_DIALOG") || !std::regex_search(line, match, known))
                continue;
            ++found;
            const std::string name = match[1];
            EXPECT_TRUE(std::ranges::any_of(zel::dialogRows, [&name](const zel::DialogRow& row) { return row.dialogClass == name; })) << name;
            EXPECT_TRUE(zel::hasDialogClass(name)) << name;
        }
    }
    EXPECT_GE(found, 9);
}

TEST(DialogTable, NamesTheTableOfEachSubjectOnce)
{
    std::set<std::string> tables;
    for (const zel::DialogRow& row : zel::dialogRows) {
        std::istringstream codes{std::string(row.subjects)};
        for (std::string code; codes >> code;) {
            EXPECT_NE(zel::findTable(code), nullptr) << code;
            EXPECT_TRUE(tables.insert(code).second) << code;
            EXPECT_EQ(zel::findDialogOfTable(code), &row) << code;
        }
    }
    EXPECT_GE(tables.size(), 20U);
    EXPECT_EQ(zel::findDialogOfTable("NODE"), nullptr);
}

/// The rows of the README's list of forms: "| `Class` | Title | `what a journal says` |".
TEST(DialogTable, TheReadmeListsTheFormsThatAreBuiltWithTitleAndWay)
{
    const auto sentenceOf = [](const zel::DialogRow& row) -> std::string {
        if (row.way.id != nullptr)
            return R"({"do": "modeless", "id": ")" + std::string(row.way.idName) + R"("})";
        if (row.way.number != 0)
            return R"({"do": "modal", "number": )" + std::to_string(row.way.number) + "}";
        return R"({"do": "open", "class": ")" + std::string(row.dialogClass) + R"("})";
    };
    std::set<std::string> expected;
    for (const zel::DialogRow& row : zel::dialogRows) {
        if (zel::hasDialogClass(row.dialogClass))
            expected.insert("| `" + std::string(row.dialogClass) + "` | " + std::string(row.title) + " | `" + sentenceOf(row) + "` |");
    }
    const std::regex form("^\\| `C\\w+` \\|");
    std::set<std::string> listed;
    std::ifstream readme(zel::test::sourceFolder() + "/README.md");
    for (std::string line; std::getline(readme, line);) {
        if (std::regex_search(line, form))
            listed.insert(line);
    }
    EXPECT_EQ(listed, expected) << "the table \"Forms\" in README.md (first) and the forms that are built (second)";
}

// What the library shows

TEST(ExportedDialogs, AreFoundByNameAndBuiltWithTheNameOfTheirClass)
{
    const auto model = zel::ModelDocument::inMemory();
    const std::vector<std::string_view> names = zel::exportedDialogs();
    EXPECT_GE(names.size(), 6U);
    for (const std::string_view name : names)
        EXPECT_EQ(zel::makeExportedDialog(name)->ClassName(), name);
    EXPECT_TRUE(std::ranges::is_sorted(names));
    EXPECT_EQ(zel::makeExportedDialog("CCMLoadCaseDlg"), nullptr);       // only its id opens it
    EXPECT_EQ(zel::makeExportedDialog("CModelAssignBasemat"), nullptr);  // not built yet
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
    for (const zel::DialogRow& row : zel::dialogRows)
        EXPECT_TRUE(row.exported == zel::Exported::no || allowed.contains(row.dialogClass)) << row.dialogClass;
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
    for (const std::string_view name : zel::exportedDialogs())
        EXPECT_TRUE(isVisible(tableOf(name))) << name;
    for (const char* hidden : {"CCMLoadCaseDlg", "CCMLoadCaseGrid", "CLoadCaseUnderMainGrid"})
        EXPECT_FALSE(isVisible(tableOf(hidden))) << hidden;
    dlclose(handle);
}

}  // namespace
