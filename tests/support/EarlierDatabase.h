// What makes a file of an earlier version out of a new one.
#pragma once

namespace ptk {

// The one with a trail and without reasons, what was paid, and a number of its structure. It wrote the trail's columns without naming them.
inline constexpr const char* kMakeFirstStructure =
    "DROP TABLE _Payday; DROP TABLE _Structure; DROP TRIGGER _EditWritten; ALTER TABLE _Session DROP COLUMN reason;"
    "ALTER TABLE _Change DROP COLUMN Reason;"
    "CREATE TRIGGER _EditWritten INSTEAD OF INSERT ON _Edit BEGIN INSERT INTO _Change SELECT NULL, datetime('now', 'localtime'), "
    "(SELECT user FROM _Session), (SELECT program FROM _Session), (SELECT step FROM _Session), NEW.tab, NEW.row, NEW.act, NULL, '{}', "
    "NEW.empb, NEW.empa; END";

// The one before the trail and the check's limits.
inline constexpr const char* kMakeWithoutTrail =
    "DROP TABLE _Payday; DROP TABLE _Structure;"
    "DROP TRIGGER _TimeRecordInsert; DROP TRIGGER _TimeRecordUpdate; DROP TRIGGER _TimeRecordDelete;"
    "DROP TRIGGER _EmployeeInsert; DROP TRIGGER _EmployeeUpdate; DROP TRIGGER _EmployeeDelete;"
    "DROP TRIGGER _CompanyInsert; DROP TRIGGER _CompanyUpdate; DROP TRIGGER _CompanyDelete;"
    "DROP TRIGGER _SystemInsert; DROP TRIGGER _SystemUpdate; DROP TRIGGER _SystemDelete;"
    "DROP TABLE _CheckLimits; DROP VIEW _Edit; DROP TABLE _Session; DROP TABLE _Change";

} // namespace ptk
