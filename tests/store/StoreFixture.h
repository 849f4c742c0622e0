// A program folder with a fresh database in it.
#pragma once

#include "platform/Failure.h"
#include "store/RawDatabase.h"
#include "store/whole/DatabaseCreator.h"
#include "support/EarlierDatabase.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

namespace ptk {

// The number of the failure that `action` raises; 0 when it raises none.
template <typename Action>
std::int32_t FailureOf(Action action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

// Runs `action` in a process of its own and answers how that ended, as waitpid reports it; a failed expectation or an exception gives 1.
template <typename Action>
int InAnotherProcess(Action action)
{
    const pid_t child = fork();
    if (child == 0) {
        try {
            action();
        } catch (...) {
            _exit(1);
        }
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
}

class StoreTest : public testing::Test
{
protected:
    StoreTest() { CreateDatabase(Path()); }

    std::string Path() const { return File("ptk_11.mdb"); }
    std::string File(const std::string& name) const { return m_folder.Path() + "/system/" + name; }

    std::ptrdiff_t SystemFiles() const
    {
        return std::distance(std::filesystem::directory_iterator(m_folder.Path() + "/system"), std::filesystem::directory_iterator());
    }

    // Runs SQL as another tool would. REQUIRES: the program has the file closed; also for Rows.
    void Run(const std::string& sql) const { RawDatabase(Path()).Run(sql); }
    std::string Rows(const std::string& sql) const { return RawDatabase(Path()).Rows(sql); }

    // Turns the database into one that a version from before the edit trail and the check's limits made.
    void MakeEarlier() const { Run(kMakeWithoutTrail); }

    TemporaryFolder m_folder;
};

} // namespace ptk
