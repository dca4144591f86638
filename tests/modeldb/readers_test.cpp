#include "contract/import_file.h"
#include "contract/tables/property_tables.h"
#include "failing_disk.h"
#include "model_fixture.h"
#include "sqlite_of_model.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace zel::test {

/// Reading without a lock, and what a writer notices of what others do to its file.
class Readers : public testing::Test {
protected:
    std::unique_ptr<ModelDocument> read() const { return ModelDocument::open(path, ModelFile::Access::readOnly); }
    static int casesIn(const std::unique_ptr<ModelDocument>& /*model*/) { return CDataStld().GetCount(); }

    std::vector<std::string> filesInFolder() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    HeadlessUserInterface host;
    Folder folder;
    std::filesystem::path path = folder / "model.qvx";
};

/// Runs in another process; gives its exit code.
int elsewhere(const std::function<int()>& work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(Readers, SeeWhatAnotherProgramHasWrittenSoFar)
{
    const auto writer = ModelDocument::create(path);
    for (const int count : {1, 2, 3}) {
        CDataStld().Add(loadCase(("L" + std::to_string(count)).c_str()));
        EXPECT_EQ(elsewhere([&] { return casesIn(read()); }), count);
        EXPECT_EQ(casesIn(read()), count) << "also in the program that has it open";
        EXPECT_EQ(CDataStld().GetCount(), count);
    }
}

TEST_F(Readers, InTheProgramThatHasTheFileOpenDoNotGiveUpItsLock)
{
    const auto writer = ModelDocument::create(path);
    CDataStld().Add(loadCase("DL"));
    CImportFile file;
    EXPECT_NE(file.ImportMatl(path.string()), 0);
    read();
    EXPECT_EQ(elsewhere([&] {
                  try {
                      ModelFile(path, ModelFile::Access::write);
                      return 0;
                  } catch (const FileRefusal& refusal) {
                      return refusal.reason() == FileRefusal::Reason::locked ? 7 : 8;
                  }
              }),
              7);
}

TEST_F(Readers, LeaveNoTraceAndNeedNoPermissionToWrite)
{
    {
        const auto model = ModelDocument::create(path);
        CDataStld().Add(loadCase("DL"));
    }
    const std::string before = contentsOf(path);
    using std::filesystem::perms;
    std::filesystem::permissions(path, perms::owner_read);
    std::filesystem::permissions(folder.path(), perms::owner_read | perms::owner_exec);
    const std::unique_ptr<ModelDocument> first = read();
    const std::unique_ptr<ModelDocument> second = read();
    EXPECT_EQ(casesIn(first), 1);
    EXPECT_EQ(filesInFolder(), (std::vector<std::string>{"model.qvx"}));
    std::filesystem::permissions(folder.path(), perms::owner_all);
    EXPECT_EQ(contentsOf(path), before);
}

TEST_F(Readers, RefuseEveryChangeAndSayWhy)
{
    ModelDocument::create(path);
    const auto model = read();
    EXPECT_TRUE(model->isReadOnly());
    EXPECT_EQ(CDataStld().Add(loadCase("DL")), 0);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_NE(host.boxes[0].text.find("for reading only"), std::string::npos) << host.boxes[0].text;
    EXPECT_EQ(CDataStld().GetCount(), 0);
}

TEST_F(Readers, GetOneMomentOfAFileThatIsBeingWrittenAllTheTime)
{
    constexpr int kept = 20;  // so that the file stays of one size
    ModelDocument::create(path);
    const pid_t writer = fork();
    if (writer == 0) {  // each change adds two load cases or takes two away, and now and then the log is emptied and begun anew
        const auto model = ModelDocument::open(path);
        for (int i = 0;; ++i) {
            T_STLD_D big = loadCase(("A" + std::to_string(i)).c_str());
            big.description = std::string(20000, 'x');
            CDataStld().Add({big, loadCase(("B" + std::to_string(i)).c_str())});
            if (i >= kept)
                CDataStld().Del(std::vector<CString>{"A" + std::to_string(i - kept), "B" + std::to_string(i - kept)});
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }
    int newest = -1;
    for (int i = 0; i < 15; ++i) {
        const std::unique_ptr<ModelDocument> moment = read();
        EXPECT_EQ(casesIn(moment) % 2, 0) << "half a change";
        std::vector<CString> names;
        CDataStld().GetNameList(names);
        const int last = names.empty() ? -1 : std::stoi(names.back().substr(1));
        EXPECT_GE(last, newest) << "an older moment than the one before";
        newest = last;
    }
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    EXPECT_GE(newest, 0);
    const std::unique_ptr<ModelDocument> reopened = ModelDocument::open(path);
    std::vector<CString> names;
    CDataStld().GetNameList(names);
    EXPECT_GE(std::stoi(names.back().substr(1)), newest);
}

// ---- what a writer notices ----

TEST_F(Readers, AModelThatIsMovedWhileItIsOpenTellsSoAtTheNextWriteAndKeepsWhatWasWritten)
{
    auto model = ModelDocument::create(path);
    CDataStld().Add(loadCase("BEFORE"));
    const std::filesystem::path moved = folder / "moved.qvx";
    std::filesystem::rename(path, moved);
    EXPECT_EQ(CDataStld().Add(loadCase("AFTER")), 0);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_NE(host.boxes[0].text.find("no longer the file that was opened"), std::string::npos) << host.boxes[0].text;
    EXPECT_THROW(model->close(), FileRefusal) << "told at the close too";
    model.reset();
    EXPECT_EQ(filesInFolder(), (std::vector<std::string>{"moved.qvx"}));
    const auto reopened = ModelDocument::open(moved);
    EXPECT_NE(CDataStld().Get("BEFORE"), 0);
    EXPECT_EQ(CDataStld().GetCount(), 1);
}

TEST_F(Readers, AModelThatIsMovedAndClosedHasAllThatWasWritten)
{
    {
        const auto model = ModelDocument::create(path);
        CDataStld().Add(loadCase("BEFORE"));
        std::filesystem::rename(path, folder / "moved.qvx");
    }
    const auto reopened = ModelDocument::open(folder / "moved.qvx");
    EXPECT_NE(CDataStld().Get("BEFORE"), 0);
}

TEST_F(Readers, AChangeThatCouldNotBeMadeSafeIsToldAsThat)
{
    FailingDisk disk;
    const auto model = ModelDocument::create(path);
    CDataStld().Add(loadCase("DL"));
    disk.failAt(FailingDisk::Call::sync, 1, FailingDisk::How::forGood);
    EXPECT_EQ(CDataStld().Add(loadCase("LL")), 0);
    ASSERT_TRUE(disk.hasFailed());
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_NE(host.boxes[0].text.find("may be in the file"), std::string::npos) << host.boxes[0].text;
    EXPECT_EQ(host.boxes[0].text.find("nothing was changed"), std::string::npos) << host.boxes[0].text;
    EXPECT_EQ(CDataStld().GetCount(), 1);
    disk.mend();
}

TEST_F(Readers, NamesThatMeanSomethingToTheDatabaseAreNamesLikeAnyOther)
{
    const std::filesystem::path former = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    for (const char* name : {":memory:", "file:x.qvx", "file:y.qvx?mode=memory"}) {
        {
            const auto model = ModelDocument::create(name);
            EXPECT_NE(CDataStld().Add(loadCase("DL")), 0) << name;
        }
        EXPECT_TRUE(std::filesystem::exists(folder.path() / name)) << name;
        const auto model = ModelDocument::open(name);
        EXPECT_EQ(CDataStld().GetCount(), 1) << name;
    }
    std::filesystem::current_path(former);
}

TEST_F(Readers, TextsOfADamagedFileAreToldWithoutTheirRawBytes)
{
    ModelDocument::create(path);
    query(path, "create table \"a\x1b[31m\xff\"(x)");
    try {
        read();
        ADD_FAILURE() << "opened";
    } catch (const FileRefusal& refusal) {
        EXPECT_NE(std::string(refusal.what()).find("a\\x1B[31m\\xFF"), std::string::npos) << refusal.what();
    }
}

TEST_F(Readers, OnlyWhatTheProgramMadeIsLetThroughInASchemaWhateverItsName)
{
    ModelDocument::create(path);
    query(path, "analyze");
    EXPECT_NO_THROW(read()) << "the database's own statistics";
    query(path,
          "create trigger innocent after insert on STLD begin delete from MATL; end; PRAGMA writable_schema=on; "
          "update sqlite_schema set name='sqlite_stat9' where name='innocent'");
    EXPECT_THROW(read(), FileRefusal);
}

TEST_F(Readers, StructureThatAWriteWouldStumbleOverIsFoundByACheck)
{
    {
        const auto model = ModelDocument::create(path);
        for (int i = 0; i < 50; ++i)
            CDataStld().Add(loadCase(("L" + std::to_string(i)).c_str()));
    }
    // The page of an empty table becomes one that is in use already.
    const std::string root = query(path, "select rootpage from sqlite_schema where name='MATL'");
    std::string bytes = contentsOf(path);
    bytes[(std::stoul(root) - 1) * 4096 + 1] = '\x7f';  // first free block of the page
    writeFile(path, bytes);
    const auto model = read();
    EXPECT_THROW(model->checkStructure(), FileRefusal);
}

}  // namespace zel::test
