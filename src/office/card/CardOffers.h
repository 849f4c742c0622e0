// What the Timecards page offers to do about a finding, and which finding comes next.
#pragma once

#include "model/check/Finding.h"
#include "model/remedy/Remedy.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace ptk {

struct CheckedTimecard;

enum class OfferKind
{
    Mend,    // change the records
    Rate,    // go where the missing rate is entered
    Changes, // show what was changed since the period was paid
};

struct CardOffer
{
    OfferKind kind = OfferKind::Mend;
    Remedy remedy; // its text says what is offered; it has no changes if the offer only leads to another window
};

// The offers for a finding of the check, at most three, in the order of their shortcut keys.
[[nodiscard]] std::vector<CardOffer> OffersFor(const Finding& finding, const CheckedTimecard& checked);

// The index, among the ShownFindings, of the finding to mend next: the first one from `done` on, which may still be among them, or else the
// first of all; without `done` the first of all. Notices that nothing can be done about are skipped. Nothing if none is left.
[[nodiscard]] std::optional<std::size_t> NextToMend(const CheckedTimecard& checked, const std::optional<Finding>& done);

} // namespace ptk
