#include "loadcomb/generation/load_comb_ctrl.h"

#include "command/guarded.h"
#include "command/messages.h"
#include "contract/change_scope.h"
#include "contract/long_run.h"
#include "contract/messages.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/load_set_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/user_interface.h"
#include "loadcomb/generation/description.h"

namespace {

constexpr const char* noLoadCase = "IDS_QV_CMD__ADDD__No_Existing_Load_Case_";

/// The one record of a table; nothing if it could not be read.
template <class Table, class Record> void readRecord(std::optional<Record>& record)
{
    Record read;
    if (Table().Get(read) != 0)
        record = std::move(read);
}

}  // namespace

namespace zel::loadcomb {

GeneratorModel readModel()
{
    GeneratorModel model;
    std::vector<Key> keys;
    std::vector<T_STLD_D> records;
    CDataStld().GetList(keys, records);
    for (std::size_t i = 0; i < keys.size(); ++i)
        model.cases.push_back({keys[i], std::move(records[i].name), std::move(records[i].type)});
    readRecord<CDataLcwd>(model.windSets);
    readRecord<CDataLcoe>(model.orthogonal);
    readRecord<CDataLcug>(model.underground);
    readRecord<CDataSlcf>(model.seismic);
    readRecord<CDataSift>(model.undergroundSeismic);
    return model;
}

}  // namespace zel::loadcomb

void CLoadCombCtrl::SetEccentricCases(const std::map<std::uint32_t, std::uint32_t>& partners)
{
    m_options.eccentricCases.clear();
    for (const auto& [key, partner] : partners) {
        if (partner != 0)
            m_options.eccentricCases.emplace(key, partner);
    }
}

int CLoadCombCtrl::Generate(int mode, const CString& codeName, Storing storing)
{
    return zel::guarded(0, [&] {
        const zel::StoppableRun stoppable;
        if (mode != replaceMode || storing == Storing::dryRun)
            return generate(mode, codeName, storing);
        // Deleting the old combinations and storing the new ones is one action of the user, though each is told by itself.
        zel::ChangeScope change(*CDBDoc::GetDocPoint(), "Generate load combinations", CDBDoc::NoticeTime::each);
        const int result = generate(mode, codeName, storing);
        return change.end() != 0 ? result : 0;
    });
}

const std::vector<T_LCOM_D>& CLoadCombCtrl::rows() const
{
    static const std::vector<T_LCOM_D> none;
    return m_run ? m_run->rows() : none;
}

int CLoadCombCtrl::generate(int mode, const CString& codeName, Storing storing)
{
    m_run.emplace(zel::loadcomb::readModel(), m_options);
    if (m_tracing)
        m_run->trace();
    if (!begin(mode, storing))
        return 0;
    const bool dispatched = m_run->dispatch(codeName);
    if (!dispatched)
        zel::showMessage(noLoadCase);
    if (!dispatched || m_run->rows().empty()) {
        zel::showMessage(noLoadCase);  // a second time for a model without load cases, and that is meant
        return 0;
    }
    showProgress();
    return storing == Storing::dryRun ? 1 : store(storing);
}

bool CLoadCombCtrl::begin(int mode, Storing storing)
{
    const int kind = m_options.kind;
    CDataLcom combinations;
    std::vector<CString> names;
    if (combinations.GetCount(kind) > 0)
        combinations.GetNameList(kind, names);
    if (mode != replaceMode) {
        m_run->start(combinations.GetCount(kind), zel::loadcomb::highestNumber(names));
        return true;
    }
    m_run->start(0, 0);
    return names.empty() || storing == Storing::dryRun || combinations.Del(kind, names) != 0;
}

void CLoadCombCtrl::showProgress()
{
    const char* format = CMsgDll::pfuncLoadStr("IDS_CMD_MAKING_LOAD_COMBINATION", 0);
    const int count = static_cast<int>(m_run->rows().size());
    int made = 0;
    for (T_LCOM_D& row : m_run->rows()) {
        zel::loadcomb::cutDescription(row.description);
        GSaveHistoryFormatNF(format, ++made, count);
    }
}

int CLoadCombCtrl::store(Storing storing)
{
    GSaveHistoryFormatNF("%s", CMsgDll::pfuncLoadStr("IDS_CMD_LOAD_COMBINATION_WAIT", 0));
    if (storing == Storing::storeAndKeep)
        return CDataLcom().Add(m_options.kind, m_run->rows()) != 0 ? 1 : 0;
    return CDataLcom().Add(m_options.kind, std::move(m_run->rows())) != 0 ? 1 : 0;
}
