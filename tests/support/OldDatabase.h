// Writes a small older database, for tests that need a sound one.
#pragma once

#include "support/Files.h"
#include "support/JetFileBuilder.h"

#include <algorithm>
#include <string>
#include <vector>

namespace ptk {

// Holds one employee, all of whose texts are "Jos\xE9", with one shift of six hours on 14 January 2004; no company, no options. `counted`:
// the number of time records that their table claims to hold.
inline void WriteOldDatabase(const std::string& path, std::uint32_t counted = 1)
{
    using Builder = JetFileBuilder;
    using Type = Builder::Type;
    std::vector<Builder::Column> staff{{"EmployeeID", Type::Long}};
    for (const char* name : {"SSNumber", "FirstName", "LastName", "Address", "Address2", "City", "State", "ZipCode", "Phone", "Password"}) {
        staff.push_back({name, Type::Text});
    }
    for (const char* name : {"EmployeeNumber", "PayRate", "OvertimePayRate", "CompanyID", "AutoDeductLunchLength", "AutoDeductBreakLength",
                             "Active", "AutoDeduct"}) {
        staff.push_back({name, Type::Long});
    }
    std::vector<Builder::Column> firms{{"CompanyID", Type::Long}};
    for (const char* name : {"Name", "Address1", "Address2", "City", "State", "ZipCode", "Phone"}) {
        firms.push_back({name, Type::Text});
    }
    Builder builder;
    Builder::Row lee(staff.size(), 1.0);
    std::fill(lee.begin() + 1, lee.begin() + 11, Builder::Cell("Jos\xE9"));
    builder.AddTable("Staff", staff, {lee});
    builder.AddTable("Firms", firms, {});
    builder.AddTable("TimeRecord",
                     {{"TimeRecordID", Type::Long}, {"EmployeeID", Type::Long}, {"StartTime", Type::Date}, {"EndTime", Type::Date}},
                     {{1.0, 1.0, 38000.25, 38000.5}}, counted);
    WriteBytes(path, builder.Build());
}

} // namespace ptk
