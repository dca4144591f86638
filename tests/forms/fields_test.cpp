#include "contract/forms/forms.h"
#include "contract/messages.h"
#include "contract/units.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/modeldb/model_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

struct Wave {
    double height = 0.0;
    double slope = 0.0;

    bool operator==(const Wave&) const = default;

    template <class F> static void visit(F& field)
    {
        field("height", &Wave::height, Unit::length);
        field("slope", &Wave::slope, Unit::none);
    }
};

/// A record with a field of every kind that a control shows.
struct Basin {
    CString name = "first";
    CString shape = "R";
    std::int32_t cells = 3;
    std::uint32_t loadCase = 7;
    std::int32_t covered = 1;
    std::int32_t kind = 2;
    std::int32_t side = -1;
    double depth = 1500.0;
    double share = 0.25;
    std::array<Wave, 2> waves{};
    Wave wave{200.0, 0.5};

    bool operator==(const Basin&) const = default;

    template <class F> static void visit(F& field)
    {
        field("name", &Basin::name);
        field("shape", &Basin::shape);
        field("cells", &Basin::cells);
        field("loadCase", &Basin::loadCase);
        field("covered", &Basin::covered);
        field("kind", &Basin::kind);
        field("side", &Basin::side);
        field("depth", &Basin::depth, Unit::length);
        field("share", &Basin::share, Unit::none);
        field("wave", &Basin::wave);
        field("waves", &Basin::waves);
    }
};

constexpr zel::Choice sides[] = {{-1, "left"}, {0, "middle"}, {4, "IDS_ZEL_CMD__NONE"}};

class BasinForm final : public CInternationalDlg {
public:
    BasinForm() : CInternationalDlg(1, "Basin")
    {
        shape.AddCode("R", "Round");
        shape.AddCode("Q", "Square");
        shape.AddCode("", "None");
        shape.AddString("L");
        loadCase.AddString("DL", 7);
        loadCase.AddString("LL", 9);
    }

    CEdit name{*this, "name", "Name :", {&Basin::name, zel::trimmed, zel::required}};
    CComboBox shape{*this, "shape", "Shape :", &Basin::shape};
    CEdit cells{*this, "cells", "Cells :", &Basin::cells};
    CComboBox loadCase{*this, "loadCase", "Load Case :", &Basin::loadCase};
    CCheckBox covered{*this, "covered", "Covered", &Basin::covered};
    CRadioGroup kind{*this, &Basin::kind};
    CRadioButton open{kind, "open", "Open", 2};
    CRadioButton closed{kind, "closed", "Closed", 5};
    CComboBox side{*this, "side", "Side :", {&Basin::side, sides}};
    CEditUnit depth{*this, "depth", "Depth :", &Basin::depth};
    CTextUnit depthUnit{*this, "depthUnit", &Basin::depth};
    CEdit share{*this, "share", "Share :", {&Basin::share, zel::orZero}};
    CEditUnit waveHeight{*this, "waveHeight", "Wave :", {&Basin::wave, &Wave::height}};
    CStatic note{*this, "note", "a control of no field"};
};

class Fields : public testing::Test {
protected:
    std::unique_ptr<zel::ModelDocument> model = zel::ModelDocument::inMemory({T_UNIT_INDEX::MM, T_UNIT_INDEX::KN});
    zel::HeadlessUserInterface user;
    BasinForm form;

    void show(const Basin& basin)
    {
        for (zel::Control* control : form.ownControls()) {
            if (control->field())
                control->showField(&basin);
        }
    }

    /// Reads every control; the ids of those that can't be taken.
    std::vector<CString> read(Basin& basin)
    {
        std::vector<CString> refused;
        for (zel::Control* control : form.ownControls()) {
            if (control->field() && !control->readField(&basin))
                refused.push_back(control->id());
        }
        return refused;
    }
};

