#include "reports/ReportCatalog.h"

#include "reports/CReportEmployee.h"
#include "reports/CReportPhoneBook.h"
#include "reports/CReportReview.h"
#include "reports/CReportTimeCard.h"
#include "reports/CReportYTDTotals.h"

#include <algorithm>

namespace ptk {

namespace {

template <typename AnyReport>
std::shared_ptr<Report> Make(ReportContext context)
{
    return std::make_shared<AnyReport>(std::move(context));
}

constexpr ReportEntry kEntries[] = {
    {ReportKind::TimeCard, "Timecard", "timecard", "Employee Time Card : ", "{number}_{days}_time_card.txt", "FReportTimeCard",
     ReportWhom::Each, ReportDates::PayPeriod, true, &Make<CReportTimeCard>},
    {ReportKind::Review, "Accountants Review", "review", "Accountant's Review : ", "salary_review_{days}.txt", "FReportReview",
     ReportWhom::Together, ReportDates::PayPeriod, true, &Make<CReportReview>},
    {ReportKind::YTDTotals, "Year-To-Date Totals", "ytd", "Employee Year-To-Date Totals : ", "{number}_{days}_ytd_totals.txt",
     "FReportYTDTotals", ReportWhom::Each, ReportDates::YearToDate, true, &Make<CReportYTDTotals>},
    {ReportKind::Employee, "Employee Records", "employees", "Employee Records", "employee_records.txt", "FReportEmployee",
     ReportWhom::Together, ReportDates::None, false, &Make<CReportEmployee>},
    {ReportKind::PhoneBook, "Phone Book", "phonebook", "Employee Phone Book", "phone_book.txt", "FReportPhoneBook", ReportWhom::Everyone,
     ReportDates::None, false, &Make<CReportPhoneBook>},
};

template <typename Key>
const ReportEntry* Find(Key ReportEntry::*key, Key value)
{
    const auto* found =
        std::find_if(std::begin(kEntries), std::end(kEntries), [&](const ReportEntry& entry) { return entry.*key == value; });
    return found == std::end(kEntries) ? nullptr : found;
}

} // namespace

std::span<const ReportEntry> ReportCatalog()
{
    return kEntries;
}

const ReportEntry* FindReport(std::string_view caption)
{
    return Find(&ReportEntry::caption, caption);
}

const ReportEntry* FindConsoleReport(std::string_view consoleName)
{
    return Find(&ReportEntry::consoleName, consoleName);
}

const ReportEntry& EntryOf(ReportKind kind)
{
    return *Find(&ReportEntry::kind, kind);
}

} // namespace ptk
