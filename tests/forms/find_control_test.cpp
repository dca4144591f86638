#include "contract/forms/dialog_names.h"
#include "contract/forms/find_control.h"
#include "contract/forms/forms.h"

#include <gtest/gtest.h>

namespace {

struct LabelCase {
    const char* label;
    const char* name;
};
void PrintTo(const LabelCase& row, std::ostream* out)
{
    *out << '"' << row.label << '"';
}

constexpr LabelCase labels[] = {
    {"Name        :", "Name"},
    {"&Auto Generation...", "Auto Generation..."},
    {"Self  Weight\nFactor :", "Self Weight Factor"},
    {"D&&C", "DC"},
    {": a:b : ", ": a:b"},
    {" Load", " Load"},
    {" : ", ""},
    {"", ""},
    {"k :", "k"},
};

class Labels : public testing::TestWithParam<LabelCase> {};

TEST_P(Labels, AreNormalised)
{
    EXPECT_EQ(zel::normalisedLabel(GetParam().label), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(All, Labels, testing::ValuesIn(labels));

class Twins : public CInternationalDlg {
public:
    Twins() : CInternationalDlg(1, "Twins") {}

    CEdit name{*this, "name", "Name :"};
    CGroup left{*this, "Left &Side"};
    CEdit leftSpace{left, "leftSpace", "Space :"};
    CButton leftMore{left, "leftMore", "..."};
    CGroup right{*this, "Right Side"};
    CEdit rightSpace{right, "rightSpace", "Space :"};
    CButton rightMore{right, "rightMore", "..."};
    CButton modify{*this, "modify", "&Modify/Show"};
    CListCtrl list{*this, "list"};
};

ZEL_DIALOG_NAME(Twins)

const zel::Control* found(const Twins& form, const char* name)
{
    return zel::findControl(form, name).control;
}

TEST(NamingAControl, ByLabelWholeOrNormalisedOrById)
{
    Twins form;
    EXPECT_EQ(found(form, "Name"), &form.name);
    EXPECT_EQ(found(form, "Name :"), &form.name);
    EXPECT_EQ(found(form, "name"), &form.name);
    EXPECT_EQ(found(form, "list"), &form.list);
    EXPECT_EQ(found(form, "Modify/Show"), &form.modify) << "a slash may be part of the label";
}

TEST(NamingAControl, OfSeveralByGroupOrByCount)
{
    Twins form;
    EXPECT_EQ(found(form, "Left Side/Space"), &form.leftSpace);
    EXPECT_EQ(found(form, "Right Side/..."), &form.rightMore);
    EXPECT_EQ(found(form, "Space#1"), &form.leftSpace);
    EXPECT_EQ(found(form, "Space :#2"), &form.rightSpace);
    EXPECT_EQ(found(form, "Right Side/Space#1"), &form.rightSpace);
    EXPECT_EQ(found(form, "Right Side/rightSpace"), &form.rightSpace);
}

TEST(NamingAControl, APlainNameMeansTheOnlyVisibleOne)
{
    Twins form;
    EXPECT_EQ(zel::findControl(form, "Space").error,
              "Twins has 2 controls called \"Space\": say which, \"Left Side/Space\" (id leftSpace), \"Right Side/Space\" (id rightSpace)");
    form.left.ShowWindow(false);
    EXPECT_EQ(found(form, "Space"), &form.rightSpace);
}

TEST(NamingAControl, AnUnknownNameIsAnsweredWithTheNearest)
{
    Twins form;
    EXPECT_EQ(zel::findControl(form, "Naem").error, "Twins has no control \"Naem\"; did you mean \"Name\"?");
    EXPECT_EQ(zel::findControl(form, "Space#3").error, "Twins has only 2 of \"Space\"");
    EXPECT_EQ(zel::findControl(form, "Middle/Space").control, nullptr);
    EXPECT_EQ(zel::findControl(form, "").control, nullptr);
}

}  // namespace
