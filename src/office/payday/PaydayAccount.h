// The account of a payday: what each person was paid for a period, what the card says now, the difference, and what was changed since.
#pragma once

#include "model/check/PaidDifference.h"
#include "model/payday/Closing.h"
#include "office/payday/PaydayPersons.h"
#include "reports/forms/ReportForms.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

class CJetDB;

// An entry of the edit trail.
struct AccountChange
{
    std::int64_t id = 0;
    std::string text; // when, who, what and why, in one line
};

struct AccountPerson
{
    PaydayPerson person;
    std::vector<Closing> paid;             // oldest first; none: not paid
    std::optional<CardFigures> now;        // none where the card cannot be computed, and of nobody who is known
    std::optional<PaidDifference> changed; // to the newest closing; none where there is none, or no difference
    std::vector<AccountChange> changes;    // since the oldest closing, newest first
};

struct PaydayAccount
{
    PayPeriod period;
    DateTime made;
    std::vector<AccountPerson> persons; // who is offered time cards or was paid, in the list's order; those last whom nobody knows

    [[nodiscard]] bool IsAnybodyChanged() const;
};

// All of one moment. Raises the failure of a database that cannot be opened or read. REQUIRES: database is not nullptr.
[[nodiscard]] PaydayAccount ReadPaydayAccount(const std::shared_ptr<CJetDB>& database, const PayPeriod& period, DateTime now,
                                              const PaydayGoesOn& goesOn = {});

// What is told below a person's name: what was paid, oldest first, what the card says now, the difference, and the changes.
[[nodiscard]] std::vector<std::string> LinesOf(const AccountPerson& person);

// In the forms that docs/payday-format.md describes, with CR LF; CSV without a byte order mark. Raises what making pages raises.
[[nodiscard]] std::string AccountIn(ReportForm form, const PaydayAccount& account);

// The account as the bytes of a file: CSV with a byte order mark.
[[nodiscard]] std::string AccountFile(ReportForm form, const PaydayAccount& account);

// "PTK payday 2003-03-01", the period's first day, without an ending.
[[nodiscard]] std::string AccountFileName(const PayPeriod& period);

} // namespace ptk
