-- What structure 3 added to structure 2. A new database gets it as well, behind schema.sql and trail.sql, so that both come to be the same.

-- Who can make a function where the tables are can have others run it. Does nothing where somebody else owns the schema.
DO $$
BEGIN
    EXECUTE pg_catalog.format('REVOKE CREATE ON SCHEMA %I FROM PUBLIC', current_schema());
END
$$;

-- The few records that a search by start alone would miss when a card is checked: all but those with an end at most a day later. With the key in
-- it the index answers by itself, which is why the server takes it instead of reading the employee's whole history.
DROP INDEX IF EXISTS TimeRecordUnusual;
CREATE INDEX TimeRecordUnusual ON TimeRecord (EmployeeID, StartTime, EndTime, TimeRecordID) WHERE
    CASE WHEN StartTime IS NOT NULL THEN StartTime = TIMESTAMP '1899-12-30 00:00:00'
        OR EndTime NOT BETWEEN StartTime AND StartTime + interval '1 day' ELSE true END;

-- No value that a file could not keep, since each would end the next backup. The names are what is told of a refused value. Rows of an older
-- structure may hold such values until they are changed; the check names them.
ALTER TABLE Employee
    ADD CONSTRAINT "PayRate is a finite number" CHECK (PayRate > '-Infinity' AND PayRate < 'Infinity') NOT VALID,
    ADD CONSTRAINT "OvertimePayRate is a finite number" CHECK (OvertimePayRate > '-Infinity' AND OvertimePayRate < 'Infinity') NOT VALID,
    ADD CONSTRAINT "DateOfBirth is of the years 100 to 9999" CHECK (DateOfBirth BETWEEN '0100-01-01' AND '9999-12-31 23:59:59') NOT VALID,
    ADD CONSTRAINT "HireDate is of the years 100 to 9999" CHECK (HireDate BETWEEN '0100-01-01' AND '9999-12-31 23:59:59') NOT VALID,
    ADD CONSTRAINT "ReleaseDate is of the years 100 to 9999" CHECK (ReleaseDate BETWEEN '0100-01-01' AND '9999-12-31 23:59:59') NOT VALID;
ALTER TABLE TimeRecord
    ADD CONSTRAINT "ShiftDate is of the years 100 to 9999" CHECK (ShiftDate BETWEEN '0100-01-01' AND '9999-12-31 23:59:59') NOT VALID,
    ADD CONSTRAINT "StartTime is of the years 100 to 9999" CHECK (StartTime BETWEEN '0100-01-01' AND '9999-12-31 23:59:59') NOT VALID,
    ADD CONSTRAINT "EndTime is of the years 100 to 9999" CHECK (EndTime BETWEEN '0100-01-01' AND '9999-12-31 23:59:59') NOT VALID;
ALTER TABLE _System
    ADD CONSTRAINT "auto_shift_start_time is of the years 100 to 9999"
        CHECK (auto_shift_start_time BETWEEN '0100-01-01' AND '9999-12-31 23:59:59') NOT VALID,
    ADD CONSTRAINT "auto_shift_end_time is of the years 100 to 9999"
        CHECK (auto_shift_end_time BETWEEN '0100-01-01' AND '9999-12-31 23:59:59') NOT VALID;
