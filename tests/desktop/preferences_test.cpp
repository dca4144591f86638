#include "desktop/files_fixture.h"

#include "contract/init_ctrl.h"
#include "contract/user_interface.h"
#include "desktop/host/preferences_dialog.h"
#include "desktop/host/settings.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>

namespace desktop_test {

using zel::desktop::Preferences;
using zel::desktop::PreferencesDialog;

class PreferencesWindow : public DesktopTest {
protected:
    PreferencesWindow() { QSettings().clear(); }
    ~PreferencesWindow() override
    {
        QSettings().clear();
        zel::desktop::applyFontSize(0);
    }
    static void press(QWidget& dialog, QDialogButtonBox::StandardButton which)
    {
        QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(which), Qt::LeftButton);
    }
    [[nodiscard]] T_PREFERENCE ofDocument()
    {
        T_PREFERENCE preference;
        window.document().GetInitCtrl()->GetPreference(preference);
        return preference;
    }
};

TEST_F(PreferencesWindow, AFormOpensThemAtItsPage)
{
    QString page;
    whenModal([&](QWidget& dialog) {
        page = dialog.findChild<QListWidget*>()->currentItem()->text();
        press(dialog, QDialogButtonBox::Cancel);
    });
    CPrefer::SetUpPrefer(9);
    EXPECT_EQ(page, "Pile Space");
}

TEST_F(PreferencesWindow, WhatIsConfirmedIsKeptAndReachesTheOpenModelAndTheNext)
{
    whenModal([](QWidget& dialog) {
        const auto factors = dialog.findChildren<QDoubleSpinBox*>();
        factors.at(1)->setValue(3.5);
        factors.at(0)->setValue(3.0);
        press(dialog, QDialogButtonBox::Ok);
    });
    window.showPreferences(9);
    EXPECT_EQ(ofDocument().minPileSpaceFactor, 3.0);
    EXPECT_EQ(ofDocument().standardPileSpaceFactor, 3.5);
    window.setDocument(zel::ModelDocument::inMemory());
    EXPECT_EQ(ofDocument().minPileSpaceFactor, 3.0);
    EXPECT_EQ(zel::desktop::storedPreferences().model.standardPileSpaceFactor, 3.5);
}

TEST_F(PreferencesWindow, WhatIsCancelledIsNot)
{
    whenModal([](QWidget& dialog) {
        dialog.findChildren<QDoubleSpinBox*>().at(1)->setValue(7.0);
        press(dialog, QDialogButtonBox::Cancel);
    });
    window.showPreferences(9);
    EXPECT_EQ(zel::desktop::storedPreferences(), Preferences{});
}

TEST_F(PreferencesWindow, TheStandardSpaceIsNotBelowTheMinimum)
{
    PreferencesDialog dialog(&window, {}, 9);
    const auto factors = dialog.findChildren<QDoubleSpinBox*>();
    const QPushButton* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    factors.at(0)->setValue(4.0);
    EXPECT_FALSE(ok->isEnabled());
    factors.at(1)->setValue(4.0);
    EXPECT_TRUE(ok->isEnabled());
    factors.at(0)->setValue(0.2);
    EXPECT_EQ(factors.at(0)->value(), zel::desktop::leastPileSpaceFactor) << "piles would stand in each other";
}

TEST_F(PreferencesWindow, TheFontSizeIsSeenAtOnceAndGoesBackOnCancel)
{
    const int desktops = QApplication::font().pointSize();
    PreferencesDialog dialog(&window, {}, 5);
    dialog.findChild<QSpinBox*>()->setValue(17);
    EXPECT_EQ(QApplication::font().pointSize(), 17);
    EXPECT_EQ(dialog.preferences().fontSize, 17);
    dialog.reject();
    EXPECT_EQ(QApplication::font().pointSize(), desktops);
}

TEST_F(PreferencesWindow, EveryPageTakesAndGivesTheSamePreferences)
{
    Preferences all;
    all.model.steelStandard = "KS(S)";
    all.model.concreteStandard = "KS(RC)";
    all.model.concreteCode = "KCI";
    all.model.sectionDbName = "KS";
    all.model.minPileSpaceFactor = 2.0;
    all.model.standardPileSpaceFactor = 3.25;
    all.units = {T_UNIT_INDEX::FEET, T_UNIT_INDEX::KIP};
    all.fontSize = 12;
    const PreferencesDialog dialog(&window, all, 0);
    EXPECT_EQ(dialog.preferences(), all);
    store(all);
    EXPECT_EQ(zel::desktop::storedPreferences(), all);
}

TEST_F(PreferencesWindow, NewModelsStartInTheChosenUnits)
{
    Preferences metric;
    metric.units = {T_UNIT_INDEX::M, T_UNIT_INDEX::TON};
    store(metric);
    const zel::desktop::MainWindow another;
    EXPECT_EQ(const_cast<zel::desktop::MainWindow&>(another).document().units(), metric.units);
}

TEST_F(PreferencesWindow, ASpoiltFileOfSettingsGivesUsableOnes)
{
    QSettings().setValue("preference/minPileSpaceFactor", "-4");
    QSettings().setValue("units/length", 77);
    QSettings().setValue("language", "tlh");
    QSettings().setValue("fontSize", 900);
    const Preferences read = zel::desktop::storedPreferences();
    EXPECT_EQ(read.model, T_PREFERENCE{});
    EXPECT_EQ(read.units, T_UNIT_INDEX{});
    EXPECT_EQ(read.language, "en");
    EXPECT_EQ(read.fontSize, zel::desktop::mostFontSize);
}

TEST_F(PreferencesWindow, AnalysisOptionsOfAFormAreKeptForTheNextModel)
{
    T_ANALOPTION option;
    option.memoryMode = 1;
    option.memoryMBytes = 2048;
    window.document().GetInitCtrl()->SetAnalysisOption(option);
    window.setDocument(zel::ModelDocument::inMemory());
    T_ANALOPTION next;
    window.document().GetInitCtrl()->GetAnalysisOption(next);
    EXPECT_EQ(next, option);
    EXPECT_EQ(zel::desktop::storedAnalysisOption(), option);
}

}  // namespace desktop_test
