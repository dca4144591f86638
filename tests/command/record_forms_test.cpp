#include "command/item_dialog.h"
#include "command/set_dialog.h"
#include "contract/tables/dynamic_tables.h"
#include "contract/tables/model_tables.h"
#include "contract/tables/property_tables.h"
#include "contract/units.h"
#include "load/dialog_test.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zel::test::DialogTest;
using zel::test::Form;
using zel::test::Texts;

class RecordForms : public DialogTest {
protected:
    void setUnits(std::int32_t length, std::int32_t force) const { model->GetUnitCtrl()->SetUnitIndexCurrent({length, force}, 1); }
};

// A form over one record

class ControlData : public CRecordDialog<CDataMctl> {
public:
    ControlData() : CRecordDialog(1, "Control") {}
    bool closesWhenRefused = false;

private:
    void StartRecord(T_MCTL_D& record) override { record.gravity = 9806.0; }
    bool ClosesWhenRefused() const override { return closesWhenRefused; }

    CEditUnit dimension{*this, "dimension", "Dimension :", {&T_MCTL_D::maxMeshDimension, "IDS_ZEL_FORM_NOT_A_NUMBER"}};
    CRadioGroup conversion{*this, &T_MCTL_D::massConversion};
    CRadioButton none{conversion, "none", "Do not Convert"};
    CRadioButton toZ{conversion, "toZ", "Convert to Z"};
    CCheckBox beams{*this, "beams", "Align", &T_MCTL_D::alignBeamTop};
    CButton ok{*this, "ok", "OK", &ControlData::OnOK};
    CButton cancel{*this, "cancel", "Cancel", &ControlData::OnCancel};
};

class RecordDialogs : public RecordForms {
protected:
    static T_MCTL_D stored()
    {
        CDataMctl table;
        EXPECT_NE(table.Get(), 0);
        return table.currentRecord;
    }
    static void store(const T_MCTL_D& record)
    {
        CDataMctl table;
        table.currentRecord = record;
        ASSERT_NE(table.Add(), 0);
    }
};

TEST_F(RecordDialogs, StartWithTheDefaultsInCurrentUnitsAndWriteTheFirstRecord)
{
    setUnits(T_UNIT_INDEX::M, T_UNIT_INDEX::KN);
    EXPECT_EQ(run<ControlData>([](const Form& form) {
                  EXPECT_EQ(form.text("Dimension :"), "1");
                  form.set("Dimension :", "2.5");
                  form.tick("Convert to Z", true);
                  form.press("OK");
              }),
              IDOK);
    EXPECT_DOUBLE_EQ(stored().maxMeshDimension, 2.5);
    EXPECT_EQ(stored().massConversion, 1);
    EXPECT_EQ(stored().alignBeamTop, 0);
    EXPECT_DOUBLE_EQ(stored().gravity, 9806.0);
}

TEST_F(RecordDialogs, ShowTheStoredRecordAndKeepTheFieldsThatTheyDoNotShow)
{
    T_MCTL_D record;
    record.maxMeshDimension = 300.0;
    record.alignBeamTop = 1;
    record.gravity = 1.0;
    record.loadCoordinates = 1;
    store(record);
    run<ControlData>([](const Form& form) {
        EXPECT_EQ(form.text("Dimension :"), "300");
        EXPECT_TRUE(form.at<CCheckBox>("Align").GetCheck());
        form.tick("Align", false);
        form.press("OK");
    });
    record.alignBeamTop = 0;
    EXPECT_EQ(stored(), record);
}

TEST_F(RecordDialogs, CancelWritesNothing)
{
    run<ControlData>([](const Form& form) {
        form.set("Dimension :", "2");
        form.press("Cancel");
    });
    EXPECT_EQ(CDataMctl().GetCount(), 0);
}

