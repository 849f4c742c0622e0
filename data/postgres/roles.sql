-- Who may do what: logins become members of one of these two. They are of the whole server, so they may be there already, and who makes a database
-- may not be allowed to make them: then its owner makes them, and runs this part again.
DO $$
DECLARE
    role_name text;
BEGIN
    FOREACH role_name IN ARRAY ARRAY['ptk_office', 'ptk_reader'] LOOP
        IF NOT EXISTS (SELECT 1 FROM pg_catalog.pg_roles WHERE rolname = role_name) THEN
            BEGIN
                EXECUTE pg_catalog.format('CREATE ROLE %I NOLOGIN', role_name);
            EXCEPTION
                WHEN duplicate_object OR unique_violation THEN
                    NULL; -- another database of this server was made at the same time
                WHEN insufficient_privilege THEN
                    RETURN;
            END;
        END IF;
    END LOOP;

    -- The office reads and writes all rows, but not the trail's, and has no right on what the tables are.
    EXECUTE pg_catalog.format('GRANT USAGE ON SCHEMA %I TO ptk_office, ptk_reader', current_schema);
    GRANT SELECT ON Company, Employee, TimeRecord, _System, _CheckLimits, _StoredQuery, _Structure, _Payday, _Profile, _Change TO ptk_office, ptk_reader;
    GRANT INSERT, UPDATE, DELETE ON Company, Employee, TimeRecord, _System, _CheckLimits, _Payday, _Profile TO ptk_office;
    GRANT USAGE ON SEQUENCE _change_changeid_seq TO ptk_office;
    GRANT UPDATE ON SEQUENCE company_companyid_seq, employee_employeeid_seq, timerecord_timerecordid_seq, _payday_paydayid_seq, _profile_profileid_seq
        TO ptk_office; -- for rows with their numbers
    GRANT SELECT ON SEQUENCE company_companyid_seq, employee_employeeid_seq, timerecord_timerecordid_seq, _payday_paydayid_seq,
        _profile_profileid_seq, _change_changeid_seq TO ptk_office, ptk_reader; -- a copy's numbers go on behind them
    GRANT EXECUTE ON FUNCTION ptk_add_entry(text, text) TO ptk_office;
END
$$;
