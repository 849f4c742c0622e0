// The payday overview as text for people and as data for other programs; docs/overview-format.md describes the latter.
#pragma once

#include <string>

namespace ptk {

struct CardCheck;
struct Overview;

// Lines end in CR LF.
std::string OverviewText(const Overview& overview); // a table, under each employee the sentences, below it the sums
std::string OverviewCsv(const Overview& overview);  // one line an employee and one a finding
std::string OverviewJson(const Overview& overview); // one object

// One line a finding, "    problem: ..."; without the notices where they are not to be shown.
std::string FindingLines(const CardCheck& check, bool showNotices);

} // namespace ptk