TEST_F(Fields, AreShownEachInItsKind)
{
    show(Basin());
    EXPECT_EQ(form.name.GetWindowText(), "first");
    EXPECT_EQ(form.shape.GetWindowText(), "Round");
    EXPECT_EQ(form.cells.GetWindowText(), "3");
    EXPECT_EQ(form.loadCase.GetWindowText(), "DL");
    EXPECT_TRUE(form.covered.GetCheck());
    EXPECT_EQ(form.kind.GetSel(), 0);
    EXPECT_EQ(form.side.GetWindowText(), "left");
    EXPECT_EQ(form.depth.GetWindowText(), "1500");
    EXPECT_EQ(form.depthUnit.GetWindowText(), "mm");
    EXPECT_EQ(form.share.GetWindowText(), "0.25");
    EXPECT_EQ(form.waveHeight.GetWindowText(), "200");
    EXPECT_FALSE(form.note.field());
}

TEST_F(Fields, AreReadBackAsTheyWereShown)
{
    Basin basin;
    basin.name = "second";
    basin.shape = "Q";
    basin.cells = -12;
    basin.loadCase = 9;
    basin.covered = 0;
    basin.kind = 5;
    basin.side = 4;
    basin.depth = 1234.56789;
    basin.share = 0.5;
    basin.wave.height = 1e-3;
    show(basin);
    Basin taken;
    taken.wave.slope = basin.wave.slope;
    EXPECT_THAT(read(taken), ElementsAre());
    EXPECT_EQ(taken, basin) << "an unchanged field keeps all its digits";
}

TEST_F(Fields, TakeWhatTheUserEnters)
{
    show(Basin());
    form.name.SetWindowText("  second ");
    form.shape.SetCurSel(form.shape.FindStringExact("None"));
    form.cells.SetWindowText("4");
    form.loadCase.SetCurSel(1);
    form.covered.SetCheck(false);
    form.kind.SetSel(1);
    form.side.SetCurSel(1);
    form.depth.SetWindowText("2*1000");
    form.share.SetWindowText("1e-1");
    form.waveHeight.SetWindowText("3");
    Basin basin;
    EXPECT_THAT(read(basin), ElementsAre());
    EXPECT_EQ(basin.name, "second");
    EXPECT_EQ(basin.shape, "");
    EXPECT_EQ(basin.cells, 4);
    EXPECT_EQ(basin.loadCase, 9U);
    EXPECT_EQ(basin.covered, 0);
    EXPECT_EQ(basin.kind, 5);
    EXPECT_EQ(basin.side, 0);
    EXPECT_DOUBLE_EQ(basin.depth, 2000.0);
    EXPECT_DOUBLE_EQ(basin.share, 0.1);
    EXPECT_DOUBLE_EQ(basin.wave.height, 3.0);
    EXPECT_DOUBLE_EQ(basin.wave.slope, 0.5) << "a neighbour of the field in the inner record";
}

TEST_F(Fields, WhatIsNoNumberOrMissingCannotBeTakenUnlessItCountsAsZero)
{
    show(Basin());
    form.name.SetWindowText("  ");
    form.cells.SetWindowText("1.5");
    form.depth.SetWindowText("deep");
    form.share.SetWindowText("much");
    form.waveHeight.SetWindowText("");
    Basin basin;
    EXPECT_THAT(read(basin), ElementsAre("name", "cells", "depth", "waveHeight"));
    Basin expected;
    expected.share = 0.0;
    EXPECT_EQ(basin, expected);
}

TEST_F(Fields, AChoiceOfNothingLeavesTheFieldAsItIs)
{
    Basin unknown;
    unknown.shape = "X";
    unknown.loadCase = 8;
    unknown.kind = 3;
    unknown.side = 2;
    show(unknown);
    EXPECT_EQ(form.shape.GetCurSel(), -1);
    EXPECT_EQ(form.loadCase.GetCurSel(), -1);
    EXPECT_EQ(form.kind.GetSel(), -1);
    EXPECT_EQ(form.side.GetCurSel(), -1);
    Basin basin = unknown;
    EXPECT_THAT(read(basin), ElementsAre());
    EXPECT_EQ(basin, unknown);
}