TEST_F(RecordDialogs, AnEntryThatCannotBeTakenShowsItsMessageAndKeepsThemOpen)
{
    run<ControlData>([](const Form& form) {
        form.set("Dimension :", "wide");
        form.tick("Align", true);
        form.press("OK");
        EXPECT_FALSE(form.dialog().hasEnded());
        EXPECT_TRUE(form.at("Dimension :").HasFocus());
        EXPECT_EQ(form.text("Dimension :"), "wide");
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_FORM_NOT_A_NUMBER"));
    EXPECT_EQ(CDataMctl().GetCount(), 0);
}

TEST_F(RecordDialogs, AChangeOfUnitsConvertsAlsoTheFieldsThatTheyDoNotShow)
{
    T_MCTL_D record;
    record.gravity = 9806.0;
    store(record);
    run<ControlData>([this](const Form& form) {
        setUnits(T_UNIT_INDEX::M, T_UNIT_INDEX::N);
        EXPECT_EQ(form.text("Dimension :"), "1");
        form.press("OK");
    });
    EXPECT_DOUBLE_EQ(stored().maxMeshDimension, 1.0);
    EXPECT_DOUBLE_EQ(stored().gravity, 9.806);
}

// A set: a record with a list of entries

struct LoadsToMasses final : CSetDialog<CDataLtom, T_LTOM_BASE> {
    LoadsToMasses() : CSetDialog(2, "Masses", &T_LTOM_D::cases, nullptr) {}

    CListCtrl& List() override { return list; }
    std::vector<zel::FieldColumn> Columns() const override { return {{"No", 30}, {"Case", 60, &loadCase}, {"Scale", 60, &scale}}; }
    void Initial_LCaseComboBox() override
    {
        loadCase.fill([](const T_STLD_D&) { return true; });
    }
    bool ValidItem(const T_LTOM_BASE& item) override { return item.scale != 13.0; }
    bool IsOnlyOne(const T_LTOM_BASE& item, int skipRow) override
    {
        return !HasAnotherRow(skipRow, [&item](const T_LTOM_BASE& other) { return other.loadCase == item.loadCase; });
    }

    CCheckBox lines{*this, "lines", "Lines", &T_LTOM_D::useLineLoad};
    zel::LoadCaseCombo loadCase{*this, "loadCase", "Case :", {&T_LTOM_BASE::loadCase, zel::required}, zel::LoadCaseCombo::Lines::names};
    CEdit scale{*this, "scale", "Scale :", &T_LTOM_BASE::scale};
    CListCtrl list{*this, "list", &LoadsToMasses::OnChangedCurrentItem};
    CButton add{*this, "add", "Add", &LoadsToMasses::AddItem};
    CButton modify{*this, "modify", "Modify", &LoadsToMasses::ModifyItem};
    CButton del{*this, "del", "Delete", &LoadsToMasses::DeleteItem};
    CButton ok{*this, "ok", "OK", &LoadsToMasses::OnOK};
};

class SetDialogs : public RecordForms {
protected:
    static T_LTOM_D stored()
    {
        T_LTOM_D record;
        EXPECT_NE(CDataLtom().Get(record), 0);
        return record;
    }
};

TEST_F(SetDialogs, TheWorkingRecordFollowsAChangeOfUnits)
{
    T_LTOM_D record;
    record.gravity = 9806.0;  // shown by no control
    ASSERT_NE(CDataLtom().Add(record), 0);
    run<LoadsToMasses>([this](const Form& form) {
        setUnits(T_UNIT_INDEX::M, T_UNIT_INDEX::N);
        form.press("OK");
    });
    EXPECT_DOUBLE_EQ(stored().gravity, 9.806);
}

TEST_F(SetDialogs, RowsShowTheNumberAndTheFieldsOfTheirEntry)
{
    const auto dead = addCase("DL", "D");
    const auto live = addCase("LL", "L");
    run<LoadsToMasses>([](const Form& form) {
        for (const char* name : {"LL", "DL"}) {
            form.set("Case :", name);
            form.set("Scale :", "0.5");
            form.press("Add");
        }
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"1", "LL", "0.5"}, Texts{"2", "DL", "0.5"}));
        form.select("list", {0});
        form.set("Scale :", "1e6");
        form.press("Modify");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"1", "LL", "1e+06"}, Texts{"2", "DL", "0.5"}));
        form.tick("Lines", true);
        form.press("OK");
    });
    EXPECT_EQ(stored().useLineLoad, 1);
    EXPECT_THAT(stored().cases, ElementsAre(T_LTOM_BASE{live, 1e6}, T_LTOM_BASE{dead, 0.5}));
}

