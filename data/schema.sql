-- The tables of a new database.

PRAGMA application_id = 0x50544B31; -- "PTK1"
PRAGMA user_version = 1;

CREATE TABLE Company (
    CompanyID INTEGER PRIMARY KEY AUTOINCREMENT,
    Name TEXT,
    Address1 TEXT,
    Address2 TEXT,
    City TEXT,
    State TEXT,
    ZipCode TEXT,
    Phone TEXT,
    Fax TEXT,
    FederalTaxID TEXT,
    URL TEXT
);

CREATE TABLE Employee (
    EmployeeID INTEGER PRIMARY KEY AUTOINCREMENT,
    SSNumber TEXT,
    FirstName TEXT,
    LastName TEXT,
    Address TEXT,
    Address2 TEXT,
    City TEXT,
    State TEXT,
    ZipCode TEXT,
    Phone TEXT,
    EmployeeNumber INTEGER,
    DateOfBirth DATETIME,
    HireDate DATETIME,
    ReleaseDate DATETIME,
    PayRate SINGLE,
    OvertimePayRate SINGLE,
    Active BOOLEAN,
    CompanyID INTEGER,
    AutoDeduct BOOLEAN,
    AutoDeductLunchLength INTEGER,
    AutoDeductBreakLength INTEGER,
    Password TEXT
);

-- The order of the list of employees, as its stored query asks for it: sorting ten thousand of them took a third of the program's start.
CREATE INDEX EmployeeOrder ON Employee (IFNULL(LastName, '') COLLATE NOCASE, IFNULL(FirstName, '') COLLATE NOCASE, EmployeeID);

-- Date-times are texts 'YYYY-MM-DD HH:MM:SS'; an EndTime of 1899-12-30 00:00:00 is a shift that still runs.
CREATE TABLE TimeRecord (
    TimeRecordID INTEGER PRIMARY KEY AUTOINCREMENT,
    EmployeeID INTEGER,
    ShiftDate DATETIME,
    StartTime DATETIME,
    EndTime DATETIME
);

-- Answers the fetch of an employee's pay period, in its order, without touching the table.
CREATE INDEX TimeRecordPeriod ON TimeRecord (EmployeeID, StartTime, EndTime);

-- The few records that a search by start alone would miss when a card is checked: all but those with a start that can be read and an end at most
-- a day later. What does not begin with a digit is kept from the date functions, which refuse the text 'now'.
CREATE INDEX TimeRecordUnusual ON TimeRecord (EmployeeID, StartTime, EndTime) WHERE
    CASE WHEN StartTime BETWEEN '0100-' AND ':' THEN
        datetime(StartTime, '+0 days') IS NOT NULLIF(StartTime, '1899-12-30 00:00:00')
        OR EndTime NOT BETWEEN StartTime AND datetime(StartTime, '+1 day')
    ELSE 1 END;

-- One row: the options of the program.
CREATE TABLE _System (
    program TEXT,
    version TEXT,
    period_length INTEGER,
    auto_shift_start_time DATETIME,
    auto_shift_end_time DATETIME
);

-- One row: what the check of a time card looks for. The first day of a work week is 0 for Sunday to 6 for Saturday.
CREATE TABLE _CheckLimits (
    long_shift_hours INTEGER,
    first_weekday INTEGER,
    show_notices BOOLEAN
);

CREATE TABLE _StoredQuery (
    name TEXT PRIMARY KEY,
    sql TEXT NOT NULL
);

INSERT INTO _System VALUES ('PTK - Administrator', '1.0', 14, '1899-12-30 08:00:00', '1899-12-30 17:00:00');

INSERT INTO _CheckLimits VALUES (16, 0, 1);

-- The program knows its administrator by this number.
INSERT INTO Employee (
    EmployeeID, SSNumber, FirstName, LastName, Address, Address2, City, State, ZipCode, Phone, EmployeeNumber, DateOfBirth, HireDate,
    ReleaseDate, PayRate, OvertimePayRate, Active, CompanyID, AutoDeduct, AutoDeductLunchLength, AutoDeductBreakLength, Password
) VALUES (
    39, '', '', 'administrator', '', '', '', '', '', '', 0, '1899-12-30 00:00:00', '1899-12-30 00:00:00',
    '1899-12-30 00:00:00', 0, 0, 1, 0, 0, 0, 0, 'wharf271'
);
