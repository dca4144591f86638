#pragma once

#include "desktop/host/settings.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QSpinBox;
class QStackedWidget;

namespace zel::desktop {

/// Numbers of the pages, as forms ask for them.
enum class PreferencePage { designCodes = 1, sectionDatabase = 2, units = 3, language = 4, fontSize = 5, pileSpace = 9 };

/// The preferences by pages. The font size is seen in all windows at once, and goes back when the dialog is cancelled.
class PreferencesDialog final : public QDialog {
public:
    /// @param page  a PreferencePage; any other number shows the first page
    PreferencesDialog(QWidget* parent, const Preferences& preferences, int page);

    [[nodiscard]] Preferences preferences() const;

    void done(int result) override;

private:
    void addPage(PreferencePage number, const QString& title, QWidget* page);
    QWidget* designCodesPage();
    QWidget* sectionDatabasePage();
    QWidget* pileSpacePage();
    QWidget* unitsPage();
    QWidget* languagePage();
    QWidget* fontSizePage();
    void fill(const Preferences& preferences);
    void check();

    Preferences m_former;
    QListWidget* m_titles;
    QStackedWidget* m_pages;
    QDialogButtonBox* m_buttons;
    QLineEdit* m_steelStandard = nullptr;
    QLineEdit* m_concreteStandard = nullptr;
    QLineEdit* m_concreteCode = nullptr;
    QLineEdit* m_sectionDatabase = nullptr;
    QDoubleSpinBox* m_leastSpace = nullptr;
    QDoubleSpinBox* m_standardSpace = nullptr;
    QLabel* m_spaceFault = nullptr;
    QComboBox* m_length = nullptr;
    QComboBox* m_force = nullptr;
    QComboBox* m_language = nullptr;
    QSpinBox* m_fontSize = nullptr;
};

}  // namespace zel::desktop
