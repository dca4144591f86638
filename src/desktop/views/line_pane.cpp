#include "desktop/views/line_pane.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace zel::desktop {

LinePane::LinePane(const QString& name, QWidget* parent) : QPlainTextEdit(parent)
{
    constexpr int mostLines = 10'000;
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setMaximumBlockCount(mostLines);
    setAccessibleName(name);
    setFrameShape(QFrame::NoFrame);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    document()->setDocumentMargin(6);
}

void LinePane::add(const QString& line)
{
    appendPlainText(line);
}

void LinePane::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    QAction* copyLines = menu.addAction(QStringLiteral("&Copy"), this, &QPlainTextEdit::copy);
    copyLines->setEnabled(textCursor().hasSelection());
    menu.addAction(QStringLiteral("Select &All"), this, &QPlainTextEdit::selectAll)->setEnabled(!document()->isEmpty());
    menu.addSeparator();
    menu.addAction(QStringLiteral("C&lear"), this, &QPlainTextEdit::clear)->setEnabled(!document()->isEmpty());
    menu.exec(event->globalPos());
}

}  // namespace zel::desktop
