// Whoever starts this program by hand, without the server that CTest starts for all, gets one for the run.
#include "support/OwnServer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

namespace ptk {

namespace {

class ServerOfThisRun : public ::testing::Environment
{
public:
    void SetUp() override
    {
        if (std::getenv("PTK_TEST_SERVER") == nullptr) {
            m_server = std::make_unique<OwnServer>();
        }
    }
    void TearDown() override { m_server.reset(); }

private:
    std::unique_ptr<OwnServer> m_server;
};

const ::testing::Environment* const kServer = ::testing::AddGlobalTestEnvironment(new ServerOfThisRun);

} // namespace

} // namespace ptk
