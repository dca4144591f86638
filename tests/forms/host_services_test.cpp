#include "contract/forms/forms.h"
#include "contract/forms/loading_status.h"
#include "contract/user_interface.h"
#include "platform/forms/headless_user_interface.h"

#include <algorithm>
#include <map>

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<CString>;

TEST(HostServices, AreSafeWithoutAHost)
{
    ASSERT_EQ(zel::userInterface(), nullptr);
    EXPECT_EQ(AfxMessageBox("text"), IDOK);
    EXPECT_EQ(AfxMessageBox("really?", MB_YESNO, 0), IDYES);
    GMsgOutFormatNF("%d", 1);
    GSaveHistoryFormatNF("%s", "x");
    zel::postHostCommand(32869);
    zel::sendHostCommand(32869);
    CPrefer::SetUpPrefer(9);
    I_ZELModelBase::SetModelingModeST(26);
    EXPECT_EQ(I_ZELModelBase::GetCurMySelfST(), nullptr);
}

TEST(HeadlessHost, RecordsBoxesWithTheirKeysAndAnswersFromAQueue)
{
    zel::HeadlessUserInterface host;
    host.answer(IDNO);
    EXPECT_EQ(AfxMessageBox("[IDS_A]first", 0, 0), IDOK) << "a box with OK alone takes no answer";
    EXPECT_EQ(AfxMessageBox("second", MB_YESNO), IDNO);
    EXPECT_EQ(AfxMessageBox("third", MB_YESNO), IDYES);
    ASSERT_EQ(host.boxes.size(), 3U);
    EXPECT_EQ(host.boxes[0].text, "first");
    EXPECT_EQ(host.keys(), (Texts{"IDS_A", "", ""}));
    EXPECT_TRUE(host.allDone());
}

TEST(HeadlessHost, GivesFilesFromAQueueElseCancels)
{
    zel::HeadlessUserInterface host;
    host.file("/tmp/a.lcb");
    host.file(std::nullopt);
    CString path = "old";
    EXPECT_TRUE(host.openFile("LCB *.lcb|*.lcb||", path));
    EXPECT_EQ(path, "/tmp/a.lcb");
    EXPECT_FALSE(host.openFile("", path));
    EXPECT_FALSE(host.openFile("", path));
    EXPECT_EQ(path, "/tmp/a.lcb");
    EXPECT_EQ(host.fileFilters.front(), "LCB *.lcb|*.lcb||");
}

TEST(HeadlessHost, CarriesSentCommandsOutAtOnceAndPostedOnesLater)
{
    zel::HeadlessUserInterface host;
    std::vector<unsigned> carriedOut;
    host.onCommand = [&carriedOut](unsigned number) { carriedOut.push_back(number); };
    zel::postHostCommand(1);
    zel::sendHostCommand(2);
    EXPECT_EQ(carriedOut, std::vector<unsigned>{2});
    CInternationalDlg dialog{1, "Waits"};
    dialog.DoModal();
    EXPECT_EQ(carriedOut, (std::vector<unsigned>{2, 1}));
    using Command = zel::HeadlessUserInterface::Command;
    EXPECT_EQ(host.commands, (std::vector<Command>{{1, true}, {2, false}}));
}

TEST(HeadlessHost, RecordsLinesProcessesAndPreferences)
{
    zel::HeadlessUserInterface host;
    GMsgOutFormatNF("corrected to %g", 2.5);
    GSaveHistoryFormatNF("%s %d", "step", 3);
    EXPECT_TRUE(host.startProcess("PYLD.exe"));
    host.processesStart = false;
    EXPECT_FALSE(host.startProcess("PYLD.exe"));
    CPrefer::SetUpPrefer(9);
    EXPECT_EQ(host.outputs, Texts{"corrected to 2.5"});
    EXPECT_EQ(host.histories, Texts{"step 3"});
    EXPECT_EQ(host.preferencePages, std::vector<int>{9});
}

TEST(HeadlessHost, PutsTheFormerOneBack)
{
    {
        zel::HeadlessUserInterface outer;
        {
            const zel::HeadlessUserInterface inner;
            EXPECT_EQ(zel::userInterface(), &inner);
            EXPECT_EQ(I_ZELModelBase::GetCurMySelfST(), &inner.view);
        }
        EXPECT_EQ(zel::userInterface(), &outer);
    }
    EXPECT_EQ(zel::userInterface(), nullptr);
}

