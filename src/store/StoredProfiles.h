// The profiles of the accountant's table as the table _Profile keeps them. The store does not know what their texts mean.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ptk {

class CJetDB;

struct StoredProfile
{
    std::int32_t id = 0; // 0: not stored yet
    std::string name;
    std::string text;

    bool operator==(const StoredProfile&) const = default;
};

// Reads all profiles, in the order in which they were made; none where the database has no such table, which the first profile makes.
// Raises the failure of a database that cannot be opened or read. REQUIRES: database is not nullptr.
[[nodiscard]] std::vector<StoredProfile> LoadStoredProfiles(const std::shared_ptr<CJetDB>& database);

// Adds `profile` where asRead.id is 0, else puts it in the place of `asRead`. On disk when it answers true; false with what
// CJetDB::ExecuteSteps leaves: also where another profile has that name, letter case aside, and where the stored one is no longer as it was
// read. Profiles are not in the edit trail: they say how figures are written, they are no figures. REQUIRES: database is not nullptr.
[[nodiscard]] bool SaveStoredProfile(const std::shared_ptr<CJetDB>& database, const StoredProfile& profile, const StoredProfile& asRead);

// Deletes a profile. On disk when it answers true; false with what CJetDB::ExecuteSteps leaves, also where the stored one is no longer as
// it was read. REQUIRES: database is not nullptr.
[[nodiscard]] bool DeleteStoredProfile(const std::shared_ptr<CJetDB>& database, const StoredProfile& asRead);

} // namespace ptk
