#include "desktop/host/preferences_dialog.h"

#include "desktop/forms/text.h"
#include "desktop/host/unit_choice.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace zel::desktop {

namespace {

constexpr int desktopsFontSize = leastFontSize - 1;  ///< the value of the spin box for the size that the desktop has

/// A page: a text on what it is for, and fields below it.
struct Page {
    QWidget* widget;
    QFormLayout* fields;
};

Page makePage(const char* purpose)
{
    auto* widget = new QWidget;
    auto* text = new QLabel(QString::fromLatin1(purpose));
    text->setWordWrap(true);
    auto* fields = new QFormLayout;
    fields->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    auto* rows = new QVBoxLayout(widget);
    rows->setContentsMargins(8, 0, 0, 0);
    rows->setSpacing(12);
    rows->addWidget(text);
    rows->addLayout(fields);
    rows->addStretch(1);
    return {widget, fields};
}

QLineEdit* addField(const Page& page, const char* label, const char* whenEmpty)
{
    auto* field = new QLineEdit;
    field->setPlaceholderText(QString::fromLatin1(whenEmpty));
    field->setMinimumWidth(220);
    page.fields->addRow(QString::fromLatin1(label), field);
    return field;
}

QDoubleSpinBox* addFactor(const Page& page, const char* label)
{
    auto* field = new QDoubleSpinBox;
    field->setLocale(QLocale::c());
    field->setRange(leastPileSpaceFactor, mostPileSpaceFactor);
    field->setDecimals(2);
    field->setSingleStep(0.1);
    field->setSuffix(QStringLiteral(" x diameter"));
    page.fields->addRow(QString::fromLatin1(label), field);
    return field;
}

QComboBox* addChoice(const Page& page, const char* label)
{
    auto* field = new QComboBox;
    field->setMinimumContentsLength(8);
    page.fields->addRow(QString::fromLatin1(label), field);
    return field;
}

}  // namespace

PreferencesDialog::PreferencesDialog(QWidget* parent, const Preferences& preferences, int page) : QDialog(parent), m_former(preferences)
{
    setWindowTitle(QStringLiteral("Preferences"));
    m_titles = new QListWidget;
    m_titles->setAccessibleName(QStringLiteral("Pages"));
    m_pages = new QStackedWidget;
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::RestoreDefaults);
    m_buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    addPage(PreferencePage::designCodes, QStringLiteral("Design Codes"), designCodesPage());
    addPage(PreferencePage::sectionDatabase, QStringLiteral("Section Database"), sectionDatabasePage());
    addPage(PreferencePage::pileSpace, QStringLiteral("Pile Space"), pileSpacePage());
    addPage(PreferencePage::units, QStringLiteral("Units"), unitsPage());
    addPage(PreferencePage::language, QStringLiteral("Language"), languagePage());
    addPage(PreferencePage::fontSize, QStringLiteral("Font Size"), fontSizePage());
    m_titles->setFixedWidth(m_titles->sizeHintForColumn(0) + 40);

    auto* middle = new QHBoxLayout;
    middle->addWidget(m_titles);
    middle->addWidget(m_pages, 1);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(middle, 1);
    rows->addWidget(m_buttons);
    resize(std::max(560, sizeHint().width()), std::max(320, sizeHint().height()));

    QObject::connect(m_titles, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);
    QObject::connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    QObject::connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    QObject::connect(m_buttons->button(QDialogButtonBox::RestoreDefaults), &QPushButton::clicked, this, [this] { fill(Preferences{}); });
    fill(preferences);
    m_titles->setCurrentRow(0);
    for (int row = 0; row < m_titles->count(); ++row) {
        if (m_titles->item(row)->data(Qt::UserRole).toInt() == page)
            m_titles->setCurrentRow(row);
    }
}

void PreferencesDialog::addPage(PreferencePage number, const QString& title, QWidget* page)
{
    auto* item = new QListWidgetItem(title, m_titles);
    item->setData(Qt::UserRole, static_cast<int>(number));
    m_pages->addWidget(page);
}

QWidget* PreferencesDialog::designCodesPage()
{
    const Page page = makePage("Standards of new materials.");
    m_steelStandard = addField(page, "&Steel standard:", "first of the catalogue");
    m_concreteStandard = addField(page, "&Concrete standard:", "first of the catalogue");
    m_concreteCode = addField(page, "Concrete c&ode:", "first of the standard");
    return page.widget;
}

