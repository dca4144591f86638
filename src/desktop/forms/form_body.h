#pragma once

#include "desktop/forms/section_layout.h"

#include <memory>
#include <vector>

class CGroup;
class QBoxLayout;
class QGroupBox;
class QVBoxLayout;

namespace zel::desktop {

/// The blocks of one dialog, of a page of it or of the child in a panel: the frames of its groups, and the lines between them. How they are arranged
/// follows from what is seen of them, so it changes when groups come and go:
///
/// - one below the other, with the labels of all of them in one column;
/// - frames in two columns where one would get too high;
/// - blocks that hold lists only side by side, with the buttons that move items between two of them in the middle.
class FormBody {
public:
    explicit FormBody(QWidget& window);

    /// The block for controls outside of groups: the one begun last, or a new one.
    SectionLayout& plain();
    /// The block of a group, which is made at its first control.
    SectionLayout& frame(CGroup& group);
    /// All controls have been added.
    void finish();

    /// Takes over which widgets are hidden, and arranges the blocks anew if that asks for it.
    void follow();
    /// Whether something that is seen in it makes use of more height.
    [[nodiscard]] bool grows() const;

    /// Width that the labels in its first column need, from the left edge of `form`, which it is in or is; 0 without labels.
    [[nodiscard]] int labelWidth(const QWidget& form) const;
    /// Fields that stand below each other begin at one line, in frames and outside: the first column's at `width` from the left edge of `form`.
    void alignLabels(const QWidget& form, int width);

private:
    struct Block {
        QWidget* widget;
        QGroupBox* box = nullptr;  ///< the same widget, of a group
        CGroup* group = nullptr;
        std::unique_ptr<SectionLayout> section;
    };
    /// Blocks below each other, by their places.
    using Column = std::vector<std::size_t>;
    /// Columns side by side; mostly one.
    using Strip = std::vector<Column>;

    SectionLayout& addBlock(QWidget& widget, QGroupBox* box, CGroup* group);
    [[nodiscard]] bool isSeen(std::size_t block) const { return !m_blocks[block].widget->isHidden(); }
    [[nodiscard]] bool movesItems(std::size_t block) const;
    [[nodiscard]] std::vector<Strip> arranged() const;
    [[nodiscard]] std::vector<Strip> foldedToTwoColumns(std::vector<Strip> strips) const;
    [[nodiscard]] int heightOf(std::size_t block) const;
    [[nodiscard]] int widthOf(std::size_t block) const;
    void place(const std::vector<Strip>& strips);
    void fill(QVBoxLayout& layout, const Column& column) const;
    [[nodiscard]] Column lane(std::size_t column) const;
    [[nodiscard]] int labelWidthOf(const Column& column) const;
    void setLabelWidth(const Column& column, int width);

    QWidget* m_window;
    QVBoxLayout* m_layout;
    std::vector<Block> m_blocks;
    std::vector<Strip> m_strips;  ///< as they are placed
};

}  // namespace zel::desktop
