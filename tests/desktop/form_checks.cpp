#include "desktop/form_checks.h"

#include "contract/forms/buttons.h"
#include "contract/forms/edit.h"
#include "contract/forms/lists.h"
#include "contract/forms/tabs.h"
#include "desktop/forms/text.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTabBar>

#include <algorithm>
#include <map>

namespace desktop_test {

using zel::Control;
using zel::Kind;
using zel::desktop::ControlView;
using zel::desktop::drawnLabel;
using zel::desktop::FormParts;
using zel::desktop::FormWindow;
using zel::desktop::toQt;

namespace {

std::string nameOf(const QWidget& widget)
{
    const QString name = !widget.accessibleName().isEmpty() ? widget.accessibleName() : widget.objectName();
    std::string text = widget.metaObject()->className() + std::string(" \"") + name.toStdString() + '"';
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        text = "label \"" + label->text().toStdString() + '"';
    return text;
}

QRect placeIn(const QWidget& widget, const FormWindow& form)
{
    return {widget.mapTo(&form, QPoint()), widget.size()};
}

std::string written(const QRect& place)
{
    return std::to_string(place.x()) + "," + std::to_string(place.y()) + " " + std::to_string(place.width()) + "x" + std::to_string(place.height());
}

/// The widget's text without the mark of its mnemonic.
QString plain(QString text)
{
    text.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    text.remove(QLatin1Char('&'));
    return text.replace(QStringLiteral("\x01"), QStringLiteral("&"));
}

/// What bears a text: the widget of the view, or the label beside it. Null for a view without text.
QString textOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    return {};
}

bool hasInnerWidgets(const QWidget& widget)
{
    return qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr || qobject_cast<const QComboBox*>(&widget) != nullptr ||
        qobject_cast<const QLineEdit*>(&widget) != nullptr || qobject_cast<const QTabBar*>(&widget) != nullptr;
}

void checkInside(const QWidget& parent, Complaints& complaints)
{
    for (const QWidget* child : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->isVisible() || child->isWindow())
            continue;
        if (!parent.rect().contains(child->geometry()))
            complaints.push_back(nameOf(*child) + " at " + written(child->geometry()) + " is outside of what holds it, " + written(parent.rect()));
        if (!hasInnerWidgets(*child))
            checkInside(*child, complaints);
    }
}

int neededWidth(const QWidget& widget)
{
    const int text = widget.fontMetrics().horizontalAdvance(plain(textOf(widget)));
    if (qobject_cast<const QPushButton*>(&widget) != nullptr)
        return text + 4;
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->wordWrap() ? label->minimumWidth() : label->sizeHint().width();
    if (qobject_cast<const QCheckBox*>(&widget) != nullptr || qobject_cast<const QRadioButton*>(&widget) != nullptr)
        return widget.sizeHint().width();
    if (qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr)
        return 0;  // it scrolls
    return widget.minimumSizeHint().width() > 0 ? std::min(widget.minimumSizeHint().width(), widget.sizeHint().width()) : 0;
}

/// The visible widgets that stand for controls, and their labels, in reading order.
std::vector<const QWidget*> leaves(const FormWindow& form)
{
    std::vector<const QWidget*> found;
    for (const FormParts::Part& part : form.parts().parts) {
        if (part.label != nullptr && part.label->isVisible())
            found.push_back(part.label);
        if (part.view->widget().isVisible())
            found.push_back(&part.view->widget());
    }
    return found;
}

/// What a widget shows, as a form's description gives it; nothing for kinds that draw their values themselves.
std::optional<QString> valueOf(const ControlView& view)
{
    QWidget& widget = const_cast<ControlView&>(view).widget();
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->text();
    if (const auto* lines = qobject_cast<const QPlainTextEdit*>(&widget))
        return lines->toPlainText();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return QString::number(combo->currentIndex()) + QLatin1Char(' ') + QString::number(combo->count()) + QLatin1Char(' ') + combo->currentText();
    if (qobject_cast<const QCheckBox*>(&widget) != nullptr || qobject_cast<const QRadioButton*>(&widget) != nullptr)
        return QString::number(qobject_cast<const QAbstractButton*>(&widget)->isChecked() ? 1 : 0);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
        return QString::number(tabs->currentIndex()) + QLatin1Char(' ') + QString::number(tabs->count());
    return std::nullopt;
}

