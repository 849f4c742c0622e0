-- What was paid, and the number of what a file is made of. May be run again, and over a file of an earlier version.

-- One row a closing of one employee's pay period: its days (midnights), when and by whom, the figures as the card showed them, and the newest
-- number of the trail before. Of several closings of one employee and period the one with the greatest number counts.
CREATE TABLE IF NOT EXISTS _Payday (
    PaydayID INTEGER PRIMARY KEY AUTOINCREMENT,
    EmployeeID INTEGER,
    FromDay DATETIME,
    ToDay DATETIME,
    PaidAt DATETIME,
    PaidBy TEXT,
    Regular TEXT,
    Overtime TEXT,
    Gross TEXT,
    Entry INTEGER
);

-- What an employee was paid last before a day, and who was paid for a day at all.
CREATE INDEX IF NOT EXISTS _PaydayEmployee ON _Payday (EmployeeID, ToDay);
CREATE INDEX IF NOT EXISTS _PaydayLast ON _Payday (ToDay);

DROP TRIGGER IF EXISTS _PaydayInsert;
CREATE TRIGGER _PaydayInsert AFTER INSERT ON _Payday BEGIN
    INSERT INTO _Edit (tab, act, row, empa, names, a0, a1, a2, a3, a4, a5, a6, a7, a8, a9)
    VALUES ('_Payday', 'insert', NEW.PaydayID, NEW.EmployeeID,
        '["PaydayID","EmployeeID","FromDay","ToDay","PaidAt","PaidBy","Regular","Overtime","Gross","Entry"]',
        NEW.PaydayID, NEW.EmployeeID, NEW.FromDay, NEW.ToDay, NEW.PaidAt, NEW.PaidBy, NEW.Regular, NEW.Overtime, NEW.Gross, NEW.Entry);
END;
DROP TRIGGER IF EXISTS _PaydayUpdate;
CREATE TRIGGER _PaydayUpdate AFTER UPDATE ON _Payday BEGIN
    INSERT INTO _Edit (tab, act, row, empb, empa, names, b0, b1, b2, b3, b4, b5, b6, b7, b8, b9, a0, a1, a2, a3, a4, a5, a6, a7, a8, a9)
    VALUES ('_Payday', 'update', OLD.PaydayID, OLD.EmployeeID, NEW.EmployeeID,
        '["PaydayID","EmployeeID","FromDay","ToDay","PaidAt","PaidBy","Regular","Overtime","Gross","Entry"]',
        OLD.PaydayID, OLD.EmployeeID, OLD.FromDay, OLD.ToDay, OLD.PaidAt, OLD.PaidBy, OLD.Regular, OLD.Overtime, OLD.Gross, OLD.Entry,
        NEW.PaydayID, NEW.EmployeeID, NEW.FromDay, NEW.ToDay, NEW.PaidAt, NEW.PaidBy, NEW.Regular, NEW.Overtime, NEW.Gross, NEW.Entry);
END;
DROP TRIGGER IF EXISTS _PaydayDelete;
CREATE TRIGGER _PaydayDelete AFTER DELETE ON _Payday BEGIN
    INSERT INTO _Edit (tab, act, row, empb, names, b0, b1, b2, b3, b4, b5, b6, b7, b8, b9)
    VALUES ('_Payday', 'delete', OLD.PaydayID, OLD.EmployeeID,
        '["PaydayID","EmployeeID","FromDay","ToDay","PaidAt","PaidBy","Regular","Overtime","Gross","Entry"]',
        OLD.PaydayID, OLD.EmployeeID, OLD.FromDay, OLD.ToDay, OLD.PaidAt, OLD.PaidBy, OLD.Regular, OLD.Overtime, OLD.Gross, OLD.Entry);
END;

-- One row: the number of this structure. A file without the table is of the first. A newer one is refused, an earlier one brought up to date with
-- the first write.
CREATE TABLE IF NOT EXISTS _Structure (version INTEGER);
DELETE FROM _Structure;
INSERT INTO _Structure VALUES (2);
