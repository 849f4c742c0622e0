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

// One entry of the edit trail that changed what was paid.
struct AccountChange
{
    std::int64_t id = 0;
    std::string text; // when, who, what and why, in one line
};

struct AccountPerson
{
    PaydayPerson person;
    std::vector<Closing> paid;             // oldest first; none: not paid
    std::optional<CardFigures> now;        // none if the card cannot be computed, or there is no such employee any more
    std::optional<PaidDifference> changed; // the card now compared with the newest closing; none without a closing or a difference
    std::vector<AccountChange> changes;    // since the oldest closing, newest first
};

struct PaydayAccount
{
    PayPeriod period;
    DateTime made;
    std::vector<AccountPerson> persons; // who is offered time cards or was paid, in the list's order; last those who are gone

    [[nodiscard]] bool IsAnybodyChanged() const;
};

// Reads the account, all at one moment. Raises the failure of a database that cannot be opened or read, and a failure without a number if
// `goesOn` ends the work. REQUIRES: database is not nullptr.
[[nodiscard]] PaydayAccount ReadPaydayAccount(const std::shared_ptr<CJetDB>& database, const PayPeriod& period, DateTime now,
                                              const PaydayGoesOn& goesOn = {});

// The lines below a person's name: what was paid, oldest first, what the card says now, the difference, and the changes.
[[nodiscard]] std::vector<std::string> LinesOf(const AccountPerson& person);

// The account in a form that docs/payday-format.md describes, with CR LF; CSV without byte order mark. Raises what making pages raises.
[[nodiscard]] std::string AccountIn(ReportForm form, const PaydayAccount& account);

// The bytes of a file of the account: as AccountIn, but CSV with a byte order mark.
[[nodiscard]] std::string AccountFile(ReportForm form, const PaydayAccount& account);

// "PTK payday 2003-03-01", with the period's first day and without a file extension.
[[nodiscard]] std::string AccountFileName(const PayPeriod& period);

} // namespace ptk