QString valueOf(const Control& control)
{
    if (const auto* combo = dynamic_cast<const CComboBox*>(&control)) {
        const int selected = combo->GetCurSel() < combo->GetCount() ? combo->GetCurSel() : -1;
        return QString::number(selected) + QLatin1Char(' ') + QString::number(combo->GetCount()) + QLatin1Char(' ') + toQt(combo->GetWindowText());
    }
    if (const auto* check = dynamic_cast<const CCheckBox*>(&control))
        return QString::number(check->GetCheck() ? 1 : 0);
    if (const auto* radio = dynamic_cast<const CRadioButton*>(&control))
        return QString::number(radio->GetCheck() ? 1 : 0);
    if (const auto* tabs = dynamic_cast<const CDlgTabCtrl*>(&control))
        return QString::number(tabs->GetCurSel()) + QLatin1Char(' ') + QString::number(tabs->GetPageCount());
    return toQt(control.GetWindowText());
}

const char* yesNo(bool yes)
{
    return yes ? "yes" : "no";
}

}  // namespace

Complaints clippedOrCovered(const FormWindow& form)
{
    Complaints complaints;
    checkInside(form, complaints);
    const std::vector<const QWidget*> all = leaves(form);
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i]->width() < neededWidth(*all[i]))
            complaints.push_back(nameOf(*all[i]) + " is " + std::to_string(all[i]->width()) + " wide and needs " + std::to_string(neededWidth(*all[i])));
        for (std::size_t k = i + 1; k < all.size(); ++k) {
            if (placeIn(*all[i], form).intersects(placeIn(*all[k], form)))
                complaints.push_back(nameOf(*all[i]) + " covers " + nameOf(*all[k]));
        }
    }
    return complaints;
}

Complaints misaligned(const FormWindow& form)
{
    // By the place of its label: fields whose labels begin within one indentation stand in one column.
    constexpr int indentation = 24;
    std::map<int, std::pair<int, std::string>> columns;  // left edge of the labels: left edge of the fields
    Complaints complaints;
    for (const FormParts::Part& part : form.parts().parts) {
        const QWidget& widget = part.view->widget();
        if (part.label == nullptr || !widget.isVisible() || part.view->isTall())
            continue;
        const QRect label = placeIn(*part.label, form);
        const QRect field = placeIn(widget, form);
        const bool laterInLine = std::any_of(form.parts().parts.begin(), form.parts().parts.end(), [&](const FormParts::Part& other) {
            const QRect place = placeIn(other.view->widget(), form);
            return other.view->widget().isVisible() && place.right() < label.left() && place.top() <= label.center().y() &&
                place.bottom() >= label.center().y() && other.view->widget().parentWidget() == widget.parentWidget();
        });
        if (laterInLine)
            continue;
        const auto near = std::find_if(columns.begin(), columns.end(), [&](const auto& each) { return std::abs(each.first - label.left()) <= indentation; });
        if (near == columns.end())
            columns[label.left()] = {field.left(), nameOf(widget)};
        else if (near->second.first != field.left())
            complaints.push_back(nameOf(widget) + " begins at " + std::to_string(field.left()) + ", " + near->second.second + " at " +
                                 std::to_string(near->second.first));
    }
    return complaints;
}

