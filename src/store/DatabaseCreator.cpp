#include "store/DatabaseCreator.h"

#include "platform/Failure.h"
#include "platform/FileDraft.h"
#include "store/BulkWriter.h"
#include "store/engine/Engine.h"
#include "store/Schema.h"

#include <filesystem>
#include <system_error>

namespace ptk {

namespace {

// Also for a link that leads nowhere. What cannot be told from here, making the file will tell.
bool IsThere(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(path, ignored));
}

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
