#include "store/whole/DatabaseCreator.h"

#include "platform/Failure.h"
#include "platform/files/FileDraft.h"
#include "platform/files/FileSteps.h"
#include "store/engine/Schema.h"
#include "store/postgres/PostgresEngine.h"
#include "store/postgres/ServerCreator.h"
#include "store/sqlite/EditTrail.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/BulkWriter.h"
#include "store/whole/DatabaseName.h"

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

std::function<void(Engine&)> Bulk(const std::function<void(BulkWriter&)>& fill)
{
    return [&fill](Engine& engine) {
        BulkWriter writer(engine);
        if (fill) {
            fill(writer);
        }
    };
}

void Fill(Engine& engine, const std::function<void(Engine&)>& fill)
{
    engine.BeginMany();
    engine.RunScript(kSchemaSql);
    engine.RunScript(kStoredQueriesSql);
    BringUpToDate(engine);
    if (fill) {
        engine.WithoutTrail([&] { fill(engine); }); // what a new database starts with is no change
    }
    engine.Commit();
}

} // namespace

void RefuseTakenPath(const std::string& path)
{
    if (IsThere(path)) {
        throw FileDraft::AlreadyThere(path);
    }
    RefuseLeftovers(path);
}

std::string CreateDatabase(const std::string& path, const std::function<void(BulkWriter&)>& fill)
{
    return CreateFilledDatabase(path, Bulk(fill));
}

std::string CreateFilledDatabase(const std::string& path, const std::function<void(Engine&)>& fill)
{
    if (!IsFileName(path)) {
        return CreateServerDatabase(path, fill) == ServerRoles::Ready ? "" : kRolesMissing;
    }
    RefuseTakenPath(path);
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
    RefuseTakenPath(path);
    FileDraft draft(path);
    {
        SqliteEngine engine(draft.Path(), NewFile{});
        Fill(engine, {});
        change(engine);
    }
    draft.PlaceNew();
}

void WithTemporaryDatabase(const std::function<void(Engine&)>& change)
{
    const std::string name = "ptk-trial-" + std::to_string(::geteuid()) + ".mdb"; // so that the next one removes what a killed one left
    const FileDraft draft((std::filesystem::temp_directory_path() / name).string());
    SqliteEngine engine(draft.Path(), NewFile{});
    Fill(engine, {});
    change(engine);
}

} // namespace ptk
