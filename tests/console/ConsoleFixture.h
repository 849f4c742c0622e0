// Runs ptk-console inside the test's process, on a program folder of the test's own.
#pragma once

#include "console/Program.h"
#include "support/Files.h"
#include "support/FixedClock.h"
#include "support/Sources.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace ptk {

class ConsoleTest : public testing::Test
{
protected:
    struct Answer
    {
        int status;
        std::string out;
        std::string err;
    };

    ConsoleTest() { std::filesystem::copy_file(SourceFolder() + "/data/ptk_11.cfg", System("ptk_11.cfg")); }

    Answer Run(std::vector<std::string> words)
    {
        words.insert(words.begin(), {"--program-folder", m_folder.Path()});
        std::ostringstream out;
        std::ostringstream err;
        const int status = RunConsole(words, m_clock, out, err);
        return {status, out.str(), err.str()};
    }

    std::filesystem::path Folder() const { return m_folder.Path(); }
    std::filesystem::path System(const std::string& name) const { return Folder() / "system" / name; }
    std::filesystem::path Database() const { return System("ptk_11.mdb"); }

    FixedClock m_clock{DateTime(CalendarDate{2026, 3, 20}, TimeOfDay{9, 30, 0})};
    TemporaryFolder m_folder;
};

} // namespace ptk
