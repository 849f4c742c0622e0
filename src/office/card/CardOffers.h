// What the Timecards page offers to do about a finding, and which finding comes next.
#pragma once

#include "model/check/Finding.h"
#include "model/remedy/Remedy.h"

#include <cstddef>
#include <optional>
#include <string>
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
    Remedy remedy; // its text says what is offered; without changes where that only leads to another window
};

// Of a finding of the check, in the order of their keys; no more than three.
[[nodiscard]] std::vector<CardOffer> OffersFor(const Finding& finding, const CheckedTimecard& checked);

// Counted among the ShownFindings: the next one to be mended behind `done`, which may be among them still, or else the first. Notices that
// nothing can be done about are passed over. Nothing where none is left. Without `done` the first of all.
[[nodiscard]] std::optional<std::size_t> NextToMend(const CheckedTimecard& checked, const std::optional<Finding>& done);

} // namespace ptk
