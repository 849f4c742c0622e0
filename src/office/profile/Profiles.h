// All profiles: the ready ones, and those that the database keeps.
#pragma once

#include "office/profile/Profile.h"
#include "store/StoredProfiles.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

class CJetDB;

struct KnownProfile
{
    std::string name;
    std::optional<Profile> profile; // none where it cannot be read
    std::string fault;              // why it cannot be read, without a full stop
    StoredProfile stored;           // as it was read; a ready one has the ID 0

    [[nodiscard]] bool IsReady() const { return stored.id == 0; }
};

// All profiles, the ready ones first, then the others by name. Raises the failure of a database that cannot be opened or read. REQUIRES,
// here and for the functions below: database is not nullptr.
[[nodiscard]] std::vector<KnownProfile> ReadProfiles(const std::shared_ptr<CJetDB>& database);

// The profile of exactly this name. Raises a failure without a number if there is none, or it cannot be read.
[[nodiscard]] Profile RequireProfile(const std::shared_ptr<CJetDB>& database, const std::string& name);

// "13 columns, rows: one a person, ...", or why it cannot be read.
[[nodiscard]] std::string DescribeProfile(const KnownProfile& known);

// Stores the profile in the place of `replaced`; if that is nullptr or a ready one, as a new profile. On disk when it returns. Raises a
// failure whose words say what is wrong with the profile, that its name is taken, that somebody else changed it meanwhile, or why the
// database refused it.
void SaveProfile(const std::shared_ptr<CJetDB>& database, const Profile& profile, const KnownProfile* replaced = nullptr);

// Deletes a stored profile. Raises a failure whose words say that somebody else changed it meanwhile, or why the database refused it.
// REQUIRES: not a ready one.
void DeleteProfile(const std::shared_ptr<CJetDB>& database, const KnownProfile& known);

} // namespace ptk
