-- The edit trail: what was changed in the database, written by the database itself, so that no program can forget it.

-- Who writes and why, for as long as a write of the program lasts: one row, empty between writes.
CREATE TABLE _Session (
    user TEXT,
    program TEXT,
    step INTEGER,
    reason TEXT
);

INSERT INTO _Session DEFAULT VALUES;

-- One row a changed row. Before and After are JSON objects of columns: all of an inserted or deleted row, the changed ones of an update. What one
-- action did together has one Step. The two employees are those whose row it is, or whose record it was, before and after.
CREATE TABLE _Change (
    ChangeID INTEGER PRIMARY KEY AUTOINCREMENT,
    ChangedAt TEXT,
    ChangedBy TEXT,
    Program TEXT,
    Step INTEGER,
    TableName TEXT,
    RowID INTEGER,
    Action TEXT,
    Before TEXT,
    After TEXT,
    EmployeeBefore INTEGER,
    EmployeeAfter INTEGER,
    Reason TEXT
);

-- Together they find all changes of an employee; the second holds only what the first misses, which is little.
CREATE INDEX _ChangeEmployee ON _Change (EmployeeAfter);
CREATE INDEX _ChangeEmployeeBefore ON _Change (EmployeeBefore) WHERE EmployeeBefore IS NOT EmployeeAfter;

-- What became of a time record; what a person did; and all else than time records, which are nearly everything. A file without them answers
-- the same, by reading more.
CREATE INDEX _ChangeRecord ON _Change (RowID) WHERE TableName = 'TimeRecord';
CREATE INDEX _ChangePerson ON _Change (ChangedBy) WHERE ChangedBy IS NOT NULL;
CREATE INDEX _ChangeOther ON _Change (TableName) WHERE TableName IS NOT 'TimeRecord';

-- What the triggers of the tables hand over to the one that writes the entry: the names of the columns as a JSON array, and their values before
-- (b) and after (a) in the same order. It keeps nothing. Every opening of the file reads all triggers: the less stands in them, the better.
CREATE VIEW _Edit (tab, act, row, empb, empa, names,
    b0, b1, b2, b3, b4, b5, b6, b7, b8, b9, b10, b11, b12, b13, b14, b15, b16, b17, b18, b19, b20, b21,
    a0, a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12, a13, a14, a15, a16, a17, a18, a19, a20, a21
) AS SELECT 0, 0, 0, 0, 0, 0, 
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0;

CREATE TRIGGER _TimeRecordInsert AFTER INSERT ON TimeRecord BEGIN
    INSERT INTO _Edit (tab, act, row, empa, names, a0, a1, a2, a3, a4)
    VALUES ('TimeRecord', 'insert', NEW.TimeRecordID, NEW.EmployeeID,
        '["TimeRecordID","EmployeeID","ShiftDate","StartTime","EndTime"]',
        NEW.TimeRecordID, NEW.EmployeeID, NEW.ShiftDate, NEW.StartTime, NEW.EndTime);
END;
CREATE TRIGGER _TimeRecordUpdate AFTER UPDATE ON TimeRecord BEGIN
    INSERT INTO _Edit (tab, act, row, empb, empa, names, b0, b1, b2, b3, b4, a0, a1, a2, a3, a4)
    VALUES ('TimeRecord', 'update', OLD.TimeRecordID, OLD.EmployeeID, NEW.EmployeeID,
        '["TimeRecordID","EmployeeID","ShiftDate","StartTime","EndTime"]',
        OLD.TimeRecordID, OLD.EmployeeID, OLD.ShiftDate, OLD.StartTime, OLD.EndTime, NEW.TimeRecordID, NEW.EmployeeID, NEW.ShiftDate,
        NEW.StartTime, NEW.EndTime);
END;
CREATE TRIGGER _TimeRecordDelete AFTER DELETE ON TimeRecord BEGIN
    INSERT INTO _Edit (tab, act, row, empb, names, b0, b1, b2, b3, b4)
    VALUES ('TimeRecord', 'delete', OLD.TimeRecordID, OLD.EmployeeID,
        '["TimeRecordID","EmployeeID","ShiftDate","StartTime","EndTime"]',
        OLD.TimeRecordID, OLD.EmployeeID, OLD.ShiftDate, OLD.StartTime, OLD.EndTime);
END;

