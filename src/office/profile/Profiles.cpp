#include "office/profile/Profiles.h"

#include "office/profile/ProfileText.h"
#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kUnknownProfile = "there is no profile \"{}\"; ptk-console profiles lists all";
constexpr auto kCannotBeRead = "cannot be read: {}";

KnownProfile KnownOf(const StoredProfile& stored)
{
    KnownProfile known{stored.name, std::nullopt, "", stored};
    Succeeds([&] { known.profile = ReadProfile(stored.name, stored.text); },
             [&](const Failure& reason) { known.fault = reason.Description(); });
    return known;
}

void Require(bool done, const CJetDB& database)
{
    if (!done) {
        throw Failure(database.LastFailure());
    }
}

} // namespace

std::vector<KnownProfile> ReadProfiles(const std::shared_ptr<CJetDB>& database)
{
    std::vector<KnownProfile> known;
    for (const StoredProfile& stored : LoadStoredProfiles(database)) {
        known.push_back(KnownOf(stored));
    }
    std::stable_sort(known.begin(), known.end(),
                     [](const KnownProfile& left, const KnownProfile& right) { return LowerCase(left.name) < LowerCase(right.name); });
    std::vector<KnownProfile> all;
    for (const Profile& ready : ReadyProfiles()) {
        all.push_back({ready.name, ready, "", {}});
    }
    all.insert(all.end(), known.begin(), known.end());
    return all;
}

Profile RequireProfile(const std::shared_ptr<CJetDB>& database, const std::string& name)
{
    const std::vector<KnownProfile> all = ReadProfiles(database);
    const auto found = std::find_if(all.begin(), all.end(), [&](const KnownProfile& known) { return known.name == name; });
    if (found == all.end()) {
        throw Failure(0, "PTK", fmt::format(kUnknownProfile, name));
    }
    if (!found->profile) {
        throw Failure(0, "PTK", fmt::format("the profile \"{}\" {}", name, DescribeProfile(*found)));
    }
    return *found->profile;
}

std::string DescribeProfile(const KnownProfile& known)
{
    return known.profile ? DescribeProfile(*known.profile) : fmt::format(kCannotBeRead, known.fault);
}

void SaveProfile(const std::shared_ptr<CJetDB>& database, const Profile& profile, const KnownProfile* replaced)
{
    if (std::string fault = FaultOf(profile); !fault.empty()) {
        fault.pop_back(); // the full stop
        throw Failure(0, "PTK", fault);
    }
    const StoredProfile asRead = replaced == nullptr ? StoredProfile() : replaced->stored;
    Require(SaveStoredProfile(database, {asRead.id, profile.name, ProfileText(profile)}, asRead), *database);
}

void DeleteProfile(const std::shared_ptr<CJetDB>& database, const KnownProfile& known)
{
    Require(DeleteStoredProfile(database, known.stored), *database);
}

} // namespace ptk
