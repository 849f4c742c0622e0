#include "office/profile/PayTable.h"

#include "model/CDateRange.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecordFactory.h"
#include "office/overview/OverviewRows.h"
#include "office/reports/ReportChoice.h"
#include "platform/text/DecimalSum.h"
#include "platform/text/Text.h"
#include "reports/forms/CellText.h"
#include "reports/ReportCards.h"
#include "store/CJetDB.h"

#include <cmath>
#include <fmt/format.h>
#include <map>

namespace ptk {

namespace {

constexpr auto kDoubled = "{} stands {} times, each with the card of the first employee of that name";

PaidHours PaidHoursOf(float hours)
{
    return {TwoDecimals(hours), WholeMinutes(hours)};
}

// Overtime is paid as the calculator pays it: with singles, and not at all if the deductions exceed the regular hours.
std::string OvertimePayOf(const CTimeCard& card)
{
    const auto pay = static_cast<float>(static_cast<double>(card.OvertimeHoursWorked()) * static_cast<double>(card.OvertimePay()));
    return TwoDecimals(card.RegularHoursWorked() < 0 || !std::isfinite(pay) ? 0 : pay);
}

std::string Less(const std::string& amount, const std::string& part)
{
    DecimalSum left;
    left.Add(amount);
    left.Add(part.starts_with('-') ? part.substr(1) : '-' + part);
    return left.Text();
}

class PayReader
{
public:
    explicit PayReader(const PayTableOrder& order)
        : m_order(order), m_hold(order.database), m_factory(std::make_shared<CTimeRecordFactory>())
    {
        RequireOpen(*order.database);
        m_days.ValidateRange(order.period.from, order.period.to); // also a period that runs backward, which a review takes, too
        m_factory->PTKDatabase(order.database); // a factory of its own, so that the program's list of records is not changed
    }

    bool Read(const PersonTaken& taken)
    {
        const std::size_t count = std::min(m_order.people.size(), m_order.most);
        for (std::size_t i = 0; i < count; ++i) {
            if (taken && !taken(i)) {
                return false;
            }
            Add(m_order.people[i]);
        }
        if (m_order.withOverview) {
            AddOverviews();
        }
        m_table.missing = m_gaps.Missing();
        return true;
    }

    PayTable Result() { return std::move(m_table); }

private:
    void Add(const std::shared_ptr<CEmployee>& employee)
    {
        CTimeCard card(m_factory);
        card.PTKDatabase(m_order.database);
        if (!GenerateTimeCard(card, employee, m_days)) {
            return NoteMissing(m_gaps, card, employee == nullptr ? "an empty entry" : employee->DisplayName());
        }
        m_table.people.push_back(PaidPersonOf(card, m_order.period));
        m_paid.push_back(employee);
    }

    void AddOverviews()
    {
        Overview overview;
        overview.period = m_order.period;
        overview.made = m_order.now;
        overview.limits = LoadCheckLimits(m_order.database);
        ReadOverview(overview, m_order.database, m_paid);
        for (std::size_t i = 0; i < m_table.people.size(); ++i) {
            m_table.people[i].overview = std::move(overview.rows.at(i));
        }
    }

    const PayTableOrder& m_order;
    CDateRange m_days;
    CJetDB::Hold m_hold; // all cards are of one moment
    std::shared_ptr<CTimeRecordFactory> m_factory;
    ReportDocument m_gaps;
    PayTable m_table;
    Employees m_paid;
};

} // namespace

PaidPerson PaidPersonOf(const CTimeCard& card, const PayPeriod& period)
{
    PaidPerson person{card.Employee(),
                      period,
                      PaidHoursOf(card.RegularHoursWorked()),
                      PaidHoursOf(card.OvertimeHoursWorked()),
                      PaidHoursOf(card.TotalBreakTime()),
                      "",
                      OvertimePayOf(card),
                      TwoDecimals(card.TotalPay()),
                      std::nullopt};
    person.regularPay = Less(person.gross, person.overtimePay);
    return person;
}

std::optional<PayTable> ReadPayTable(const PayTableOrder& order, const PersonTaken& taken)
{
    PayReader reader(order);
    return reader.Read(taken) ? std::optional(reader.Result()) : std::nullopt;
}

Employees PeopleOfReview(CEmployeeList& all, const std::vector<std::string>& names, std::vector<std::string>& doubled)
{
    const auto list = EmployeesFor(ReportWhom::Together, all, names);
    Employees people;
    for (std::int32_t i = 1; i <= list->Count(); ++i) {
        people.push_back(list->Item(i));
    }
    std::map<std::string, int> counts;
    for (const std::string& name : names) {
        ++counts[name];
    }
    for (const auto& [name, count] : counts) {
        if (count > 1) {
            doubled.push_back(fmt::format(kDoubled, name, count));
        }
    }
    return people;
}

} // namespace ptk
