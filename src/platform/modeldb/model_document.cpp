#include "platform/modeldb/model_document.h"

#include "contract/change_scope.h"
#include "contract/record.h"
#include "contract/user_interface.h"
#include "platform/modeldb/record_values.h"
#include "platform/modeldb/references.h"
#include "platform/modeldb/refusals.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace {

/// Tells the user why a change is not in the file.
void refuseWrite(const zel::FileRefusal& refusal)
{
    const bool unknown = refusal.reason() == zel::FileRefusal::Reason::unsafe;
    zel::refuse(unknown ? zel::Refusal::fileUnsafe : zel::Refusal::fileWrite, refusal.what());
}

constexpr const char* modelFileFilter = "KORAX ZEL Model File(*.qvx)|*.qvx|All File(*.*)|*.*||";

}  // namespace

namespace zel {

ModelDocument::ModelDocument(const T_UNIT_INDEX& units, std::unique_ptr<ModelFile> file)
    : m_file(std::move(file)),
      m_storedUnits(units),
      m_units(units, [this](const T_UNIT_INDEX& system) { return convertModel(system); }),
      m_settings(m_units),
      m_view(*this)
{
    ChangeSink& sink = *this;
    for (const TableInfo& info : tableList())
        m_tables.push_back(std::make_unique<StoredTable>(info, sink));
}

ModelDocument::~ModelDocument()
{
    m_dialogs.closeAll();
}

std::unique_ptr<ModelDocument> ModelDocument::inMemory(const T_UNIT_INDEX& units)
{
    return std::unique_ptr<ModelDocument>(new ModelDocument(units, nullptr));
}

std::unique_ptr<ModelDocument> ModelDocument::create(const std::filesystem::path& path, const T_UNIT_INDEX& units)
{
    ModelFile::create(path, units, {}, false);
    return open(path);
}

std::unique_ptr<ModelDocument> ModelDocument::open(const std::filesystem::path& path, ModelFile::Access access)
{
    auto file = std::make_unique<ModelFile>(path, access);
    const T_UNIT_INDEX units = file->units();
    std::unique_ptr<ModelDocument> document(new ModelDocument(units, std::move(file)));
    for (const std::unique_ptr<StoredTable>& table : document->m_tables)
        document->load(*table);
    return document;
}

void ModelDocument::load(StoredTable& table)
{
    Batch batch{table.info().table, {}};
    for (StoredRow& row : m_file->read(table.info()))
        batch.steps.push_back({0, row.key, row.kind, nullptr, std::move(row.record)});
    try {
        table.apply(batch);
    } catch (const std::out_of_range&) {
        throw FileRefusal(FileRefusal::Reason::damaged, m_file->path(),
                          "is damaged: the sequence of table " + CString(table.info().code) + " has gaps. Restore it from a copy.");
    }
}

void ModelDocument::saveCopy(const std::filesystem::path& path, bool replace) const
{
    ModelFile::create(path, m_storedUnits, everything(), replace);
}

std::vector<Batch> ModelDocument::everything() const
{
    std::vector<Batch> batches;
    for (const std::unique_ptr<StoredTable>& table : m_tables) {
        Batch batch{table->info().table, {}};
        for (const int kind : kindsOf(table->info())) {
            for (const Key key : table->keys(kind))
                batch.steps.push_back({0, key, kind, nullptr, table->find(kind, key)});
        }
        if (!batch.steps.empty())
            batches.push_back(std::move(batch));
    }
    return batches;
}

void ModelDocument::checkStructure() const
{
    if (m_file)
        m_file->checkStructure();
}

void ModelDocument::close()
{
    if (const std::unique_ptr<ModelFile> file = std::move(m_file))
        file->close();
}

std::optional<FileFacts> ModelDocument::fileFacts() const
{
    return m_file ? std::optional(m_file->facts()) : std::nullopt;
}

CString ModelDocument::GetPathName() const
{
    return m_file ? m_file->path().string() : CString();
}

int ModelDocument::PromptModelFile(CString& path)
{
    IUserInterface* host = userInterface();
    return static_cast<int>(host != nullptr && host->openFile(modelFileFilter, path));
}

// ---- listeners -------------------------------------------------------------------------------------------------------

void ModelDocument::join(CDBUpdateConnector& listener)
{
    m_listeners.push_back(&listener);
}

void ModelDocument::leave(CDBUpdateConnector& listener)
{
    const auto place = std::find(m_listeners.begin(), m_listeners.end(), &listener);
    if (place == m_listeners.end())
        return;
    if (m_notifying > 0)
        *place = nullptr;  // a loop over the listeners is running
    else
        m_listeners.erase(place);
}

void ModelDocument::notify(CView* sender, long long hint, CObject* object)
{
    ++m_notifying;
    const std::size_t count = m_listeners.size();  // those that join during the notice have read the new state already
    for (std::size_t i = 0; i < count; ++i) {
        if (m_listeners[i] != nullptr)
            m_listeners[i]->OnUpdate(sender, hint, object);
    }
    if (--m_notifying == 0)
        std::erase(m_listeners, nullptr);
}

void ModelDocument::tell(const ChangeRecord& change, long long hint)
{
    std::vector<CViewBuff::Entry> entries;
    if (!change.units) {
        for (const Batch& batch : change.batches) {
            const Codes codes = tableInfo(batch.table).codes;
            if (codes == Codes::none)
                continue;
            const auto enter = [&](Change what, int kind, Key key, const RecordPtr& record) {
                entries.push_back({{0, updateCode(batch.table, what), 0}, key, kind, record});
            };
            for (const Step& step : batch.steps) {
                const bool pair = step.before && step.after && codes == Codes::all;
                if (step.after)  // where there is no code for a replacement, it is told as an addition
                    enter(pair ? Change::modified : Change::added, step.kind, step.newKey, step.after);
                if (pair)
                    enter(Change::modifiedFrom, step.kind, step.oldKey, step.before);
                else if (!step.after)
                    enter(Change::deleted, step.kind, step.oldKey, step.before);
            }
        }
    }
    m_view.dropMissing();
    const long long itsHint = change.units ? Hint::units : hint;
    CViewBuff outer;
    outer.swap(m_viewBuffer);
    m_viewBuffer.assign(std::move(entries));
    notify(nullptr, itsHint, nullptr);  // `change` may have moved: a listener may write
    if (m_notifying > 0)                // a listener made this change: the loop further up goes on with its own
        m_viewBuffer.swap(outer);
}

// ---- changes ---------------------------------------------------------------------------------------------------------

int ModelDocument::make(const CString& name, Batch&& batch)
{
    ChangeScope change(*this, name, NoticeTime::atEnd);
    const bool done = perform(std::move(batch));
    return static_cast<int>(change.end() != 0 && done);
}

void ModelDocument::beginChange(const CString& name, NoticeTime notices)
{
    if (m_depth++ > 0)
        return;
    m_noticeTime = notices;
    m_running = {name, {}, {}};
    m_failed = false;
}

bool ModelDocument::perform(Batch batch)
{
    if (m_failed)
        return false;
    if (batch.steps.empty())
        return true;
    const bool first = m_running.batches.empty() && !m_running.units;
    try {
        if (m_file) {
            if (first)
                m_file->begin();
            m_file->write(batch);
        }
    } catch (const FileRefusal& refusal) {  // rolled back already
        m_failed = true;
        takeBack();
        refuseWrite(refusal);
        return false;
    } catch (...) {  // rolled back already: no memory, or the run was stopped
        m_failed = true;
        takeBack();
        throw;
    }
    m_tables[static_cast<std::size_t>(batch.table)]->apply(batch);
    m_running.batches.push_back(std::move(batch));
    if (m_noticeTime == NoticeTime::each)
        tell({{}, {m_running.batches.back()}, {}}, Hint::write);
    return true;
}

void ModelDocument::takeBack()
{
    for (auto batch = m_running.batches.rbegin(); batch != m_running.batches.rend(); ++batch)
        m_tables[static_cast<std::size_t>(batch->table)]->apply(inverse(*batch));
    if (m_noticeTime == NoticeTime::each && !m_running.batches.empty())  // who has been told of it is told that it is gone again
        tell(inverse(m_running), Hint::undo);
    m_running.batches.clear();
}

int ModelDocument::endChange(int keep)
{
    if (m_depth > 1) {
        --m_depth;
        m_failed = m_failed || keep == 0;
        return static_cast<int>(!m_failed);
    }
    m_failed = m_failed || keep == 0;
    const bool kept = commitRunning();
    m_depth = 0;
    if (!kept)
        return 0;
    if (m_running.empty()) {
        tell(m_running, Hint::write);
        return 1;
    }
    m_redo.clear();
    m_undo.push_back(std::exchange(m_running, {}));
    if (m_noticeTime == NoticeTime::atEnd)
        tell(m_undo.back(), Hint::write);
    return 1;
}

bool ModelDocument::commitRunning()
{
    if (m_failed && m_file && !m_running.empty())
        m_file->rollback();
    if (m_failed)
        takeBack();
    if (m_failed || m_running.empty() || !m_file)
        return !m_failed;
    try {
        m_file->commit();
    } catch (const FileRefusal& refusal) {
        m_failed = true;
        takeBack();
        refuseWrite(refusal);
    }
    return !m_failed;
}

int ModelDocument::replay(std::vector<ChangeRecord>& from, std::vector<ChangeRecord>& to, long long hint)
{
    if (from.empty() || m_depth > 0)
        return 0;
    ChangeRecord change = inverse(from.back());
    if (!performAll(change))
        return 0;
    from.pop_back();
    to.push_back(change);
    if (change.units)
        m_units.moveTo(m_storedUnits);
    tell(change, hint);
    return 1;
}

int ModelDocument::Undo()
{
    return replay(m_undo, m_redo, Hint::undo);
}

int ModelDocument::Redo()
{
    return replay(m_redo, m_undo, Hint::redo);
}

int ModelDocument::undoAll()
{
    if (m_undo.empty() || m_depth > 0)
        return 0;
    ChangeRecord all;
    for (auto change = m_undo.rbegin(); change != m_undo.rend(); ++change) {
        ChangeRecord back = inverse(*change);
        std::move(back.batches.begin(), back.batches.end(), std::back_inserter(all.batches));
        if (back.units)
            all.units.emplace(m_storedUnits, back.units->second);
    }
    if (!performAll(all))
        return 0;
    for (auto change = m_undo.rbegin(); change != m_undo.rend(); ++change)
        m_redo.push_back(inverse(*change));
    m_undo.clear();
    if (all.units)
        m_units.moveTo(m_storedUnits);
    tell(netOf(all), Hint::undo);
    if (all.units)
        notify(nullptr, Hint::units, nullptr);
    return 1;
}

/// Makes a change that is known to be possible: one taken back or made again, or a change of units.
bool ModelDocument::performAll(const ChangeRecord& change)
{
    try {
        if (m_file) {
            m_file->begin();
            for (const Batch& batch : change.batches)
                m_file->write(batch);
            if (change.units)
                m_file->writeUnits(change.units->second);
            m_file->commit();
        }
    } catch (const FileRefusal& refusal) {
        refuseWrite(refusal);
        return false;
    }
    for (const Batch& batch : change.batches)
        m_tables[static_cast<std::size_t>(batch.table)]->apply(batch);
    if (change.units)
        m_storedUnits = change.units->second;
    return true;
}

int ModelDocument::convertModel(const T_UNIT_INDEX& units)
{
    if (m_depth > 0)
        return 0;
    ChangeRecord change{"Change the units", {}, std::pair(m_storedUnits, units)};
    for (const std::unique_ptr<StoredTable>& table : m_tables) {
        const TableInfo& info = table->info();
        Batch batch{info.table, {}};
        for (const int kind : hasUnits(info) ? kindsOf(info) : std::span<const int>()) {
            for (const Key key : table->keys(kind)) {
                const RecordPtr before = table->find(kind, key);
                const std::shared_ptr<void> after = info.record->copy(before.get());
                convertRecord(info, after.get(), m_storedUnits, units);
                if (!info.record->equal(before.get(), after.get()))
                    batch.steps.push_back({key, key, kind, before, after});
            }
        }
        if (!batch.steps.empty())
            change.batches.push_back(std::move(batch));
    }
    if (!performAll(change))
        return 0;
    m_undo.push_back(change);
    m_redo.clear();
    m_units.moveTo(units);
    tell(change, Hint::units);
    return 1;
}

CString ModelDocument::usersOf(Table target, const std::vector<Key>& keys) const
{
    constexpr std::size_t named = 3;
    CString text;
    std::size_t count = 0;
    eachUser(
        target, std::unordered_set<Key>(keys.begin(), keys.end()), [this](Table user) -> ITable& { return *m_tables[static_cast<std::size_t>(user)]; },
        [&](const TableInfo& user, Key key, const void* record) {
            if (++count > named)
                return true;
            const CString& name = recordName(user, record);
            text += (text.empty() ? "" : ", ") + CString(user.noun);
            if (!name.empty())
                text += " \"" + name + "\"";
            else if (user.shape != TableShape::single)
                text += " " + std::to_string(key);
            return true;
        });
    if (count > named)
        text += " and " + std::to_string(count - named) + " more";
    return text;
}

}  // namespace zel
