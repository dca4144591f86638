#include "desktop/host/play_panel.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace zel::desktop {

PlayPanel::PlayPanel(QWidget* parent, const QString& name, int lines, std::function<void()> stop)
    : QDialog(parent), m_text(new QLabel), m_bar(new QProgressBar), m_lines(lines), m_stop(std::move(stop))
{
    constexpr int width = 320;
    setWindowTitle(QStringLiteral("Playing ") + name);
    setModal(true);
    m_text->setTextFormat(Qt::PlainText);
    m_bar->setRange(0, lines);
    m_bar->setTextVisible(false);
    auto* button = new QPushButton(QStringLiteral("&Stop"));
    button->setToolTip(QStringLiteral("Stops after the command that is being carried out (Esc)"));
    QObject::connect(button, &QPushButton::clicked, this, [this] { reject(); });
    auto* row = new QHBoxLayout;
    row->addWidget(m_bar, 1);
    row->addWidget(button);
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_text);
    column->addLayout(row);
    setMinimumWidth(width);
    showLine(0);
}

void PlayPanel::showLine(long line)
{
    m_text->setText(QStringLiteral("Line %1 of %2").arg(line).arg(m_lines));
    m_bar->setValue(static_cast<int>(line));
}

void PlayPanel::stayInFront()
{
    if (QApplication::activeModalWidget() == this)
        return;
    hide();
    show();
    raise();
    // In the corner, where the forms can be watched beside it.
    constexpr int margin = 48;
    const QRect around = parentWidget()->frameGeometry();
    move(around.right() - frameGeometry().width() - margin / 2, around.bottom() - frameGeometry().height() - margin);
}

void PlayPanel::reject()
{
    m_text->setText(QStringLiteral("Stopping..."));
    m_stop();
}

}  // namespace zel::desktop
