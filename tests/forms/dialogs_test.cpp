#include "forms/sample_form.h"

#include "contract/forms/dialog_names.h"
#include "contract/forms/dlg_modeless_mgr.h"
#include "contract/forms/open_dialogs.h"
#include "platform/modeldb/model_document.h"

#include <functional>

#include <gtest/gtest.h>

namespace {

using forms_test::OpenForm;
using forms_test::SampleForm;
using Texts = std::vector<CString>;

class Question : public CInternationalDlg {
public:
    explicit Question(CString title = "Question") : CInternationalDlg(77, std::move(title)) {}

    CEdit value{*this, "value", "Value"};
    CButton ok{*this, "ok", "OK", &Question::OnOK};
    CButton cancel{*this, "cancel", "Cancel", &Question::OnCancel};
    CButton other{*this, "other", "Other", [this] { EndDialog(42); }};
    CButton more{*this, "more", "...", [this] { moreCode = Question("More").DoModal(); }};

    bool endsAtOnce = false;
    int moreCode = 0;

protected:
    int OnInitDialog() override
    {
        value.SetWindowText("default");
        if (endsAtOnce)
            EndDialog(9);
        return 1;
    }
};

ZEL_DIALOG_NAME(Question)

TEST(ModalDialog, RunsUntilItEndsAndReturnsItsCode)
{
    zel::HeadlessUserInterface host;
    Question question;
    host.inModal([&question](CDialog& dialog) {
        EXPECT_EQ(&dialog, &question);
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(zel::activeDialog(), &dialog);
        EXPECT_EQ(question.value.GetWindowText(), "default");
        EXPECT_TRUE(question.ok.press());
    });
    EXPECT_EQ(question.DoModal(), IDOK);
    EXPECT_FALSE(question.IsWindow());
    EXPECT_EQ(zel::activeDialog(), nullptr);
    EXPECT_EQ(host.events, (Texts{"opened Question", "closed Question 1"}));

    host.inModal([&question](CDialog&) { EXPECT_TRUE(question.other.press()); });
    EXPECT_EQ(question.DoModal(), 42) << "it can be run again";
}

TEST(ModalDialog, IsCancelledByItsCloseBoxByEscapeAndByNobodyBeingThere)
{
    zel::HeadlessUserInterface host;
    Question question;
    EXPECT_EQ(question.DoModal(), IDCANCEL);
    host.inModal([](CDialog& dialog) { EXPECT_TRUE(dialog.userKey(zel::UserKey::escape)); });
    EXPECT_EQ(question.DoModal(), IDCANCEL);
    zel::IUserInterface* installed = zel::setUserInterface(nullptr);
    EXPECT_EQ(question.DoModal(), IDCANCEL);
    zel::setUserInterface(installed);
}

TEST(ModalDialog, ThatEndsWhileItOpensNeverAppears)
{
    zel::HeadlessUserInterface host;
    Question question;
    question.endsAtOnce = true;
    EXPECT_EQ(question.DoModal(), 9);
    EXPECT_TRUE(host.events.empty());
}

TEST(ModalDialog, NestsAndLetsInputReachTheInnermostAlone)
{
    zel::HeadlessUserInterface host;
    Question outer("Outer");
    host.inModal([&](CDialog&) {
        host.inModal([&](CDialog& inner) {
            EXPECT_EQ(zel::activeDialog(), &inner);
            EXPECT_EQ(outer.value.set(CString("x")).refusal, "the dialog \"Outer\" (Question) can't be reached: \"More\" (Question) waits for input");
            EXPECT_TRUE(static_cast<Question&>(inner).ok.press());
        });
        EXPECT_TRUE(outer.more.press());
        EXPECT_EQ(outer.moreCode, IDOK);
        EXPECT_TRUE(outer.value.set(CString("y"))) << "the outer one takes input again";
        EXPECT_TRUE(outer.ok.press());
        EXPECT_FALSE(outer.value.set(CString("z"))) << "it has ended";
    });
    EXPECT_EQ(outer.DoModal(), IDOK);
    EXPECT_EQ(host.events, (Texts{"opened Question", "opened Question", "closed Question 1", "closed Question 1"}));
    EXPECT_TRUE(host.allDone());
}

TEST(ModalDialog, EnterPressesTheDefaultButtonElseConfirms)
{
    zel::HeadlessUserInterface host;
    Question question;
    host.inModal([](CDialog& dialog) { EXPECT_TRUE(dialog.userKey(zel::UserKey::enter)); });
    EXPECT_EQ(question.DoModal(), IDOK);

    question.SetDefButton(question.other);
    EXPECT_TRUE(question.other.isDefault());
    host.inModal([&question](CDialog&) { EXPECT_TRUE(question.value.key(zel::UserKey::enter)); });
    EXPECT_EQ(question.DoModal(), 42);
}

TEST(ModalDialog, AFieldMayUseEnterAndEscapeItself)
{
    zel::HeadlessUserInterface host;
    Question question;
    int entered = 0;
    question.value.onEnter([&entered] { ++entered; });
    question.value.onEscape([&question] { question.value.SetWindowText(""); });
    host.inModal([&question](CDialog&) {
        EXPECT_TRUE(question.value.key(zel::UserKey::enter));
        EXPECT_TRUE(question.value.key(zel::UserKey::escape));
        EXPECT_FALSE(question.hasEnded());
    });
    EXPECT_EQ(question.DoModal(), IDCANCEL);
    EXPECT_EQ(entered, 1);
}

TEST(ModalDialog, TabMovesToTheNextControlThatTakesInput)
{
    zel::HeadlessUserInterface host;
    Question question;
    question.ok.EnableWindow(false);
    host.inModal([&question](CDialog& dialog) {
        EXPECT_TRUE(question.value.focus());
        EXPECT_TRUE(dialog.userKey(zel::UserKey::tab));
        EXPECT_TRUE(question.cancel.HasFocus());
        EXPECT_TRUE(question.more.focus());
        EXPECT_TRUE(dialog.userKey(zel::UserKey::tab));
        EXPECT_TRUE(question.value.HasFocus()) << "behind the last one comes the first";
    });
    question.DoModal();
}

class ModelessDialogs : public testing::Test {
protected:
    std::unique_ptr<zel::ModelDocument> model = zel::ModelDocument::inMemory();
    zel::HeadlessUserInterface host;
    CDlgModelessMgr& manager = *model->GetDlgCtrl();