TEST(LoadingStatus, KeepsTheNamesOfLoadedModules)
{
    const CLoadingStatus status("SomeModule");
    const Texts& modules = zel::loadedModules();
    EXPECT_NE(std::find(modules.begin(), modules.end(), "SomeModule"), modules.end());
}

/// Writes each field as one text.
class TextWriter final : public zel::IFieldWriter {
public:
    void text(std::string_view name, const CString& value) override { put(name, value); }
    void flag(std::string_view name, bool value) override { put(name, value ? "true" : "false"); }
    void number(std::string_view name, std::optional<int> value) override { put(name, value ? std::to_string(*value) : "null"); }
    void numbers(std::string_view name, const std::vector<int>& values) override { put(name, joined(values)); }
    void keys(std::string_view name, const std::vector<unsigned>& values) override { put(name, joined(values)); }
    void texts(std::string_view name, const std::vector<CString>& values) override
    {
        CString list;
        for (const CString& value : values)
            list += value + ";";
        put(name, list);
    }
    void columns(std::string_view name, const std::vector<zel::ColumnView>& values) override { put(name, std::to_string(values.size())); }
    void rows(std::string_view name, const std::vector<std::vector<CString>>& values) override
    {
        CString sizes;
        for (const std::vector<CString>& row : values)
            sizes += std::to_string(row.size()) + " ";
        put(name, sizes);
    }
    void points(std::string_view name, const std::vector<zel::GraphPoint>& values) override { put(name, std::to_string(values.size())); }
    void shapes(std::string_view name, const std::vector<zel::Shape>& values) override { put(name, std::to_string(values.size())); }

    CString all;

private:
    void put(std::string_view name, const CString& value) { all += CString(name) + "=" + value + " "; }
    template <class T> static CString joined(const std::vector<T>& values)
    {
        CString text;
        for (const T value : values)
            text += std::to_string(value) + ";";
        return text;
    }
};

CString described(const zel::Control& control)
{
    TextWriter writer;
    control.describe(writer);
    return CString(zel::kindName(control.kind())) + ": " + writer.all;
}

TEST(DescribingAControl, WritesTheFieldsOfItsKind)
{
    CInternationalDlg form{1, "Form"};
    CEdit edit{form, "edit", "Edit"};
    edit.SetWindowText("text");
    CMouseEdit pick{form, "pick", "Pick"};
    pick.SetWindowText("3,4");
    CComboBox combo{form, "combo", "Combo"};
    combo.AddString("a");
    combo.SetCurSel(2);
    CCheckListBox checks{form, "checks", ""};
    checks.AddString("a");
    checks.SetCheck(0);
    CListCtrl report{form, "report", {{"A", 1}, {"B", 2}}};
    report.InsertItem(0, "only the first");
    CSpinButtonCtrl spin{form, "spin", edit};
    CDlgTabCtrl tabs{form, "tabs"};
    tabs.AddTab("General");
    SREGraphView graph{form, "graph"};
    graph.GetGraph().SetValue(0, 2, {1.0, 2.0});
    graph.SetAxisTitles("Time", "Force");
    graph.SetLogScale(true, false);
    CPicture picture{form, "picture", 10, 10};
    picture.SetShapes({{zel::Shape::Kind::ellipse, {{0, 0}, {10, 10}}, {}, std::nullopt}});

    EXPECT_EQ(described(edit), "edit: value=text ");
    EXPECT_EQ(described(pick), "pick: value=3,4 keys=3;4; ");
    EXPECT_EQ(described(combo), "combo: items=a; selected=null value= editable=false ");
    EXPECT_EQ(described(checks), "checklist: items=a; ticked=0; selected= ");
    EXPECT_EQ(described(report), "report: columns=2 rows=2  selected= ");
    EXPECT_EQ(described(spin), "spin: control=edit ");
    EXPECT_EQ(described(tabs), "tabs: items=General; selected=0 ");
    EXPECT_EQ(described(graph), "graph: points=3 xLog=true yLog=false xTitle=Time yTitle=Force ");
    EXPECT_EQ(described(picture), "picture: shapes=1 ");
}

}  // namespace
