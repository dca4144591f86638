#include "platform/modeldb/model_check.h"

#include "contract/name_text.h"
#include "contract/record.h"
#include "contract/units.h"
#include "platform/modeldb/file_format.h"
#include "platform/modeldb/file_header.h"
#include "platform/modeldb/file_refusal.h"
#include "platform/modeldb/record_values.h"
#include "platform/modeldb/references.h"
#include "platform/modeldb/salvage_reader.h"
#include "platform/os/file_access.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <random>
#include <system_error>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace zel {

namespace {

using Reason = FileRefusal::Reason;

/// A copy of a file and of what stands beside it, in a folder of its own that goes with this object.
class Copy {
public:
    explicit Copy(const std::filesystem::path& path)
        : m_folder(std::filesystem::temp_directory_path() / ("zel-check-" + os::processNumber() + "-" + std::to_string(std::random_device{}())))
    {
        if (!std::filesystem::create_directory(m_folder))  // never into a folder that somebody else has made
            throw std::filesystem::filesystem_error("a folder for the copy", m_folder, std::make_error_code(std::errc::file_exists));
        std::filesystem::permissions(m_folder, std::filesystem::perms::owner_all);
        for (const char* suffix : {"", "-wal", "-journal"}) {
            if (std::filesystem::exists(path.string() + suffix))
                std::filesystem::copy_file(path.string() + suffix, this->path().string() + suffix);
        }
        std::filesystem::permissions(this->path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    }
    Copy(const Copy&) = delete;
    Copy& operator=(const Copy&) = delete;
    ~Copy()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }
    [[nodiscard]] std::filesystem::path path() const { return m_folder / "model.qvx"; }

private:
    std::filesystem::path m_folder;
};

/// Opens the copy so that a wrong size and a foreign schema don't keep SQLite from reading.
Database openCopy(const std::filesystem::path& path)
{
    Database database(path, SQLITE_OPEN_READWRITE);
    database.run("PRAGMA writable_schema=ON; PRAGMA trusted_schema=OFF; PRAGMA cell_size_check=ON; PRAGMA temp_store=MEMORY");
    return database;
}

class Examination {
public:
    Examination(Database& database, ExaminedFile& result) : m_database(database), m_result(result) {}

    /// @throws SqliteError  when the list of tables can't be read
    void run()
    {
        checkSchema();
        checkStructure();
        readChecks();
        readSettings();
        for (const TableInfo& table : tableList())
            examine(table);
        checkReferences();
    }

private:
    struct Check {
        std::int64_t rows = 0;
        std::uint64_t hash = 0;
        bool operator==(const Check&) const = default;
    };

    void tell(const CString& what, std::string_view table = {}, bool leftOut = false) { m_result.faults.push_back({table, 0, 0, {}, what, leftOut}); }

    void checkSchema();
    void checkStructure();
    void readChecks();
    void readSettings();
    void examine(const TableInfo& table);
    void compareCheck(const TableInfo& table, const std::vector<ReadRecord>& records, bool faultless);
    void refuseNames(const TableInfo& table, std::vector<ReadRecord>& records);
    void orderByPlace(const TableInfo& table, std::vector<ReadRecord>& records);
    void keep(const TableInfo& table, std::vector<ReadRecord>&& records);
    void checkReferences();

    [[nodiscard]] FileFault faultAt(const TableInfo& table, const StoredRow& row, const CString& field, const CString& what, bool leftOut) const
    {
        return {table.code, row.kind, table.shape == TableShape::single ? 0 : row.key, field, what, leftOut};
    }

