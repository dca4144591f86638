#include "desktop/forms/grid_editor.h"

#include "desktop/forms/grid_delegate.h"
#include "desktop/forms/grid_input.h"
#include "desktop/forms/grid_table.h"
#include "desktop/forms/grid_view.h"
#include "desktop/forms/text.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

namespace zel::desktop {

/// A drop-down list that knows whether an entry was taken out of its popup, which ends the edit, or by the keys.
class GridEditor::List final : public QComboBox {
public:
    using QComboBox::QComboBox;

    [[nodiscard]] bool isFromPopup() const { return m_fromPopup; }

    void hidePopup() override
    {
        m_fromPopup = view()->isVisible();
        QTimer::singleShot(0, this, [this] { m_fromPopup = false; });
        QComboBox::hidePopup();
    }

private:
    bool m_fromPopup = false;
};

QLineEdit* GridEditor::line() const
{
    return m_list != nullptr ? m_list->lineEdit() : static_cast<QLineEdit*>(m_field.data());
}

void GridEditor::follow()
{
    const CTBBrowserWnd& grid = m_view.grid();
    const ColumnIndex columnIndex = grid.GetOpenCell();
    ColumnPlace column;
    if (columnIndex < 0 || grid.GetColumnNoFor(columnIndex, column) == 0) {
        close();
        return;
    }
    const QModelIndex cell = m_view.model().index(GridModel::modelRow(grid.GetEditRow()), CTBGrid::toUserColumn(column).number());
    if (m_field == nullptr || m_columnIndex != columnIndex || m_cell.row() != cell.row())
        open(cell);
    m_cell = cell;
    m_columnIndex = columnIndex;
    showText(cell.data(Qt::EditRole).toString());
    place();
}

void GridEditor::open(const QModelIndex& cell)
{
    close();
    const std::vector<CString> choices = m_view.model().choices(cell);
    QWidget* const pane = m_view.table().paneOf(cell.column()).viewport();
    const ColumnIndex columnIndex = m_view.model().columnIndex(cell.column());
    if (choices.empty()) {
        auto* field = new QLineEdit(pane);
        field->setFrame(false);
        field->setAlignment(Qt::Alignment(cell.data(Qt::TextAlignmentRole).toInt()));
        QObject::connect(field, &QLineEdit::textEdited, this, [this](const QString& text) { (void)m_view.type(text); });
        m_field = field;
    } else {
        auto* list = new List(pane);
        list->setFrame(false);
        list->setEditable(!m_view.grid().GetColInfo(columnIndex).choicesOnly);
        list->setInsertPolicy(QComboBox::NoInsert);
        for (const CString& choice : choices)
            list->addItem(toQt(choice));
        list->setCurrentIndex(-1);
        list->view()->setMinimumWidth(list->view()->sizeHintForColumn(0) + 2 * list->view()->frameWidth());
        QObject::connect(list, &QComboBox::activated, this, [this, list](int entry) {
            const bool ends = list->isFromPopup();
            if (m_view.type(list->itemText(entry)) && ends)
                m_view.input().leaveCell();
        });
        if (list->isEditable()) {
            list->lineEdit()->installEventFilter(this);
            QObject::connect(list->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) { (void)m_view.type(text); });
        }
        m_list = list;
        m_field = list;
    }
    m_field->setObjectName(QStringLiteral("gridCellEditor"));
    m_field->setAccessibleName(m_view.model().headerData(cell.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    m_field->setAutoFillBackground(true);
    m_field->installEventFilter(this);
    m_cell = cell;
    m_columnIndex = columnIndex;
    place();
    m_field->show();
    if (m_view.table().hasKeys())
        m_field->setFocus(Qt::OtherFocusReason);
}

void GridEditor::close()
{
    QWidget* const field = m_field;
    if (field == nullptr)
        return;
    m_field = nullptr;
    m_list = nullptr;
    m_columnIndex = -1;
    field->removeEventFilter(this);
    field->disconnect(this);
    if (m_view.isAttached() && (field->hasFocus() || field->isAncestorOf(QApplication::focusWidget())))
        m_view.table().setFocus(Qt::OtherFocusReason);
    field->hide();
    field->deleteLater();  // it may be in the middle of its own key
}

void GridEditor::showText(const QString& text)
{
    if (m_list != nullptr && !m_list->isEditable()) {
        if (m_list->currentText() != text)
            m_list->setCurrentIndex(m_list->findText(text));
    } else if (line() != nullptr && line()->text() != text) {
        line()->setText(text);
    }
}

void GridEditor::place()
{
    if (m_field == nullptr || !m_cell.isValid())
        return;
    const int frame = GridDelegate::frameWidth;
    const QRect cell = m_view.table().cellRect(m_cell).adjusted(frame, frame, -frame - 1, -frame - 1);
    if (m_field->geometry() != cell)
        m_field->setGeometry(cell);
}

void GridEditor::takeFocus()
{
    if (m_field != nullptr)
        m_field->setFocus(Qt::OtherFocusReason);
}

void GridEditor::dropDown()
{
    if (m_list != nullptr)
        m_list->showPopup();
}

bool GridEditor::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            event->accept();
            return true;
        }
        break;
    case QEvent::KeyPress:
        return key(static_cast<QKeyEvent&>(*event));
    case QEvent::FocusIn:
        m_view.input().focusCell();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

/// Keys that end the edit or leave the cell. All others are the field's.
bool GridEditor::key(QKeyEvent& event)
{
    GridInput& input = m_view.input();
    const bool plain = (event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == 0;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        if (!plain)
            return false;
        return input.key(event);
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (m_list != nullptr || event.modifiers() != Qt::NoModifier)
            return false;
        return input.key(event);
    default:
        break;
    }
    if (event.matches(QKeySequence::Paste) && GridInput::isBlock(QApplication::clipboard()->text())) {
        input.pasteOverOpenCell();
        return true;
    }
    return false;
}

}  // namespace zel::desktop
