#include "desktop/forms/section_layout.h"

#include "contract/forms/buttons.h"
#include "contract/forms/edit.h"
#include "desktop/forms/text.h"

#include <QGridLayout>
#include <QLabel>
#include <QSplitter>

#include <algorithm>

namespace zel::desktop {

namespace {

// In widths of a digit.
constexpr int longestRadioLine = 36;  ///< radio buttons that still stand side by side
constexpr int narrowestButton = 11;   ///< in a row of buttons
constexpr int widestEvenButton = 24;  ///< above it the buttons of a row keep their own widths
constexpr int widestField = 32;       ///< a field that is longer than what it may hold looks as if more were expected
constexpr int widestText = 64;
constexpr int widestHead = 30;  ///< of a check that stands in the column of the labels
constexpr int widestListsBeside = 130;

constexpr int fieldColumn = 1;
constexpr int tailColumn = 2;  ///< of what belongs to a field; it takes the room that the fields may not take

int digits(const QWidget& widget, int count)
{
    return widget.fontMetrics().horizontalAdvance(QLatin1Char('0')) * count;
}

bool isSeen(const QWidget* widget)
{
    return widget != nullptr && !widget->isHidden();
}

bool isMore(const Control& control)
{
    return control.kind() == Kind::button && drawnLabel(control.label()) == QStringLiteral("...");
}

bool isField(const Control& control)
{
    const Kind kind = control.kind();
    return kind == Kind::edit || kind == Kind::number || kind == Kind::pick || kind == Kind::combo;
}

/// What a field is followed by in the column of its own.
bool isTail(const Control& control)
{
    return control.kind() == Kind::unit || control.kind() == Kind::label || isMore(control);
}

bool hasLines(const Control& control)
{
    const auto* edit = dynamic_cast<const CEdit*>(&control);
    return edit != nullptr && edit->isMultiLine();
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

// What stands in which line

bool SectionLayout::continuesLine(const Control& control) const
{
    if (m_lines.empty() || m_lines.back().use == Use::inside)
        return false;
    const Control& last = *m_lines.back().items.back().control;
    if (control.row() != nullptr || last.row() != nullptr) {
        if (control.row() == last.row())
            return true;
        return control.row() == nullptr && (control.kind() == Kind::unit || control.kind() == Kind::spin) && !isButtonRow(last);
    }
    if (control.kind() == Kind::unit || control.kind() == Kind::spin)
        return true;
    if (isMore(control))
        return isField(last) || last.kind() == Kind::unit;
    const CRadioGroup* radios = radiosOf(control);
    return radios != nullptr && radios == radiosOf(last) && fitsOneLine(*radios);
}

SectionLayout::Use SectionLayout::useOf(const Item& item) const
{
    if (isButtonRow(*item.control))
        return Use::buttons;
    if (item.view->isTall())
        return Use::list;
    if (hasLines(*item.control))
        return Use::lines;
    if (item.label != nullptr || isField(*item.control))
        return Use::fields;
    if (item.control->kind() == Kind::radio)
        return Use::radios;
    return item.control->kind() == Kind::button ? Use::loneButton : Use::text;
}

QLabel* SectionLayout::makeLabel(const Control& control, ControlView& view) const
{
    if (!view.hasLabelBeside() || drawnLabel(control.label()).isEmpty())
        return nullptr;
    auto* label = new QLabel(m_block);
    label->setText(drawnLabel(control.label()));
    label->setBuddy(view.focusWidget());
    return label;
}

QLabel* SectionLayout::add(const Control& control, ControlView& view)
{
    const Item item{&control, &view, makeLabel(control, view), &view.widget()};
    if (continuesLine(control)) {
        Line& line = m_lines.back();
        line.items.push_back(item);
        if (isField(control) && (line.use == Use::text || line.use == Use::radios))
            line.use = Use::fields;
    } else {
        m_lines.push_back({{item}, useOf(item), -1});
    }
    return item.label;
}

void SectionLayout::addInside(QWidget& inside)
{
    m_lines.push_back({{Item{nullptr, nullptr, nullptr, &inside}}, Use::inside, -1});
}

// Laying out

void SectionLayout::finish(QGridLayout& grid, bool buttonsBelowEachOther)
{
    m_grid = &grid;
    m_hasTails = std::any_of(m_lines.begin(), m_lines.end(), [](const Line& line) { return tailOf(line) < line.items.size(); });
    m_columns = m_hasTails ? tailColumn + 1 : fieldColumn + 1;
    m_grid->setColumnStretch(fieldColumn, 1);
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        Line& line = m_lines[i];
        const Line* before = i > 0 ? &m_lines[i - 1] : nullptr;
        Line* next = i + 1 < m_lines.size() ? &m_lines[i + 1] : nullptr;
        switch (line.use) {
        case Use::fields:
        case Use::lines:
            placeFields(line);
            break;
        case Use::radios:
            placeRadios(line);
            break;
        case Use::loneButton:
            if (next != nullptr && next->use == Use::buttons) {
                placeButtons(*next, before, &line, false);
                ++i;
                break;
            }
            placeText(line);
            break;
        case Use::buttons:
            placeButtons(line, before, nullptr, buttonsBelowEachOther);
            break;
        case Use::list: {
            const std::size_t end = endOfListsBeside(i);
            placeLists(i, end);
            i = end - 1;
            break;
        }
        case Use::text:
        case Use::inside:
            placeText(line);
            break;
        }
    }
}

/// The label of a line, or the check or text that stands for it; null if the line begins with its field.
QWidget* SectionLayout::headOf(Line& line, std::size_t& next) const
{
    Item& first = line.items.front();
    if (first.label != nullptr)
        return first.label;
    if (isField(*first.control) || line.items.size() < 2 || !isField(*line.items[1].control) || line.items[1].label != nullptr)
        return nullptr;
    if (first.widget->sizeHint().width() > digits(*m_block, widestHead))
        return nullptr;
    next = 1;
    return first.widget;
}

/// Where the units and "..." of a line begin that has one field only; its end if it has none, or several fields.
std::size_t SectionLayout::tailOf(const Line& line)
{
    std::size_t tail = line.items.size();
    if (line.use != Use::fields || std::count_if(line.items.begin(), line.items.end(), [](const Item& each) { return isField(*each.control); }) != 1)
        return tail;
    while (tail > 1 && isTail(*line.items[tail - 1].control) && line.items[tail - 1].label == nullptr && !isField(*line.items[tail - 1].control))
        --tail;
    return tail;
}

/// A label, its field with its arrows, and in the third column its unit and its "..."; further fields follow in the second.
void SectionLayout::placeFields(Line& line)
{
    line.row = m_rows++;
    std::size_t next = 0;
    QWidget* head = headOf(line, next);
    if (head != nullptr) {
        m_grid->addWidget(head, line.row, 0, line.use == Use::lines ? Qt::AlignTop : Qt::Alignment());
        m_heads.push_back(head);
    }
    const std::size_t tail = tailOf(line);
    const bool several = tail == line.items.size() && tail > next + 1;
    auto* cell = new QHBoxLayout;
    for (std::size_t i = next; i < tail; ++i) {
        const Item& item = line.items[i];
        if (item.label != nullptr && item.label != head)
            cell->addWidget(item.label);
        const bool counts = i + 1 < tail && line.items[i + 1].control->kind() == Kind::spin;
        if (counts)
            cell->addLayout(withArrows(item, line.items[++i]), 1);
        else
            cell->addWidget(item.widget, isField(*item.control) ? 1 : 0);
        if (isField(*item.control) && line.use != Use::lines)
            limitWidth(item);
        if (counts)
            item.widget->setMaximumWidth(digits(*m_block, widestField));
    }
    // Where units follow, the field ends where its column does.
    if (line.use != Use::lines && (!m_hasTails || several))
        cell->addStretch(0);
    const int from = head != nullptr ? fieldColumn : 0;
    const int to = several || line.use == Use::lines ? m_columns : fieldColumn + 1;
    m_grid->addLayout(cell, line.row, from, 1, to - from);
    if (tail == line.items.size())
        return;
    auto* tails = new QHBoxLayout;
    for (std::size_t i = tail; i < line.items.size(); ++i)
        tails->addWidget(line.items[i].widget);
    tails->addStretch(0);
    m_grid->addLayout(tails, line.row, tailColumn);
}

/// A field and the arrows at it.
QLayout* SectionLayout::withArrows(const Item& field, const Item& arrows) const
{
    arrows.widget->setFixedHeight(field.widget->sizeHint().height());
    auto* pair = new QHBoxLayout;
    pair->setSpacing(1);
    pair->addWidget(field.widget, 1);
    pair->addWidget(arrows.widget);
    return pair;
}

/// A field that is longer than what it may hold looks as if more were expected.
void SectionLayout::limitWidth(const Item& field) const
{
    const bool text = (field.control->kind() == Kind::edit || field.control->kind() == Kind::pick) && !m_hasTails;
    const int widest = digits(*m_block, text ? widestText : widestField);
    field.widget->setMaximumWidth(std::max({widest, field.widget->minimumWidth(), field.widget->minimumSizeHint().width()}));
}

/// Radio buttons side by side at even distances.
void SectionLayout::placeRadios(Line& line)
{
    line.row = m_rows++;
    auto* cell = new QHBoxLayout;
    for (const Item& item : line.items) {
        cell->addWidget(item.widget);
        cell->addSpacing(digits(*m_block, 2));
    }
    cell->addStretch(1);
    m_grid->addLayout(cell, line.row, 0, 1, m_columns);
}

/// A row of buttons of one width, at the right; below checks, which it is about, at the left. A lone button before it joins it at the left.
void SectionLayout::placeButtons(Line& line, const Line* before, Line* joined, bool belowEachOther)
{
    line.row = m_rows++;
    auto* cell = new QBoxLayout(belowEachOther ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    const bool left = before != nullptr && (before->use == Use::text || before->use == Use::radios);
    if (joined != nullptr) {
        joined->row = line.row;
        cell->addWidget(joined->items.front().widget);
        cell->addSpacing(digits(*m_block, 3));
    }
    if (!left)
        cell->addStretch(1);
    for (const Item& item : line.items)
        cell->addWidget(item.widget);
    if (left || belowEachOther)
        cell->addStretch(1);
    m_grid->addLayout(cell, line.row, 0, 1, m_columns);
}

void SectionLayout::placeText(Line& line)
{
    line.row = m_rows++;
    auto* cell = new QHBoxLayout;
    for (const Item& item : line.items)
        cell->addWidget(item.widget, line.use == Use::inside ? 1 : 0);
    const Kind kind = line.use == Use::inside ? Kind::tabs : line.items.front().control->kind();
    if (kind == Kind::tabs)
        cell->setStretch(0, 1);
    else
        cell->addStretch(1);
    m_grid->addLayout(cell, line.row, 0, 1, m_columns);
}

/// Lists that follow one another stand side by side while they fit.
std::size_t SectionLayout::endOfListsBeside(std::size_t first) const
{
    int room = digits(*m_block, widestListsBeside);
    std::size_t end = first;
    for (; end < m_lines.size() && m_lines[end].use == Use::list; ++end) {
        const QWidget& widget = *m_lines[end].items.front().widget;
        if (widget.isHidden())
            continue;
        room -= std::max(widget.sizeHint().width(), widget.minimumWidth());
        if (room < 0 && end > first)
            break;
    }
    return end;
}

void SectionLayout::placeLists(std::size_t first, std::size_t end)
{
    const int row = m_rows++;
    QSplitter* splitter = nullptr;
    if (end - first > 1) {
        splitter = new QSplitter(m_block);
        splitter->setChildrenCollapsible(false);
        m_grid->addWidget(splitter, row, 0, 1, m_columns);
    }
    QList<int> widths;
    for (std::size_t i = first; i < end; ++i) {
        Line& line = m_lines[i];
        line.row = row;
        auto* cell = new QVBoxLayout;
        for (const Item& item : line.items) {
            if (item.label != nullptr)
                cell->addWidget(item.label);
            cell->addWidget(item.widget, item.view->isTall() ? 1 : 0);
        }
        if (splitter == nullptr) {
            m_grid->addLayout(cell, row, 0, 1, m_columns);
            continue;
        }
        const Item& list = line.items.front();
        auto* holder = new QWidget(splitter);
        cell->setContentsMargins(0, 0, 0, 0);
        holder->setLayout(cell);
        widths.append(std::max(list.widget->sizeHint().width(), list.widget->minimumWidth()));
        splitter->setStretchFactor(static_cast<int>(i - first), widths.back());
        m_holders.push_back({holder, list});
    }
    if (splitter != nullptr)
        splitter->setSizes(widths);
}

// As it is seen

bool SectionLayout::isSeen(const Line& line) const
{
    return std::any_of(line.items.begin(), line.items.end(), [](const Item& item) { return desktop::isSeen(item.widget); });
}

bool SectionLayout::grows(const Line& line) const
{
    if (!isSeen(line))
        return false;
    return line.use == Use::list || line.use == Use::lines || (line.use == Use::inside && line.items.front().widget->sizePolicy().verticalStretch() > 0);
}

void SectionLayout::follow()
{
    for (const Holder& holder : m_holders)
        holder.widget->setVisible(desktop::isSeen(holder.item.widget));
    std::vector<const Item*> lone;
    for (const Line& line : m_lines) {
        if (line.use == Use::loneButton)
            lone.push_back(&line.items.front());
        if (line.use == Use::buttons) {
            std::vector<const Item*> row;
            for (const Item& item : line.items)
                row.push_back(&item);
            evenOut(row, narrowestButton);
        }
    }
    evenOut(lone, 0);
    for (int row = 0; row < m_rows; ++row) {
        const bool tall = std::any_of(m_lines.begin(), m_lines.end(), [&](const Line& line) { return line.row == row && grows(line); });
        m_grid->setRowStretch(row, tall ? 1 : 0);
    }
}

void SectionLayout::evenOut(const std::vector<const Item*>& buttons, int narrowest) const
{
    int widest = digits(*m_block, narrowest);
    for (const Item* item : buttons) {
        item->widget->setMinimumWidth(0);
        widest = desktop::isSeen(item->widget) ? std::max(widest, item->widget->sizeHint().width()) : widest;
    }
    if (narrowest > 0)
        widest = std::min(widest, digits(*m_block, widestEvenButton));
    for (const Item* item : buttons)
        item->widget->setMinimumWidth(std::max(widest, item->widget->sizeHint().width()));
}

bool SectionLayout::grows() const
{
    return std::any_of(m_lines.begin(), m_lines.end(), [this](const Line& line) { return grows(line); });
}

bool SectionLayout::isEmpty() const
{
    return std::none_of(m_lines.begin(), m_lines.end(), [this](const Line& line) { return isSeen(line); });
}

bool SectionLayout::holdsListsOnly() const
{
    return !m_lines.empty() && std::all_of(m_lines.begin(), m_lines.end(), [](const Line& line) { return line.use == Use::list; });
}

bool SectionLayout::holdsButtonsOnly() const
{
    return !m_lines.empty() &&
        std::all_of(m_lines.begin(), m_lines.end(), [](const Line& line) { return line.use == Use::buttons || line.use == Use::loneButton; });
}

bool SectionLayout::holdsArrowsOnly() const
{
    const auto isArrow = [](const Item& item) { return item.control->label().find_first_not_of("-=<> ") == CString::npos; };
    return m_lines.size() == 1 && m_lines.front().use == Use::buttons && std::all_of(m_lines.front().items.begin(), m_lines.front().items.end(), isArrow);
}

int SectionLayout::labelWidth() const
{
    int widest = 0;
    for (const QWidget* head : m_heads)
        widest = desktop::isSeen(head) ? std::max(widest, head->sizeHint().width()) : widest;
    return widest;
}

void SectionLayout::setLabelWidth(int width)
{
    m_grid->setColumnMinimumWidth(0, width);
}

}  // namespace zel::desktop