TEST_F(SetDialogs, NumbersOfRowsFollowADeletion)
{
    for (const char* name : {"A", "B", "C"})
        addCase(name, "D");
    run<LoadsToMasses>([](const Form& form) {
        for (const char* name : {"A", "B", "C"}) {
            form.set("Case :", name);
            form.set("Scale :", "1");
            form.press("Add");
        }
        form.select("list", {0});
        form.press("Delete");
        EXPECT_THAT(form.rows(), ElementsAre(Texts{"1", "B", "1"}, Texts{"2", "C", "1"}));
    });
}

TEST_F(SetDialogs, AnEntryThatCannotBeReadOrTakenChangesNothing)
{
    addCase("DL", "D");
    run<LoadsToMasses>([](const Form& form) {
        form.set("Scale :", "1");
        form.press("Add");
        EXPECT_TRUE(form.at("Case :").HasFocus()) << "a required choice is missing";
        form.set("Case :", "DL");
        for (const char* scale : {"", "13"}) {
            form.set("Scale :", scale);
            form.press("Add");
        }
        EXPECT_THAT(form.rows(), IsEmpty());
    });
}

// An item of a table by key

class Thickness final : public CItemDialog<CDataThik> {
public:
    Thickness() : CItemDialog(3, "Thickness") {}

private:
    CEdit* KeyEdit() override { return &number; }
    const char* InvalidKey() const override { return "IDS_ZEL_FORM_NOT_A_NUMBER"; }
    void StartRecord(T_THIK_D& record) override { record.inX = 7.0; }
    bool ValidItem(const T_THIK_D& record) override
    {
        ++checked;
        return record.outX > 0.0;
    }
    int OnInitDialog() override
    {
        outX.enabledWhen([this] { return separate.GetCheck(); });
        return CItemDialog::OnInitDialog();
    }

    int checked = 0;
    CEdit number{*this, "number", "Number :"};
    CEdit name{*this, "name", "Name :", {&T_THIK_D::name, zel::trimmed}};
    CCheckBox separate{*this, "separate", "Separate", &T_THIK_D::separate};
    CEditUnit inX{*this, "inX", "In :", &T_THIK_D::inX};
    CEditUnit outX{*this, "outX", "Out :", {&T_THIK_D::outX, zel::ifEnabled}};
    CButton ok{*this, "ok", "OK", &Thickness::OnOK};
    CButton apply{*this, "apply", "Apply", &Thickness::OnApply};
};

class ItemDialogs : public RecordForms {
protected:
    static T_THIK_D stored(zel::Key key)
    {
        T_THIK_D record;
        EXPECT_NE(CDataThik().Get(key, record), 0) << key;
        return record;
    }
    static void fill(const Form& form, const char* name, const char* inX)
    {
        form.set("Name :", name);
        form.tick("Separate", true);
        form.set("In :", inX);
        form.set("Out :", "1");
    }
    /// Runs it on a record that is given, or on a key.
    int modify(zel::Key key, const T_THIK_D& record, const std::function<void(const Form&)>& use)
    {
        user.inModal([&use](CDialog& dialog) { use(Form(dialog)); });
        Thickness dialog;
        dialog.openToModify(key, &record);
        return dialog.DoModal();
    }
};

