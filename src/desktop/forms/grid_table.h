#pragma once

#include "contract/forms/grid_browser.h"
#include "desktop/forms/grid_pane.h"

#include <map>
#include <vector>

namespace zel::desktop {

class GridRowHeader;

/// Where something that is dragged would go. -1, and an invalid index, for nowhere.
struct GridMarks {
    int rowGap = -1;     ///< before that row
    int columnGap = -1;  ///< before that column
    QModelIndex dropCell;
};

/// The cells of a grid, with headers. Columns that stay in sight stand in a second pane over its left edge as soon as they would scroll away.
class GridTable final : public GridPane {
public:
    GridTable(GridView& view, QWidget* parent);

    void letGo() override;
    void setModel(QAbstractItemModel* model) override;

    /// Takes over what the controller says of columns, rows and headers.
    void follow();
    /// From now on the column is as wide as the user made it, be that too narrow for its header.
    void keepWidth(ColumnIndex columnIndex) { m_userSized[columnIndex] = true; }

    /// The pane in which a column is seen, and the place of a cell in its viewport.
    [[nodiscard]] GridPane& paneOf(int column);
    [[nodiscard]] QRect cellRect(const QModelIndex& index);
    [[nodiscard]] GridPane& frozenPane();
    /// Whether the keyboard is here or in an open cell.
    [[nodiscard]] bool hasKeys() const;
    /// Moves the keyboard to the next, or the former, control.
    void leaveTo(bool next);
    /// The rows that are seen, from 0; the last may be before the first.
    [[nodiscard]] std::pair<int, int> visibleRows() const;

    // Places of gaps between rows and columns; x and y are those of the main viewport.
    [[nodiscard]] int rowGapAt(int y) const;
    [[nodiscard]] int rowGapPosition(int gap) const;
    [[nodiscard]] int columnGapAt(int x) const;
    [[nodiscard]] const GridMarks& marks() const { return m_marks; }
    void setMarks(const GridMarks& marks);
    /// Paints the cells again.
    void repaintCells();

    void scrollTo(const QModelIndex& index, ScrollHint hint) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    class FrozenPane;

    void followRows(const CTBBrowserWnd& grid);
    void followColumns(const CTBBrowserWnd& grid);
    void followSpans(const CTBBrowserWnd& grid);
    void stickColumns();
    void placeFrozen();
    [[nodiscard]] int widthFor(const GridColumn& column, ColumnIndex index, int section);
    [[nodiscard]] QSize sizeFor(int mostWidth, int rows) const;

    struct Span {
        int row;
        int column;
        int count;
        bool operator==(const Span&) const = default;
    };

    FrozenPane* m_frozen;
    GridRowHeader* m_rowHeader;
    GridMarks m_marks;
    std::vector<int> m_hiddenRows;
    std::vector<Span> m_spans;
    std::vector<bool> m_sticky;  ///< columns that are to stay in sight
    std::map<ColumnIndex, bool> m_userSized;
    std::map<QString, int> m_titleWidths;  ///< [pixels] of the headers that were measured with the present font
    QSize m_leastSize;
    bool m_placing = false;
};

}  // namespace zel::desktop
