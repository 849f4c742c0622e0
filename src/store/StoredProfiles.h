// The profiles of the accountant's table as the table _Profile keeps them: what a name stands for is no concern of the store.
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

// In the order in which they were made; none where a file has no such table, which its first profile makes. Raises the failure of a
// database that cannot be opened or read. REQUIRES: database is not nullptr, here and below.
[[nodiscard]] std::vector<StoredProfile> LoadStoredProfiles(const std::shared_ptr<CJetDB>& database);

// Adds a new profile, or puts `profile` in the place of the one that was read. On disk when it answers true; false with what
// CJetDB::ExecuteSteps leaves: also where another profile has that name, letter case aside, and where the stored one is no longer as it was
// read. Profiles are not in the edit trail: they are how figures are written, not figures.
[[nodiscard]] bool SaveStoredProfile(const std::shared_ptr<CJetDB>& database, const StoredProfile& profile, const StoredProfile& asRead);

// On disk when it answers true; false with what CJetDB::ExecuteSteps leaves, also where the stored one is no longer as it was read.
[[nodiscard]] bool DeleteStoredProfile(const std::shared_ptr<CJetDB>& database, const StoredProfile& asRead);

} // namespace ptk