CREATE TRIGGER _EmployeeInsert AFTER INSERT ON Employee BEGIN
    INSERT INTO _Edit (tab, act, row, empa, names, a0, a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12, a13, a14, a15, a16, a17, a18,
    a19, a20, a21)
    VALUES ('Employee', 'insert', NEW.EmployeeID, NEW.EmployeeID,
        '["EmployeeID","SSNumber","FirstName","LastName","Address","Address2","City","State","ZipCode","Phone","EmployeeNumber","DateOfBirth","HireDate","ReleaseDate","PayRate","OvertimePayRate","Active","CompanyID","AutoDeduct","AutoDeductLunchLength","AutoDeductBreakLength","Password"]',
        NEW.EmployeeID, NEW.SSNumber, NEW.FirstName, NEW.LastName, NEW.Address, NEW.Address2, NEW.City, NEW.State, NEW.ZipCode, NEW.Phone,
        NEW.EmployeeNumber, NEW.DateOfBirth, NEW.HireDate, NEW.ReleaseDate, NEW.PayRate, NEW.OvertimePayRate, NEW.Active, NEW.CompanyID,
        NEW.AutoDeduct, NEW.AutoDeductLunchLength, NEW.AutoDeductBreakLength, NEW.Password);
END;
CREATE TRIGGER _EmployeeUpdate AFTER UPDATE ON Employee BEGIN
    INSERT INTO _Edit (tab, act, row, empb, empa, names, b0, b1, b2, b3, b4, b5, b6, b7, b8, b9, b10, b11, b12, b13, b14, b15, b16, b17,
    b18, b19, b20, b21, a0, a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12, a13, a14, a15, a16, a17, a18, a19, a20, a21)
    VALUES ('Employee', 'update', OLD.EmployeeID, OLD.EmployeeID, NEW.EmployeeID,
        '["EmployeeID","SSNumber","FirstName","LastName","Address","Address2","City","State","ZipCode","Phone","EmployeeNumber","DateOfBirth","HireDate","ReleaseDate","PayRate","OvertimePayRate","Active","CompanyID","AutoDeduct","AutoDeductLunchLength","AutoDeductBreakLength","Password"]',
        OLD.EmployeeID, OLD.SSNumber, OLD.FirstName, OLD.LastName, OLD.Address, OLD.Address2, OLD.City, OLD.State, OLD.ZipCode, OLD.Phone,
        OLD.EmployeeNumber, OLD.DateOfBirth, OLD.HireDate, OLD.ReleaseDate, OLD.PayRate, OLD.OvertimePayRate, OLD.Active, OLD.CompanyID,
        OLD.AutoDeduct, OLD.AutoDeductLunchLength, OLD.AutoDeductBreakLength, OLD.Password, NEW.EmployeeID, NEW.SSNumber, NEW.FirstName,
        NEW.LastName, NEW.Address, NEW.Address2, NEW.City, NEW.State, NEW.ZipCode, NEW.Phone, NEW.EmployeeNumber, NEW.DateOfBirth,
        NEW.HireDate, NEW.ReleaseDate, NEW.PayRate, NEW.OvertimePayRate, NEW.Active, NEW.CompanyID, NEW.AutoDeduct,
        NEW.AutoDeductLunchLength, NEW.AutoDeductBreakLength, NEW.Password);
END;
CREATE TRIGGER _EmployeeDelete AFTER DELETE ON Employee BEGIN
    INSERT INTO _Edit (tab, act, row, empb, names, b0, b1, b2, b3, b4, b5, b6, b7, b8, b9, b10, b11, b12, b13, b14, b15, b16, b17, b18,
    b19, b20, b21)
    VALUES ('Employee', 'delete', OLD.EmployeeID, OLD.EmployeeID,
        '["EmployeeID","SSNumber","FirstName","LastName","Address","Address2","City","State","ZipCode","Phone","EmployeeNumber","DateOfBirth","HireDate","ReleaseDate","PayRate","OvertimePayRate","Active","CompanyID","AutoDeduct","AutoDeductLunchLength","AutoDeductBreakLength","Password"]',
        OLD.EmployeeID, OLD.SSNumber, OLD.FirstName, OLD.LastName, OLD.Address, OLD.Address2, OLD.City, OLD.State, OLD.ZipCode, OLD.Phone,
        OLD.EmployeeNumber, OLD.DateOfBirth, OLD.HireDate, OLD.ReleaseDate, OLD.PayRate, OLD.OvertimePayRate, OLD.Active, OLD.CompanyID,
        OLD.AutoDeduct, OLD.AutoDeductLunchLength, OLD.AutoDeductBreakLength, OLD.Password);
END;

CREATE TRIGGER _CompanyInsert AFTER INSERT ON Company BEGIN
    INSERT INTO _Edit (tab, act, row, names, a0, a1, a2, a3, a4, a5, a6, a7, a8, a9, a10)
    VALUES ('Company', 'insert', NEW.CompanyID,
        '["CompanyID","Name","Address1","Address2","City","State","ZipCode","Phone","Fax","FederalTaxID","URL"]',
        NEW.CompanyID, NEW.Name, NEW.Address1, NEW.Address2, NEW.City, NEW.State, NEW.ZipCode, NEW.Phone, NEW.Fax, NEW.FederalTaxID,
        NEW.URL);
