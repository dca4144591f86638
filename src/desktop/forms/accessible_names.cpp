#include "desktop/forms/accessible_names.h"

#include "contract/forms/buttons.h"
#include "contract/forms/edit.h"
#include "desktop/forms/text.h"

#include <QHash>

#include <algorithm>

namespace zel::desktop {

namespace {

QString frameOf(const Control& control)
{
    return control.group() != nullptr ? spokenLabel(control.group()->GetWindowText()) : QString();
}

bool hasWords(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar each) { return each.isLetterOrNumber(); });
}

QString plainName(const CDialog& dialog, const Control& control, const QString& fieldBefore)
{
    const QString label = spokenLabel(control.label());
    if (hasWords(label))
        return label;
    if (control.kind() == Kind::button && label == QStringLiteral("->"))
        return QStringLiteral("Move Right");
    if (control.kind() == Kind::button && label == QStringLiteral("<-"))
        return QStringLiteral("Move Left");
    if (control.kind() == Kind::button && !label.isEmpty() && !fieldBefore.isEmpty())
        return fieldBefore + QLatin1Char(' ') + label;
    if (const auto* spin = dynamic_cast<const CSpinButtonCtrl*>(&control))
        return spokenLabel(spin->GetBuddy().label());
    if (control.kind() == Kind::unit && !fieldBefore.isEmpty())
        return QStringLiteral("Unit of ") + fieldBefore;
    if (!label.isEmpty())
        return label;
    const QString frame = frameOf(control);
    return frame.isEmpty() ? spokenLabel(dialog.GetWindowText()) : frame;
}

/// The names that several bear get something more each.
template <class More> void tellApart(std::vector<QString>& names, More more)
{
    QHash<QString, int> count;
    for (const QString& name : names)
        ++count[name];
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (count[names[i]] > 1)
            names[i] = more(i);
    }
}

}  // namespace

std::vector<QString> accessibleNames(const CDialog& dialog, const std::vector<Control*>& controls)
{
    std::vector<QString> names;
    QString field;
    for (const Control* control : controls) {
        names.push_back(plainName(dialog, *control, field));
        const bool belongsToField = control->kind() == Kind::unit || control->kind() == Kind::button || control->kind() == Kind::spin;
        if (!belongsToField)
            field = names.back();
    }
    tellApart(names, [&](std::size_t i) {
        const QString frame = frameOf(*controls[i]);
        return frame.isEmpty() || frame == names[i] ? names[i] : frame + QStringLiteral(", ") + names[i];
    });
    QHash<QString, int> number;
    tellApart(names, [&](std::size_t i) { return QStringLiteral("%1 %2").arg(names[i]).arg(++number[names[i]]); });
    return names;
}

}  // namespace zel::desktop