Complaints unlikeController(const FormWindow& form)
{
    Complaints complaints;
    const auto compare = [&](const Control& control, const char* what, const QString& drawn, const QString& wanted) {
        if (drawn != wanted)
            complaints.push_back(control.id() + ": " + what + " is \"" + drawn.toStdString() + "\", not \"" + wanted.toStdString() + '"');
    };
    std::vector<const Control*> controls;
    for (const Control* control : form.dialog()->controls())
        controls.push_back(control);
    if (form.parts().parts.size() != controls.size())
        complaints.push_back(std::to_string(form.parts().parts.size()) + " widgets for " + std::to_string(controls.size()) + " controls");
    for (std::size_t i = 0; i < std::min(controls.size(), form.parts().parts.size()); ++i) {
        const FormParts::Part& part = form.parts().parts[i];
        const Control& control = *controls[i];
        if (part.view->control() != &control) {
            complaints.push_back(control.id() + " is not drawn at its place");
            continue;
        }
        const QWidget& widget = part.view->widget();
        const bool bearsText = !textOf(widget).isEmpty() || !part.view->hasLabelBeside();
        if (part.label != nullptr)
            compare(control, "label", plain(part.label->text()), plain(drawnLabel(control.label())));
        else if (bearsText && control.kind() != Kind::tabs && control.kind() != Kind::spin)
            compare(control, "text", plain(textOf(widget)), plain(drawnLabel(control.label())));
        if (const std::optional<QString> drawn = valueOf(*part.view))
            compare(control, "value", *drawn, valueOf(control));
        compare(control, "enabled", yesNo(widget.isEnabled()), yesNo(control.IsWindowEnabled()));
        compare(control, "visible", yesNo(widget.isVisible()), yesNo(control.IsWindowVisible()));
        if (part.label != nullptr)
            compare(control, "visible label", yesNo(part.label->isVisible()), yesNo(control.IsWindowVisible()));
    }
    for (const QGroupBox* box : form.findChildren<QGroupBox*>()) {
        const auto& groups = form.dialog()->groups();
        const bool known = std::any_of(groups.begin(), groups.end(), [&](const CGroup* group) { return box->title() == drawnLabel(group->GetWindowText()); });
        if (form.dialog()->groups().size() > 0 && !known && box->isVisible())
            complaints.push_back("frame \"" + box->title().toStdString() + "\" is of no group");
    }
    return complaints;
}

Complaints outOfOrder(const FormWindow& form)
{
    Complaints complaints;
    const QWidget* former = nullptr;
    std::vector<const QWidget*> reading;
    for (const FormParts::Part& part : form.parts().parts) {
        QWidget& widget = part.view->widget();
        if (!widget.isVisible())
            continue;
        if (former != nullptr && former->parentWidget() == widget.parentWidget()) {
            const QRect before = placeIn(*former, form);
            const QRect place = placeIn(widget, form);
            if (place.top() <= before.top() && place.left() <= before.left())
                complaints.push_back(nameOf(widget) + " stands before " + nameOf(*former));
        }
        former = &widget;
        if (part.view->focusWidget() != nullptr && widget.isEnabled())
            reading.push_back(part.view->focusWidget());
    }
    std::vector<const QWidget*> tabbing;
    if (!reading.empty()) {
        const QWidget* first = reading.front();
        const QWidget* each = first;
        do {
            if (std::find(reading.begin(), reading.end(), each) != reading.end())
                tabbing.push_back(each);
            each = each->nextInFocusChain();
        } while (each != first);
    }
    for (std::size_t i = 0; i < std::min(reading.size(), tabbing.size()); ++i) {
        if (reading[i] != tabbing[i]) {
            complaints.push_back("Tab goes to " + nameOf(*tabbing[i]) + " where " + nameOf(*reading[i]) + " is next");
            break;
        }
    }
    if (reading.size() != tabbing.size())
        complaints.push_back("Tab misses some of the controls");
    return complaints;
}

Complaints badlyNamed(const FormWindow& form)
{
    Complaints complaints;
    QSet<QChar> letters;
    for (const QWidget* each : leaves(form)) {
        QString text = textOf(*each);
        text.remove(QStringLiteral("&&"));
        const qsizetype at = text.indexOf(QLatin1Char('&'));
        if (at < 0 || at + 1 >= text.size())
            continue;
        if (letters.contains(text[at + 1].toLower()))
            complaints.push_back("Alt+" + QString(text[at + 1]).toStdString() + " is given twice, also to \"" + text.toStdString() + '"');
        letters.insert(text[at + 1].toLower());
    }
    QSet<QString> names;
    for (const FormParts::Part& part : form.parts().parts) {
        const QWidget& widget = part.view->widget();
        if (part.view->focusWidget() == nullptr || !widget.isVisible())
            continue;
        if (widget.accessibleName().trimmed().isEmpty())
            complaints.push_back(part.view->control()->id() + " has no accessible name");
        else if (names.contains(widget.accessibleName()))
            complaints.push_back("two controls are called \"" + widget.accessibleName().toStdString() + '"');
        names.insert(widget.accessibleName());
    }
    return complaints;
}

std::string joined(const Complaints& complaints)
{
    std::string text;
    for (const std::string& each : complaints)
        text += each + '\n';
    return text;
}

}  // namespace desktop_test
