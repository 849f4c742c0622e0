// What the reports over a stretch of days share: the checked dates, the file name's code for them, and the time cards made for them.
#pragma once

#include "model/CDateRange.h"
#include "platform/Value.h"
#include "reports/Report.h"

#include <memory>
#include <string>

namespace ptk {

class CEmployee;
class CJetDB;
class CTimeCard;

class PeriodReport : public Report
{
protected:
    using Report::Report;

    CDateRange& Range() { return m_range; }
    bool SetRange(const Value& thestartdate, const Value& theenddate); // false with 603 when either is no date

    std::string RangeCode(); // "0101_0116_2003": the start's month and day, the end's, the start's year
    std::string EmployeeFileName(const CEmployee& theemployee, const std::string& ending);

    std::shared_ptr<CTimeCard> NewTimeCard(const std::shared_ptr<CJetDB>& thedatabase) const;
    bool GenerateTimeCard(CTimeCard& card, const std::shared_ptr<CEmployee>& theemployee); // false with the card's own error number

private:
    CDateRange m_range;
};

// The pieces of the titles: "Ann Lee : ", with a leading blank when there is no first name, and "1/1/2003 - 1/15/2003".
std::string TitleOfEmployee(const CEmployee& theemployee);
std::string TitleOfDays(DateTime first, DateTime last);

} // namespace ptk
