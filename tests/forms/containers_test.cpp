#include "contract/forms/find_control.h"
#include "contract/forms/forms.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/modeldb/model_document.h"

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<CString>;

class Page : public CDlgChild {
public:
    explicit Page(const char* title) : CDlgChild(31010, title) {}
    int opened = 0;
    CListCtrl list{*this, "list", {{"No", 40}}};
    CButton add{*this, "add", "&Add", [this] { ++added; }};
    int added = 0;

protected:
    int OnInitDialog() override
    {
        ++opened;
        return 1;
    }
};

class Properties : public CDBDlgBase {
public:
    Properties() : CDBDlgBase(14008, "Properties") {}

    CDlgTabCtrl tabs{*this, "tabs", [this] { ++chosen; }};
    CButton close{*this, "close", "Close", [this] { DestroyWindow(); }};
    Page material{"Material"};
    Page section{"Section"};
    int chosen = 0;

protected:
    int OnInitDialog() override
    {
        tabs.AddPage("Material", material);
        tabs.AddPage("Section", section);
        return 1;
    }
};

class Tabs : public testing::Test {
protected:
    Tabs()
    {
        form->Create(1, 14008, nullptr);
        form->ShowWindow();
    }
    std::unique_ptr<zel::ModelDocument> model = zel::ModelDocument::inMemory();
    zel::HeadlessUserInterface host;
    Properties* form = new Properties;  // goes with the document
};

TEST_F(Tabs, ShowTheControlsOfTheChosenPageInReadingOrder)
{
    Texts names;
    for (const zel::Control* control : form->controls())
        names.push_back(control->page() + "/" + control->id() + (control->IsWindowVisible() ? "" : " hidden"));
    EXPECT_EQ(names, (Texts{"/tabs", "Material/list", "Material/add", "Section/list hidden", "Section/add hidden", "/close"}));
    EXPECT_EQ(form->material.opened, 1);
    EXPECT_EQ(form->tabs.GetActivePage(), &form->material);
}

TEST_F(Tabs, TakeATabByTextOrNumberAndRefuseOthers)
{
    EXPECT_TRUE(form->tabs.choose(CString("Section")));
    EXPECT_EQ(form->tabs.GetCurSel(), 1);
    EXPECT_TRUE(form->tabs.choose(0.0));
    EXPECT_EQ(form->chosen, 2);
    EXPECT_FALSE(form->tabs.choose(2.0));
    EXPECT_FALSE(form->tabs.choose(CString("Thickness")));
    EXPECT_EQ(form->tabs.GetCurSel(), 0);
    EXPECT_EQ(form->tabs.SetCurSel(5), 0);
    EXPECT_EQ(form->tabs.SetCurSel(1), 1);
    EXPECT_EQ(form->chosen, 2) << "the program chooses in silence";
    EXPECT_EQ(form->section.opened, 1) << "a page is opened once";
}

TEST_F(Tabs, LetInputReachTheChosenPageAlone)
{
    EXPECT_EQ(form->section.add.press().refusal, "\"Add\" is hidden");
    EXPECT_TRUE(form->material.add.press());
    form->tabs.SetCurSel(1);
    EXPECT_TRUE(form->section.add.press());
    EXPECT_EQ(form->material.added + form->section.added, 2);
}

TEST_F(Tabs, NamesMeanTheVisiblePageOrTheOneThatIsNamed)
{
    EXPECT_EQ(zel::findControl(*form, "Add").control, &form->material.add);
    EXPECT_EQ(zel::findControl(*form, "Section/Add").control, &form->section.add);
    EXPECT_EQ(zel::findControl(*form, "Section/list").control, &form->section.list);
    form->tabs.SetCurSel(1);
    EXPECT_EQ(zel::findControl(*form, "list").control, &form->section.list);
}

TEST_F(Tabs, KeysOfAPageAreTheDialogs)
{
    int pressed = 0;
    form->close.onClick([&pressed] { ++pressed; });
    form->SetDefButton(form->close);
    EXPECT_TRUE(form->material.list.key(zel::UserKey::enter));
    EXPECT_EQ(pressed, 1);
    EXPECT_TRUE(form->material.IsWindow());
}

TEST_F(Tabs, PagesCloseWithTheirDialog)
{
    const zel::UserAction action;
    EXPECT_TRUE(form->material.add.focus());
    EXPECT_TRUE(form->userClose());
    EXPECT_FALSE(form->material.IsWindow());
    EXPECT_FALSE(form->material.add.press());
}