END;
CREATE TRIGGER _CompanyUpdate AFTER UPDATE ON Company BEGIN
    INSERT INTO _Edit (tab, act, row, names, b0, b1, b2, b3, b4, b5, b6, b7, b8, b9, b10, a0, a1, a2, a3, a4, a5, a6, a7, a8, a9, a10)
    VALUES ('Company', 'update', OLD.CompanyID,
        '["CompanyID","Name","Address1","Address2","City","State","ZipCode","Phone","Fax","FederalTaxID","URL"]',
        OLD.CompanyID, OLD.Name, OLD.Address1, OLD.Address2, OLD.City, OLD.State, OLD.ZipCode, OLD.Phone, OLD.Fax, OLD.FederalTaxID,
        OLD.URL, NEW.CompanyID, NEW.Name, NEW.Address1, NEW.Address2, NEW.City, NEW.State, NEW.ZipCode, NEW.Phone, NEW.Fax,
        NEW.FederalTaxID, NEW.URL);
END;
CREATE TRIGGER _CompanyDelete AFTER DELETE ON Company BEGIN
    INSERT INTO _Edit (tab, act, row, names, b0, b1, b2, b3, b4, b5, b6, b7, b8, b9, b10)
    VALUES ('Company', 'delete', OLD.CompanyID,
        '["CompanyID","Name","Address1","Address2","City","State","ZipCode","Phone","Fax","FederalTaxID","URL"]',
        OLD.CompanyID, OLD.Name, OLD.Address1, OLD.Address2, OLD.City, OLD.State, OLD.ZipCode, OLD.Phone, OLD.Fax, OLD.FederalTaxID,
        OLD.URL);
END;

CREATE TRIGGER _SystemInsert AFTER INSERT ON _System BEGIN
    INSERT INTO _Edit (tab, act, row, names, a0, a1, a2, a3, a4)
    VALUES ('_System', 'insert', NEW.rowid,
        '["program","version","period_length","auto_shift_start_time","auto_shift_end_time"]',
        NEW.program, NEW.version, NEW.period_length, NEW.auto_shift_start_time, NEW.auto_shift_end_time);
END;
CREATE TRIGGER _SystemUpdate AFTER UPDATE ON _System BEGIN
    INSERT INTO _Edit (tab, act, row, names, b0, b1, b2, b3, b4, a0, a1, a2, a3, a4)
    VALUES ('_System', 'update', OLD.rowid,
        '["program","version","period_length","auto_shift_start_time","auto_shift_end_time"]',
        OLD.program, OLD.version, OLD.period_length, OLD.auto_shift_start_time, OLD.auto_shift_end_time, NEW.program, NEW.version,
        NEW.period_length, NEW.auto_shift_start_time, NEW.auto_shift_end_time);
END;
CREATE TRIGGER _SystemDelete AFTER DELETE ON _System BEGIN
    INSERT INTO _Edit (tab, act, row, names, b0, b1, b2, b3, b4)
    VALUES ('_System', 'delete', OLD.rowid,
        '["program","version","period_length","auto_shift_start_time","auto_shift_end_time"]',
        OLD.program, OLD.version, OLD.period_length, OLD.auto_shift_start_time, OLD.auto_shift_end_time);
END;

CREATE TRIGGER _CheckLimitsInsert AFTER INSERT ON _CheckLimits BEGIN
    INSERT INTO _Edit (tab, act, row, names, a0, a1, a2)
    VALUES ('_CheckLimits', 'insert', NEW.rowid,
        '["long_shift_hours","first_weekday","show_notices"]',
        NEW.long_shift_hours, NEW.first_weekday, NEW.show_notices);
END;
CREATE TRIGGER _CheckLimitsUpdate AFTER UPDATE ON _CheckLimits BEGIN
    INSERT INTO _Edit (tab, act, row, names, b0, b1, b2, a0, a1, a2)
    VALUES ('_CheckLimits', 'update', OLD.rowid,
        '["long_shift_hours","first_weekday","show_notices"]',
        OLD.long_shift_hours, OLD.first_weekday, OLD.show_notices, NEW.long_shift_hours, NEW.first_weekday, NEW.show_notices);
END;
CREATE TRIGGER _CheckLimitsDelete AFTER DELETE ON _CheckLimits BEGIN
    INSERT INTO _Edit (tab, act, row, names, b0, b1, b2)
    VALUES ('_CheckLimits', 'delete', OLD.rowid,
        '["long_shift_hours","first_weekday","show_notices"]',
        OLD.long_shift_hours, OLD.first_weekday, OLD.show_notices);
END;
