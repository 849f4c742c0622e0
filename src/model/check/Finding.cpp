#include "model/check/Finding.h"

#include <array>
#include <tuple>

namespace ptk {

namespace {

struct Kind
{
    std::string_view name;
    Severity severity;
};

// In the order of FindingKind.
constexpr std::array<Kind, 22> kKinds{{
    {"unreadable", Severity::Problem}, {"open", Severity::Problem},        {"clocked-in", Severity::Notice},
    {"open-later", Severity::Notice},  {"backward", Severity::Problem},    {"empty", Severity::Notice},
    {"long", Severity::Problem},       {"future", Severity::Problem},      {"overlap", Severity::Problem},
    {"same-start", Severity::Problem}, {"crosses-end", Severity::Problem}, {"crosses-start", Severity::Problem},
    {"deduction", Severity::Problem},  {"no-rate", Severity::Problem},     {"not-employed", Severity::Notice},
    {"long-day", Severity::Problem},   {"week", Severity::Notice},         {"paid-changed", Severity::Problem},
    {"twice", Severity::Problem},      {"between", Severity::Problem},     {"clock-change", Severity::Notice},
    {"no-shift", Severity::Notice},
}};

const Kind& At(FindingKind kind)
{
    return kKinds.at(static_cast<std::size_t>(kind));
}

} // namespace

std::string_view KindName(FindingKind kind)
{
    return At(kind).name;
}

Severity SeverityOf(FindingKind kind)
{
    return At(kind).severity;
}

std::string_view SeverityName(Severity severity)
{
    return severity == Severity::Problem ? "problem" : "notice";
}

bool operator<(const Finding& left, const Finding& right)
{
    return std::tie(left.from, left.kind, left.records) < std::tie(right.from, right.kind, right.records);
}

} // namespace ptk
