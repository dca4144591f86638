#pragma once

#include "contract/table_store.h"
#include "desktop/views/dialog_opening.h"

#include <QString>

#include <optional>
#include <span>

class CDBDoc;

namespace zel::desktop {

/// What a line of the model tree stands for.
enum class SubjectShape {
    group,    ///< holds the subjects after it that are one level deeper
    records,  ///< lists the records of its table
    count,    ///< only tells how many records its table has
    single,   ///< the one record of its table
};

/// A subject of the model tree.
struct Subject {
    int level = 0;
    const char* text = "";
    SubjectShape shape = SubjectShape::group;
    std::optional<Table> table = {};
    int kind = 0;  ///< design kind of a kinded table
    DialogOpening opening = {};
    const char* list = "";  ///< of a single record: the field whose entries are counted
    const char* noun = "";  ///< of one entry
};

/// All of them, in the order of the tree; each group stands before what it holds.
std::span<const Subject> modelSubjects();

/// What the tree writes on a record, and beside it: "DL" and "Dead Load (D)". Empty for a key without a record.
QString recordName(CDBDoc& document, const Subject& subject, Key key);
QString recordDetails(CDBDoc& document, const Subject& subject, Key key);

/// What the tree writes beside a subject: how much it holds. Empty if it holds nothing.
QString subjectDetails(CDBDoc& document, const Subject& subject);

}  // namespace zel::desktop