QWidget* PreferencesDialog::sectionDatabasePage()
{
    const Page page = makePage("Where new sections are taken from.");
    m_sectionDatabase = addField(page, "Section &database:", "none: user-defined sections");
    return page.widget;
}

QWidget* PreferencesDialog::pileSpacePage()
{
    const Page page = makePage("Space between the axes of new piles, as a multiple of their diameter.");
    m_leastSpace = addFactor(page, "&Minimum space:");
    m_standardSpace = addFactor(page, "&Standard space:");
    m_spaceFault = new QLabel;
    m_spaceFault->setWordWrap(true);
    page.fields->addRow(m_spaceFault);
    for (QDoubleSpinBox* each : {m_leastSpace, m_standardSpace})
        QObject::connect(each, &QDoubleSpinBox::valueChanged, this, [this] { check(); });
    return page.widget;
}

QWidget* PreferencesDialog::unitsPage()
{
    const Page page = makePage("Units that new models start with. The units of the open model stand in the status bar.");
    m_length = addChoice(page, "&Length:");
    m_force = addChoice(page, "&Force:");
    fillLengthUnits(*m_length);
    fillForceUnits(*m_force);
    return page.widget;
}

QWidget* PreferencesDialog::languagePage()
{
    const Page page = makePage("Language of the forms and messages.");
    m_language = addChoice(page, "&Language:");
    for (const Language& each : languages())
        m_language->addItem(each.name, each.code);
    return page.widget;
}

QWidget* PreferencesDialog::fontSizePage()
{
    const Page page = makePage("Size of the text in all windows.");
    m_fontSize = new QSpinBox;
    m_fontSize->setRange(desktopsFontSize, mostFontSize);
    m_fontSize->setSpecialValueText(QStringLiteral("as the desktop"));
    m_fontSize->setSuffix(QStringLiteral(" pt"));
    page.fields->addRow(QStringLiteral("&Font size:"), m_fontSize);
    QObject::connect(m_fontSize, &QSpinBox::valueChanged, this, [](int size) { applyFontSize(size == desktopsFontSize ? 0 : size); });
    return page.widget;
}

void PreferencesDialog::fill(const Preferences& preferences)
{
    m_steelStandard->setText(toQt(preferences.model.steelStandard));
    m_concreteStandard->setText(toQt(preferences.model.concreteStandard));
    m_concreteCode->setText(toQt(preferences.model.concreteCode));
    m_sectionDatabase->setText(toQt(preferences.model.sectionDbName));
    m_leastSpace->setValue(preferences.model.minPileSpaceFactor);
    m_standardSpace->setValue(preferences.model.standardPileSpaceFactor);
    m_length->setCurrentIndex(preferences.units.length);
    m_force->setCurrentIndex(preferences.units.force);
    m_language->setCurrentIndex(std::max(0, m_language->findData(preferences.language)));
    m_fontSize->setValue(preferences.fontSize == 0 ? desktopsFontSize : preferences.fontSize);
}

Preferences PreferencesDialog::preferences() const
{
    Preferences all;
    all.model.steelStandard = fromQt(m_steelStandard->text().trimmed());
    all.model.concreteStandard = fromQt(m_concreteStandard->text().trimmed());
    all.model.concreteCode = fromQt(m_concreteCode->text().trimmed());
    all.model.sectionDbName = fromQt(m_sectionDatabase->text().trimmed());
    all.model.minPileSpaceFactor = m_leastSpace->value();
    all.model.standardPileSpaceFactor = m_standardSpace->value();
    all.units = {m_length->currentIndex(), m_force->currentIndex()};
    all.language = m_language->currentData().toString();
    all.fontSize = m_fontSize->value() == desktopsFontSize ? 0 : m_fontSize->value();
    return all;
}

void PreferencesDialog::check()
{
    const bool right = m_leastSpace->value() <= m_standardSpace->value();
    m_spaceFault->setText(right ? QString() : QStringLiteral("The standard space must not be smaller than the minimum space."));
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(right);
}

void PreferencesDialog::done(int result)
{
    if (result != QDialog::Accepted)
        applyFontSize(m_former.fontSize);
    QDialog::done(result);
}

}  // namespace zel::desktop
