#include "contract/import_file.h"

#include "contract/document.h"
#include "contract/units.h"
#include "platform/modeldb/model_file.h"
#include "platform/modeldb/record_values.h"
#include "platform/modeldb/refusals.h"

namespace {

/// One table of another file, in the units of the open model.
std::map<zel::Key, zel::RecordPtr> rowsOf(zel::ModelFile& file, const zel::TableInfo& table)
{
    T_UNIT_INDEX units = file.units();
    if (CDBDoc* document = CDBDoc::GetDocPoint())
        document->GetUnitCtrl()->GetUnitIndexCurrent(units);
    std::map<zel::Key, zel::RecordPtr> rows;
    for (zel::StoredRow& row : file.read(table)) {
        zel::convertRecord(table, row.record.get(), file.units(), units);
        rows.emplace(row.key, std::move(row.record));
    }
    return rows;
}

}  // namespace

int CImportFile::import(const CString& path, const zel::TableInfo& table)
{
    const zel::TableInfo& loadCaseTable = zel::tableOfRecord<T_STLD_D>();
    try {
        zel::ModelFile file(path, zel::ModelFile::Access::readOnly);
        std::map<zel::Key, zel::RecordPtr> rows = rowsOf(file, table);
        std::map<zel::Key, zel::RecordPtr> loadCases = rowsOf(file, loadCaseTable);
        m_read[table.table] = std::move(rows);
        m_read[loadCaseTable.table] = std::move(loadCases);
        return 1;
    } catch (const zel::FileRefusal& refusal) {
        return zel::refuse(zel::Refusal::fileRead, refusal.what());
    }
}
