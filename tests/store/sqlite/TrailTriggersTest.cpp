#include "store/sqlite/TrailTriggers.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

// As they stand in every file that was made so far: a text that differs in one byte is told as a stranger's trigger.
constexpr const char* kOfTimeRecords = R"sql(CREATE TRIGGER _TimeRecordUpdate AFTER UPDATE ON TimeRecord BEGIN
    INSERT INTO _Edit (tab, act, row, empb, empa, names, b0, b1, b2, b3, b4, a0, a1, a2, a3, a4)
    VALUES ('TimeRecord', 'update', OLD.TimeRecordID, OLD.EmployeeID, NEW.EmployeeID,
        '["TimeRecordID","EmployeeID","ShiftDate","StartTime","EndTime"]',
        OLD.TimeRecordID, OLD.EmployeeID, OLD.ShiftDate, OLD.StartTime, OLD.EndTime, NEW.TimeRecordID, NEW.EmployeeID, NEW.ShiftDate,
        NEW.StartTime, NEW.EndTime);
END;
)sql";
constexpr const char* kOfEmployees = R"sql(CREATE TRIGGER _EmployeeInsert AFTER INSERT ON Employee BEGIN
    INSERT INTO _Edit (tab, act, row, empa, names, a0, a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12, a13, a14, a15, a16, a17, a18,
    a19, a20, a21)
    VALUES ('Employee', 'insert', NEW.EmployeeID, NEW.EmployeeID,
        '["EmployeeID","SSNumber","FirstName","LastName","Address","Address2","City","State","ZipCode","Phone","EmployeeNumber","DateOfBirth","HireDate","ReleaseDate","PayRate","OvertimePayRate","Active","CompanyID","AutoDeduct","AutoDeductLunchLength","AutoDeductBreakLength","Password"]',
        NEW.EmployeeID, NEW.SSNumber, NEW.FirstName, NEW.LastName, NEW.Address, NEW.Address2, NEW.City, NEW.State, NEW.ZipCode, NEW.Phone,
        NEW.EmployeeNumber, NEW.DateOfBirth, NEW.HireDate, NEW.ReleaseDate, NEW.PayRate, NEW.OvertimePayRate, NEW.Active, NEW.CompanyID,
        NEW.AutoDeduct, NEW.AutoDeductLunchLength, NEW.AutoDeductBreakLength, NEW.Password);
END;
)sql";
constexpr const char* kOfLimits = R"sql(CREATE TRIGGER _CheckLimitsDelete AFTER DELETE ON _CheckLimits BEGIN
    INSERT INTO _Edit (tab, act, row, names, b0, b1, b2)
    VALUES ('_CheckLimits', 'delete', OLD.rowid,
        '["long_shift_hours","first_weekday","show_notices"]',
        OLD.long_shift_hours, OLD.first_weekday, OLD.show_notices);
END;
)sql";
constexpr const char* kView = R"sql(CREATE VIEW _Edit (tab, act, row, empb, empa, names,
    b0, b1, b2, b3, b4, b5, b6, b7, b8, b9, b10, b11, b12, b13, b14, b15, b16, b17, b18, b19, b20, b21,
    a0, a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12, a13, a14, a15, a16, a17, a18, a19, a20, a21
) AS SELECT 0, 0, 0, 0, 0, 0, 
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0;
)sql";
constexpr const char* kOfEntries = R"sql(CASE key
        WHEN 0 THEN NEW.a0 WHEN 1 THEN NEW.a1 WHEN 2 THEN NEW.a2 WHEN 3 THEN NEW.a3 WHEN 4 THEN NEW.a4 WHEN 5 THEN NEW.a5 WHEN 6 THEN
        NEW.a6 WHEN 7 THEN NEW.a7 WHEN 8 THEN NEW.a8 WHEN 9 THEN NEW.a9 WHEN 10 THEN NEW.a10 WHEN 11 THEN NEW.a11 WHEN 12 THEN NEW.a12
        WHEN 13 THEN NEW.a13 WHEN 14 THEN NEW.a14 WHEN 15 THEN NEW.a15 WHEN 16 THEN NEW.a16 WHEN 17 THEN NEW.a17 WHEN 18 THEN NEW.a18 WHEN
        19 THEN NEW.a19 WHEN 20 THEN NEW.a20 WHEN 21 THEN NEW.a21 END a FROM json_each(NEW.names))sql";

TEST(TrailTriggersTest, AreThoseOfEveryFileToTheByte)
{
    const std::string text = TrailTriggers() + TrailEntryTrigger();
    for (const char* trigger : {kView, kOfTimeRecords, kOfEmployees, kOfLimits, kOfEntries}) {
        EXPECT_NE(text.find(trigger), std::string::npos) << trigger << "is not in\n" << text;
    }
}

} // namespace

} // namespace ptk
