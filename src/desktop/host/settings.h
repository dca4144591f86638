#pragma once

#include "contract/records/anal_option.h"
#include "contract/records/preference.h"
#include "contract/records/unit_index.h"

#include <QString>
#include <QVariant>

namespace zel::desktop {

/// What a user prefers, beyond one model.
struct Preferences {
    T_PREFERENCE model;                       ///< for new data in a model
    T_UNIT_INDEX units;                       ///< of new models
    QString language = QStringLiteral("en");  ///< a language of `languages()`
    int fontSize = 0;                         ///< of all windows [point]; 0: as the desktop has it

    bool operator==(const Preferences&) const = default;
};

/// A language that the program has texts in.
struct Language {
    QString code;
    QString name;
};
const QList<Language>& languages();

/// The kept preferences. What is missing or out of its range is as it is at the first start.
Preferences storedPreferences();
void store(const Preferences& preferences);

T_ANALOPTION storedAnalysisOption();
void store(const T_ANALOPTION& option);

// Limits of the preferences.
inline constexpr double leastPileSpaceFactor = 1.0;  ///< piles that touch
inline constexpr double mostPileSpaceFactor = 20.0;
inline constexpr int leastFontSize = 6;
inline constexpr int mostFontSize = 24;

/// Puts a font size into all windows; 0: that of the desktop.
void applyFontSize(int size);

/// One kept value by its name: "window/state".
QVariant remembered(const QString& name);
void remember(const QString& name, const QVariant& value);
/// From now on nothing is read from the kept settings or written to them: for pictures and journals, which must look the same for everybody.
void useNoSettings();

}  // namespace zel::desktop
