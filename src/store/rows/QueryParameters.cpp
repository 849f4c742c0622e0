#include "store/rows/QueryParameters.h"

namespace ptk {

namespace {

enum class Query
{
    Add,
    Change
};

template <typename Row, typename... T>
std::vector<Parameter> ParametersOf(const Row& row, Query query, const std::tuple<RowField<Row, T>...>& fields)
{
    std::vector<Parameter> parameters;
    const auto add = [&](const auto& each) {
        if (const char* const name = query == Query::Add ? each.added : each.changed; name != nullptr) {
            parameters.push_back({name, row.*each.field});
        }
    };
    std::apply([&](const auto&... each) { (add(each), ...); }, fields);
    return parameters;
}

} // namespace

// The password deliberately comes twice, since it always did; parameters are found by name, and both carry the same value.
std::vector<Parameter> AddNewEmployeeParameters(const EmployeeRow& employee)
{
    auto parameters = ParametersOf(employee, Query::Add, kEmployeeFields);
    parameters.push_back({"paramPassword", employee.Password});
    return parameters;
}

// The company deliberately comes twice, as the password does in AddNewEmployeeParameters.
std::vector<Parameter> UpdateEmployeeParameters(const EmployeeRow& employee)
{
    auto parameters = ParametersOf(employee, Query::Change, kEmployeeFields);
    parameters.push_back({"company_id", employee.CompanyID});
    return parameters;
}

std::vector<Parameter> AddNewCompanyParameters(const CompanyRow& company)
{
    auto parameters = ParametersOf(company, Query::Add, kCompanyFields);
    parameters.push_back({"paramURL", company.URL});
    return parameters;
}

std::vector<Parameter> UpdateCompanyParameters(const CompanyRow& company)
{
    auto parameters = ParametersOf(company, Query::Change, kCompanyFields);
    parameters.push_back({"paramURL", company.URL});
    return parameters;
}

} // namespace ptk
