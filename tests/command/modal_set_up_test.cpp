#include "command/item_dialog.h"
#include "command/modal_set_up.h"
#include "contract/tables/dynamic_tables.h"
#include "contract/tables/load_type_tables.h"
#include "contract/tables/property_tables.h"

#include <gtest/gtest.h>

namespace {

/// Stands for an item dialog: shows what it was given.
template <class Handle> class ItemDialog : public CItemDialog<Handle> {
public:
    ItemDialog() : CItemDialog<Handle>(1, "item") {}

    [[nodiscard]] bool modifies() const { return this->m_modify; }
    [[nodiscard]] bool hasPresetKey() const { return this->m_hasPresetKey; }
    [[nodiscard]] zel::Key key() const { return this->m_key; }
    [[nodiscard]] zel::Key oldKey() const { return this->m_oldKey; }
    [[nodiscard]] const auto& record() const { return this->m_record.edited; }
};

class PlacedDialog : public CDlgMove {
public:
    PlacedDialog() : CDlgMove(1, "placed") {}
};

class IdentityDialog : public CInternationalDlg, public zel::IModalMode {
public:
    IdentityDialog() : CInternationalDlg(1, "identity") {}
    void setModalMode(int set) override { mode = set; }
    int mode = 0;
};

class ScaleDialog : public CInternationalDlg, public zel::IScaleFactorsOfKey {
public:
    ScaleDialog() : CInternationalDlg(1, "scale") {}
    void SetModifyData(zel::Key set) override { key = set; }
    zel::Key key = 0;
};

/// The array of a caller, with a key and a record.
template <class Record> struct Args {
    unsigned key = 7;
    Record record{};
    CArray<void*, void*> pointers{&key, &record};
};

const zel::ModalCommand& command(unsigned number)
{
    return *zel::findModalCommand(number);
}

TEST(ModalSetUp, AFlagModifiesTheRecordOfTheArguments)
{
    for (const int flag : {1, -1, 5}) {
        Args<T_MATL_D> args;
        args.record.name = "C24";
        ItemDialog<CDataMatl> dialog;
        zel::setUpModal(dialog, command(16), &args.pointers, flag);
        EXPECT_TRUE(dialog.modifies());
        EXPECT_FALSE(dialog.hasPresetKey());
        EXPECT_EQ(dialog.key(), 7U);
        EXPECT_EQ(dialog.oldKey(), 7U);
        EXPECT_EQ(dialog.record().name, "C24");
    }
}

TEST(ModalSetUp, WithoutAFlagTheKeyIsPresetAndTheRecordIsNotTaken)
{
    for (const unsigned number : {16U, 17U, 18U}) {
        Args<T_MATL_D> args;
        args.record.name = "C24";
        ItemDialog<CDataMatl> dialog;
        zel::setUpModal(dialog, command(number), &args.pointers, 0);
        EXPECT_FALSE(dialog.modifies());
        EXPECT_TRUE(dialog.hasPresetKey());
        EXPECT_EQ(dialog.key(), 7U);
        EXPECT_EQ(dialog.oldKey(), 7U);
        EXPECT_EQ(dialog.record(), T_MATL_D());
    }
}

TEST(ModalSetUp, TheFlagHasNoEffectOnTheOtherItemDialogs)
{
    for (const unsigned number : {19U, 20U, 23U, 24U, 25U, 26U}) {
        for (const int flag : {0, 1}) {
            Args<T_LNLD_D> args;
            args.record.name = "wall";
            ItemDialog<CDataLnld> dialog;
            zel::setUpModal(dialog, command(number), &args.pointers, flag);
            EXPECT_TRUE(dialog.modifies()) << number;
            EXPECT_EQ(dialog.record().name, "wall") << number;
        }
    }
}

TEST(ModalSetUp, RecordsThatAreKnownByNameAreModified)
{
    for (const unsigned number : {21U, 22U}) {
        Args<T_THFC_D> args;
        args.record.name = "quake";
        ItemDialog<CDataThfc> dialog;
        zel::setUpModal(dialog, command(number), &args.pointers, 0);
        EXPECT_TRUE(dialog.modifies());
        EXPECT_EQ(dialog.record().name, "quake");
    }
}

TEST(ModalSetUp, TheRecordIsCopied)
{
    Args<T_MATL_D> args;
    args.record.name = "C24";
    ItemDialog<CDataMatl> dialog;
    zel::setUpModal(dialog, command(16), &args.pointers, 1);
    args.record.name = "changed";
    EXPECT_EQ(dialog.record().name, "C24");
}

TEST(ModalSetUp, WithoutArgumentsAnItemDialogAddsAsItsDefaultsSay)
{
    for (unsigned number = 16; number <= 26; ++number) {
        ItemDialog<CDataMatl> dialog;
        zel::setUpModal(dialog, command(number), nullptr, 1);
        EXPECT_FALSE(dialog.modifies() || dialog.hasPresetKey()) << number;
        EXPECT_EQ(dialog.key(), 0U) << number;
    }
}

TEST(ModalSetUp, ScaleFactorsOpenOnTheKeyOfTheArgumentsOrWithoutOne)
{
    for (const unsigned number : {27U, 28U}) {
        unsigned key = 9;
        CArray<void*, void*> args{&key};
        ScaleDialog dialog;
        zel::setUpModal(dialog, command(number), &args, 0);
        EXPECT_EQ(dialog.key, 9U);
        ScaleDialog without;
        zel::setUpModal(without, command(number), nullptr, 0);
        EXPECT_EQ(without.key, 0U);
    }
}

TEST(ModalSetUp, EnvelopesOpenBesideTheirParent)
{
    PlacedDialog dialog;
    zel::setUpModal(dialog, command(2), nullptr, 0);
    EXPECT_EQ(dialog.initPos().mode, 1);
    EXPECT_EQ(dialog.initPos().x, 0);
    EXPECT_EQ(dialog.initPos().y, 0);
}

TEST(ModalSetUp, SelectIdentityRunsInTheModeOfItsCommand)
{
    for (const unsigned number : {13U, 14U}) {
        IdentityDialog dialog;
        zel::setUpModal(dialog, command(number), nullptr, 0);
        EXPECT_EQ(dialog.mode, static_cast<int>(number) - 12);
    }
}

}  // namespace
