#include "office/card/CardOffers.h"

#include "office/card/CardFindings.h"
#include "office/card/CheckedTimecard.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr auto kEnterRate = "Enter the missing pay rate";
constexpr auto kShowChanges = "Show what was changed since it was paid";

bool IsSame(const Finding& one, const Finding& other)
{
    return one.kind == other.kind && one.records == other.records && one.text == other.text;
}

const std::vector<Remedy>* RemediesFor(const Finding& finding, const CheckedTimecard& checked)
{
    const auto& findings = checked.check->findings;
    const auto found = std::find_if(findings.begin(), findings.end(), [&](const Finding& other) { return IsSame(finding, other); });
    const auto place = static_cast<std::size_t>(found - findings.begin());
    return place < checked.remedies.size() ? &checked.remedies[place] : nullptr;
}

bool IsToMend(const Finding& finding, const CheckedTimecard& checked)
{
    const auto* remedies = RemediesFor(finding, checked);
    return SeverityOf(finding.kind) == Severity::Problem || (remedies != nullptr && !remedies->empty());
}

} // namespace

std::vector<CardOffer> OffersFor(const Finding& finding, const CheckedTimecard& checked)
{
    if (finding.kind == FindingKind::NoRate) {
        return {{OfferKind::Rate, {kEnterRate, {}, {}, kEnterRate}}};
    }
    if (finding.kind == FindingKind::PaidChanged) {
        return {{OfferKind::Changes, {kShowChanges, {}, {}, kShowChanges}}};
    }
    std::vector<CardOffer> offers;
    if (const auto* remedies = RemediesFor(finding, checked)) {
        for (const Remedy& remedy : *remedies) {
            offers.push_back({OfferKind::Mend, remedy});
        }
    }
    return offers;
}

std::optional<std::size_t> NextToMend(const CheckedTimecard& checked, const std::optional<Finding>& done)
{
    if (!checked.check) {
        return std::nullopt;
    }
    std::optional<std::size_t> first;
    const std::vector<Finding> shown = ShownFindings(*checked.check, checked.limits.showNotices);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (!IsToMend(shown[i], checked)) {
            continue;
        }
        if (!done || !(shown[i] < *done)) {
            return i;
        }
        first = first ? first : i;
    }
    return first;
}

} // namespace ptk
