#include "desktop/forms/field_views.h"

#include "desktop/forms/grid_delegate.h"
#include "desktop/forms/text.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <algorithm>

namespace zel::desktop {

namespace {

constexpr int numberCharacters = 12;
constexpr int textCharacters = 22;
constexpr double refusedShare = 0.25;   ///< of the colour of what is wrong, behind an entry that can't be taken
constexpr int unbrokenCharacters = 64;  ///< of a text that the program sets; a longer one takes several lines

int widthOf(const QWidget& widget, int characters)
{
    return widget.fontMetrics().horizontalAdvance(QLatin1Char('0')) * characters;
}

}  // namespace

EditView::EditView(CEdit& field, FormContext& context, QWidget& parent) : ViewOf(field, context)
{
    if (field.isMultiLine()) {
        m_lines = new QPlainTextEdit(&parent);
        m_lines->setTabChangesFocus(true);
        m_lines->setMinimumSize(widthOf(*m_lines, textCharacters), m_lines->fontMetrics().lineSpacing() * 4);
        QObject::connect(m_lines, &QPlainTextEdit::textChanged, m_lines, [this] { typed(m_lines->toPlainText()); });
        return;
    }
    m_line = new QLineEdit(&parent);
    const bool number = field.kind() == Kind::number;
    m_line->setMinimumWidth(widthOf(*m_line, number ? numberCharacters : textCharacters));
    if (number)
        m_line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QObject::connect(m_line, &QLineEdit::textEdited, m_line, [this](const QString& text) { typed(text); });
}

QWidget& EditView::widget()
{
    return m_line != nullptr ? static_cast<QWidget&>(*m_line) : static_cast<QWidget&>(*m_lines);
}

void EditView::typed(const QString& text)
{
    if (isInput())
        take(hand().type(control(), fromQt(text)));
}

void EditView::refresh()
{
    const QString text = toQt(control().GetWindowText());
    if (m_lines != nullptr) {
        if (m_lines->toPlainText() != text)
            m_lines->setPlainText(text);
        m_lines->setReadOnly(control().isReadOnly());
    } else {
        if (m_line->text() != text)
            m_line->setText(text);
        m_line->setReadOnly(control().isReadOnly());
    }
    if (const auto [start, end] = control().GetSel(); end > start)
        select(placeOf(start), placeOf(end));
    mark(control().isEntryRefused());
}

void EditView::mark(bool refused)
{
    QWidget& field = widget();
    QPalette palette;
    if (refused)
        palette.setColor(QPalette::Base, mixed(palette.color(QPalette::Base), warningColour(palette), refusedShare));
    field.setPalette(palette);
    field.setAccessibleDescription(refused ? QStringLiteral("can't be taken as it stands") : QString());
}

/// The place in the widget's text of a place in the control's, which counts bytes.
int EditView::placeOf(int byte) const
{
    const CString& text = control().GetWindowText();
    const auto bytes = std::clamp<std::size_t>(static_cast<std::size_t>(std::max(byte, 0)), 0, text.size());
    return static_cast<int>(QString::fromUtf8(text.data(), static_cast<qsizetype>(bytes)).size());
}

void EditView::select(int start, int end)
{
    if (m_line != nullptr) {
        m_line->setSelection(start, end - start);
        return;
    }
    QTextCursor cursor = m_lines->textCursor();
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    m_lines->setTextCursor(cursor);
}

StaticView::StaticView(CStatic& text, FormContext& context, QWidget& parent) : ViewOf(text, context), m_label(new QLabel(&parent))
{
    m_label->setTextFormat(Qt::PlainText);
}

QWidget& StaticView::widget()
{
    return *m_label;
}

void StaticView::refresh()
{
    const QString text = drawnLabel(control().GetWindowText());
    const bool breaks = text.size() > unbrokenCharacters;
    m_label->setText(text);
    m_label->setWordWrap(breaks);
    m_label->setMinimumWidth(breaks ? widthOf(*m_label, unbrokenCharacters) : 0);
}

}  // namespace zel::desktop
