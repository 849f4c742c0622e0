#include "store/StoredProfiles.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Schema.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr const char* kProfileTable = "_Profile";

// Whatever another tool left there is read as text.
constexpr const char* kSelectProfiles = "SELECT ProfileID, COALESCE(CAST(Name AS TEXT), ''), COALESCE(CAST(Definition AS TEXT), '') "
                                        "FROM _Profile ORDER BY ProfileID";
constexpr const char* kInsertProfile = "INSERT INTO _Profile (Name, Definition) VALUES (:name, :text)";
constexpr const char* kUpdateProfile = "UPDATE _Profile SET Name = :name, Definition = :text WHERE ProfileID = :key";
constexpr const char* kDeleteProfile = "DELETE FROM _Profile WHERE ProfileID = :key";

constexpr auto kTaken = "there is a profile \"{}\" already";
constexpr auto kNoLonger = "the profile \"{}\" was changed or deleted by somebody else since it was read";

// Reads the profiles of a CJetDB or an Engine; `prepare` makes a statement of a text.
template <typename Database, typename Prepare>
std::vector<StoredProfile> ReadStored(Database& database, Prepare prepare)
{
    std::vector<StoredProfile> profiles;
    if (!database.HasTable(kProfileTable)) {
        return profiles;
    }
    for (const auto rows = prepare(kSelectProfiles)->ReadRows(); !rows->EndOfFile(); rows->MoveNext()) {
        profiles.push_back({rows->Int32At(0), std::string(rows->TextAt(1)), std::string(rows->TextAt(2))});
    }
    return profiles;
}

// Reads the profiles within a write, and makes their table where it is missing. Nobody else changes them before the write ends.
std::vector<StoredProfile> ReadToChange(Engine& engine)
{
    if (!engine.HasTable(kProfileTable)) {
        engine.RunScript(kProfileSql);
    }
    engine.LockTable(kProfileTable);
    return ReadStored(engine, [&](const std::string& sql) { return engine.Prepare(sql); });
}

void RequireStored(const std::vector<StoredProfile>& stored, const StoredProfile& asRead)
{
    if (std::find(stored.begin(), stored.end(), asRead) == stored.end()) {
        throw Failure(0, "PTK", fmt::format(kNoLonger, asRead.name));
    }
}

void RequireFreeName(const std::vector<StoredProfile>& stored, const StoredProfile& profile)
{
    for (const StoredProfile& other : stored) {
        if (other.id != profile.id && LowerCase(other.name) == LowerCase(profile.name)) {
            throw Failure(0, "PTK", fmt::format(kTaken, other.name));
        }
    }
}

void WriteProfile(Engine& engine, const char* sql, const StoredProfile& profile)
{
    const auto statement = engine.Prepare(sql);
    if (sql != kDeleteProfile) {
        statement->Bind("name", profile.name);
        statement->Bind("text", profile.text);
    }
    if (sql != kInsertProfile) {
        statement->Bind("key", profile.id);
    }
    statement->Run();
}

} // namespace

std::vector<StoredProfile> LoadStoredProfiles(const std::shared_ptr<CJetDB>& database)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    return ReadStored(*database, [&](const std::string& sql) { return RequireSelect(*database, sql); });
}

bool SaveStoredProfile(const std::shared_ptr<CJetDB>& database, const StoredProfile& profile, const StoredProfile& asRead)
{
    return database->ExecuteSteps([&](Engine& engine) {
        const std::vector<StoredProfile> stored = ReadToChange(engine);
        RequireFreeName(stored, {asRead.id, profile.name, ""});
        if (asRead.id == 0) {
            return WriteProfile(engine, kInsertProfile, profile);
        }
        RequireStored(stored, asRead);
        WriteProfile(engine, kUpdateProfile, {asRead.id, profile.name, profile.text});
    });
}

bool DeleteStoredProfile(const std::shared_ptr<CJetDB>& database, const StoredProfile& asRead)
{
    return database->ExecuteSteps([&](Engine& engine) {
        RequireStored(ReadToChange(engine), asRead);
        WriteProfile(engine, kDeleteProfile, asRead);
    });
}

} // namespace ptk