    Database& m_database;
    ExaminedFile& m_result;
    std::map<CString, CString> m_schema;  ///< text of each object by its name
    std::map<CString, Check, std::less<>> m_checks;
};

void Examination::checkSchema()
{
    Statement statement(m_database, "select name, sql from sqlite_schema");
    while (statement.step())
        m_schema[CString(statement.text(0))] = CString(statement.text(1));
    std::unordered_set<CString> own;
    const auto expect = [&](const CString& name, const CString& text, std::string_view table) {
        own.insert(name);
        const auto found = m_schema.find(name);
        if (found == m_schema.end())
            tell("\"" + name + "\" is missing", table, true);
        else if (found->second != text)
            tell("\"" + name + "\" is not as the program makes it", table);
    };
    const bool isBeforeSessions = m_database.number("PRAGMA user_version") < 2;
    for (const SchemaObject& object : schemaObjects()) {
        if (object.name == saveTable && isBeforeSessions)
            own.insert(object.name);
        else
            expect(object.name, object.text, object.table);
    }
    for (const auto& [name, text] : m_schema) {
        if (!own.contains(name))
            tell("holds \"" + name + "\", which is not of a model", {}, true);
    }
}

void Examination::checkStructure()
{
    try {
        Statement statement(m_database, "PRAGMA integrity_check");
        while (statement.step()) {
            const std::string_view line = statement.text(0);
            // values of a wrong type are found with their record
            if (line != "ok" && !line.starts_with("NULL value in ") && !line.starts_with("non-"))
                tell("structure: " + CString(line));
        }
    } catch (const SqliteError& error) {
        tell(CString("structure: ") + error.what());
    }
}

void Examination::readChecks()
{
    try {
        Statement statement(m_database, "select code, row_count, row_hash from " + CString(checkTable));
        while (statement.step())
            m_checks[CString(statement.text(0))] = {statement.integer(1), static_cast<std::uint64_t>(statement.integer(2))};
    } catch (const SqliteError& error) {
        tell(CString("the row counts and hashes can't be read (") + error.what() + ")");
    }
}

void Examination::readSettings()
{
    Check found;
    std::map<CString, CString> settings;
    try {
        Statement statement(m_database, "select name, value from " + CString(settingTable));
        while (statement.step()) {
            const CString name(statement.text(0));
            settings[name] = CString(statement.text(1));
            ++found.rows;
            found.hash += settingHash(name, settings[name]);
        }
        if (found != m_checks[CString(settingTable)])
            tell("its settings are not as they were stored");
    } catch (const SqliteError& error) {
        tell(CString("its settings can't be read (") + error.what() + ")");
    }
    const T_UNIT_INDEX units{lengthUnitIndex(settings["length"]), forceUnitIndex(settings["force"])};
    if (units.length >= 0 && units.force >= 0)
        m_result.units = units;
    else
        tell(CString("its units are unknown; the numbers are taken for ") + lengthUnitName(m_result.units.length) + " and " +
             forceUnitName(m_result.units.force));
}

void Examination::examine(const TableInfo& table)
{
    if (!m_schema.contains(CString(table.code)))
        return;
    const std::size_t before = m_result.faults.size();
    std::vector<ReadRecord> records = SalvageReader(m_database, m_result.faults).read(table);
    compareCheck(table, records, m_result.faults.size() == before);
    orderByPlace(table, records);
    std::erase_if(records, [](const ReadRecord& record) { return !record.usable; });
    refuseNames(table, records);
    keep(table, std::move(records));
}

/// A wrong count is told in any case, a wrong hash when nothing else explains it.
void Examination::compareCheck(const TableInfo& table, const std::vector<ReadRecord>& records, bool faultless)
{
    const auto stored = m_checks.find(table.code);
    if (stored == m_checks.end())
        return tell("its row count and hash are missing", table.code);
    Check found{static_cast<std::int64_t>(records.size()), 0};
    for (const ReadRecord& record : records)
        found.hash += rowHash(table, record.row.kind, record.row.key, record.row.record.get());
    if (found.rows != stored->second.rows)
        tell("holds " + std::to_string(found.rows) + " records where " + std::to_string(stored->second.rows) + " were stored", table.code);
    else if (faultless && found.hash != stored->second.hash)
        tell("some value is not as it was stored; which one can't be told", table.code);
}

/// In a table with a sequence, puts the records in their order and tells places that are wrong.
void Examination::orderByPlace(const TableInfo& table, std::vector<ReadRecord>& records)
{
    if (table.sequenceField == nullptr)
        return;
    std::stable_sort(records.begin(), records.end(), [&](const ReadRecord& left, const ReadRecord& right) {
        return std::pair(left.row.kind, recordPlace(table, left.row.record.get())) < std::pair(right.row.kind, recordPlace(table, right.row.record.get()));
    });
    std::map<int, std::int32_t> last;
    for (const ReadRecord& record : records) {
        const std::int32_t place = ++last[record.row.kind];
        if (recordPlace(table, record.row.record.get()) == place)
            continue;
        m_result.faults.push_back(faultAt(table, record.row, CString(table.sequenceField->name),
                                          std::to_string(recordPlace(table, record.row.record.get())) + " is not its place, " + std::to_string(place), false));
        last[record.row.kind] = recordPlace(table, record.row.record.get());
    }
}

void Examination::refuseNames(const TableInfo& table, std::vector<ReadRecord>& records)
{
    if (table.nameField == nullptr)
        return;
    std::map<std::pair<int, CString>, Key> taken;
    std::erase_if(records, [&](const ReadRecord& record) {
        const CString& name = recordName(table, record.row.record.get());
        CString what;
        if (nameFault(table, name) == NameFault::notFilled)
            what = "is empty";
        else if (nameFault(table, name) == NameFault::tooLong)
            what = "is longer than " + std::to_string(longestName) + " characters";
        else if (const auto [first, fresh] = taken.emplace(std::pair(record.row.kind, foldedName(name)), record.row.key); !fresh && !name.empty())
            what = "\"" + name + "\" is the name of record " + std::to_string(first->second) + " already";
        if (!what.empty())
            m_result.faults.push_back(faultAt(table, record.row, CString(table.nameField->name), what, true));
        return !what.empty();
    });
}

void Examination::keep(const TableInfo& table, std::vector<ReadRecord>&& records)
{
    Batch batch{table.table, {}};
    std::map<int, std::int32_t> places;
    for (ReadRecord& record : records) {
        StoredRow& row = record.row;
        const std::int32_t place = table.sequenceField != nullptr ? ++places[row.kind] : 0;
        batch.steps.push_back({0, row.key, row.kind, nullptr, withKeptFields(table, std::move(row.record), row.kind, row.key, place)});
    }
    if (!batch.steps.empty())
        m_result.records.push_back(std::move(batch));
}

void Examination::checkReferences()
{
    std::unordered_map<std::int32_t, std::unordered_set<Key>> keys;
    std::unordered_map<std::int32_t, const Batch*> batches;
    for (const Batch& batch : m_result.records) {
        batches[static_cast<std::int32_t>(batch.table)] = &batch;
        for (const Step& step : batch.steps)
            keys[static_cast<std::int32_t>(batch.table)].insert(step.newKey);
    }
    for (const Reference& reference : references()) {
        const auto users = batches.find(static_cast<std::int32_t>(reference.user->table));
        if (users == batches.end())
            continue;
        const std::unordered_set<Key>& known = keys[static_cast<std::int32_t>(reference.target->table)];
        for (const Step& step : users->second->steps) {
            std::unordered_set<Key> missing;
            reference.eachKey(step.newKey, step.after.get(), [&](Key key) {
                if (key != 0 && !known.contains(key) && missing.insert(key).second)
                    m_result.faults.push_back(faultAt(*reference.user, {step.kind, step.newKey, nullptr}, CString(reference.field),
                                                      "refers to " + CString(reference.target->noun) + " " + std::to_string(key) + ", which is not there",
                                                      false));
            });
        }
    }
}

}  // namespace

std::size_t ExaminedFile::recordCount() const
{
    return std::accumulate(records.begin(), records.end(), std::size_t{0}, [](std::size_t sum, const Batch& batch) { return sum + batch.steps.size(); });
}

ExaminedFile examineModelFile(const std::filesystem::path& path)
{
    ExaminedFile result;
    try {
        checkFileHeader(path);
    } catch (const FileRefusal& refusal) {
        if (refusal.reason() != Reason::damaged)
            throw;
        result.faults.push_back({{}, 0, 0, {}, refusal.sentence(), false});
    }
    try {
        const Copy copy(path);
        Database database = openCopy(copy.path());
        Examination(database, result).run();
    } catch (const SqliteError& error) {
        throw FileRefusal(Reason::damaged, path, CString("can't be read at all (") + error.what() + "). Restore it from a copy.");
    } catch (const std::filesystem::filesystem_error& error) {
        throw FileRefusal(Reason::failed, path, "can't be copied for the check (" + error.code().message() + "). Make room in the folder for temporary files.");
    }
    return result;
}

}  // namespace zel
