// Whatever somebody says who is taken for a server, after it let us in: its answer is read, or the failure of one that makes no sense.
#include "fuzz/Targets.h"
#include "store/postgres/PostgresEngine.h"
#include "support/ScriptedServer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const ptk::ScriptedServer server(std::string(ptk::TextIn({data, size})), ptk::ScriptedServer::kHangsUp);
    ptk::MayFail([&] {
        ptk::PostgresEngine engine(server.Address());
        const auto statement = engine.Prepare("SELECT a, b FROM c");
        statement->ForEachRow([&] {
            for (const int column : {0, 1}) {
                ptk::MayFail([&] { static_cast<void>(statement->Int64At(column)); });
                ptk::MayFail([&] { static_cast<void>(statement->RealAt(column)); });
                ptk::MayFail([&] { static_cast<void>(statement->StoredDateAt(column)); });
                ptk::MayFail([&] { static_cast<void>(statement->TextAt(column)); });
            }
        });
    });
    return 0;
}