TEST_F(ItemDialogs, AddUnderANewKeyAndClose)
{
    ASSERT_NE(CDataThik().Add(4, T_THIK_D()), 0);
    EXPECT_EQ(run<Thickness>([](const Form& form) {
                  EXPECT_EQ(form.text("Number :"), "5");
                  EXPECT_EQ(form.text("In :"), "7");
                  fill(form, " slab ", "200");
                  form.press("OK");
              }),
              IDOK);
    EXPECT_EQ(stored(5).name, "slab");
    EXPECT_DOUBLE_EQ(stored(5).inX, 200.0);
    EXPECT_DOUBLE_EQ(stored(5).outX, 1.0);
}

TEST_F(ItemDialogs, ApplyAddsStaysAndAwaitsTheNextOneUnderAFreeKey)
{
    ASSERT_NE(CDataThik().Add(2, T_THIK_D()), 0);
    run<Thickness>([](const Form& form) {
        form.set("Number :", "1");
        fill(form, "a", "10");
        form.press("Apply");
        EXPECT_EQ(form.text("Number :"), "3");
        EXPECT_EQ(form.text("Name :"), "");
        EXPECT_TRUE(form.at("Name :").HasFocus());
        EXPECT_EQ(form.text("In :"), "10");
        form.press("Apply");
    });
    EXPECT_EQ(stored(1).name, "a");
    EXPECT_EQ(stored(3).name, "");
    EXPECT_EQ(CDataThik().GetCount(), 3);
}

TEST_F(ItemDialogs, UnderAPresetKeyNoNewOneIsAskedFor)
{
    user.inModal([](CDialog& dialog) {
        const Form form(dialog);
        EXPECT_EQ(form.text("Number :"), "40");
        fill(form, "a", "10");
        form.press("OK");
    });
    Thickness dialog;
    dialog.openToAddUnder(40);
    dialog.DoModal();
    EXPECT_EQ(stored(40).name, "a");
}

TEST_F(ItemDialogs, ModifyTheRecordUnderItsOldKeyAndApplyTwiceUnderTheNewOne)
{
    T_THIK_D record;
    record.name = "old";
    record.inY = 3.0;
    ASSERT_NE(CDataThik().Add(1, record), 0);
    modify(1, record, [](const Form& form) {
        EXPECT_EQ(form.text("Name :"), "old");
        form.set("Number :", "8");
        fill(form, "new", "5");
        form.press("Apply");
        EXPECT_EQ(form.text("Name :"), "new") << "Apply of a modification leaves the form";
        form.set("Number :", "9");
        form.press("OK");
    });
    EXPECT_EQ(CDataThik().GetCount(), 1);
    EXPECT_EQ(stored(9).name, "new");
    EXPECT_DOUBLE_EQ(stored(9).inY, 3.0);
}

