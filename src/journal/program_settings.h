#pragma once

#include "contract/document.h"
#include "contract/records/anal_option.h"
#include "contract/records/preference.h"
#include "journal/journal_command.h"

namespace zel {

/// What belongs to the user and not to the model: the records that CInitCtrl keeps. A fresh one holds the defaults.
struct ProgramSettings {
    T_ANALOPTION analysisOption;
    T_PREFERENCE preference;

    bool operator==(const ProgramSettings&) const = default;

    static ProgramSettings of(CDBDoc& document);
    void putInto(CDBDoc& document) const;
};

/// All fields of both records.
Json settingsToJson(const ProgramSettings& settings);
/// The fields that differ from `former`; a record in which none does is left out.
Json changesToJson(const ProgramSettings& settings, const ProgramSettings& former);

/// `settings`: puts the fields that the command names, and gives all as they stand then.
/// @throws JsonFault  for an unknown record or field or a wrong type; nothing is changed then
Json changeSettings(CDBDoc& document, const JournalCommand& command);

}  // namespace zel
