// The list of employees, in which login, employee page, time cards and reports search.
#pragma once

#include "model/CEmployee.h"
#include "model/EntityList.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace ptk {

// The look-ups answer the first match in list order, or nullptr; texts must match exactly, letter case included.
class CEmployeeList final : public EntityList<CEmployeeList, CEmployee>, public EmployeeSink
{
public:
    std::shared_ptr<CEmployee> GetEmployeeByID(std::int32_t theid);

    // Looks up a display name: see CEmployee::DisplayName.
    std::shared_ptr<CEmployee> GetEmployeeByName(std::string_view thename);

    std::shared_ptr<CEmployee> GetEmployeeBySSN(std::string_view thessn);
    std::shared_ptr<CEmployee> GetEmployeeByNumber(std::int32_t thenumber);

    // Loads only the employees with this display name, for one employee's card, and puts them before those already here. False with 301.
    bool LoadNamed(const std::shared_ptr<CJetDB>& thedatabase, const std::string& thename);

    bool InsertLoaded(EmployeeRow row, std::int32_t position) override;

private:
    bool FillFrom(CJetDB& thedatabase) override;
};

// All employees as they are stored now. Raises the failure that kept them from being read.
[[nodiscard]] std::shared_ptr<CEmployeeList> StoredEmployees(const std::shared_ptr<CJetDB>& database);

} // namespace ptk
