#include "platform/modeldb/model_copy.h"

#include "platform/modeldb/file_faults.h"
#include "platform/modeldb/file_format.h"
#include "platform/modeldb/log_check.h"
#include "platform/modeldb/schema_steps.h"
#include "platform/modeldb/stored_state.h"
#include "platform/os/file_contents.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>

namespace zel {

namespace {

using Reason = FileRefusal::Reason;

// https://www.sqlite.org/fileformat.html, sections 3 and 4.1
constexpr std::size_t journalHeaderSize = 28;
constexpr std::string_view journalMagic("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8);
constexpr std::size_t logHeaderSize = 32;

std::filesystem::path logOf(const std::filesystem::path& path)
{
    return path.string() + "-wal";
}

std::filesystem::path journalOf(const std::filesystem::path& path)
{
    return path.string() + "-journal";
}

/// The first bytes of log and journal, which are others once these were begun anew.
struct Heads {
    std::string log;
    std::string journal;

    bool operator==(const Heads&) const = default;
};

Heads headsOf(const std::filesystem::path& path)
{
    Heads heads{os::contentsOf(logOf(path), logHeaderSize).value_or(""), os::contentsOf(journalOf(path), journalHeaderSize).value_or("")};
    if (heads.log.size() < logHeaderSize)
        heads.log.clear();
    if (heads.journal.size() < journalHeaderSize || !heads.journal.starts_with(journalMagic))
        heads.journal.clear();
    return heads;
}

/// One attempt at the bytes of one moment; nothing when a program wrote the file meanwhile in a way that leaves none.
///
/// While a write-ahead log goes on, a page of the file that changes has its newest state in the log, which is read after the file. While a rollback
/// journal goes on, a page that changes has its former state in the journal, which is read after the file as well. What must not happen in between
/// is that either is begun anew; then its head changes. Without either, the file itself must not change.
std::optional<MemoryFiles::Bytes> tryToCopy(const std::filesystem::path& path)
{
    const std::optional<os::FileStamp> stamp = os::stampOf(path);
    const Heads before = headsOf(path);
    MemoryFiles::Bytes bytes;
    bytes.database = os::contentsOf(path).value_or("");
    if (!before.log.empty())
        bytes.log = os::contentsOf(logOf(path)).value_or("");
    bytes.journal = os::contentsOf(journalOf(path)).value_or("");
    const Heads after = headsOf(path);
    const std::optional<os::FileStamp> stampAfter = os::stampOf(path);
    if (!stamp || !stampAfter || !stamp->isSameFile(*stampAfter) || before.log != after.log || (!before.journal.empty() && before.journal != after.journal))
        return {};
    if (after.log.empty() && after.journal.empty() && *stamp != *stampAfter)
        return {};
    if (after.journal.empty())
        bytes.journal.clear();
    return bytes;
}

MemoryFiles::Bytes copyOf(const std::filesystem::path& path)
{
    constexpr int attempts = 100;
    constexpr std::chrono::milliseconds pause(20);
    for (int i = 0; i < attempts; ++i) {
        if (i > 0)
            std::this_thread::sleep_for(pause);
        if (std::optional<MemoryFiles::Bytes> bytes = tryToCopy(path))
            return std::move(*bytes);
    }
    throw FileRefusal(Reason::locked, path, "is being written by another program all the time. Try again when it has ended.");
}

/// What tells whether a log or journal belongs to a file.
struct Mark {
    std::int64_t session = 0;  ///< 0: from a time when files did not name it
    std::int64_t changes = 0;  ///< that the session has made
    StoredState state;
};

Mark markOf(Database& database)
{
    Mark mark;
    if (schemaVersionOf(database) >= 2) {
        mark.session = database.number("select session from " + CString(saveTable));
        mark.changes = database.number("select changes from " + CString(saveTable));
    }
    mark.state = readState(database);
    return mark;
}

/// The mark of the file without what stands beside it; nothing when the file alone is no model.
std::optional<Mark> markOfFileAlone(const std::string& database)
{
    const MemoryFiles files({database, {}, {}});
    try {
        return markOf(*files.open());
    } catch (const SqliteError&) {
        return {};
    } catch (const DamagedRows&) {
        return {};
    }
}

/// Whether a change of the session's name alone lies between the two.
bool isSameState(const StoredState& alone, const StoredState& together)
{
    return alone.settings == together.settings && std::all_of(alone.checks.begin(), alone.checks.end(), [&](const auto& check) {
               const auto found = together.checks.find(check.first);
               return found != together.checks.end() && found->second == check.second;
           });
}

/// A session names itself in the file before it puts anything else into a log or journal. So these belong to the file if both name the same
/// session, or if they hold no more than the naming: the log then leads to the new name, the journal back to the former one.
bool belongs(const std::optional<Mark>& alone, const Mark& together, bool isLog)
{
    if (!alone || alone->session == together.session)
        return true;
    return (isLog ? together : *alone).changes == 0 && isSameState(alone->state, together.state);
}

FileRefusal foreignCompanion(const std::filesystem::path& path, const std::filesystem::path& companion, const CString& why)
{
    return {Reason::companion, path,
            "was not opened, and nothing was altered: \"" + companion.string() + "\" stands beside it and " + why +
                ". To open the file as it is, move that one to another folder first; if it holds work that you miss, put back the file that it "
                "stood beside."};
}

}  // namespace

ModelCopy::ModelCopy(const std::filesystem::path& path)
    : ModelCopy(path, [&] {
          try {
              return copyOf(path);
          } catch (const std::system_error& error) {
              throw FileRefusal(Reason::failed, path, "can't be read (" + error.code().message() + "). Check the disk and the file's permissions.");
          }
      }())
{
}

ModelCopy::ModelCopy(const std::filesystem::path& path, std::string database) : ModelCopy(path, MemoryFiles::Bytes{std::move(database), {}, {}}) {}

ModelCopy::ModelCopy(const std::filesystem::path& path, MemoryFiles::Bytes bytes)
{
    const bool hasCompanion = !bytes.log.empty() || !bytes.journal.empty();
    const std::optional<Mark> alone = hasCompanion ? markOfFileAlone(bytes.database) : std::nullopt;
    const bool isLog = !bytes.log.empty();
    const std::filesystem::path companion = isLog ? logOf(path) : journalOf(path);
    if (isDamagedLog(bytes.log))
        throw foreignCompanion(path, companion, "is damaged, so that not all of the changes in it can be read");
    m_files = std::make_unique<MemoryFiles>(std::move(bytes));
    withRefusals(path, [&] {
        try {
            m_database = m_files->open();
            m_storedVersion = schemaVersionOf(*m_database);
            const bool known = m_storedVersion <= schemaVersion;
            if (hasCompanion && (!known || !belongs(alone, markOf(*m_database), isLog)))
                throw foreignCompanion(path, companion, "belongs to another file, or to another state of this one");
            m_database->run("BEGIN IMMEDIATE");
            bringUp(*m_database, schemaSteps());
            m_database->run("COMMIT");
            if (hasCompanion)
                checkWhole(*m_database);
        } catch (const SqliteError&) {
            if (alone)
                throw foreignCompanion(path, companion, "makes no whole model with it");
            throw;
        } catch (const DamagedRows&) {
            if (alone)
                throw foreignCompanion(path, companion, "makes no whole model with it");
            throw;
        }
    });
}

bool hasCompanions(const std::filesystem::path& path)
{
    try {
        const Heads heads = headsOf(path);
        return !heads.log.empty() || !heads.journal.empty();
    } catch (const std::system_error&) {
        return true;
    }
}

void refuseLeftCompanions(const std::filesystem::path& path)
{
    std::error_code error;
    for (const std::filesystem::path& each : {logOf(path), journalOf(path)}) {
        if (std::filesystem::exists(each, error) && std::filesystem::file_size(each, error) > 0)
            throw FileRefusal(Reason::companion, path,
                              "can't be made: \"" + each.string() +
                                  "\" is left of a former file of that name and may hold changes to it. Move it to another folder, or choose another name.");
    }
}

void setCompanionsAside(const std::filesystem::path& path)
{
    for (const std::filesystem::path& each : {logOf(path), journalOf(path)}) {
        std::error_code error;
        for (int number = 1; std::filesystem::exists(each, error); ++number) {
            const std::filesystem::path aside = each.string() + ".left-" + std::to_string(number);
            if (!std::filesystem::exists(aside, error))
                std::filesystem::rename(each, aside);
        }
    }
}

}  // namespace zel
