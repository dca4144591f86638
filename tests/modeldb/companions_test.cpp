#include "full_disk.h"
#include "model_fixture.h"
#include "sqlite_of_model.h"

namespace zel::test {

/// A model, and what a crash leaves of it: the file and its log as they stand in the middle of the work.
class Companions : public testing::Test {
protected:
    Companions()
    {
        ModelDocument::create(path);
        add(path, "OLD");
    }

    static std::filesystem::path logOf(const std::filesystem::path& file) { return file.string() + "-wal"; }

    static void add(const std::filesystem::path& file, const char* name)
    {
        const auto model = ModelDocument::open(file);
        EXPECT_NE(CDataStld().Add(loadCase(name)), 0);
    }

    /// Works on the file and crashes: it stands with its log as in the middle of the work.
    static void crash(const std::filesystem::path& file, const char* name)
    {
        const std::filesystem::path kept = file.string() + ".kept";
        {
            const auto model = ModelDocument::open(file);
            EXPECT_NE(CDataStld().Add(loadCase(name)), 0);
            std::filesystem::copy_file(file, kept, std::filesystem::copy_options::overwrite_existing);
            std::filesystem::copy_file(logOf(file), logOf(kept), std::filesystem::copy_options::overwrite_existing);
        }
        std::filesystem::rename(kept, file);
        std::filesystem::rename(logOf(kept), logOf(file));
    }

    static std::vector<CString> namesIn(const std::filesystem::path& file, ModelFile::Access access)
    {
        const auto model = ModelDocument::open(file, access);
        std::vector<CString> names;
        CDataStld().GetNameList(names);
        return names;
    }

    /// The file is refused because of what stands beside it, and neither is altered.
    static void expectRefused(const std::filesystem::path& file, const std::string& companionEnding)
    {
        const std::string before = contentsOf(file);
        const std::filesystem::path companion = file.string() + companionEnding;
        const std::string beside = contentsOf(companion);
        for (const auto access : {ModelFile::Access::readOnly, ModelFile::Access::write}) {
            try {
                ModelDocument::open(file, access);
                ADD_FAILURE() << "opened";
            } catch (const FileRefusal& refusal) {
                EXPECT_EQ(refusal.reason(), FileRefusal::Reason::companion) << refusal.what();
                EXPECT_NE(std::string(refusal.what()).find(companion.string()), std::string::npos) << refusal.what();
                EXPECT_NE(std::string(refusal.what()).find("move that one"), std::string::npos) << refusal.what();
            }
            EXPECT_TRUE(contentsOf(file) == before);
            EXPECT_TRUE(contentsOf(companion) == beside);
        }
    }

    using Names = std::vector<CString>;
    HeadlessUserInterface host;
    Folder folder;
    std::filesystem::path path = folder / "model.qvx";
};

TEST_F(Companions, TheLogThatACrashLeftIsTakenUp)
{
    crash(path, "NEW");
    EXPECT_EQ(namesIn(path, ModelFile::Access::readOnly), (Names{"OLD", "NEW"}));
    EXPECT_TRUE(std::filesystem::exists(logOf(path))) << "a reader finishes nothing";
    EXPECT_EQ(namesIn(path, ModelFile::Access::write), (Names{"OLD", "NEW"}));
    EXPECT_FALSE(std::filesystem::exists(logOf(path)));
}

TEST_F(Companions, ABackupThatIsPutBackAfterACrashDoesNotGetTheOldLogReplayed)
{
    const std::string backup = contentsOf(path);
    crash(path, "NEW");
    writeFile(path, backup);
    expectRefused(path, "-wal");
    std::filesystem::rename(logOf(path), folder / "elsewhere");
    EXPECT_EQ(namesIn(path, ModelFile::Access::write), (Names{"OLD"})) << "the way out that the refusal names";
}

TEST_F(Companions, TheLogOfAnotherModelIsRefused)
{
    const std::filesystem::path other = folder / "other.qvx";
    ModelDocument::create(other);
    crash(other, "FOREIGN");
    std::filesystem::copy_file(logOf(other), logOf(path));
    expectRefused(path, "-wal");
}

TEST_F(Companions, TheLogOfACopyIsRefused)
{
    const std::filesystem::path copy = folder / "copy.qvx";
    std::filesystem::copy_file(path, copy);
    crash(copy, "IN THE COPY");
    std::filesystem::copy_file(logOf(copy), logOf(path));
    expectRefused(path, "-wal");
}

TEST_F(Companions, AHotJournalOfAnotherModelIsRefused)
{
    // The journal of another model in the middle of a transaction: plain SQLite, with a cache so small that pages are written before the end.
    const std::filesystem::path other = folder / "other.qvx";
    ModelDocument::create(other);
    query(other, "PRAGMA journal_mode=DELETE");
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(other.c_str(), &database), SQLITE_OK);
    sqlite3_exec(database, "PRAGMA cache_size=1; BEGIN; update zel_save set changes=changes+1; create table t(x); insert into t values(randomblob(100000))",
                 nullptr, nullptr, nullptr);
    std::filesystem::copy_file(other.string() + "-journal", folder / "journal");
    sqlite3_close(database);
    query(path, "PRAGMA journal_mode=DELETE");
    std::filesystem::copy_file(folder / "journal", path.string() + "-journal");
    expectRefused(path, "-journal");
}

