// All employees, as login, employee page, time cards and reports search them.
#pragma once

#include "model/CEmployee.h"
#include "model/EntityList.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace ptk {

// The look-ups find the first match in list order, else nullptr; texts match exactly, in their letter case.
class CEmployeeList final : public EntityList<CEmployeeList, CEmployee>, public EmployeeSink
{
public:
    std::shared_ptr<CEmployee> GetEmployeeByID(std::int32_t theid);

    // By display name.
    std::shared_ptr<CEmployee> GetEmployeeByName(std::string_view thename);

    std::shared_ptr<CEmployee> GetEmployeeBySSN(std::string_view thessn);
    std::shared_ptr<CEmployee> GetEmployeeByNumber(std::int32_t thenumber);

    // Puts only those of this display name, in their order, before those already here: for one card of one employee. False with 301.
    bool LoadNamed(const std::shared_ptr<CJetDB>& thedatabase, const std::string& thename);

    bool InsertLoaded(EmployeeRow row, std::int32_t position) override;

private:
    bool FillFrom(CJetDB& thedatabase) override;
};

} // namespace ptk
