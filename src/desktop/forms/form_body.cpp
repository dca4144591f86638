#include "desktop/forms/form_body.h"

#include "contract/forms/control.h"
#include "desktop/forms/text.h"

#include <QGroupBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace zel::desktop {

namespace {

constexpr int highestForm = 36;    ///< [lines of text] above which its frames are set in two columns
constexpr int widestBeside = 130;  ///< [widths of a digit] up to which lists stand side by side

/// Takes a layout apart; the widgets stay.
void empty(QLayout& layout)
{
    while (QLayoutItem* item = layout.takeAt(0)) {
        if (QLayout* inner = item->layout())
            empty(*inner);
        delete item;
    }
}

/// Tells the block around whether a page makes use of more height.
void setStretch(QWidget& widget, bool grows)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setVerticalStretch(grows ? 1 : 0);
    widget.setSizePolicy(policy);
}

int leftInset(const QWidget& block)
{
    return block.contentsMargins().left() + (block.layout() != nullptr ? block.layout()->contentsMargins().left() : 0);
}

/// How far the contents of a page or panel stand from the left edge of those of the form, by the margins between.
int insetIn(const QWidget& form, const QWidget& page)
{
    int inset = 0;
    for (const QWidget* each = &page; each != &form && each != nullptr; each = each->parentWidget())
        inset += qobject_cast<const QStackedWidget*>(each) != nullptr ? 0 : leftInset(*each);  // a stack has no use for its margins
    return inset;
}

}  // namespace

FormBody::FormBody(QWidget& window) : m_window(&window), m_layout(new QVBoxLayout(&window)) {}

SectionLayout& FormBody::addBlock(QWidget& widget, QGroupBox* box, CGroup* group)
{
    m_blocks.push_back({&widget, box, group, std::make_unique<SectionLayout>(widget)});
    return *m_blocks.back().section;
}

SectionLayout& FormBody::plain()
{
    if (!m_blocks.empty() && m_blocks.back().group == nullptr)
        return *m_blocks.back().section;
    return addBlock(*new QWidget(m_window), nullptr, nullptr);
}

SectionLayout& FormBody::frame(CGroup& group)
{
    const auto found = std::find_if(m_blocks.begin(), m_blocks.end(), [&](const Block& each) { return each.group == &group; });
    if (found != m_blocks.end())
        return *found->section;
    auto* box = new QGroupBox(drawnLabel(group.GetWindowText()), m_window);
    return addBlock(*box, box, &group);
}

/// Whether a block holds the buttons between two lists.
bool FormBody::movesItems(std::size_t block) const
{
    return block > 0 && block + 1 < m_blocks.size() && m_blocks[block].section->holdsArrowsOnly() && m_blocks[block - 1].section->holdsListsOnly() &&
        m_blocks[block + 1].section->holdsListsOnly();
}

void FormBody::finish()
{
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        auto* grid = new QGridLayout(m_blocks[i].widget);
        if (m_blocks[i].group == nullptr)
            grid->setContentsMargins(0, 0, 0, 0);
        m_blocks[i].section->finish(*grid, movesItems(i));
    }
}

// Arrangement

int FormBody::heightOf(std::size_t block) const
{
    return m_blocks[block].widget->sizeHint().height();
}

int FormBody::widthOf(std::size_t block) const
{
    return m_blocks[block].widget->sizeHint().width();
}

/// Blocks of lists side by side, everything else below each other.
std::vector<FormBody::Strip> FormBody::arranged() const
{
    std::vector<std::size_t> seen;
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        if (isSeen(i))
            seen.push_back(i);
    }
    const int room = m_window->fontMetrics().horizontalAdvance(QLatin1Char('0')) * widestBeside;
    std::vector<Strip> strips;
    for (std::size_t i = 0; i < seen.size(); ++i) {
        Strip strip{{seen[i]}};
        if (m_blocks[seen[i]].section->holdsListsOnly()) {
            int width = widthOf(seen[i]);
            for (; i + 1 < seen.size(); ++i) {
                const std::size_t next = seen[i + 1];
                width += widthOf(next);
                if (width > room || !(m_blocks[next].section->holdsListsOnly() || movesItems(next)))
                    break;
                strip.push_back({next});
            }
        }
        strips.push_back(std::move(strip));
    }
    return foldedToTwoColumns(std::move(strips));
}

