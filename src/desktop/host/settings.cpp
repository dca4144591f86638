#include "desktop/host/settings.h"

#include "contract/units.h"
#include "desktop/forms/text.h"

#include <QApplication>
#include <QFont>
#include <QSettings>

#include <algorithm>
#include <type_traits>

namespace zel::desktop {

namespace {

bool& settingsAreUsed()
{
    static bool used = true;
    return used;
}

/// Reads the fields of a record under a heading; a field that is not kept stays as it is.
template <class Record> void read(const QString& heading, Record& record)
{
    const auto field = [&]<class T>(const char* name, T Record::*member, int /*unit*/ = 0) {
        const QVariant value = remembered(heading + QLatin1Char('/') + QLatin1String(name));
        if (!value.isValid())
            return;
        if constexpr (std::is_same_v<T, CString>)
            record.*member = fromQt(value.toString());
        else
            record.*member = value.value<T>();
    };
    Record::visit(field);
}

template <class Record> void write(const QString& heading, const Record& record)
{
    const auto field = [&]<class T>(const char* name, T Record::*member, int /*unit*/ = 0) {
        const QString place = heading + QLatin1Char('/') + QLatin1String(name);
        if constexpr (std::is_same_v<T, CString>)
            remember(place, toQt(record.*member));
        else
            remember(place, QVariant::fromValue(record.*member));
    };
    Record::visit(field);
}

bool isFactor(double factor)
{
    return factor >= leastPileSpaceFactor && factor <= mostPileSpaceFactor;
}

}  // namespace

QVariant remembered(const QString& name)
{
    return settingsAreUsed() ? QSettings().value(name) : QVariant();
}

void remember(const QString& name, const QVariant& value)
{
    if (settingsAreUsed())
        QSettings().setValue(name, value);
}

void useNoSettings()
{
    settingsAreUsed() = false;
}

const QList<Language>& languages()
{
    static const QList<Language> all{{QStringLiteral("en"), QStringLiteral("English")}};  // the catalogue that is built in
    return all;
}

Preferences storedPreferences()
{
    const Preferences fresh;
    Preferences stored;
    read(QStringLiteral("preference"), stored.model);
    read(QStringLiteral("units"), stored.units);
    const QVariant language = remembered(QStringLiteral("language"));
    if (language.isValid())
        stored.language = language.toString();
    stored.fontSize = remembered(QStringLiteral("fontSize")).toInt();

    // The file of settings may have been edited.
    if (!isFactor(stored.model.minPileSpaceFactor) || !isFactor(stored.model.standardPileSpaceFactor) ||
        stored.model.standardPileSpaceFactor < stored.model.minPileSpaceFactor) {
        stored.model.minPileSpaceFactor = fresh.model.minPileSpaceFactor;
        stored.model.standardPileSpaceFactor = fresh.model.standardPileSpaceFactor;
    }
    if (stored.units.length < 0 || stored.units.length >= lengthUnitCount || stored.units.force < 0 || stored.units.force >= forceUnitCount)
        stored.units = fresh.units;
    if (std::none_of(languages().begin(), languages().end(), [&](const Language& each) { return each.code == stored.language; }))
        stored.language = fresh.language;
    if (stored.fontSize != 0)
        stored.fontSize = std::clamp(stored.fontSize, leastFontSize, mostFontSize);
    return stored;
}

void store(const Preferences& preferences)
{
    write(QStringLiteral("preference"), preferences.model);
    write(QStringLiteral("units"), preferences.units);
    remember(QStringLiteral("language"), preferences.language);
    remember(QStringLiteral("fontSize"), preferences.fontSize);
}

T_ANALOPTION storedAnalysisOption()
{
    T_ANALOPTION option;
    read(QStringLiteral("analysis"), option);
    return option;
}

void store(const T_ANALOPTION& option)
{
    write(QStringLiteral("analysis"), option);
}

void applyFontSize(int size)
{
    static const QFont desktops = QApplication::font();
    QFont font = desktops;
    if (size != 0)
        font.setPointSize(size);
    if (font != QApplication::font())
        QApplication::setFont(font);
}

}  // namespace zel::desktop