TEST_F(Companions, AJournalThatACrashLeftIsRolledBack)
{
    query(path, "PRAGMA journal_mode=DELETE");
    const std::filesystem::path kept = folder / "kept.qvx";
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
    sqlite3_exec(database, "PRAGMA cache_size=1; BEGIN; delete from STLD; create table t(x); insert into t values(randomblob(100000))", nullptr, nullptr,
                 nullptr);
    std::filesystem::copy_file(path, kept);
    std::filesystem::copy_file(path.string() + "-journal", kept.string() + "-journal");
    sqlite3_close(database);
    EXPECT_EQ(namesIn(kept, ModelFile::Access::readOnly), (Names{"OLD"}));
    EXPECT_TRUE(std::filesystem::exists(kept.string() + "-journal"));
    EXPECT_EQ(namesIn(kept, ModelFile::Access::write), (Names{"OLD"}));
}

TEST_F(Companions, AFileIsNotMadeWhereTheLogOfAFormerOneIsLeft)
{
    crash(path, "NEW");
    std::filesystem::remove(path);
    const std::string log = contentsOf(logOf(path));
    try {
        ModelDocument::create(path);
        ADD_FAILURE() << "made";
    } catch (const FileRefusal& refusal) {
        EXPECT_EQ(refusal.reason(), FileRefusal::Reason::companion);
        EXPECT_NE(std::string(refusal.what()).find(logOf(path).string()), std::string::npos) << refusal.what();
    }
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(contentsOf(logOf(path)), log);
}

TEST_F(Companions, AReplacedModelKeepsLinksAndModeAndItsLockToTheEnd)
{
    const std::filesystem::path twin = folder / "hard.qvx";
    const std::filesystem::path link = folder / "link.qvx";
    std::filesystem::create_hard_link(path, twin);
    std::filesystem::create_symlink(path, link);
    std::filesystem::permissions(path, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    {
        const auto other = ModelDocument::inMemory({T_UNIT_INDEX::M, T_UNIT_INDEX::TON});
        CDataStld().Add({loadCase("A"), loadCase("B")});
        other->saveCopy(link, true);
    }
    EXPECT_EQ(namesIn(twin, ModelFile::Access::readOnly), (Names{"A", "B"}));
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    EXPECT_EQ(ModelDocument::open(path)->units(), (T_UNIT_INDEX{T_UNIT_INDEX::M, T_UNIT_INDEX::TON}));
}

TEST_F(Companions, AReplacementThatFailsCostsNoWriteThatACrashLeftInTheLog)
{
    crash(path, "ACKNOWLEDGED");
    {
        const auto other = ModelDocument::inMemory();
        T_STLD_D big = loadCase("BIG");
        big.description = std::string(3 << 20, 'x');
        CDataStld().Add(big);
        const FullDisk full(1 << 20);
        EXPECT_THROW(other->saveCopy(path, true), FileRefusal);
    }
    EXPECT_EQ(namesIn(path, ModelFile::Access::write), (Names{"OLD", "ACKNOWLEDGED"}));
}

TEST_F(Companions, ADamagedModelThatIsReplacedLosesItsLogToAnotherName)
{
    crash(path, "NEW");
    writeFile(path, contentsOf(path).substr(0, 8192) + std::string(8192, 'x'));
    {
        const auto other = ModelDocument::inMemory();
        CDataStld().Add(loadCase("A"));
        other->saveCopy(path, true);
    }
    EXPECT_EQ(namesIn(path, ModelFile::Access::write), (Names{"A"}));
    EXPECT_TRUE(std::filesystem::exists(logOf(path).string() + ".left-1"));
}

}  // namespace zel::test