TEST(TabsAndPages, OutliveEachOtherInAnyOrder)
{
    CInternationalDlg form{1, "Form"};
    auto tabs = std::make_unique<CDlgTabCtrl>(form, "tabs");
    {
        Page inner("Gone first");
        tabs->AddPage("Gone first", inner);
        EXPECT_EQ(form.controls().size(), 3U);
    }
    EXPECT_EQ(form.controls().size(), 1U);
    Page outer("Stays");
    tabs->AddPage("Stays", outer);
    tabs.reset();
    EXPECT_EQ(outer.container(), nullptr);
}

class Child : public CChildDialog {
public:
    explicit Child(const char* label) : CChildDialog(31005), frequency(*this, "frequency", label) {}
    CEdit frequency;
    CEdit repeat{*this, "repeat", "Repeat :"};
    double frequencyValue = 2.0;
    int repeatValue = 1;
    int opened = 0;

    int DoDataExchange(bool loading) override
    {
        return static_cast<int>(exchange(loading, frequency, frequencyValue, 2.0, 2.4) != 0 && exchange(loading, repeat, repeatValue, 1, 100) != 0);
    }

protected:
    int OnInitDialog() override
    {
        ++opened;
        return 1;
    }
};

class Generator : public CInternationalDlg {
public:
    Generator() : CInternationalDlg(9134, "Generate Heel Drop Loads") {}
    CComboBox type{*this, "type", "Heel Drop Load Type"};
    CPanel panel{*this, "panel"};
    CButton ok{*this, "ok", "OK"};
};

class Panels : public testing::Test {
protected:
    void run(std::function<void()> script)
    {
        host.inModal([script = std::move(script)](CDialog&) { script(); });
        generator.DoModal();
    }
    zel::HeadlessUserInterface host;
    Generator generator;
    Child walk{"fs :"};
    Child fast{"fs :"};
};

TEST_F(Panels, ShowOneChildAtATimeAtTheirPlace)
{
    run([this] {
        EXPECT_EQ(generator.controls().size(), 2U) << "an empty panel is not listed";
        EXPECT_EQ(walk.CreateInit(generator.panel), 1);
        EXPECT_EQ(walk.CreateInit(generator.panel), 0) << "it is created already";
        EXPECT_TRUE(walk.IsCreated());
        EXPECT_EQ(generator.controls()[1], &walk.frequency);
        EXPECT_TRUE(walk.frequency.set(CString("2.2")));

        EXPECT_EQ(fast.CreateInit(generator.panel, 0, 0), 1);
        EXPECT_FALSE(walk.IsCreated()) << "it has given its place up";
        EXPECT_FALSE(walk.frequency.set(CString("2.3")));
        EXPECT_EQ(generator.controls()[1], &fast.frequency);
        EXPECT_EQ(fast.End(), 1);
        EXPECT_EQ(fast.End(), 0);
        EXPECT_EQ(walk.CreateInit(generator.panel), 1);
        EXPECT_EQ(walk.opened, 2) << "each creation starts it anew";
    });
    EXPECT_FALSE(walk.IsCreated());
}

TEST_F(Panels, ExchangeFieldsWithinAClosedRange)
{
    run([this] {
        walk.CreateInit(generator.panel);
        walk.DoDataExchange(false);
        EXPECT_EQ(walk.frequency.GetWindowText(), "2");
        EXPECT_EQ(walk.repeat.GetWindowText(), "1");

        EXPECT_TRUE(walk.frequency.set(CString("2.4")));
        EXPECT_TRUE(walk.repeat.set(CString("100")));
        EXPECT_EQ(walk.DoDataExchange(true), 1);
        EXPECT_DOUBLE_EQ(walk.frequencyValue, 2.4);
        EXPECT_EQ(walk.repeatValue, 100);

        EXPECT_TRUE(walk.frequency.set(CString("2.41")));
        EXPECT_EQ(walk.DoDataExchange(true), 0);
        EXPECT_TRUE(walk.frequency.HasFocus());
        EXPECT_DOUBLE_EQ(walk.frequencyValue, 2.4);
        EXPECT_TRUE(walk.frequency.set(CString("fast")));
        EXPECT_EQ(walk.DoDataExchange(true), 0);
    });
    ASSERT_EQ(host.boxes.size(), 2U);
    EXPECT_EQ(host.boxes[0].text, "Enter a number between 2 and 2.4.");
    EXPECT_EQ(host.boxes[1].text, "Enter a number.");
}

TEST_F(Panels, ForgetAChildThatIsDeleted)
{
    run([this] {
        auto child = std::make_unique<Child>("fs :");
        child->CreateInit(generator.panel);
        EXPECT_TRUE(child->frequency.focus());
        child.reset();
        EXPECT_EQ(generator.controls().size(), 2U);
        EXPECT_EQ(generator.GetFocus(), nullptr);
    });
}

}  // namespace
