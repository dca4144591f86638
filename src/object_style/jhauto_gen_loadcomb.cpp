#include "object_style/jhauto_gen_loadcomb.h"

#include "command/guarded.h"
#include "contract/design_kind.h"
#include "contract/load_types.h"
#include "contract/messages.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "object_style/combination_report.h"
#include "object_style/owned_objects.h"

#include <algorithm>
#include <iterator>
#include <utility>

using zel::load_type::earthquake;
using zel::load_type::wind;
using zel::object_style::destroyAll;
using zel::object_style::makeIn;

JhautoGenLoadcomb::JhautoGenLoadcomb(std::uint32_t number) : Jhobject("JhautoGenLoadcomb", number)
{
    m_report.open(m_reportName, std::ios::out | std::ios::trunc);
}

JhautoGenLoadcomb::~JhautoGenLoadcomb()
{
    destroyAll(m_currentCombinations);
    destroyAll(m_currentLoadcases);
    destroyAll(m_generatedCombinations);
    destroyAll(m_generatedLinks);
    destroyAll(m_codeCombinations);
    destroyAll(m_codes);
    destroyAll(m_loadKinds);
    destroyAll(m_codeLinks);
}

int JhautoGenLoadcomb::Run(int kind, const CString& codeName, int mode)
{
    return zel::guarded(0, [&] {
        m_kind = kind;
        m_designKind = static_cast<std::uint32_t>(zel::isDesignKind(kind) ? kind : zel::firstDesignKind);
        m_codeName = codeName;
        m_mode = mode;
        return run();
    });
}

int JhautoGenLoadcomb::run()
{
    if (!readLoadcases()) {
        AfxMessageBox(CMsgDll::pfuncLoadStr("IDS_ZEL_CMD__No_Existing_Any_Load_Case____", 0), 0, 0);
        return 0;
    }
    readCombinations();
    buildLoadKinds();
    buildCodes();
    expandCode();
    return store();
}

bool JhautoGenLoadcomb::readLoadcases()
{
    std::vector<zel::Key> keys;
    std::vector<T_STLD_D> records;
    CDataStld().GetList(keys, records);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        Jhloadcase& loadcase = makeIn(m_currentLoadcases, keys[i]);
        loadcase.name = std::move(records[i].name);
        loadcase.type = std::move(records[i].type);
        loadcase.description = std::move(records[i].description);
    }
    for (const auto& [key, factor] : m_scaleFactors) {
        if (Jhloadcase* loadcase = m_currentLoadcases.find(key))
            loadcase->factor = static_cast<float>(factor);
    }
    return !keys.empty();
}

void JhautoGenLoadcomb::readCombinations()
{
    std::vector<zel::Key> keys;
    std::vector<T_LCOM_D> records;
    CDataLcom().GetList(static_cast<int>(m_designKind), keys, records);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const std::uint8_t active = records[i].active == 1 ? 1 : 0;
        JhloadCombination& combination = makeIn(m_currentCombinations, keys[i], m_designKind, active, 0, std::move(records[i].description));
        for (const T_LCOM_ITEM& item : records[i].items) {
            JhassoLoadcombLoadcase& link = makeIn(m_generatedLinks, ++m_linkCount);
            link.factor = static_cast<float>(item.factor);
            link.type = item.type;
            link.setCombination(&combination);
            link.setLoadcase(m_currentLoadcases.find(item.key));  // an item without its case stays a link without a case
        }
    }
    m_generatedCount = m_mode == replaceMode ? 0 : static_cast<std::uint32_t>(keys.size());
}

std::vector<Jhloadcase*> JhautoGenLoadcomb::casesOf(const CString& symbol) const
{
    std::vector<Jhloadcase*> cases;
    std::copy_if(m_currentLoadcases.begin(), m_currentLoadcases.end(), std::back_inserter(cases),
                 [&](const Jhloadcase* loadcase) { return loadcase->type == symbol; });
    return cases;
}

