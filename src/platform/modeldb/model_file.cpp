#include "platform/modeldb/model_file.h"

#include "contract/units.h"
#include "contract/version.h"
#include "platform/modeldb/file_format.h"
#include "platform/modeldb/file_header.h"
#include "platform/modeldb/record_values.h"
#include "platform/os/file_access.h"

#include <map>
#include <new>
#include <utility>

namespace zel {

namespace {

using Reason = FileRefusal::Reason;

constexpr int lockWait = 250;  // milliseconds for another program that is just closing the file

/// Removes a file when the work on it has failed.
class Temporary {
public:
    explicit Temporary(std::filesystem::path path) : m_path(std::move(path)) {}
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;
    ~Temporary()
    {
        std::error_code ignored;
        for (const char* suffix : {"", "-wal", "-journal", "-shm"})
            std::filesystem::remove(m_path.string() + suffix, ignored);
    }
    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

void refuseExisting(const std::filesystem::path& path)
{
    throw FileRefusal(Reason::exists, path, "exists already. Choose another name, or say that it is to be replaced.");
}

/// Makes sure that nobody has the file open, and finishes what a crash has left beside it.
void prepareReplacement(const std::filesystem::path& path)
{
    try {
        ModelFile existing(path, ModelFile::Access::write);
    } catch (const FileRefusal& refusal) {
        if (refusal.reason() == Reason::locked || refusal.reason() == Reason::readOnly)
            throw;
    }
    std::error_code ignored;
    for (const char* suffix : {"-wal", "-journal", "-shm"})
        std::filesystem::remove(path.string() + suffix, ignored);
}

}  // namespace

ModelFile::ModelFile(const std::filesystem::path& path, Unchecked /*tag*/) : m_path(path) {}

ModelFile::ModelFile(const std::filesystem::path& path, Access access) : m_path(path)
{
    checkFileHeader(path);
    if (access == Access::write && !os::isWritable(path))
        throw FileRefusal(Reason::readOnly, path, "is read-only. Allow writing to it, or open a copy.");
    try {
        prepareConnection(access);
        checkSchema();
        readChecks();
        readSettings();
    } catch (const SqliteError& error) {
        throw refusalFor(error);
    }
}

ModelFile::~ModelFile() = default;

void ModelFile::prepareConnection(Access access)
{
    if (access == Access::readOnly) {
        const bool log = std::filesystem::exists(m_path.string() + "-wal");
        const std::filesystem::path uri = "file:" + m_path.string() + (log ? "?mode=ro" : "?mode=ro&immutable=1");
        m_database = std::make_unique<Database>(uri, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
    } else {
        m_database = std::make_unique<Database>(m_path, SQLITE_OPEN_READWRITE);
        sqlite3_busy_timeout(m_database->handle(), lockWait);
        m_database->run("PRAGMA locking_mode=EXCLUSIVE");
    }
    m_database->run("PRAGMA trusted_schema=OFF; PRAGMA cell_size_check=ON; PRAGMA foreign_keys=OFF; PRAGMA synchronous=FULL; "
                    "PRAGMA temp_store=MEMORY; PRAGMA cache_size=-65536");
    if (access == Access::write)
        m_database->run("BEGIN IMMEDIATE; COMMIT");  // takes the lock now, and finishes what a crash has left
    m_rows = std::make_unique<RowStore>(*m_database);
}

void ModelFile::checkSchema()
{
    // Only what the program itself makes, by its exact text: a trigger or a view would run with it, whatever its name.
    std::map<CString, CString> expected;
    for (SchemaObject& object : schemaObjects())
        expected.emplace(std::move(object.name), std::move(object.text));
    Statement statement(*m_database, "select type, name, tbl_name, sql from sqlite_schema");
    while (statement.step()) {
        const CString name(statement.text(1));
        const auto found = expected.find(name);
        if (found == expected.end() || statement.text(0) != "table" || statement.text(2) != name || statement.text(3) != found->second)
            throw damaged("it holds \"" + name + "\", which is not of a model");
        expected.erase(found);
    }
    if (!expected.empty())
        throw damaged("tables are missing");
}

void ModelFile::readChecks()
{
    Statement statement(*m_database, "select code, row_count, row_hash from " + CString(checkTable));
    while (statement.step())
        m_state.checks[CString(statement.text(0))] = {statement.integer(1), static_cast<std::uint64_t>(statement.integer(2))};
    if (m_state.checks.size() != tableList().size() + 1)
        throw damaged("its list of tables is not complete");
}

void ModelFile::readSettings()
{
    TableCheck found;
    Statement statement(*m_database, "select name, value from " + CString(settingTable));
    while (statement.step()) {
        const CString name(statement.text(0));
        m_state.settings[name] = CString(statement.text(1));
        ++found.rows;
        found.hash += settingHash(name, m_state.settings[name]);
    }
    m_state.units.length = lengthUnitIndex(m_state.settings["length"]);
    m_state.units.force = forceUnitIndex(m_state.settings["force"]);
    if (found != m_state.checks[CString(settingTable)] || m_state.units.length < 0 || m_state.units.force < 0)
        throw damaged("its settings are not as they were stored");
}

std::vector<StoredRow> ModelFile::read(const TableInfo& table)
{
    try {
        std::vector<StoredRow> rows = m_rows->read(table);
        TableCheck found{static_cast<std::int64_t>(rows.size()), 0};
        for (const StoredRow& row : rows)
            found.hash += rowHash(table, row.kind, row.key, row.record.get());
        if (found != m_state.checks[CString(table.code)])
            throw damaged("the records of table " + CString(table.code) + " are not as they were stored");
        return rows;
    } catch (const SqliteError& error) {
        throw refusalFor(error);
    } catch (const DamagedRows& error) {
        throw damaged("in table " + CString(table.code) + " " + error.what());
    } catch (const std::bad_alloc&) {
        throw outOfMemory();
    }
}

void ModelFile::create(const std::filesystem::path& path, const T_UNIT_INDEX& units, const std::vector<Batch>& batches, bool replace)
{
    std::error_code error;
    const std::filesystem::path folder = path.parent_path();
    if (!folder.empty() && !std::filesystem::is_directory(folder, error))
        throw FileRefusal(Reason::missing, path, "can't be made: the folder \"" + folder.string() + "\" does not exist. Make it first.");
    if (std::filesystem::exists(path, error)) {
        if (!replace)
            refuseExisting(path);
        if (!std::filesystem::is_regular_file(path, error))
            throw FileRefusal(Reason::notAModel, path, "is not a file. Choose another name.");
        prepareReplacement(path);
    }
    const Temporary temporary(path.string() + ".new-" + os::processNumber());
    ModelFile file(path, Unchecked{});
    try {
        file.m_database = std::make_unique<Database>(temporary.path(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        file.m_database->run("PRAGMA locking_mode=EXCLUSIVE; PRAGMA journal_mode=OFF; PRAGMA foreign_keys=OFF; PRAGMA synchronous=FULL; "
                             "PRAGMA temp_store=MEMORY; PRAGMA cache_size=-65536; PRAGMA application_id=" +
                             std::to_string(applicationId) + "; PRAGMA user_version=" + std::to_string(schemaVersion));
        file.m_rows = std::make_unique<RowStore>(*file.m_database);
        file.m_structureChecked = true;
        file.begin();
        file.makeSchema(units);
        for (const Batch& batch : batches)
            file.write(batch);
        file.commit();
        file.m_checkStatement.reset();
        file.m_rows.reset();
        file.m_database->run("PRAGMA journal_mode=WAL");  // stays as it is where the write-ahead log can't work
        file.m_database.reset();
    } catch (const SqliteError& failure) {
        throw file.refusalFor(failure);
    }
    if (replace)
        std::filesystem::rename(temporary.path(), path, error);
    else {  // never over a file that appeared meanwhile
        std::filesystem::create_hard_link(temporary.path(), path, error);
        if (error && std::filesystem::exists(path))
            refuseExisting(path);
        if (error)  // a file system without hard links
            std::filesystem::rename(temporary.path(), path, error);
    }
    if (error)
        throw FileRefusal(Reason::failed, path, "can't be made (" + error.message() + "). Check the folder's permissions.");
    os::syncFolder(folder);
}

void ModelFile::makeSchema(const T_UNIT_INDEX& units)
{
    for (const SchemaObject& object : schemaObjects())
        m_database->run(object.text);
    for (const TableInfo& table : tableList())
        m_state.checks[CString(table.code)] = {};
    m_state.checks[CString(settingTable)] = {};
    for (const auto& [code, check] : m_state.checks) {
        Statement insert(*m_database, "insert into " + CString(checkTable) + " values(?, 0, 0)");
        insert.bind(1, std::string_view(code));
        insert.run();
    }
    storeSetting("created_by", CString("zel ") + versionText);
    writeUnits(units);
}

void ModelFile::begin()
{
    try {
        if (!m_structureChecked) {  // a damaged index page would lead a write astray
            if (m_database->text("PRAGMA quick_check(1)") != "ok")
                throw damaged("its structure is broken");
            m_structureChecked = true;
        }
        m_before = m_state;
        m_database->run("BEGIN IMMEDIATE");
    } catch (const SqliteError& error) {
        throw refusalFor(error);
    }
}

void ModelFile::inTransaction(const std::function<void()>& work)
{
    try {
        work();
    } catch (const SqliteError& error) {
        const FileRefusal refusal = refusalFor(error);
        rollback();
        throw refusal;
    } catch (const DamagedRows& error) {
        const FileRefusal refusal = damaged(error.what());
        rollback();
        throw refusal;
    } catch (const std::bad_alloc&) {
        rollback();
        throw outOfMemory();
    } catch (...) {
        rollback();
        throw;
    }
}

void ModelFile::write(const Batch& batch)
{
    inTransaction([&] {
        const TableInfo& table = tableInfo(batch.table);
        TableCheck& check = m_state.checks[CString(table.code)];
        m_rows->write(batch, static_cast<std::size_t>(check.rows));
        for (const Step& step : batch.steps) {
            if (step.before) {
                --check.rows;
                check.hash -= rowHash(table, step.kind, step.oldKey, step.before.get());
            }
            if (step.after) {
                ++check.rows;
                check.hash += rowHash(table, step.kind, step.newKey, step.after.get());
            }
        }
        storeCheck(CString(table.code));
    });
}

void ModelFile::writeUnits(const T_UNIT_INDEX& units)
{
    inTransaction([&] {
        storeSetting("length", lengthUnitName(units.length));
        storeSetting("force", forceUnitName(units.force));
        m_state.units = units;
    });
}

void ModelFile::storeSetting(const CString& name, const CString& value)
{
    TableCheck& check = m_state.checks[CString(settingTable)];
    const auto before = m_state.settings.find(name);
    if (before != m_state.settings.end()) {
        check.hash -= settingHash(name, before->second);
        --check.rows;
    }
    m_state.settings[name] = value;
    check.hash += settingHash(name, value);
    ++check.rows;
    Statement statement(*m_database, "insert or replace into " + CString(settingTable) + "(name, value) values(?, ?)");
    statement.bind(1, std::string_view(name));
    statement.bind(2, std::string_view(value));
    statement.run();
    storeCheck(CString(settingTable));
}

void ModelFile::storeCheck(const CString& code)
{
    if (!m_checkStatement)
        m_checkStatement = std::make_unique<Statement>(*m_database, "update " + CString(checkTable) + " set row_count=?, row_hash=? where code=?");
    const TableCheck& check = m_state.checks[code];
    m_checkStatement->bind(1, check.rows);
    m_checkStatement->bind(2, static_cast<std::int64_t>(check.hash));
    m_checkStatement->bind(3, std::string_view(code));
    m_checkStatement->run();
    if (m_database->changes() != 1)
        throw DamagedRows("the row count of " + code + " is not there");
}

void ModelFile::commit()
{
    inTransaction([&] { m_database->run("COMMIT"); });
    m_before.reset();
}

void ModelFile::rollback() noexcept
{
    if (sqlite3_get_autocommit(m_database->handle()) == 0)
        sqlite3_exec(m_database->handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    if (m_before)
        m_state = std::move(*m_before);  // a copy could fail for want of memory
    m_before.reset();
}

FileFacts ModelFile::facts()
{
    FileFacts facts;
    std::error_code ignored;
    facts.size = std::filesystem::file_size(m_path, ignored);
    facts.schema = static_cast<int>(m_database->number("PRAGMA user_version"));
    facts.journalMode = m_database->text("PRAGMA journal_mode");
    facts.createdBy = m_state.settings["created_by"];
    return facts;
}

FileRefusal ModelFile::damaged(const CString& detail) const
{
    return {Reason::damaged, m_path, "is damaged: " + detail + ". Restore it from a copy."};
}

FileRefusal ModelFile::outOfMemory() const
{
    return {Reason::failed, m_path, "needs more memory than there is. Close other programs and try again; nothing was changed."};
}

FileRefusal ModelFile::refusalFor(const SqliteError& error) const
{
    switch (error.code()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {Reason::locked, m_path, "is open in another program. Close it there and try again."};
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
    case SQLITE_SCHEMA:
    case SQLITE_ERROR:
        return damaged(CString("the database says: ") + error.what());
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return {Reason::readOnly, m_path, CString("can't be written (") + error.what() + "). Allow writing to the file and its folder."};
    case SQLITE_NOMEM:
        return outOfMemory();
    case SQLITE_FULL:
        return {Reason::failed, m_path, "can't be written: the disk is full. Make room and try again."};
    default:
        return {Reason::failed, m_path, CString("can't be read or written (") + error.what() + "). Check the disk."};
    }
}

}  // namespace zel
