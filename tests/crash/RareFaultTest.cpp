// What only an unlucky machine shows: work that is done and yet not safe, a folder without locks, a helper program that does not start.
#include "crash/WriteCalls.h"
#include "office/import/OldFile.h"
#include "platform/files/FileDraft.h"
#include "store/backup/Backups.h"
#include "store/CJetDB.h"
#include "store/RawDatabase.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Failures.h"
#include "support/Files.h"
#include "support/OldDatabase.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace ptk {

namespace {

class RareFaultTest : public testing::Test
{
public:
    RareFaultTest() { CreateDatabase(m_database); }
    ~RareFaultTest() override { MeetMisfortune(Misfortune::Killed, 0); }

protected:
    TemporaryFolder m_folder;
    std::string m_database = m_folder.Path() + "/system/ptk_11.mdb";
};

TEST_F(RareFaultTest, WhatIsDoneButNotSafeIsSaidSo)
{
    const std::string report = m_folder.Path() + "/reports/a.txt";
    const std::string backups = BackupFolder(m_folder.Path());
    std::filesystem::create_directory(backups);
    MeetMisfortune(Misfortune::FolderUnsafe, 1);
    EXPECT_EQ(FailureTextOf([&] { PutFile(report, "new"); }).rfind("The file is done, but may not survive a power cut: ", 0), 0U);
    EXPECT_EQ(ReadBytes(report), "new");
    CJetDB database(m_folder.Path());
    database.DatabaseName(m_database);
    EXPECT_FALSE(database.ExecuteAction("UPDATE Employee SET City = 'Springfield'"));
    EXPECT_EQ(database.LastFailure().Description(), "the change is done, but may not survive a power cut");
    const std::string told = FailureTextOf([&] { BackUp(m_database, backups, DateTime({2003, 3, 5}, {17, 0, 0})); });
    EXPECT_NE(told.find("may not survive a power cut"), std::string::npos) << told;
    EXPECT_EQ(BackupsIn(backups).size(), 1U);
    MeetMisfortune(Misfortune::Killed, 0);
    EXPECT_EQ(RawDatabase(m_database).Rows("SELECT City FROM Employee"), "Springfield|");
}

TEST_F(RareFaultTest, AFolderThatRefusesLocksIsTriedAFewTimesAndLeftClean)
{
    MeetMisfortune(Misfortune::NoLocks, 1);
    EXPECT_EQ(FailureOf([&] { FileDraft(m_folder.Path() + "/reports/a.txt"); }), failure::PermissionDenied);
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.Path() + "/reports"));
}

TEST_F(RareFaultTest, AReaderThatDoesNotStartIsNoDamagedFile)
{
    const std::string file = m_folder.Path() + "/old.mdb";
    WriteOldDatabase(file);
    MeetMisfortune(Misfortune::NothingRuns, 1);
    const auto read = [&] {
        static_cast<void>(OldFile(file, {}, std::chrono::steady_clock::now() + std::chrono::seconds(20), {}).ReadCatalog());
    };
    EXPECT_EQ(FailureTextOf(read), "the program ptk-jet-reader, which reads older files, could not be run");
}

} // namespace

} // namespace ptk
