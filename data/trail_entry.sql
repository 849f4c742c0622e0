-- How the edit trail (trail.sql) makes an entry of what a table's trigger hands over. May be run again over an older version of it. Where a letter
-- stands between dollar signs, the program says which column of _Edit has which number (src/store/sqlite/TrailTriggers).

-- Takes whatever value there is, since a refusal here would be one of the write itself. Passwords never appear.
DROP TRIGGER IF EXISTS _EditWritten;
CREATE TRIGGER _EditWritten INSTEAD OF INSERT ON _Edit BEGIN
    INSERT INTO _Change (ChangedAt, ChangedBy, Program, Step, TableName, RowID, Action, Before, After, EmployeeBefore, EmployeeAfter, Reason)
    SELECT datetime('now', 'localtime'),
    (SELECT user FROM _Session), (SELECT program FROM _Session), (SELECT step FROM _Session), NEW.tab, NEW.row, NEW.act,
    CASE WHEN NEW.act <> 'insert' THEN '{' || group_concat(json_quote(k) || ':' ||
        CASE WHEN k = 'Password' AND b IS NOT NULL THEN '"changed"' WHEN typeof(b) = 'blob' THEN json_object('blob', hex(b))
            WHEN typeof(b) <> 'real' THEN json_quote(b) WHEN abs(b) < 9e999 THEN printf('%!.17g', b) ELSE json_quote(b || '') END) || '}' END,
    CASE WHEN NEW.act <> 'delete' THEN '{' || group_concat(json_quote(k) || ':' ||
        CASE WHEN k = 'Password' AND a IS NOT NULL THEN '"changed"' WHEN typeof(a) = 'blob' THEN json_object('blob', hex(a))
            WHEN typeof(a) <> 'real' THEN json_quote(a) WHEN abs(a) < 9e999 THEN printf('%!.17g', a) ELSE json_quote(a || '') END) || '}' END,
    NEW.empb, NEW.empa, (SELECT reason FROM _Session)
    FROM (SELECT value k, CASE key
$B$ END b,
        CASE key
$A$ END a FROM json_each(NEW.names)) WHERE NEW.act <> 'update' OR b IS NOT a HAVING count(*) > 0;
END;
