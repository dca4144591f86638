#include "desktop/forms/field_views.h"

#include "desktop/forms/text.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace zel::desktop {

namespace {

constexpr int numberCharacters = 12;
constexpr int textCharacters = 22;

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
        return;
    }
    if (m_line->text() != text)
        m_line->setText(text);
    m_line->setReadOnly(control().isReadOnly());
    if (const auto [start, end] = control().GetSel(); end > start)
        m_line->setSelection(start, end - start);
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
    m_label->setText(drawnLabel(control().GetWindowText()));
}

}  // namespace zel::desktop
