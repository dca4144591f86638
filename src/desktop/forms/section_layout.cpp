#include "desktop/forms/section_layout.h"

#include "contract/forms/buttons.h"
#include "desktop/forms/text.h"

#include <QHBoxLayout>
#include <QLabel>

namespace zel::desktop {

namespace {

constexpr int longestRadioLine = 36;  ///< characters of radio buttons that still stand side by side
constexpr int narrowestButton = 80;   ///< [pixels] in a row of buttons

bool isMore(const Control& control)
{
    return control.kind() == Kind::button && drawnLabel(control.label()) == QStringLiteral("...");
}

bool isField(const Control& control)
{
    const Kind kind = control.kind();
    return kind == Kind::edit || kind == Kind::number || kind == Kind::pick || kind == Kind::combo;
}

const CRadioGroup* radiosOf(const Control& control)
{
    const auto* radio = dynamic_cast<const CRadioButton*>(&control);
    return radio != nullptr ? &radio->radios() : nullptr;
}

bool fitsOneLine(const CRadioGroup& radios)
{
    qsizetype characters = 0;
    for (const CRadioButton* button : radios.buttons())
        characters += drawnLabel(button->label()).size();
    return characters <= longestRadioLine;
}

bool isButtonRow(const Control& control)
{
    return control.row() != nullptr && control.row()->use() == CRow::Use::buttons;
}

}  // namespace

bool SectionLayout::continuesLine(const Control& control) const
{
    if (m_last == nullptr || m_line == nullptr)
        return false;
    if (control.row() != nullptr || m_last->row() != nullptr) {
        if (control.row() == m_last->row())
            return true;
        return control.row() == nullptr && (control.kind() == Kind::unit || control.kind() == Kind::spin) && !isButtonRow(*m_last);
    }
    if (control.kind() == Kind::unit || control.kind() == Kind::spin)
        return true;
    if (isMore(control))
        return isField(*m_last) || m_last->kind() == Kind::unit;
    const CRadioGroup* radios = radiosOf(control);
    return radios != nullptr && radios == radiosOf(*m_last) && fitsOneLine(*radios);
}

QLabel* SectionLayout::makeLabel(const Control& control, ControlView& view)
{
    if (!view.hasLabelBeside() || drawnLabel(control.label()).isEmpty())
        return nullptr;
    auto* label = new QLabel(m_parent);
    label->setBuddy(view.focusWidget());
    return label;
}

void SectionLayout::beginLine(QLabel* label, bool tall)
{
    if (tall && label != nullptr)
        m_grid->addWidget(label, ++m_row, 0, 1, 2);
    m_line = new QHBoxLayout;
    ++m_row;
    if (label != nullptr && !tall) {
        m_grid->addWidget(label, m_row, 0);
        m_grid->addLayout(m_line, m_row, 1);
    } else {
        m_grid->addLayout(m_line, m_row, 0, 1, 2);
    }
    m_grid->setColumnStretch(1, 1);
    if (tall)
        m_grid->setRowStretch(m_row, 1);
}

QLabel* SectionLayout::add(const Control& control, ControlView& view)
{
    QLabel* label = makeLabel(control, view);
    const bool continues = continuesLine(control);
    if (!continues) {
        beginLine(label, view.isTall());
        if (isButtonRow(control))
            m_line->addStretch(1);
    } else if (label != nullptr) {
        m_line->addWidget(label);
    }
    m_last = &control;

    QWidget& widget = view.widget();
    if (isButtonRow(control)) {
        widget.setMinimumWidth(narrowestButton);
        m_line->addWidget(&widget);
    } else if (control.kind() == Kind::radio) {
        m_line->addWidget(&widget);
        if (radiosOf(control)->buttons().back() == &control || control.row() == nullptr)
            m_line->setStretch(m_line->count() - 1, 1);
    } else {
        const bool grows = isField(control) || view.isTall() || (!continues && control.kind() != Kind::button);
        m_line->addWidget(&widget, grows ? 1 : 0);
    }
    return label;
}

}  // namespace zel::desktop
