#include "platform/modeldb/unit_ctrl.h"

#include "contract/document.h"
#include "contract/table_handle.h"
#include "platform/modeldb/record_values.h"

namespace zel {

namespace {

bool isKnown(const T_UNIT_INDEX& system)
{
    return system.length >= 0 && system.length < lengthUnitCount && system.force >= 0 && system.force < forceUnitCount;
}

/// The unit control of the current document; every document of this system has one of this type.
const UnitCtrl& currentUnits()
{
    return static_cast<const UnitCtrl&>(*CDBDoc::GetDocPoint()->GetUnitCtrl());
}

}  // namespace

double UnitCtrl::ConvertUnitDataPrevious(int unitType, double value) const
{
    return static_cast<double>(static_cast<long double>(value) * GetConvertFactorPrevious(unitType) / GetConvertFactorCurrent(unitType));
}

int UnitCtrl::SetUnitIndexCurrent(const T_UNIT_INDEX& index, int convertModel)
{
    if (!isKnown(index))
        return 0;
    if (convertModel != 0)
        return m_convertModel(index);
    moveTo(index);
    return 1;
}

void UnitCtrl::RestoreUnitChangeFactor()
{
    if (m_saved.empty())
        return;
    m_previous = m_saved.back().first;
    m_current = m_saved.back().second;
    m_saved.pop_back();
}

void UnitCtrl::moveTo(const T_UNIT_INDEX& system)
{
    m_previous = m_current;
    m_current = system;
}

void convertRecordFromPrevious(const TableInfo& table, void* record)
{
    convertRecord(table, record, currentUnits().previous(), currentUnits().current());
}

void convertDefaults(const TableInfo& table, void* record)
{
    const T_UNIT_INDEX startingUnits{T_UNIT_INDEX::MM, T_UNIT_INDEX::N};
    convertRecord(table, record, startingUnits, currentUnits().current());
}

}  // namespace zel
