#include "desktop/files_fixture.h"

#include "contract/units.h"
#include "desktop/host/status_panel.h"

#include <QComboBox>
#include <QLabel>
#include <QStatusBar>

namespace desktop_test {

using zel::desktop::selectionText;

class StatusBar : public DesktopTest {
protected:
    QComboBox& choice(const char* name)
    {
        for (QComboBox* each : window.statusBar()->findChildren<QComboBox*>()) {
            if (each->accessibleName() == name)
                return *each;
        }
        throw std::runtime_error(name);
    }
    [[nodiscard]] QString text(const char* name) const { return window.statusBar()->findChild<QLabel*>(QString::fromLatin1(name))->text(); }
};

TEST_F(StatusBar, UnitsAreThoseOfTheModelAndCanBeChosen)
{
    EXPECT_EQ(choice("Unit of length").currentText(), "mm");
    EXPECT_EQ(choice("Unit of force").currentText(), "kN");
    choice("Unit of length").setFocus();
    choice("Unit of length").setCurrentIndex(T_UNIT_INDEX::M);
    Q_EMIT choice("Unit of length").activated(T_UNIT_INDEX::M);
    EXPECT_EQ(window.document().units(), (T_UNIT_INDEX{T_UNIT_INDEX::M, T_UNIT_INDEX::KN}));
    window.hand().undo(window.document());
    EXPECT_EQ(choice("Unit of length").currentText(), "mm") << "it follows a change from elsewhere";
}

TEST_F(StatusBar, UnitsFollowAnotherModel)
{
    window.setDocument(zel::ModelDocument::inMemory({T_UNIT_INDEX::FEET, T_UNIT_INDEX::KIP}));
    EXPECT_EQ(choice("Unit of length").currentText(), "ft");
    EXPECT_EQ(choice("Unit of force").currentText(), "kips");
    window.document().GetUnitCtrl()->SetUnitIndexCurrent({T_UNIT_INDEX::CM, T_UNIT_INDEX::N}, 1);
    EXPECT_EQ(choice("Unit of length").currentText(), "cm");
}

TEST_F(StatusBar, CountsWhatIsSelected)
{
    EXPECT_EQ(text("selection"), "Nothing selected");
    fill(window.document(), threePoints);
    window.hand().select(window.document(), {{1, 2, 3}, {}, {}, {}, {}});
    EXPECT_EQ(text("selection"), "3 points selected");
    window.hand().undo(window.document());
    EXPECT_EQ(text("selection"), "Nothing selected") << "a deleted object is not selected any more";
    EXPECT_EQ(selectionText({3, 1, 0, 0, 2}), "3 points, 1 line, 2 elements selected");
}

TEST_F(StatusBar, TellsWhetherTheModelIsInAFile)
{
    EXPECT_EQ(text("fileState"), "Not in a file yet");
}

TEST_F(StatusBar, EveryPartHasAnAccessibleName)
{
    for (const QComboBox* each : window.statusBar()->findChildren<QComboBox*>())
        EXPECT_FALSE(each->accessibleName().isEmpty());
    for (const char* name : {"selection", "fileState"})
        EXPECT_FALSE(window.statusBar()->findChild<QLabel*>(QString::fromLatin1(name))->accessibleName().isEmpty()) << name;
}

}  // namespace desktop_test
