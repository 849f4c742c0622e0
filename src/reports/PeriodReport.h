// What the reports over a stretch of days share: the checked dates, the file name's code for them, and the time cards made for them.
#pragma once

#include "model/CDateRange.h"
#include "platform/Value.h"
#include "reports/Report.h"
#include "store/CJetDB.h"

#include <memory>
#include <string>
#include <vector>

namespace ptk {

class CEmployee;
class CTimeCard;

class PeriodReport : public Report
{
public:
    std::string Missing() const override;

protected:
    using Report::Report;

    bool Generate(const std::function<bool()>& steps); // as Report's, and nothing is missing yet

    // For a report of several cards, which are of one moment as long as this lives.
    CJetDB::Hold HoldDatabase() const;

    CDateRange& Range() { return m_range; }
    bool SetRange(const Value& thestartdate, const Value& theenddate); // false with 603 when either is no date

    std::string RangeCode(); // "0101_0116_2003": the start's month and day, the end's, the start's year
    std::string EmployeeFileName(const CEmployee& theemployee, const std::string& ending);

    std::shared_ptr<CTimeCard> NewTimeCard(const std::shared_ptr<CJetDB>& thedatabase) const;
    bool GenerateTimeCard(CTimeCard& card, const std::shared_ptr<CEmployee>& theemployee); // false with the card's own error number

    void NoteMissing(const CTimeCard& card, const std::string& whose = ""); // after GenerateTimeCard failed; the title may say whose

private:
    // Those who lack a card for one reason.
    struct Gap
    {
        std::string reason;
        std::string names;
    };

    CDateRange m_range;
    std::vector<Gap> m_missing;
};

// The pieces of the titles: "Ann Lee : ", with a leading blank when there is no first name, and "1/1/2003 - 1/15/2003".
std::string TitleOfEmployee(const CEmployee& theemployee);
std::string TitleOfDays(DateTime first, DateTime last);

} // namespace ptk