TEST_F(Fields, AChoiceThatIsRequiredCannotBeLeftOut)
{
    CComboBox side(form, "otherSide", "Side :", {&Basin::side, sides, zel::required});
    Basin basin;
    EXPECT_FALSE(side.readField(&basin));
    side.SetCurSel(0);
    EXPECT_TRUE(side.readField(&basin));
    EXPECT_EQ(basin.side, -1);
}

TEST_F(Fields, ATextWithoutACodeIsItsOwn)
{
    form.shape.SetCurSel(form.shape.FindStringExact("L"));
    Basin basin;
    EXPECT_TRUE(form.shape.readField(&basin));
    EXPECT_EQ(basin.shape, "L");
    EXPECT_EQ(form.shape.FindCode("l"), -1) << "codes are compared exactly";
}

TEST_F(Fields, ListsShowNumbersShortAndCodesByTheirTexts)
{
    Basin basin;
    basin.depth = 1234567.891;
    basin.kind = 5;
    basin.shape = "";
    EXPECT_EQ(form.name.fieldText(&basin), "first");
    EXPECT_EQ(form.cells.fieldText(&basin), "3");
    EXPECT_EQ(form.depth.fieldText(&basin), "1.23457e+06");
    EXPECT_EQ(form.side.fieldText(&basin), "left");
    EXPECT_EQ(form.shape.fieldText(&basin), "None");
    EXPECT_EQ(form.loadCase.fieldText(&basin), "DL");
    EXPECT_EQ(form.open.fieldText(&basin), "Closed");
    basin.kind = 4;
    EXPECT_EQ(form.open.fieldText(&basin), "");
}

TEST_F(Fields, TextsOfChoicesComeFromTheCatalogueWhereTheyAreKeys)
{
    EXPECT_THAT(form.side.items(), ElementsAre("left", "middle", CMsgDll::pfuncLoadStr("IDS_ZEL_CMD__NONE", 0)));
    EXPECT_NE(form.side.items().back(), "IDS_ZEL_CMD__NONE");
}

TEST_F(Fields, TheUnitIsThatOfTheRecord)
{
    EXPECT_EQ(form.depth.unitType(), Unit::length);
    EXPECT_EQ(form.waveHeight.unitType(), Unit::length);
    show(Basin());
    model->GetUnitCtrl()->SetUnitIndexCurrent({T_UNIT_INDEX::M, T_UNIT_INDEX::KN}, 1);
    EXPECT_EQ(form.depth.GetWindowText(), "1.5");
    EXPECT_EQ(form.share.GetWindowText(), "0.25");
}

TEST_F(Fields, ARefusedEntryHasTheFocusAndAMarkUntilItIsChanged)
{
    form.cells.SetWindowText("many");
    form.cells.refuseEntry();
    EXPECT_TRUE(form.cells.isEntryRefused());
    EXPECT_TRUE(form.cells.HasFocus());
    EXPECT_EQ(form.cells.GetSel(), std::make_pair(0, 4));
    EXPECT_FALSE(form.depth.isEntryRefused());
    form.cells.SetWindowText("4");
    EXPECT_FALSE(form.cells.isEntryRefused());
    form.side.refuseEntry();
    EXPECT_TRUE(form.side.HasFocus());
}

TEST_F(Fields, OnlyTheFirstButtonOfAGroupStandsForItsField)
{
    EXPECT_TRUE(form.open.field().isOf<Basin>());
    EXPECT_FALSE(form.closed.field());
    EXPECT_FALSE(form.open.field().isOf<Wave>());
    EXPECT_EQ(form.waveHeight.field().name(), "height");
}

}  // namespace
