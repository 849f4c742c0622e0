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
