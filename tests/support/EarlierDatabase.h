// Scripts that turn a new database file into one of an earlier version.
#pragma once

namespace ptk {

// Makes the structure that has a trail, but no reasons, no paydays, no profiles and no number of its structure. Its trigger writes the
// columns of the trail without naming them.
inline constexpr const char* kMakeFirstStructure =
    "DROP TABLE _Payday; DROP TABLE _Profile; DROP TABLE _Structure; DROP TRIGGER _EditWritten; ALTER TABLE _Session DROP COLUMN reason;"
    "ALTER TABLE _Change DROP COLUMN Reason;"
    R"sql(CREATE TRIGGER _EditWritten INSTEAD OF INSERT ON _Edit BEGIN
    INSERT INTO _Change SELECT NULL, datetime('now', 'localtime'),
    (SELECT user FROM _Session), (SELECT program FROM _Session), (SELECT step FROM _Session), NEW.tab, NEW.row, NEW.act,
    CASE WHEN NEW.act <> 'insert' THEN '{' || group_concat(json_quote(k) || ':' ||
        CASE WHEN k = 'Password' AND b IS NOT NULL THEN '"changed"' WHEN typeof(b) = 'blob' THEN json_object('blob', hex(b))
            WHEN typeof(b) <> 'real' THEN json_quote(b) WHEN abs(b) < 9e999 THEN printf('%!.17g', b) ELSE json_quote(b || '') END) || '}' END,
    CASE WHEN NEW.act <> 'delete' THEN '{' || group_concat(json_quote(k) || ':' ||
        CASE WHEN k = 'Password' AND a IS NOT NULL THEN '"changed"' WHEN typeof(a) = 'blob' THEN json_object('blob', hex(a))
            WHEN typeof(a) <> 'real' THEN json_quote(a) WHEN abs(a) < 9e999 THEN printf('%!.17g', a) ELSE json_quote(a || '') END) || '}' END,
    NEW.empb, NEW.empa
    FROM (SELECT value k, CASE key
        WHEN 0 THEN NEW.b0 WHEN 1 THEN NEW.b1 WHEN 2 THEN NEW.b2 WHEN 3 THEN NEW.b3 WHEN 4 THEN NEW.b4 WHEN 5 THEN NEW.b5 WHEN 6 THEN
        NEW.b6 WHEN 7 THEN NEW.b7 WHEN 8 THEN NEW.b8 WHEN 9 THEN NEW.b9 WHEN 10 THEN NEW.b10 WHEN 11 THEN NEW.b11 WHEN 12 THEN NEW.b12
        WHEN 13 THEN NEW.b13 WHEN 14 THEN NEW.b14 WHEN 15 THEN NEW.b15 WHEN 16 THEN NEW.b16 WHEN 17 THEN NEW.b17 WHEN 18 THEN NEW.b18 WHEN
        19 THEN NEW.b19 WHEN 20 THEN NEW.b20 WHEN 21 THEN NEW.b21 END b,
        CASE key
        WHEN 0 THEN NEW.a0 WHEN 1 THEN NEW.a1 WHEN 2 THEN NEW.a2 WHEN 3 THEN NEW.a3 WHEN 4 THEN NEW.a4 WHEN 5 THEN NEW.a5 WHEN 6 THEN
        NEW.a6 WHEN 7 THEN NEW.a7 WHEN 8 THEN NEW.a8 WHEN 9 THEN NEW.a9 WHEN 10 THEN NEW.a10 WHEN 11 THEN NEW.a11 WHEN 12 THEN NEW.a12
        WHEN 13 THEN NEW.a13 WHEN 14 THEN NEW.a14 WHEN 15 THEN NEW.a15 WHEN 16 THEN NEW.a16 WHEN 17 THEN NEW.a17 WHEN 18 THEN NEW.a18 WHEN
        19 THEN NEW.a19 WHEN 20 THEN NEW.a20 WHEN 21 THEN NEW.a21 END a FROM json_each(NEW.names)) WHERE NEW.act <> 'update' OR b IS NOT a HAVING count(*) > 0;
END)sql";

// Makes the structure from before the trail and the limits of the check.
inline constexpr const char* kMakeWithoutTrail =
    "DROP TABLE _Payday; DROP TABLE _Profile; DROP TABLE _Structure;"
    "DROP TRIGGER _TimeRecordInsert; DROP TRIGGER _TimeRecordUpdate; DROP TRIGGER _TimeRecordDelete;"
    "DROP TRIGGER _EmployeeInsert; DROP TRIGGER _EmployeeUpdate; DROP TRIGGER _EmployeeDelete;"
    "DROP TRIGGER _CompanyInsert; DROP TRIGGER _CompanyUpdate; DROP TRIGGER _CompanyDelete;"
    "DROP TRIGGER _SystemInsert; DROP TRIGGER _SystemUpdate; DROP TRIGGER _SystemDelete;"
    "DROP TABLE _CheckLimits; DROP VIEW _Edit; DROP TABLE _Session; DROP TABLE _Change";

} // namespace ptk
