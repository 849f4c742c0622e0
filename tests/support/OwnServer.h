// A server of a test's own. As long as the object lives, it runs in the place of the server that the tests share.
#pragma once

#include "support/Sources.h"
#include "support/TemporaryFolder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace ptk {

class OwnServer
{
public:
    OwnServer()
    {
        if (!Do("start")) {
            throw std::runtime_error("no server for the tests");
        }
        ::setenv("PTK_TEST_SERVER", (m_folder.Path() + "/own/socket").c_str(), 1);
    }
    ~OwnServer()
    {
        EXPECT_TRUE(Do("stop"));
        if (m_before.empty()) {
            ::unsetenv("PTK_TEST_SERVER");
        } else {
            ::setenv("PTK_TEST_SERVER", m_before.c_str(), 1);
        }
    }
    OwnServer(const OwnServer&) = delete;
    OwnServer& operator=(const OwnServer&) = delete;

    // Runs a step of tests/support/server_cluster. Where that fails, answers false, and the reason is on the terminal.
    [[nodiscard]] bool Do(const char* step) const
    {
        const auto command = fmt::format("{}/tests/support/server_cluster {} {}/own", SourceFolder(), step, m_folder.Path());
        return std::system(command.c_str()) == 0;
    }

private:
    static std::string Before()
    {
        const char* const folder = std::getenv("PTK_TEST_SERVER");
        return folder == nullptr ? "" : folder;
    }

    const TemporaryFolder m_folder;
    const std::string m_before = Before();
};

} // namespace ptk