    SampleForm* open(unsigned id)
    {
        auto* form = new SampleForm;
        form->Create(id, 4711, nullptr);
        form->ShowWindow();
        form->SetActiveWindow();
        return form;
    }
};

TEST_F(ModelessDialogs, StandUnderTheirIdUntilTheirWindowGoes)
{
    const unsigned id = CDBDlgBase::RegisterDialog();
    EXPECT_NE(id, CDBDlgBase::RegisterDialog());
    EXPECT_EQ(manager.GetDlg(id), nullptr);
    SampleForm* form = open(id);
    EXPECT_EQ(form->created, 1);
    EXPECT_EQ(form->m_pDoc, model.get());
    EXPECT_EQ(manager.GetDlg(id), form);
    EXPECT_EQ(SampleForm::living, 1);

    EXPECT_TRUE(form->end.press());
    EXPECT_EQ(manager.GetDlg(id), nullptr);
    EXPECT_EQ(SampleForm::living, 0) << "the object has freed itself";
    EXPECT_EQ(host.events, (Texts{"opened SampleForm", "closed SampleForm"}));

    EXPECT_NE(open(id), nullptr);
    EXPECT_EQ(SampleForm::living, 1);
}

TEST_F(ModelessDialogs, OnlyOneStandsUnderAnId)
{
    SampleForm* first = open(5);
    SampleForm second;
    EXPECT_EQ(second.Create(5, 4711, nullptr), 0);
    EXPECT_FALSE(second.IsWindow());
    EXPECT_EQ(second.created, 0);
    EXPECT_EQ(manager.GetDlg(5), first);
    EXPECT_EQ(first->Create(6, 4711, nullptr), 0) << "its window is there already";
    EXPECT_EQ(manager.GetDlg(6), nullptr);
}

TEST_F(ModelessDialogs, TheOneActivatedLastIsInFront)
{
    SampleForm* first = open(1);
    SampleForm* second = open(2);
    EXPECT_EQ(zel::activeDialog(), second);
    EXPECT_EQ(manager.dialogs(), (std::vector<CDialog*>{second, first}));
    first->ShowWindow();
    first->SetActiveWindow();
    EXPECT_EQ(zel::activeDialog(), first);
    EXPECT_EQ(host.events.back(), "activated SampleForm");
    EXPECT_TRUE(second->userActivate());
    EXPECT_EQ(manager.dialogs(), (std::vector<CDialog*>{second, first}));
}

TEST_F(ModelessDialogs, CloseByTheCloseBoxAndByEscapeButNotByEnter)
{
    SampleForm* form = open(1);
    EXPECT_TRUE(form->userKey(zel::UserKey::enter));
    EXPECT_EQ(manager.GetDlg(1), form);
    EXPECT_TRUE(form->userKey(zel::UserKey::escape));
    EXPECT_EQ(manager.GetDlg(1), nullptr);
    EXPECT_TRUE(open(1)->userClose());
    EXPECT_EQ(SampleForm::living, 0);
}

TEST_F(ModelessDialogs, OpenedFromAModalOneCanBeReachedAndOthersCannot)
{
    SampleForm* before = open(1);
    Question question;
    host.inModal([&](CDialog& dialog) {
        EXPECT_FALSE(before->name.set(CString("x")));
        EXPECT_FALSE(before->userClose());
        SampleForm* during = open(2);
        EXPECT_EQ(zel::activeDialog(), &dialog) << "the modal one stays the active one";
        EXPECT_TRUE(during->name.set(CString("x")));
        EXPECT_TRUE(question.value.set(CString("y")));
        before->SetActiveWindow();
        EXPECT_TRUE(before->name.set(CString("x"))) << "its command has brought it to the front";
    });
    question.DoModal();
}

TEST_F(ModelessDialogs, ClosedInsideTheirOwnHandlerLiveUntilItReturns)
{
    SampleForm* form = open(1);
    bool closed = false;
    form->press.onClick([&] {
        form->DestroyWindow();
        closed = manager.GetDlg(1) == nullptr && !form->IsWindow();
        form->name.SetWindowText("still there");  // the sanitizers watch over this
    });
    EXPECT_TRUE(form->press.press());
    EXPECT_TRUE(closed) << "the id is free at once";
    EXPECT_EQ(SampleForm::living, 0);
}

TEST_F(ModelessDialogs, ClosedWhileOneOfTheirHandlersRunsAModalDialogLiveUntilItReturns)
{
    SampleForm* form = open(1);
    form->press.onClick([&] {
        Question question;
        host.inModal([&](CDialog&) {
            form->DestroyWindow();  // as a notice does
            SampleForm* again = open(1);
            EXPECT_NE(again, form);
            EXPECT_TRUE(again->end.press());
            EXPECT_TRUE(question.ok.press());
        });
        EXPECT_EQ(question.DoModal(), IDOK);
        form->name.SetWindowText("still there");
    });
    EXPECT_TRUE(form->press.press());
    EXPECT_EQ(SampleForm::living, 0);
}

TEST_F(ModelessDialogs, AHostKeepsThemAliveForItsOwnAction)
{
    SampleForm* form = open(1);
    {
        const zel::UserAction action;
        EXPECT_TRUE(form->end.press());
        EXPECT_EQ(SampleForm::living, 1);
    }
    EXPECT_EQ(SampleForm::living, 0);
}

class ListeningForm : public SampleForm, public CDBUpdateConnector {
public:
    void OnUpdate(CView* /*sender*/, long long hint, CObject* /*object*/) override
    {
        hints.push_back(hint);
        if (hint == Hint::leaveModel)
            DestroyWindow();
    }
    std::vector<long long> hints;
};

TEST_F(ModelessDialogs, MayCloseInsideANoticeAndHearNothingMore)
{
    const zel::UserAction action;
    auto* form = new ListeningForm;
    form->Create(1, 4711, nullptr);
    model->notify(nullptr, Hint::write, nullptr);
    model->notify(nullptr, Hint::leaveModel, nullptr);
    EXPECT_EQ(manager.GetDlg(1), nullptr);
    model->notify(nullptr, Hint::write, nullptr);
    EXPECT_EQ(form->hints, (std::vector<long long>{Hint::write, Hint::leaveModel}));
}

TEST_F(ModelessDialogs, GoWithTheirDocument)
{
    open(1);
    open(2);
    model.reset();
    EXPECT_EQ(SampleForm::living, 0);
    EXPECT_TRUE(zel::openDialogs().empty());
}

TEST_F(ModelessDialogs, RunModallyLiveOnTheStackAndEndByDestroyWindow)
{
    SampleForm form;
    host.inModal([&form](CDialog&) { EXPECT_TRUE(form.end.press()); });
    EXPECT_EQ(form.DoModal(), IDCANCEL);
    host.inModal([&form](CDialog&) { EXPECT_TRUE(form.userKey(zel::UserKey::enter)); });
    EXPECT_EQ(form.DoModal(), IDOK);
    EXPECT_EQ(SampleForm::living, 1);
    EXPECT_TRUE(manager.dialogs().empty());
}

TEST_F(ModelessDialogs, WithoutAnIdEndAndFreeThemselves)
{
    struct Basemat : CGlobalModeless {
        explicit Basemat(bool& living) : CGlobalModeless(31001, "Assign Basemat"), m_living(living) { m_living = true; }
        ~Basemat() override { m_living = false; }
        bool& m_living;
        CButton cancel{*this, "cancel", "Cancel", [this] { End(); }};
    };
    bool living = false;
    auto* dialog = new Basemat(living);
    EXPECT_EQ(dialog->Create(), 1);
    dialog->ShowWindow();
    EXPECT_EQ(zel::activeDialog(), dialog);
    EXPECT_TRUE(dialog->cancel.press());
    EXPECT_FALSE(living);
}

TEST(DialogNames, AreThoseThatWereEnteredWhateverTheCompilerCallsTheClass)
{
    struct Basemat : CInternationalDlg {
        Basemat() : CInternationalDlg(31001, "Assign Basemat") {}
    };
    struct Derived : Basemat {};
    EXPECT_EQ(Basemat().ClassName(), "Dialog31001");
    zel::enterDialogName(typeid(Basemat), "CModelAssignBasemat");
    EXPECT_EQ(Basemat().ClassName(), "CModelAssignBasemat");
    EXPECT_EQ(Derived().ClassName(), "Dialog31001") << "a class has no name by its base";
}

TEST(MovableDialog, KeepsWhereItIsToOpen)
{
    CDlgMove dialog{1, "Movable"};
    dialog.SetInitPos(2, 30, 40);
    EXPECT_EQ(dialog.initPos().mode, 2);
    EXPECT_EQ(dialog.initPos().y, 40);
}

}  // namespace