/// A form that would get too high has each of its runs of frames in two columns of like height, which are read one after the other.
std::vector<FormBody::Strip> FormBody::foldedToTwoColumns(std::vector<Strip> strips) const
{
    int total = 0;
    for (const Strip& strip : strips)
        total += heightOf(strip.front().front());
    if (total <= m_window->fontMetrics().lineSpacing() * highestForm)
        return strips;
    std::vector<Strip> folded;
    for (std::size_t i = 0; i < strips.size();) {
        std::size_t end = i;
        int height = 0;
        for (; end < strips.size() && strips[end].size() == 1 && m_blocks[strips[end].front().front()].group != nullptr; ++end)
            height += heightOf(strips[end].front().front());
        if (end - i < 2) {
            folded.push_back(strips[i]);
            ++i;
            continue;
        }
        std::size_t split = i + 1;
        int best = height;
        int left = 0;
        for (std::size_t k = i; k + 1 < end; ++k) {
            left += heightOf(strips[k].front().front());
            if (std::max(left, height - left) < best) {
                best = std::max(left, height - left);
                split = k + 1;
            }
        }
        Strip strip(2);
        for (std::size_t k = i; k < end; ++k)
            strip[k < split ? 0 : 1].push_back(strips[k].front().front());
        folded.push_back(std::move(strip));
        i = end;
    }
    return folded;
}

void FormBody::fill(QVBoxLayout& layout, const Column& column) const
{
    bool grows = false;
    for (const std::size_t block : column) {
        const bool tall = m_blocks[block].section->grows();
        layout.addWidget(m_blocks[block].widget, tall ? 1 : 0);
        grows = grows || tall;
    }
    if (!grows)
        layout.addStretch(1);
}

void FormBody::place(const std::vector<Strip>& strips)
{
    empty(*m_layout);
    for (std::size_t i = 0; i < strips.size(); ++i) {
        const Strip& strip = strips[i];
        const std::size_t first = strip.front().front();
        const bool closing = i + 1 == strips.size() && m_blocks[first].section->holdsButtonsOnly();
        if (closing && !grows())
            m_layout->addStretch(1);
        if (closing && i > 0)
            m_layout->addSpacing(m_window->fontMetrics().lineSpacing() / 3);
        if (strip.size() == 1) {
            m_layout->addWidget(m_blocks[first].widget, m_blocks[first].section->grows() ? 1 : 0);
            continue;
        }
        auto* columns = new QHBoxLayout;
        bool tall = false;
        for (const Column& column : strip) {
            auto* layout = new QVBoxLayout;
            const bool narrow = movesItems(column.front());
            columns->addLayout(layout, narrow ? 0 : 1);
            if (narrow)
                layout->addWidget(m_blocks[column.front()].widget);
            else
                fill(*layout, column);
            tall = tall || std::any_of(column.begin(), column.end(), [this](std::size_t block) { return m_blocks[block].section->grows(); });
        }
        m_layout->addLayout(columns, tall ? 1 : 0);
    }
    if (!grows() && (strips.empty() || !m_blocks[strips.back().front().front()].section->holdsButtonsOnly()))
        m_layout->addStretch(1);
}

/// All blocks that stand below each other in a column.
FormBody::Column FormBody::lane(std::size_t column) const
{
    Column blocks;
    for (const Strip& strip : m_strips) {
        if (column < strip.size())
            blocks.insert(blocks.end(), strip[column].begin(), strip[column].end());
    }
    return blocks;
}

int FormBody::labelWidthOf(const Column& column) const
{
    int widest = 0;
    for (const std::size_t block : column) {
        const int width = m_blocks[block].section->labelWidth();
        if (width > 0)
            widest = std::max(widest, leftInset(*m_blocks[block].widget) + width);
    }
    return widest;
}

void FormBody::setLabelWidth(const Column& column, int width)
{
    for (const std::size_t block : column) {
        m_blocks[block].section->setLabelWidth(std::max(0, width - leftInset(*m_blocks[block].widget)));
        m_blocks[block].widget->layout()->activate();
    }
}

int FormBody::labelWidth(const QWidget& form) const
{
    const int width = labelWidthOf(lane(0));
    return width > 0 ? width + insetIn(form, *m_window) : 0;
}

void FormBody::alignLabels(const QWidget& form, int width)
{
    setLabelWidth(lane(0), width - insetIn(form, *m_window));
    setLabelWidth(lane(1), labelWidthOf(lane(1)));
    m_layout->activate();
}

void FormBody::follow()
{
    for (const Block& block : m_blocks) {
        block.section->follow();
        block.widget->setVisible(!block.section->isEmpty());
        if (block.box != nullptr)
            block.box->setTitle(drawnLabel(block.group->GetWindowText()));
        block.widget->layout()->activate();
    }
    const std::vector<Strip> strips = arranged();
    if (strips != m_strips) {
        place(strips);
        m_strips = strips;
    }
    setStretch(*m_window, grows());
    if (auto* stack = qobject_cast<QStackedWidget*>(m_window->parentWidget())) {
        bool tall = false;
        for (int i = 0; i < stack->count(); ++i)
            tall = tall || stack->widget(i)->sizePolicy().verticalStretch() > 0;
        setStretch(*stack, tall);
    }
}

bool FormBody::grows() const
{
    return std::any_of(m_blocks.begin(), m_blocks.end(), [](const Block& block) { return !block.widget->isHidden() && block.section->grows(); });
}

}  // namespace zel::desktop
