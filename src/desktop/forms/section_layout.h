#pragma once

#include "contract/forms/control.h"
#include "desktop/forms/control_view.h"

#include <vector>

class QGridLayout;
class QLabel;
class QLayout;

namespace zel::desktop {

/// The lines of one block of a form: labels in one column, fields in the next, what belongs to a field (unit, "...") in a third; lists below each
/// other or, where there is room, side by side. First all controls are added, then the lines are laid out.
class SectionLayout {
public:
    /// @param block  the widget whose layout it becomes; the widgets in it are its children
    explicit SectionLayout(QWidget& block) : m_block(&block) {}

    /// Adds the view at its place and returns the label that was made beside it; null for none.
    QLabel* add(const Control& control, ControlView& view);
    /// Adds the pages of tabs or what a panel shows.
    void addInside(QWidget& inside);
    /// Lays the lines out. `buttonsBelowEachOther`: a row of buttons stands between two lists.
    void finish(QGridLayout& grid, bool buttonsBelowEachOther);

    /// Parent of the widgets in it.
    [[nodiscard]] QWidget& block() const { return *m_block; }

    /// Takes over which widgets are hidden: they leave no gap behind.
    void follow();
    /// Whether something that is seen in it makes use of more height.
    [[nodiscard]] bool grows() const;
    [[nodiscard]] bool isEmpty() const;
    /// Nothing but lists.
    [[nodiscard]] bool holdsListsOnly() const;
    /// Nothing but a row of buttons.
    [[nodiscard]] bool holdsButtonsOnly() const;
    /// Nothing but buttons with arrows, which move items between two lists.
    [[nodiscard]] bool holdsArrowsOnly() const;

    /// Width that the visible labels need [pixels]; 0 for none.
    [[nodiscard]] int labelWidth() const;
    void setLabelWidth(int width);

private:
    struct Item {
        const Control* control = nullptr;  ///< null for what stands inside a control
        ControlView* view = nullptr;
        QLabel* label = nullptr;
        QWidget* widget = nullptr;
    };
    enum class Use { fields, radios, text, buttons, loneButton, list, lines, inside };
    struct Line {
        std::vector<Item> items;
        Use use = Use::fields;
        int row = -1;
    };

    [[nodiscard]] bool continuesLine(const Control& control) const;
    [[nodiscard]] Use useOf(const Item& item) const;
    [[nodiscard]] bool isSeen(const Line& line) const;
    [[nodiscard]] bool grows(const Line& line) const;
    QLabel* makeLabel(const Control& control, ControlView& view) const;

    static std::size_t tailOf(const Line& line);
    void placeFields(Line& line);
    QLayout* withArrows(const Item& field, const Item& arrows) const;
    void limitWidth(const Item& field) const;
    QWidget* headOf(Line& line, std::size_t& next) const;
    void placeRadios(Line& line);
    void placeButtons(Line& line, const Line* before, Line* joined, bool belowEachOther);
    void placeLists(std::size_t first, std::size_t end);
    [[nodiscard]] std::size_t endOfListsBeside(std::size_t first) const;
    void placeText(Line& line);
    void evenOut(const std::vector<const Item*>& buttons, int narrowest) const;

    QWidget* m_block;
    QGridLayout* m_grid = nullptr;
    std::vector<Line> m_lines;
    std::vector<QWidget*> m_heads;  ///< what stands in the column of the labels
    struct Holder {
        QWidget* widget;
        Item item;
    };
    std::vector<Holder> m_holders;  ///< lists beside each other, each with its label
    bool m_hasTails = false;        ///< units or "..." stand in a column of their own
    int m_columns = 0;
    int m_rows = 0;
};

}  // namespace zel::desktop
