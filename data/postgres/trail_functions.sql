-- What writes the edit trail. Who writes a step, its number and what else it hands over are settings of the transaction, gone with it:
--   ptk.user, ptk.program  who; empty: nobody says. No more of them is kept than an index takes
--   ptk.reason             why; empty: nobody says
--   ptk.step               the number of the step, none that is still to come
--   ptk.next               the number of the next entry, used up by it: a step has the number of its first entry
--   ptk.last               set here: the number of the newest entry of this transaction
--   ptk.untold             1 while rows are not told one by one
-- A write never fails for the sake of its entry: what the settings hold is looked at before it is taken. The functions write with their owner's
-- right, since nobody else may change the trail. Whoever calls them could make them run what is not meant, by a function, operator, type or table
-- of a name or of argument types that fit better. So each has a path with nothing on it but the server's own, all that is named of the database
-- is named with the schema of the tables, which takes the place of ptk_schema here, and no argument is left without a type.

DO $make$
BEGIN
    EXECUTE pg_catalog.replace($functions$

CREATE OR REPLACE FUNCTION ptk_schema.ptk_number(setting text) RETURNS bigint LANGUAGE sql STABLE SET search_path = pg_catalog, pg_temp AS $$
    SELECT CASE WHEN current_setting(setting, true) COLLATE "C" ~ '^[0-9]{1,18}$' THEN current_setting(setting, true)::bigint END
$$;

-- A text of the settings, at most 2,000 bytes of it.
CREATE OR REPLACE FUNCTION ptk_schema.ptk_said(setting text) RETURNS text LANGUAGE sql STABLE SET search_path = pg_catalog, pg_temp AS $$
    SELECT NULLIF("left"(current_setting(setting, true), 500), '')
$$;

-- A value as the trail tells it. Passwords never appear.
CREATE OR REPLACE FUNCTION ptk_schema.ptk_told(value jsonb, named text) RETURNS text LANGUAGE sql IMMUTABLE SET search_path = pg_catalog, pg_temp AS $$
    SELECT CASE WHEN jsonb_typeof(value) = 'null' THEN 'null'
        WHEN named = 'Password' THEN '"changed"'
        WHEN jsonb_typeof(value) = 'boolean' THEN CASE WHEN value = 'true' THEN '1' ELSE '0' END
        WHEN named LIKE '%@' THEN replace(value::text, 'T', ' ')
        ELSE value::text END
$$;

-- The number of the next entry. One that was handed over is taken if it is the last that this session was given, and is new: no other would be
-- in its place among the entries of others, or stand in their way.
CREATE OR REPLACE FUNCTION ptk_schema.ptk_next() RETURNS bigint LANGUAGE plpgsql SET search_path = pg_catalog, pg_temp AS $$
DECLARE
    handed bigint := ptk_schema.ptk_number('ptk.next');
BEGIN
    IF handed IS NOT NULL THEN
        PERFORM set_config('ptk.next', '', true);
        BEGIN
            IF handed = currval('ptk_schema._change_changeid_seq') AND NOT EXISTS (SELECT 1 FROM ptk_schema._Change WHERE ChangeID = handed) THEN
                RETURN handed;
            END IF;
        EXCEPTION WHEN object_not_in_prerequisite_state THEN
            NULL; -- this session was given none
        END;
    END IF;
    RETURN nextval('ptk_schema._change_changeid_seq');
END
$$;

CREATE OR REPLACE FUNCTION ptk_schema.ptk_add(
    tab text, act text, row_id bigint, was json, is_now json, employee_was integer, employee_is integer) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path = pg_catalog, pg_temp AS $$
DECLARE
    id bigint := ptk_schema.ptk_next();
    step bigint := ptk_schema.ptk_number('ptk.step');
BEGIN
    IF ptk_schema.ptk_number('ptk.last') IS NULL THEN -- who listens asks for this entry and those behind it
        PERFORM pg_notify('ptk_change', id::text);
    END IF;
    PERFORM set_config('ptk.last', id::text, true);
    INSERT INTO ptk_schema._Change (ChangeID, ChangedAt, ChangedBy, Program, Step, TableName, RowID, Action, Before, After, EmployeeBefore, EmployeeAfter,
        Reason)
    VALUES (id, to_char(clock_timestamp(), 'YYYY-MM-DD HH24:MI:SS'), ptk_schema.ptk_said('ptk.user'), ptk_schema.ptk_said('ptk.program'),
        CASE WHEN step <= id THEN step END, tab, row_id, act, was, is_now, employee_was, employee_is,
        ptk_schema.ptk_said('ptk.reason'));
END
$$;
REVOKE EXECUTE ON FUNCTION ptk_schema.ptk_add(text, text, bigint, json, json, integer, integer) FROM PUBLIC;

-- Names are folded by the 26 letters, whatever the locale of the database. Rates are told with all their digits, however many the writer's session
-- asks for.
CREATE OR REPLACE FUNCTION ptk_schema.ptk_tell() RETURNS trigger LANGUAGE plpgsql SECURITY DEFINER SET search_path = pg_catalog, pg_temp
SET extra_float_digits = 1 AS $$
DECLARE
    tab text := TG_ARGV[0];
    old_row jsonb := CASE WHEN TG_OP <> 'INSERT' THEN to_jsonb(OLD) END;
    new_row jsonb := CASE WHEN TG_OP <> 'DELETE' THEN to_jsonb(NEW) END;
    was text;
    is_now text;
    named text;
    key text;
BEGIN
    IF current_setting('ptk.untold', true) = '1' OR old_row = new_row THEN
        RETURN NULL;
    END IF;
    FOREACH named IN ARRAY TG_ARGV[1:] LOOP
        key := lower(rtrim(named, '@') COLLATE "C");
        IF TG_OP <> 'UPDATE' OR old_row -> key <> new_row -> key THEN
            was := concat_ws(',', was, '"' || rtrim(named, '@') || '":' || ptk_schema.ptk_told(old_row -> key, named));
            is_now := concat_ws(',', is_now, '"' || rtrim(named, '@') || '":' || ptk_schema.ptk_told(new_row -> key, named));
        END IF;
    END LOOP;
    IF was IS NULL AND is_now IS NULL THEN
        RETURN NULL; -- only a column that another tool added
    END IF;
    key := ltrim(lower(tab COLLATE "C"), '_') || 'id'; -- the tables of one row have none
    PERFORM ptk_schema.ptk_add(tab, lower(TG_OP COLLATE "C"), COALESCE((COALESCE(old_row, new_row) ->> key)::bigint, 1::bigint),
        CASE WHEN old_row IS NOT NULL THEN ('{' || was || '}')::json END, CASE WHEN new_row IS NOT NULL THEN ('{' || is_now || '}')::json END,
        (old_row ->> 'employeeid')::integer, (new_row ->> 'employeeid')::integer);
    RETURN NULL;
END
$$;
REVOKE EXECUTE ON FUNCTION ptk_schema.ptk_tell() FROM PUBLIC;

-- One entry of no row, but of the database as a whole: an import, and of which file.
CREATE OR REPLACE FUNCTION ptk_schema.ptk_add_entry(act text, file text) RETURNS void LANGUAGE sql SECURITY DEFINER
SET search_path = pg_catalog, pg_temp AS $$
    SELECT ptk_schema.ptk_add(
        NULL::text, act, NULL::bigint, NULL::json, json_build_object('file'::text, file), NULL::integer, NULL::integer)
$$;
REVOKE EXECUTE ON FUNCTION ptk_schema.ptk_add_entry(text, text) FROM PUBLIC;

$functions$, 'ptk_schema', pg_catalog.quote_ident(current_schema()));
END
$make$;
