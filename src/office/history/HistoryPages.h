// The history as pages.
#pragma once

#include "office/history/HistoryTable.h"

#include <cstddef>
#include <vector>

namespace ptk {

struct ReportDocument;

// Other than the files of the other forms, which are written while the history is read, pages are laid out when all of it is known: they
// are numbered "of" so many. Hence the bound on what is kept until then.
class HistoryPages
{
public:
    // Of changes. A page holds at most 70, so these are 140 pages and more.
    static constexpr std::size_t kMost = 10'000;

    // Below those before. Raises 6 beyond kMost, saying what to do instead.
    void Add(HistoryCells cells);

    // A change is kept together; their number stands below the last.
    [[nodiscard]] ReportDocument Document() const;

private:
    std::vector<HistoryCells> m_rows;
};

} // namespace ptk
