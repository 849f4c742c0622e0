#include "store/DatabaseCreator.h"

#include "platform/Failure.h"
#include "platform/FileDraft.h"
#include "store/BulkWriter.h"
#include "store/engine/EditTrail.h"
#include "store/engine/Engine.h"
#include "store/FileSteps.h"
#include "store/Schema.h"

namespace ptk {

namespace {

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

void Fill(const std::string& path, const std::function<void(BulkWriter&)>& fill)
{
    Engine engine(path, NewFile{});
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

} // namespace

void CreateDatabase(const std::string& path, const std::function<void(BulkWriter&)>& fill)
{
    if (IsThere(path)) {
        throw FileDraft::AlreadyThere(path);
    }
    RefuseLeftovers(path);
    FileDraft draft(path);
    Fill(draft.Path(), fill);
    draft.PlaceNew();
}

} // namespace ptk
