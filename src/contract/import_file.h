#pragma once

#include "contract/records/arld.h"
#include "contract/records/cosd.h"
#include "contract/records/gspd.h"
#include "contract/records/lnld.h"
#include "contract/records/matl.h"
#include "contract/records/pisd.h"
#include "contract/records/sect.h"
#include "contract/records/sosd.h"
#include "contract/records/stld.h"
#include "contract/records/thik.h"
#include "contract/records/wasd.h"
#include "contract/table_list.h"
#include "contract/table_store.h"
#include "contract/text.h"

#include <map>
#include <vector>

/// Reads tables of another model file without touching the open model. Values come in the units of the open model.
///
/// `ImportXxx` opens the file, reads table XXX and the static load cases, and closes it; non-zero is success. `GetXxxList` gives what was
/// read last, in the order of the keys; it returns 0 for a table that has not been read. A file that can't be read gives 0, and the
/// user is told why.
class CImportFile {
public:
    int ImportArld(const CString& path) { return import(path, zel::tableOfRecord<T_ARLD_D>()); }
    int ImportCosd(const CString& path) { return import(path, zel::tableOfRecord<T_COSD_D>()); }
    int ImportGspd(const CString& path) { return import(path, zel::tableOfRecord<T_GSPD_D>()); }
    int ImportLnld(const CString& path) { return import(path, zel::tableOfRecord<T_LNLD_D>()); }
    int ImportMatl(const CString& path) { return import(path, zel::tableOfRecord<T_MATL_D>()); }
    int ImportPisd(const CString& path) { return import(path, zel::tableOfRecord<T_PISD_D>()); }
    int ImportSect(const CString& path) { return import(path, zel::tableOfRecord<T_SECT_D>()); }
    int ImportSosd(const CString& path) { return import(path, zel::tableOfRecord<T_SOSD_D>()); }
    int ImportThik(const CString& path) { return import(path, zel::tableOfRecord<T_THIK_D>()); }
    int ImportWasd(const CString& path) { return import(path, zel::tableOfRecord<T_WASD_D>()); }

    int GetArldList(std::vector<zel::Key>& keys, std::vector<T_ARLD_D>& records) const { return list(keys, records); }
    int GetCosdList(std::vector<zel::Key>& keys, std::vector<T_COSD_D>& records) const { return list(keys, records); }
    int GetGspdList(std::vector<zel::Key>& keys, std::vector<T_GSPD_D>& records) const { return list(keys, records); }
    int GetLnldList(std::vector<zel::Key>& keys, std::vector<T_LNLD_D>& records) const { return list(keys, records); }
    int GetMatlList(std::vector<zel::Key>& keys, std::vector<T_MATL_D>& records) const { return list(keys, records); }
    int GetPisdList(std::vector<zel::Key>& keys, std::vector<T_PISD_D>& records) const { return list(keys, records); }
    int GetSectList(std::vector<zel::Key>& keys, std::vector<T_SECT_D>& records) const { return list(keys, records); }
    int GetSosdList(std::vector<zel::Key>& keys, std::vector<T_SOSD_D>& records) const { return list(keys, records); }
    int GetThikList(std::vector<zel::Key>& keys, std::vector<T_THIK_D>& records) const { return list(keys, records); }
    int GetWasdList(std::vector<zel::Key>& keys, std::vector<T_WASD_D>& records) const { return list(keys, records); }
    /// The static load cases of the file that was read last.
    int GetStldList(std::vector<zel::Key>& keys, std::vector<T_STLD_D>& records) const { return list(keys, records); }

private:
    using Rows = std::map<zel::Key, zel::RecordPtr>;

    int import(const CString& path, const zel::TableInfo& table);

    template <class Record> int list(std::vector<zel::Key>& keys, std::vector<Record>& records) const
    {
        keys.clear();
        records.clear();
        const auto found = m_read.find(zel::tableOfRecord<Record>().table);
        if (found == m_read.end())
            return 0;
        for (const auto& [key, record] : found->second) {
            keys.push_back(key);
            records.push_back(*static_cast<const Record*>(record.get()));
        }
        return 1;
    }

    std::map<Table, Rows> m_read;
};
