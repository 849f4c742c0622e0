// The profiles that there are: the ready ones, and those that the database keeps.
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
    std::string fault;              // why, in words without a full stop
    StoredProfile stored;           // as it was read; of a ready one without a number

    [[nodiscard]] bool IsReady() const { return stored.id == 0; }
};

// The ready ones first, then the others by name. Raises the failure of a database that cannot be opened or read. REQUIRES: database is not
// nullptr, here and below.
[[nodiscard]] std::vector<KnownProfile> ReadProfiles(const std::shared_ptr<CJetDB>& database);

// Of exactly this name. Raises a failure without a number where there is none, or it cannot be read.
[[nodiscard]] Profile RequireProfile(const std::shared_ptr<CJetDB>& database, const std::string& name);

// "13 columns, rows: one a person, ...", or why it cannot be read.
[[nodiscard]] std::string DescribeProfile(const KnownProfile& known);

// In the place of `replaced`; nullptr, or a ready one: beside it. On disk when it returns. Raises a failure whose words say what is wrong
// with the profile, that its name is taken, that somebody else changed it meanwhile, or why the database refused it.
void SaveProfile(const std::shared_ptr<CJetDB>& database, const Profile& profile, const KnownProfile* replaced = nullptr);

// Raises a failure whose words say that somebody else changed it meanwhile, or why the database refused it. REQUIRES: not a ready one.
void DeleteProfile(const std::shared_ptr<CJetDB>& database, const KnownProfile& known);

} // namespace ptk