TEST_F(ItemDialogs, AKeyThatIsNoNumberComesBeforeAllOtherFaults)
{
    run<Thickness>([](const Form& form) {
        fill(form, "a", "x");
        for (const char* key : {"", "one", "-1"}) {
            form.set("Number :", key);
            form.press("OK");
            EXPECT_TRUE(form.at("Number :").isEntryRefused()) << key;
        }
        form.set("Number :", "1");
        form.press("OK");
        EXPECT_TRUE(form.at("In :").isEntryRefused());
        EXPECT_FALSE(form.dialog().hasEnded());
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_FORM_NOT_A_NUMBER", "IDS_ZEL_FORM_NOT_A_NUMBER", "IDS_ZEL_FORM_NOT_A_NUMBER"));
    EXPECT_EQ(CDataThik().GetCount(), 0);
}

TEST_F(ItemDialogs, AFieldThatIsReadWhileEnabledKeepsItsValueOtherwise)
{
    run<Thickness>([](const Form& form) {
        fill(form, "a", "10");
        form.tick("Separate", false);
        form.at<CEdit>("Out :").SetWindowText("nonsense");
        form.press("OK");
        EXPECT_FALSE(form.dialog().hasEnded()) << "outX is 0, as it was, and the check refuses it";
        EXPECT_FALSE(form.at("Out :").isEntryRefused());
    });
}

TEST_F(ItemDialogs, AWriteThatTheTableRefusesKeepsTheFormAsItIs)
{
    ASSERT_NE(CDataThik().Add(2, T_THIK_D()), 0);
    run<Thickness>([](const Form& form) {
        form.set("Number :", "2");
        fill(form, "a", "10");
        form.press("Apply");
        EXPECT_EQ(form.text("Number :"), "2");
        EXPECT_EQ(form.text("Name :"), "a");
        form.press("OK");
        EXPECT_FALSE(form.dialog().hasEnded());
    });
    EXPECT_EQ(stored(2).name, "");
    boxes();  // the table has said why
}

TEST_F(ItemDialogs, AChangeOfUnitsConvertsAlsoTheFieldsThatTheyDoNotShow)
{
    T_THIK_D record;
    record.inY = 3000.0;
    record.outX = 500.0;
    ASSERT_NE(CDataThik().Add(1, record), 0);
    modify(1, record, [this](const Form& form) {
        setUnits(T_UNIT_INDEX::M, T_UNIT_INDEX::N);
        EXPECT_EQ(form.text("Out :"), "0.5");
        form.press("OK");
    });
    EXPECT_DOUBLE_EQ(stored(1).inY, 3.0);
    EXPECT_DOUBLE_EQ(stored(1).outX, 0.5);
}

// An item of a table by name

class TimeHistory final : public CItemDialog<CDataThld> {
public:
    TimeHistory() : CItemDialog(4, "Case") {}

private:
    CEdit name{*this, "name", "Name :", {&T_THLD_D::name, zel::required, "IDS_ZEL_CMD__Error___Name_has_not_been_input_"}};
    CEdit steps{*this, "steps", "Steps :", {&T_THLD_D::outputSteps, zel::orZero}};
    CButton ok{*this, "ok", "OK", &TimeHistory::OnOK};
    CButton apply{*this, "apply", "Apply", &TimeHistory::OnApply};
};

TEST_F(ItemDialogs, OfATableByNameModifyTheRecordOfTheNameThatItHad)
{
    T_THLD_D record;
    record.name = "one";
    ASSERT_NE(CDataThld().Add(record), 0);
    user.inModal([](CDialog& dialog) {
        const Form form(dialog);
        form.set("Name :", "two");
        form.press("Apply");
        form.set("Name :", "three");
        form.set("Steps :", "5");
        form.press("OK");
    });
    TimeHistory dialog;
    dialog.openToModify(17, record);  // such a table reads no key
    EXPECT_EQ(dialog.DoModal(), IDOK);
    CDataThld table;
    EXPECT_EQ(table.GetCount(), 1);
    ASSERT_NE(table.Get(CString("three")), 0);
    EXPECT_EQ(table.currentKey, 1U);
    EXPECT_EQ(table.currentRecord.outputSteps, 5);
}

TEST_F(ItemDialogs, AnEmptyNameIsRefusedWithItsMessageWhereOneIsRequired)
{
    run<TimeHistory>([](const Form& form) {
        form.press("OK");
        EXPECT_TRUE(form.at("Name :").HasFocus());
        form.set("Name :", " ");  // no trimmed field: blanks are for the table to judge
        form.press("Apply");
        EXPECT_EQ(form.text("Name :"), " ");
        form.set("Name :", "a");
        form.press("Apply");
        EXPECT_EQ(form.text("Name :"), "");
    });
    EXPECT_THAT(boxes(), ElementsAre("IDS_ZEL_CMD__Error___Name_has_not_been_input_", "IDS_DB_REFUSE_EMPTY_NAME"));
    EXPECT_EQ(CDataThld().GetCount(), 1);
}

}  // namespace
