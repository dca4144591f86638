#include "desktop/host/status_panel.h"

#include "contract/notices.h"
#include "contract/units.h"
#include "desktop/host/main_window.h"
#include "desktop/host/unit_choice.h"

#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QStatusBar>

namespace zel::desktop {

QString selectionText(const SelectedCounts& counts)
{
    QStringList parts;
    const auto add = [&](std::size_t count, const char* one) {
        if (count > 0)
            parts.append(QStringLiteral("%1 %2%3").arg(count).arg(QLatin1String(one), count > 1 ? QStringLiteral("s") : QString()));
    };
    add(counts.points, "point");
    add(counts.lines, "line");
    add(counts.areas, "area");
    add(counts.nodes, "node");
    add(counts.elements, "element");
    return parts.isEmpty() ? QStringLiteral("Nothing selected") : parts.join(QStringLiteral(", ")) + QStringLiteral(" selected");
}

StatusPanel::StatusPanel(MainWindow& window) : QObject(&window), m_window(window)
{
    QStatusBar& bar = *window.statusBar();
    const auto label = [&](const char* name, const char* tip) {
        auto* made = new QLabel;
        made->setObjectName(QString::fromLatin1(name));
        made->setToolTip(QString::fromLatin1(tip));
        made->setContentsMargins(6, 0, 6, 0);
        return made;
    };
    const auto choice = [&](const char* name, const char* tip, void (*fill)(QComboBox&)) {
        auto* made = new QComboBox;
        made->setAccessibleName(QString::fromLatin1(name));
        made->setToolTip(QString::fromLatin1(tip));
        fill(*made);
        QObject::connect(made, &QComboBox::activated, this, [this] { chooseUnits(); });
        return made;
    };
    m_selection = label("selection", "What is selected in the model views");
    m_length = choice("Unit of length", "Unit of length: all lengths of the model are converted", fillLengthUnits);
    m_force = choice("Unit of force", "Unit of force: all forces of the model are converted", fillForceUnits);
    m_state = label("fileState", "Every change is written to the file at once");
    for (QWidget* each : {static_cast<QWidget*>(m_selection), static_cast<QWidget*>(m_length), static_cast<QWidget*>(m_force), static_cast<QWidget*>(m_state)})
        bar.addPermanentWidget(each);
}

void StatusPanel::showDocument()
{
    showState({});
    showUnits();
    showSelection();
}

void StatusPanel::showNotice(long long hint)
{
    if (hint == Hint::units)
        showUnits();
    else if (hint == Hint::selection || Hint::isData(hint))
        showSelection();
}

void StatusPanel::showState(const QString& text)
{
    const bool inFile = !m_window.document().GetPathName().empty();
    const QString ofFile = inFile ? QStringLiteral("All changes saved") : QStringLiteral("Not in a file yet");
    m_state->setText(text.isEmpty() ? ofFile : text);
    m_state->setAccessibleName(QStringLiteral("State of the file: ") + m_state->text());
}

void StatusPanel::showUnits()
{
    T_UNIT_INDEX units;
    m_window.document().GetUnitCtrl()->GetUnitIndexCurrent(units);
    const QSignalBlocker lengthIsQuiet(m_length);
    const QSignalBlocker forceIsQuiet(m_force);
    m_length->setCurrentIndex(units.length);
    m_force->setCurrentIndex(units.force);
}

void StatusPanel::showSelection()
{
    const T_SELECTION selection = m_window.document().GetViewCtrl()->selection();
    m_selection->setText(
        selectionText({selection.points.size(), selection.lines.size(), selection.areas.size(), selection.nodes.size(), selection.elements.size()}));
    m_selection->setAccessibleName(QStringLiteral("Selection: ") + m_selection->text());
}

void StatusPanel::chooseUnits()
{
    T_UNIT_INDEX now;
    m_window.document().GetUnitCtrl()->GetUnitIndexCurrent(now);
    const T_UNIT_INDEX chosen{m_length->currentIndex(), m_force->currentIndex()};
    if (chosen != now)
        m_window.hand().units(m_window.document(), chosen);
    showUnits();  // as they are: the change may have been refused
}

}  // namespace zel::desktop
