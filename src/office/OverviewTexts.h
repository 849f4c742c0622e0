// The payday overview as text for people and as data for other programs; docs/overview-format.md describes the latter.
#pragma once

#include <string>

namespace ptk {

struct CardCheck;
struct Overview;

// Lines end in CR LF. A table, under each employee the sentences, below it the sums
[[nodiscard]] std::string OverviewText(const Overview& overview);

// One line an employee and one a finding.
[[nodiscard]] std::string OverviewCsv(const Overview& overview);

// One object.
[[nodiscard]] std::string OverviewJson(const Overview& overview);

// One line a finding, "    problem: ..."; without the notices where they are not to be shown.
[[nodiscard]] std::string FindingLines(const CardCheck& check, bool showNotices);

} // namespace ptk
