// The history as pages.
#pragma once

#include "office/history/HistoryTable.h"

#include <cstddef>
#include <vector>

namespace ptk {

struct ReportDocument;

// Collects the changes and lays them out as pages. That cannot be done while the history is read, because each page shows how many pages
// there are in all; the number of changes is limited since all of them are kept until then.
class HistoryPages
{
public:
    // The most changes that pages hold. A page has room for 70 at most, so they fill 143 pages or more.
    static constexpr std::size_t kMost = 10'000;

    // Adds a change below the former ones. Raises 6 beyond kMost, with what to do instead.
    void Add(HistoryCells cells);

    // The pages. Each change is kept together on a page, and the number of changes stands below the last one.
    [[nodiscard]] ReportDocument Document() const;

private:
    std::vector<HistoryCells> m_rows;
};

} // namespace ptk
