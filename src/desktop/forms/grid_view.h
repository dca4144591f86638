#pragma once

#include "contract/forms/grid_browser_ex.h"
#include "desktop/forms/control_view.h"
#include "desktop/forms/grid_model.h"

#include <QPersistentModelIndex>
#include <QPointer>

#include <functional>
#include <memory>

namespace zel::desktop {

class GridBubble;
class GridDelegate;
class GridEditor;
class GridInput;
class GridTable;

/// The grid browser as a spreadsheet: model and view on the controller, which holds all texts, what is current, selected and open.
///
/// What the user does goes through `act`: a step may write a record, run a question, rebuild the rows or close the dialog, and with it this view.
class GridView final : public ViewOf<CTBBrowserWnd> {
public:
    /// Whether the sentence of a step that was refused is shown.
    enum class Refusal { silent, shown };

    GridView(CTBBrowserWnd& grid, FormContext& context, QWidget& parent);
    ~GridView() override;

    QWidget& widget() override;
    bool isTall() const override { return true; }
    void detach() override;
    void warn(const QString& text) override;

    // For its parts.

    [[nodiscard]] CTBBrowserWnd& grid() const { return control(); }
    /// The grid, where it takes blocks and can be put in another order; null for one that can't.
    [[nodiscard]] CTBBrowserWndEx* orderedGrid() const { return dynamic_cast<CTBBrowserWndEx*>(&control()); }
    [[nodiscard]] UserHand& user() const { return hand(); }
    [[nodiscard]] bool isInput() const { return ControlView::isInput(); }
    [[nodiscard]] GridModel& model() const { return *m_model; }
    [[nodiscard]] GridTable& table() const;
    [[nodiscard]] bool isTableThere() const;
    [[nodiscard]] GridInput& input() const { return *m_input; }
    [[nodiscard]] GridEditor& editor() const { return *m_editor; }
    /// Whether the cell in question is marked as refused.
    [[nodiscard]] bool isWarned() const { return !m_warning.isEmpty(); }
    /// Ends with this view.
    [[nodiscard]] std::weak_ptr<bool> life() const { return m_life; }
    /// Whether the button of a cell is held down.
    [[nodiscard]] bool isPressed(const QModelIndex& index) const;

    /// Carries a step of the user out, and shows at once what has become of it. False if it was refused; also if this view is gone or detached,
    /// so that nothing of it may be touched after a false.
    bool act(const std::function<Taken()>& step, Refusal refusal = Refusal::silent);
    /// The same for a step of the user at this grid.
    bool act(const UserStep& step, Refusal refusal = Refusal::silent);
    /// The same for a keystroke into the open cell, which leaves a warning where it is.
    bool type(const QString& text);
    void fillVisible();
    void columnResized(int section, int width);
    /// Puts the open cell's editor and the warning where their cell is now.
    void placeParts();
    /// The keyboard has come to the cells.
    void focusCame();

private:
    void refresh() override;
    void showCurrent();
    void showSelection();
    void follow(const QModelIndex& current);
    void showWarning();
    [[nodiscard]] QModelIndex currentIndex() const;

    QPointer<GridTable> m_table;
    GridModel* m_model = nullptr;
    GridDelegate* m_delegate = nullptr;
    std::unique_ptr<GridInput> m_input;
    std::unique_ptr<GridEditor> m_editor;
    QPointer<GridBubble> m_bubble;
    std::shared_ptr<bool> m_life = std::make_shared<bool>(true);  ///< ends with this view
    QString m_warning;
    QModelIndex m_shownCurrent;  ///< cell that was last scrolled to
    CArray<Row> m_shownSelection;
    int m_selectionRows = -1;  ///< number of rows when it was shown
};

}  // namespace zel::desktop
