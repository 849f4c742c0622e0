#include "office/payday/PaydayPersons.h"

#include "model/CEmployeeList.h"

#include <fmt/format.h>

#include <set>

namespace ptk {

namespace {

constexpr auto kEnded = "it was cancelled";

} // namespace

void AskWhetherToGoOn(const PaydayGoesOn& goesOn, std::size_t done, std::size_t all)
{
    if (goesOn && !goesOn(done, all)) {
        throw Failure(0, "PTK", kEnded);
    }
}

std::string PersonName(const PaydayPerson& person)
{
    return person.employee == nullptr ? fmt::format("Employee {}", person.id) : person.employee->DisplayName();
}

std::vector<PaydayPerson> PersonsWithClosings(CEmployeeList& employees, const Closings& closings, bool offered)
{
    const auto isPaid = [&](std::int64_t id) {
        const auto found = closings.find(id);
        return found != closings.end() && found->second.Newest() != nullptr;
    };
    std::vector<PaydayPerson> persons;
    std::set<std::int64_t> known;
    for (std::int32_t i = 1; i <= employees.Count(); ++i) {
        const auto employee = employees.Item(i);
        if (employee == nullptr) {
            continue;
        }
        known.insert(employee->EmployeeID());
        if (isPaid(employee->EmployeeID()) || (offered && employee->OfferedOnTimeCards())) {
            persons.push_back({employee->EmployeeID(), employee});
        }
    }
    for (const auto& [id, closed] : closings) {
        if (!known.contains(id) && isPaid(id)) {
            persons.push_back({id, nullptr});
        }
    }
    return persons;
}

std::vector<PaydayPerson> PersonsOf(const std::vector<std::shared_ptr<CEmployee>>& employees)
{
    std::vector<PaydayPerson> persons;
    persons.reserve(employees.size());
    for (const auto& employee : employees) {
        persons.push_back({employee->EmployeeID(), employee});
    }
    return persons;
}

} // namespace ptk
