#include "desktop/forms/choice_views.h"

#include "desktop/forms/text.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zel::desktop {

namespace {

// Of a combo box: it is as wide as its entries, so long as they are not uncommonly long.
constexpr int fewestCharacters = 14;
constexpr int mostCharacters = 30;

}  // namespace

ButtonView::ButtonView(CButton& button, FormContext& context, QWidget& parent) : ViewOf(button, context), m_button(new QPushButton(&parent))
{
    m_button->setAutoDefault(false);  // Enter is the dialog's, which knows the button with the focus and its default button
    if (drawnLabel(button.label()) == QStringLiteral("..."))
        m_button->setFixedWidth(m_button->fontMetrics().horizontalAdvance(QStringLiteral("...")) * 3);
    QObject::connect(m_button, &QPushButton::clicked, m_button, [this] {
        if (isInput())
            take(hand().act(control(), {Verb::press}));
    });
}

QWidget& ButtonView::widget()
{
    return *m_button;
}

void ButtonView::setOwnText(const QString& text)
{
    m_button->setText(text);
}

void ButtonView::showAsDefault(bool isDefault)
{
    m_button->setDefault(isDefault);
}

CheckView::CheckView(CCheckBox& check, FormContext& context, QWidget& parent) : ViewOf(check, context), m_check(new QCheckBox(&parent))
{
    QObject::connect(m_check, &QCheckBox::clicked, m_check, [this](bool on) {
        if (isInput())
            take(hand().act(control(), {.verb = Verb::set, .value = on}));
    });
}

QWidget& CheckView::widget()
{
    return *m_check;
}

void CheckView::setOwnText(const QString& text)
{
    m_check->setText(text);
}

void CheckView::refresh()
{
    m_check->setChecked(control().GetCheck());
}

RadioView::RadioView(CRadioButton& radio, FormContext& context, QWidget& parent) : ViewOf(radio, context), m_radio(new QRadioButton(&parent))
{
    m_radio->setAutoExclusive(false);  // which of them is chosen is the controller's: none is possible
    QObject::connect(m_radio, &QRadioButton::clicked, m_radio, [this] {
        if (isInput()) {
            take(hand().act(control(), {.verb = Verb::set, .value = true}));
            show();  // a click on the chosen one has cleared the widget
        }
    });
}

QWidget& RadioView::widget()
{
    return *m_radio;
}

void RadioView::setOwnText(const QString& text)
{
    m_radio->setText(text);
}

void RadioView::refresh()
{
    m_radio->setChecked(control().GetCheck());
}

SpinView::SpinView(CSpinButtonCtrl& spin, FormContext& context, QWidget& parent) : ViewOf(spin, context), m_box(new QWidget(&parent))
{
    auto* layout = new QVBoxLayout(m_box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (const int delta : {+1, -1}) {
        auto* arrow = new QToolButton(m_box);
        arrow->setArrowType(delta > 0 ? Qt::UpArrow : Qt::DownArrow);
        arrow->setAutoRepeat(true);
        arrow->setFocusPolicy(Qt::NoFocus);
        arrow->setMinimumSize(arrow->fontMetrics().height(), 0);
        arrow->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
        arrow->setAccessibleName(delta > 0 ? QStringLiteral("Up") : QStringLiteral("Down"));
        layout->addWidget(arrow);
        QObject::connect(arrow, &QToolButton::clicked, m_box, [this, delta] {
            if (isInput())
                take(hand().act(control(), {.verb = Verb::spin, .delta = delta}));
        });
    }
    m_box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

ComboView::ComboView(CComboBox& combo, FormContext& context, QWidget& parent) : ViewOf(combo, context), m_combo(new QComboBox(&parent))
{
    m_combo->setEditable(combo.isEditable());
    m_combo->setInsertPolicy(QComboBox::NoInsert);
    m_combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_combo->setMinimumContentsLength(fewestCharacters);
    QObject::connect(m_combo, &QComboBox::activated, m_combo, [this](int index) {
        if (isInput())
            take(hand().choose(control(), index));
    });
    if (combo.isEditable()) {
        QObject::connect(m_combo->lineEdit(), &QLineEdit::editingFinished, m_combo, [this] {
            const CString text = fromQt(m_combo->currentText());
            if (isInput() && text != control().GetWindowText())
                take(hand().act(control(), {.verb = Verb::set, .value = text}));
        });
    }
}

QWidget& ComboView::widget()
{
    return *m_combo;
}

void ComboView::refresh()
{
    QStringList texts;
    for (int i = 0; i < control().GetCount(); ++i)
        texts.append(toQt(control().GetItemText(i)));
    bool same = texts.size() == m_combo->count();
    for (int i = 0; same && i < m_combo->count(); ++i)
        same = m_combo->itemText(i) == texts[i];
    if (!same) {
        m_combo->clear();
        m_combo->addItems(texts);
        adjustWidth();
    }
    const int selected = control().GetCurSel();
    m_combo->setCurrentIndex(selected < m_combo->count() ? selected : -1);
    m_combo->setToolTip(m_combo->currentText().size() > mostCharacters ? m_combo->currentText() : QString());
    if (m_combo->isEditable())
        m_combo->setEditText(toQt(control().GetWindowText()));
}

/// The list that drops down shows its entries whole, however wide the box is.
void ComboView::adjustWidth()
{
    const int widest = m_combo->view()->sizeHintForColumn(0);
    const int character = m_combo->fontMetrics().horizontalAdvance(QLatin1Char('X'));
    m_combo->setMinimumContentsLength(std::clamp(widest / character + 1, fewestCharacters, mostCharacters));
    m_combo->view()->setMinimumWidth(widest);
}

TabsView::TabsView(CDlgTabCtrl& tabs, FormContext& context, QWidget& parent) : ViewOf(tabs, context), m_bar(new QTabBar(&parent))
{
    m_bar->setExpanding(false);
    m_bar->setDrawBase(true);
    QObject::connect(m_bar, &QTabBar::currentChanged, m_bar, [this](int index) {
        if (isInput())
            take(hand().choose(control(), index));
    });
}

QWidget& TabsView::widget()
{
    return *m_bar;
}

void TabsView::refresh()
{
    while (m_bar->count() > control().GetPageCount())
        m_bar->removeTab(m_bar->count() - 1);
    for (int i = 0; i < control().GetPageCount(); ++i) {
        const QString title = toQt(control().GetTitle(i));
        if (i >= m_bar->count())
            m_bar->addTab(title);
        else if (m_bar->tabText(i) != title)
            m_bar->setTabText(i, title);
    }
    m_bar->setCurrentIndex(control().GetCurSel());
}

}  // namespace zel::desktop
