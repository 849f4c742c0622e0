// Which field of a row holds which column: in the order in which the columns are read, the key first. Rows are read and compared by this.
#pragma once

#include "store/rows/Rows.h"

#include <tuple>

namespace ptk::rowfields {

using E = EmployeeRow;
inline constexpr std::tuple kEmployee{&E::EmployeeID,
                                      &E::SSN,
                                      &E::FirstName,
                                      &E::LastName,
                                      &E::Address1,
                                      &E::Address2,
                                      &E::City,
                                      &E::State,
                                      &E::ZipCode,
                                      &E::Phone,
                                      &E::EmployeeNumber,
                                      &E::DateOfBirth,
                                      &E::HireDate,
                                      &E::ReleaseDate,
                                      &E::PayRate,
                                      &E::OvertimePayRate,
                                      &E::EmployeeActive,
                                      &E::CompanyID,
                                      &E::AutoDeduct,
                                      &E::AutoDeductLunchLength,
                                      &E::AutoDeductBreakLength,
                                      &E::Password};

using C = CompanyRow;
inline constexpr std::tuple kCompany{&C::CompanyID, &C::CompanyName, &C::Address1, &C::Address2, &C::City,
                                     &C::State,     &C::ZipCode,     &C::Phone,    &C::Fax,      &C::FederalTaxID};

using T = TimeRecordRow;
inline constexpr std::tuple kTimeRecord{&T::TimeRecordID, &T::EmployeeID, &T::StartTime, &T::EndTime};

} // namespace ptk::rowfields
