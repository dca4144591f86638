#include "platform/modeldb/model_file.h"

#include "contract/units.h"
#include "contract/version.h"
#include "platform/modeldb/file_faults.h"
#include "platform/modeldb/file_format.h"
#include "platform/modeldb/file_header.h"
#include "platform/modeldb/open_files.h"
#include "platform/modeldb/record_values.h"
#include "platform/modeldb/schema_steps.h"
#include "platform/os/file_access.h"
#include "platform/os/file_writer.h"

#include <ostream>
#include <random>

namespace zel {

namespace {

using Reason = FileRefusal::Reason;

constexpr int lockWait = 250;  // milliseconds for another program that is just closing the file

std::int64_t newSession()
{
    std::random_device random;
    const std::uint64_t number = static_cast<std::uint64_t>(random()) << 32U | random();
    return static_cast<std::int64_t>(number | 1U);  // 0 is no session
}

void refuseExisting(const std::filesystem::path& path)
{
    throw FileRefusal(Reason::exists, path, "exists already. Choose another name, or say that it is to be replaced.");
}

/// A new model database with these contents, as bytes.
class NewModel {
public:
    MemoryFiles files{MemoryFiles::Bytes{}};

    void writeTo(const std::filesystem::path& path, os::FileWriter::Over over)
    {
        try {
            os::FileWriter writer(path);
            const std::string& bytes = files.database();
            writer.stream().write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
            writer.finish(over);
        } catch (const std::system_error& error) {
            if (error.code() == std::errc::file_exists)
                refuseExisting(path);
            if (error.code() == std::errc::no_space_on_device)
                throw FileRefusal(Reason::failed, path, "can't be written: the disk is full. Make room and try again.");
            throw FileRefusal(Reason::failed, path, "can't be made (" + error.code().message() + "). Check the folder and its permissions.");
        }
    }
};

/// Whether a file that refuses so may be replaced by a new one under its name: nobody can have it open as a model.
bool isReplaceable(Reason reason)
{
    return reason == Reason::damaged || reason == Reason::notAModel || reason == Reason::newer;
}

}  // namespace

ModelFile::ModelFile(const std::filesystem::path& path, Access access) : m_path(path), m_access(access)
{
    if (access == Access::write && isOpenHere(path))
        throw FileRefusal(Reason::locked, path, "is open already. Close it there and try again.");
    checkFileHeader(path);
    if (access == Access::write && !os::isWritable(path))
        throw FileRefusal(Reason::readOnly, path, "is read-only. Allow writing to it, or open a copy.");
    withRefusals(path, [&] {
        if (access == Access::readOnly)
            openToRead();
        else
            openToWrite();
        readState();
    });
    if (access == Access::write)
        openFiles::enter(*m_database, path);
}

ModelFile::ModelFile(const std::filesystem::path& path, const MemoryFiles& files, Building /*tag*/)
    : m_path(path), m_access(Access::write), m_database(files.open()), m_rows(std::make_unique<RowStore>(*m_database)), m_hasSession(true)
{
}

ModelFile::~ModelFile()
{
    try {
        close();
    } catch (const FileRefusal&) {  // who wants to know calls close
    }
}

bool ModelFile::isOpenHere(const std::filesystem::path& path)
{
    return openFiles::find(path) != nullptr;
}

void ModelFile::openToRead()
{
    if (Database* own = openFiles::find(m_path))
        m_copy = std::make_unique<ModelCopy>(m_path, own->contents());
    else
        m_copy = std::make_unique<ModelCopy>(m_path);
}

void ModelFile::openToWrite()
{
    if (hasCompanions(m_path))
        const ModelCopy checked(m_path);  // before SQLite takes them up
    m_database = std::make_unique<Database>(m_path, SQLITE_OPEN_READWRITE);
    sqlite3_busy_timeout(m_database->handle(), lockWait);
    m_database->prepareForModel();
    m_database->run("BEGIN IMMEDIATE; COMMIT");  // takes the lock now, and finishes what a crash has left
    if (schemaVersionOf(*m_database) < schemaVersion)
        m_copy = std::make_unique<ModelCopy>(m_path, m_database->contents());
}

void ModelFile::readState()
{
    checkSchema(database());
    m_state = zel::readState(database());
    if (m_state.checks.size() != tableList().size() + 1)
        throw DamagedRows("its list of tables is not complete");
    m_rows = std::make_unique<RowStore>(database());
}

std::vector<StoredRow> ModelFile::read(const TableInfo& table)
{
    return withRefusals(m_path, [&] { return readChecked(*m_rows, table, m_state); });
}

void ModelFile::checkStructure()
{
    withRefusals(m_path, [&] { zel::checkStructure(database()); });
}

// ---- making -----------------------------------------------------------------------------------------------------------

void ModelFile::create(const std::filesystem::path& path, const T_UNIT_INDEX& units, const std::vector<Batch>& batches, bool replace)
{
    std::error_code error;
    const std::filesystem::path folder = path.parent_path();
    if (!folder.empty() && !std::filesystem::is_directory(folder, error))
        throw FileRefusal(Reason::missing, path, "can't be made: the folder \"" + folder.string() + "\" does not exist. Make it first.");
    const bool exists = std::filesystem::exists(path, error);
    if (exists && !replace)
        refuseExisting(path);
    if (exists && !std::filesystem::is_regular_file(path, error))
        throw FileRefusal(Reason::notAModel, path, "is not a file. Choose another name.");
    if (exists) {
        try {
            ModelFile(path, Access::write).replaceContents(units, batches);
            return;
        } catch (const FileRefusal& refusal) {
            if (!isReplaceable(refusal.reason()))
                throw;
        }
    } else {
        refuseLeftCompanions(path);
    }
    NewModel made;
    withRefusals(path, [&] {
        ModelFile file(path, made.files, Building{});
        file.makeSchema(units);
        file.begin();
        for (const Batch& batch : batches)
            file.write(batch);
        file.commit();
        file.m_checkStatement.reset();
        file.m_rows.reset();
        file.m_database->run("PRAGMA journal_mode=WAL");
    });
    if (exists)
        setCompanionsAside(path);
    made.writeTo(path, exists ? os::FileWriter::Over::existing : os::FileWriter::Over::nothing);
}

void ModelFile::makeSchema(const T_UNIT_INDEX& units)
{
    m_database->run("PRAGMA application_id=" + std::to_string(applicationId) + "; PRAGMA user_version=" + std::to_string(schemaVersion) + "; BEGIN");
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
    m_database->run("insert into " + CString(saveTable) + " values(" + std::to_string(newSession()) + ", 0)");
    storeSetting("created_by", CString("zel ") + versionText);
    writeUnits(units);
    m_database->run("COMMIT");
}

void ModelFile::replaceContents(const T_UNIT_INDEX& units, const std::vector<Batch>& batches)
{
    begin();
    inTransaction([&] {
        for (const TableInfo& table : tableList()) {
            m_rows->removeAll(table);
            m_state.checks[CString(table.code)] = {};
            storeCheck(CString(table.code));
        }
        storeSetting("created_by", CString("zel ") + versionText);
    });
    writeUnits(units);
    for (const Batch& batch : batches)
        write(batch);
    commit();
}

// ---- transactions -----------------------------------------------------------------------------------------------------

void ModelFile::begin()
{
    if (isReadOnly())
        throw FileRefusal(Reason::readOnly, m_path, "is open for reading only. Open it for changing, or save a copy and change that.");
    refuseIfMoved();
    if (!m_hasSession)
        startSession();
    m_before = m_state;
    inTransaction([&] {
        m_database->run("BEGIN IMMEDIATE");
        m_database->run("update " + CString(saveTable) + " set changes=changes+1");  // first, so that every journal names the session too
    });
}

/// Before anything else is written: brings the schema up, and puts the name of this session into the file itself, so that it can be told from any
/// other state of the file whether the log that now begins belongs to it.
void ModelFile::startSession()
{
    m_before = m_state;
    inTransaction([&] {
        zel::checkStructure(*m_database);
        m_database->run("BEGIN IMMEDIATE");
        bringUp(*m_database, schemaSteps());
        checkSchema(*m_database);
        m_database->run("update " + CString(saveTable) + " set session=" + std::to_string(newSession()) + ", changes=0");
        m_database->run("COMMIT");
        m_database->moveLogIntoFile();
    });
    if (m_copy) {
        m_rows = std::make_unique<RowStore>(*m_database);
        m_copy.reset();
    }
    m_before.reset();
    m_hasSession = true;
}

void ModelFile::inTransaction(const std::function<void()>& work)
{
    try {
        withRefusals(m_path, work);
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
    inTransaction([&] {
        try {
            m_database->run("COMMIT");
        } catch (const SqliteError& error) {
            if (!error.isSync())
                throw;
            throw FileRefusal(Reason::unsafe, m_path,
                              CString("could not be made safe on the disk (") + error.what() +
                                  "). The change is taken back here, but it may be in the file when it is opened again. Check the disk.");
        }
    });
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

// ---- leaving ----------------------------------------------------------------------------------------------------------

bool ModelFile::hasMoved() const
{
    int moved = 0;
    return m_database && sqlite3_file_control(m_database->handle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK && moved != 0;
}

void ModelFile::refuseIfMoved()
{
    if (!hasMoved())
        return;
    // The log would stay behind under the old name: what is in it goes into the file, wherever that is now.
    withRefusals(m_path, [&] { m_database->moveLogIntoFile(); });
    throw FileRefusal(Reason::moved, m_path,
                      "is no longer the file that was opened: that was moved, renamed, replaced or deleted. All changes before this are in it, wherever "
                      "it is now. Move it back, or save a copy under another name.");
}

void ModelFile::close()
{
    if (!m_database)
        return;
    openFiles::leave(*m_database);
    const auto end = [&] {
        const std::filesystem::path log = m_path.string() + "-wal";
        const bool moved = hasMoved();
        m_checkStatement.reset();
        m_rows.reset();
        m_copy.reset();
        m_database.reset();
        std::error_code error;
        if (moved && std::filesystem::file_size(log, error) == 0 && !error)
            std::filesystem::remove(log, error);
    };
    try {
        refuseIfMoved();
    } catch (...) {
        end();
        throw;
    }
    end();
}

FileFacts ModelFile::facts()
{
    FileFacts facts;
    std::error_code ignored;
    facts.size = std::filesystem::file_size(m_path, ignored);
    facts.schema = m_copy ? m_copy->storedVersion() : schemaVersion;
    facts.journalMode = database().text("PRAGMA journal_mode");
    facts.createdBy = m_state.settings["created_by"];
    return facts;
}

}  // namespace zel
