#include "store/DatabaseCreator.h"

#include "platform/Failure.h"
#include "platform/FileDraft.h"
#include "store/BulkWriter.h"
#include "store/FileSteps.h"
#include "store/postgres/PostgresEngine.h"
#include "store/postgres/ServerAddress.h"
#include "store/postgres/ServerCreator.h"
#include "store/Schema.h"
#include "store/sqlite/EditTrail.h"
#include "store/sqlite/SqliteEngine.h"

#include <unistd.h>

#include <filesystem>

namespace ptk {

namespace {

constexpr const char* kRolesMissing =
    "The roles ptk_office and ptk_reader are missing, since this login may not make roles: see the chapter on "
    "several computers in the user's guide.";

// The engine keeps what it has not finished in files of these names, and would finish it in the new database.
void RefuseLeftovers(const std::string& path)
{
    for (const char* ending : {"-journal", "-wal", "-shm"}) {
        if (IsThere(path + ending)) {
            throw Failure(failure::PathFileAccess, "PTK",
                          "There is still a file " + path + ending +
                              ", which belongs to another database and would spoil a new one; move it away.");
        }
    }
}

void Fill(Engine& engine, const std::function<void(BulkWriter&)>& fill)
{
    engine.BeginMany();
    engine.RunScript(kSchemaSql);
    engine.RunScript(kStoredQueriesSql);
    BulkWriter writer(engine);
    if (fill) {
        fill(writer);
    }
    InstallTrail(engine); // last: what a new database starts with is no change
    writer.Commit();
}

std::string CreateOnServer(const std::string& address, const std::function<void(BulkWriter&)>& fill)
{
    const ServerRoles roles = CreateServerDatabase(address, [&](PostgresEngine& engine) {
        if (fill) {
            BulkWriter writer(engine);
            fill(writer);
        }
    });
    return roles == ServerRoles::Ready ? "" : kRolesMissing;
}

void RefuseTaken(const std::string& path)
{
    if (IsThere(path)) {
        throw FileDraft::AlreadyThere(path);
    }
    RefuseLeftovers(path);
}

} // namespace

std::string CreateDatabase(const std::string& path, const std::function<void(BulkWriter&)>& fill)
{
    if (IsServerAddress(path)) {
        return CreateOnServer(path, fill);
    }
    RefuseTaken(path);
    FileDraft draft(path);
    {
        SqliteEngine engine(draft.Path(), NewFile{});
        Fill(engine, fill);
    }
    draft.PlaceNew();
    return {};
}

void CreateAndChangeDatabase(const std::string& path, const std::function<void(Engine&)>& change)
{
    RefuseTaken(path);
    FileDraft draft(path);
    {
        SqliteEngine engine(draft.Path(), NewFile{});
        Fill(engine, {});
        change(engine);
    }
    draft.PlaceNew();
}

void WithPassingDatabase(const std::function<void(Engine&)>& change)
{
    const std::string name = "ptk-trial-" + std::to_string(::geteuid()) + ".mdb"; // so that the next one removes what a killed one left
    const FileDraft draft((std::filesystem::temp_directory_path() / name).string());
    SqliteEngine engine(draft.Path(), NewFile{});
    Fill(engine, {});
    change(engine);
}

} // namespace ptk