void JhautoGenLoadcomb::expandCode()
{
    const JhcodeLoadcomb* found = nullptr;
    for (const JhcodeLoadcomb* code : m_codes) {
        if (code->name == m_codeName)
            found = code;
    }
    if (found == nullptr)
        return;
    for (const JhloadCombination* row : found->combinations) {
        m_row = row;
        expandRow();
    }
    m_row = nullptr;
}

void JhautoGenLoadcomb::expandRow()
{
    CString steering;  // the kind of which each combination takes one case
    for (const JhassoLoadcombLoadcase* link : m_row->cases) {
        const CString& symbol = link->loadcase()->type;
        if (casesOf(symbol).empty())
            return;
        if (symbol == wind || (symbol == earthquake && steering.empty()))
            steering = symbol;
    }
    if (steering.empty()) {
        generate(nullptr);
        return;
    }
    for (const Jhloadcase* loadcase : casesOf(steering))
        generate(loadcase);
}

void JhautoGenLoadcomb::generate(const Jhloadcase* chosen)
{
    JhloadCombination& combination = makeIn(m_generatedCombinations, ++m_combinationCount, ++m_generatedCount);
    combination.kind = m_row->kind;
    combination.active = m_row->active;
    combination.type = m_row->type;
    combination.description = m_row->description;
    for (const JhassoLoadcombLoadcase* rowLink : m_row->cases) {
        const CString& symbol = rowLink->loadcase()->type;
        const bool takesOne = chosen != nullptr && symbol == chosen->type;
        for (Jhloadcase* loadcase : casesOf(symbol)) {
            if (takesOne && loadcase != chosen)
                continue;
            JhassoLoadcombLoadcase& link = makeIn(m_generatedLinks, ++m_linkCount);
            link.factor = takesOne && symbol == earthquake ? rowLink->factor * loadcase->factor : rowLink->factor;
            link.setCombination(&combination);
            link.setLoadcase(loadcase);
        }
    }
}

T_LCOM_D JhautoGenLoadcomb::recordOf(const JhloadCombination& combination) const
{
    T_LCOM_D record;
    record.kind = m_kind;
    record.name = combination.name;
    record.active = combination.active == 1 ? 1 : 0;
    record.description = combination.description;
    for (const JhassoLoadcombLoadcase* link : combination.cases)
        record.items.push_back({link->type, link->loadcase()->id, static_cast<double>(link->factor)});
    return record;
}

int JhautoGenLoadcomb::store() const
{
    std::vector<T_LCOM_D> records;
    for (const JhloadCombination* combination : m_generatedCombinations)
        records.push_back(recordOf(*combination));

    CDBDoc& document = *CDBDoc::GetDocPoint();
    document.beginChange("Generate load combinations of \"" + m_codeName + "\"");
    const int stored = zel::guarded(-1, [&] { return replaceRecords(records); });
    return document.endChange(static_cast<int>(stored >= 0)) != 0 ? stored : 0;
}

int JhautoGenLoadcomb::replaceRecords(const std::vector<T_LCOM_D>& records) const
{
    CDataLcom table;
    if (m_mode == replaceMode) {
        std::vector<zel::Key> keys;
        table.GetKeyList(m_kind, keys);
        for (auto key = keys.rbegin(); key != keys.rend(); ++key)  // from the last, so that no sequence number behind it changes
            table.Del(m_kind, *key);
    }
    int stored = 0;
    for (const T_LCOM_D& record : records)
        stored += table.Add(m_kind, record) != 0 ? 1 : 0;
    return stored;
}

bool JhautoGenLoadcomb::PrintReport()
{
    return zel::guarded(false, [&] {
        m_report << zel::object_style::reportTitle() << std::flush;
        const bool code = PrintCodeCombinations();
        const bool current = PrintCurrentCombinations();
        return PrintGeneratedCombinations() && code && current;
    });
}

bool JhautoGenLoadcomb::printSection(const char* headingKey, const Combinations& combinations)
{
    return zel::guarded(false, [&] {
        m_report << CMsgDll::pfuncLoadStr(headingKey, 0) << '\n' << std::flush;
        for (const JhloadCombination* combination : combinations)
            m_report << zel::object_style::combinationBlock(*combination) << std::flush;
        m_report << '\n' << std::flush;
        return m_report.good();
    });
}
