#include "desktop/views/model_subjects.h"

#include "contract/document.h"
#include "contract/load_db.h"
#include "contract/record.h"
#include "contract/table.h"
#include "contract/units.h"
#include "desktop/forms/text.h"

#include <string_view>

namespace zel::desktop {

namespace {

using enum SubjectShape;

/// The way to the dialog that edits a table.
constexpr DialogOpening edits(std::string_view table)
{
    return {findDialogOfTable(table)};
}

// clang-format off
constexpr Subject subjects[] = {
    {0, "Static Load Cases",           records, Table::STLD, 0, edits("STLD")},
    {0, "Load Combinations",           group,   {},          0, edits("LCOM")},
    {1, "General",                     records, Table::LCOM, 1, edits("LCOM")},
    {1, "Steel",                       records, Table::LCOM, 2, edits("LCOM")},
    {1, "Concrete",                    records, Table::LCOM, 3, edits("LCOM")},
    {1, "Footing",                     records, Table::LCOM, 4, edits("LCOM")},
    {1, "SRC",                         records, Table::LCOM, 5, edits("LCOM")},
    {0, "Envelopes",                   records, Table::ENVL, 0, edits("ENVL")},
    {0, "Load Case Sets",              group},
    {1, "Wind Directions",             single,  Table::LCWD, 0, edits("LCWD"), "sets",                "set"},
    {1, "Orthogonal Effect",           single,  Table::LCOE, 0, edits("LCOE"), "pairs",               "pair"},
    {1, "Underground Loads",           single,  Table::LCUG, 0, edits("LCUG"), "groups",              "group"},
    {1, "Seismic Factors",             single,  Table::SLCF, 0, edits("SLCF"), "overStrengthFactors", "factor"},
    {1, "Underground Factors",         single,  Table::SIFT, 0, edits("SIFT"), "overStrengthFactors", "factor"},
    {0, "Load Types",                  group},
    {1, "Line Load Types",             records, Table::LNLD, 0, edits("LNLD")},
    {1, "Area Load Types",             records, Table::ARLD, 0, edits("ARLD")},
    {1, "Displacement Interpolations", count,   Table::SPDI, 0, edits("SPDI")},
    {1, "Time History Functions",      records, Table::THFC, 0, edits("THFC")},
    {1, "Time History Load Cases",     records, Table::THLD, 0, edits("THLD")},
    {0, "Properties",                  group},
    {1, "Materials",                   records, Table::MATL, 0, edits("MATL")},
    {1, "Sections",                    records, Table::SECT, 0, edits("SECT")},
    {1, "Thicknesses",                 records, Table::THIK, 0, edits("THIK")},
    {0, "Supports",                    group},
    {1, "Column Support Types",        records, Table::COSD, 0, edits("COSD")},
    {1, "Pile Support Types",          records, Table::PISD, 0, edits("PISD")},
    {1, "Wall Support Types",          records, Table::WASD, 0, edits("WASD")},
    {1, "Soil Support Types",          records, Table::SOSD, 0, edits("SOSD")},
    {1, "General Spring Types",        records, Table::GSPD, 0, edits("GSPD")},
    {1, "Column Supports",             count,   Table::COSA},
    {1, "Pile Supports",               count,   Table::PISA},
    {1, "Wall Supports",               count,   Table::WASA},
    {1, "Soil Supports",               count,   Table::SOSA},
    {0, "Plan",                        group},
    {1, "Points",                      count,   Table::PONT},
    {1, "Lines",                       count,   Table::LINE},
    {1, "Areas",                       count,   Table::AREA},
    {1, "Beams",                       count,   Table::BEAM},
    {1, "Slabs",                       count,   Table::SLAB},
    {1, "Openings",                    count,   Table::OPEN},
    {1, "Wall Directions",             count,   Table::WDIR, 0, edits("WDIR")},
    {1, "Domains",                     records, Table::WKAR, 0, edits("WKAR")},
    {1, "Groups",                      records, Table::GRUP},
    {1, "Grid Lines",                  records, Table::GDLN},
    {0, "Assigned Loads",              group},
    {1, "Point Loads",                 count,   Table::PTLA},
    {1, "Line Loads",                  count,   Table::LNLA},
    {1, "Area Loads",                  count,   Table::ARLA},
    {1, "Specified Displacements",     count,   Table::SPDP},
    {1, "Dynamic Point Loads",         count,   Table::THPL},
    {1, "Masses",                      count,   Table::OMAS},
    {0, "Analysis Model",              group},
    {1, "Nodes",                       count,   Table::NODE},
    {1, "Elements",                    count,   Table::ELEM},
};
// clang-format on

/// A text field of a record by its name; empty if the record type has none of that name.
QString textField(const TableInfo& table, const RecordPtr& record, std::string_view name)
{
    const FieldInfo* field = table.record->find(name);
    if (record == nullptr || field == nullptr || field->type != FieldType::text || field->shape != FieldShape::one)
        return {};
    return toQt(*static_cast<const CString*>(field->in(record.get()))).trimmed();
}

QString thickness(const TableInfo& table, const RecordPtr& record)
{
    const FieldInfo* field = table.record->find("outX");
    if (record == nullptr || field == nullptr)
        return {};
    CString unit;
    CUnitCtrl::GetUnitSystem(Unit::length, unit);
    return QString::number(*static_cast<const double*>(field->in(record.get())), 'g', 6) + QLatin1Char(' ') + toQt(unit);
}

QString materialType(const QString& code)
{
    if (code == QLatin1String("C"))
        return QStringLiteral("Concrete");
    if (code == QLatin1String("S"))
        return QStringLiteral("Steel");
    if (code == QLatin1String("U"))
        return QStringLiteral("User defined");
    return code;
}

/// Whether users call the records by number and name.
bool isNumbered(Table table)
{
    return table == Table::MATL || table == Table::SECT || table == Table::THIK;
}

}  // namespace

std::span<const Subject> modelSubjects()
{
    return subjects;
}

QString recordName(CDBDoc& document, const Subject& subject, Key key)
{
    const ITable& table = document.table(*subject.table);
    const RecordPtr record = table.find(subject.kind, key);
    if (record == nullptr)
        return {};
    const QString name = textField(table.info(), record, "name");
    if (!isNumbered(*subject.table))
        return name;
    return QString::number(key) + (name.isEmpty() ? QString() : QStringLiteral("  ") + name);
}

QString recordDetails(CDBDoc& document, const Subject& subject, Key key)
{
    const ITable& table = document.table(*subject.table);
    const RecordPtr record = table.find(subject.kind, key);
    const auto text = [&](std::string_view field) { return textField(table.info(), record, field); };
    switch (*subject.table) {
    case Table::STLD: {
        const QString name = toQt(document.GetLoadDB()->GetLoadTypeName(fromQt(text("type"))));
        return name.isEmpty() ? text("type") : name;
    }
    case Table::MATL:
        return materialType(text("type"));
    case Table::SECT:
        return text("shapeName");
    case Table::THIK:
        return thickness(table.info(), record);
    default:
        return text("description");
    }
}

QString subjectDetails(CDBDoc& document, const Subject& subject)
{
    if (!subject.table)
        return {};
    const ITable& table = document.table(*subject.table);
    if (subject.shape != single) {
        const int count = table.count(subject.kind);
        return count > 0 ? QString::number(count) : QString();
    }
    const RecordPtr record = table.find(0, 1);
    const FieldInfo* list = table.info().record->find(subject.list);
    if (record == nullptr || list == nullptr)
        return {};
    const std::size_t size = list->sizeIn(record.get());
    return QStringLiteral("%1 %2%3").arg(size).arg(QLatin1String(subject.noun), size == 1 ? QString() : QStringLiteral("s"));
}

}  // namespace zel::desktop
