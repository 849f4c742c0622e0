#include "office/sheet/StoredPunches.h"

#include "platform/text/Joined.h"
#include "store/engine/Statement.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr std::size_t kPeopleAtOnce = 500;

// The index TimeRecordPeriod answers it, employee by employee.
constexpr auto kStarting =
    "SELECT EmployeeID, StartTime, EndTime FROM TimeRecord WHERE EmployeeID IN ({}) AND StartTime BETWEEN :first AND :last";

std::vector<std::int32_t> EmployeesOf(std::span<const SheetPunch> punches)
{
    std::vector<std::int32_t> employees;
    employees.reserve(punches.size());
    for (const SheetPunch& punch : punches) {
        employees.push_back(punch.employee);
    }
    std::sort(employees.begin(), employees.end());
    employees.erase(std::unique(employees.begin(), employees.end()), employees.end());
    return employees;
}

} // namespace

std::size_t StoredPunches::HashKey::operator()(const Key& key) const noexcept
{
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15; // the golden ratio in 64 bits: neighbours fall far apart
    return static_cast<std::size_t>((static_cast<std::uint64_t>(key.start.Seconds()) * kSpread) ^
                                    static_cast<std::uint64_t>(key.employee) * kSpread >> 7U);
}

StoredPunches::StoredPunches(const PrepareStatement& prepare, std::span<const SheetPunch> punches)
{
    if (punches.empty()) {
        return;
    }
    const auto [first, last] = std::minmax_element(
        punches.begin(), punches.end(), [](const SheetPunch& left, const SheetPunch& right) { return left.start < right.start; });
    const std::vector<std::int32_t> employees = EmployeesOf(punches);
    for (std::span<const std::int32_t> left(employees); !left.empty(); left = left.subspan(std::min(left.size(), kPeopleAtOnce))) {
        Read(prepare, left.first(std::min(left.size(), kPeopleAtOnce)), first->start, last->start);
    }
}

void StoredPunches::Read(const PrepareStatement& prepare, std::span<const std::int32_t> employees, DateTime first, DateTime last)
{
    const auto rows = prepare(fmt::format(kStarting, Joined(employees, ", ")));
    rows->Bind("first", first);
    rows->Bind("last", last);
    rows->ForEachRow([&] {
        if (const auto start = rows->StoredDateAt(1)) {
            m_ends.emplace(Key{static_cast<std::int32_t>(rows->Int64At(0)), *start}, rows->StoredDateAt(2).value_or(DateTime()));
        }
    });
}

PunchPlace StoredPunches::PlaceOf(const SheetPunch& punch) const
{
    const auto [first, end] = m_ends.equal_range(Key{punch.employee, punch.start});
    if (first == end) {
        return PunchPlace::New;
    }
    return std::any_of(first, end, [&](const auto& entry) { return entry.second == punch.end; }) ? PunchPlace::There : PunchPlace::OtherEnd;
}

} // namespace ptk
