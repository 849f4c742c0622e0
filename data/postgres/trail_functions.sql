-- What writes the edit trail. Who writes a step, its number and what else it hands over are settings of the transaction, gone with it:
--   ptk.user, ptk.program  who; empty: nobody says
--   ptk.step               the number of the step
--   ptk.next               the number of the next entry, used up by it: a step has the number of its first entry
--   ptk.last               set here: the number of the newest entry of this transaction
--   ptk.untold             1 while rows are not told one by one
-- A write never fails for the sake of its entry: what the settings hold is looked at before it is taken. The functions write with their owner's
-- right, since nobody else may change the trail. Run in one transaction: until its end the path below holds, which the functions keep. Without it
-- they would look first among the temporary tables of whoever writes, which may bear the trail's names.

SELECT set_config('search_path', quote_ident(current_schema()) || ', pg_temp', true);

CREATE OR REPLACE FUNCTION ptk_number(setting text) RETURNS bigint LANGUAGE sql STABLE AS $$
    SELECT CASE WHEN current_setting(setting, true) ~ '^[0-9]{1,18}$' THEN current_setting(setting, true)::bigint END
$$;

-- A value as the trail tells it. Passwords never appear.
CREATE OR REPLACE FUNCTION ptk_told(value jsonb, named text) RETURNS text LANGUAGE sql IMMUTABLE AS $$
    SELECT CASE WHEN jsonb_typeof(value) = 'null' THEN 'null'
        WHEN named = 'Password' THEN '"changed"'
        WHEN jsonb_typeof(value) = 'boolean' THEN CASE WHEN value = 'true' THEN '1' ELSE '0' END
        WHEN named LIKE '%@' THEN replace(value::text, 'T', ' ')
        ELSE value::text END
$$;

CREATE OR REPLACE FUNCTION ptk_add(tab text, act text, row_id bigint, was json, is_now json, employee_was integer, employee_is integer) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
    id bigint := ptk_number('ptk.next');
BEGIN
    IF id IS NULL THEN
        id := nextval('_change_changeid_seq');
    ELSE
        PERFORM set_config('ptk.next', '', true);
    END IF;
    IF ptk_number('ptk.last') IS NULL THEN -- who listens asks for this entry and those behind it
        PERFORM pg_notify('ptk_change', id::text);
    END IF;
    PERFORM set_config('ptk.last', id::text, true);
    INSERT INTO _Change VALUES (id, to_char(clock_timestamp(), 'YYYY-MM-DD HH24:MI:SS'), NULLIF(current_setting('ptk.user', true), ''),
        NULLIF(current_setting('ptk.program', true), ''), ptk_number('ptk.step'), tab, row_id, act, was, is_now, employee_was, employee_is);
END
$$;
REVOKE EXECUTE ON FUNCTION ptk_add FROM PUBLIC;

-- Rates are told with all their digits, however many the writer's session asks for.
CREATE OR REPLACE FUNCTION ptk_tell() RETURNS trigger LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT SET extra_float_digits = 1 AS $$
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
        key := lower(rtrim(named, '@'));
        IF TG_OP <> 'UPDATE' OR old_row -> key <> new_row -> key THEN
            was := concat_ws(',', was, '"' || rtrim(named, '@') || '":' || ptk_told(old_row -> key, named));
            is_now := concat_ws(',', is_now, '"' || rtrim(named, '@') || '":' || ptk_told(new_row -> key, named));
        END IF;
    END LOOP;
    IF was IS NULL AND is_now IS NULL THEN
        RETURN NULL; -- only a column that another tool added
    END IF;
    key := lower(tab) || 'id'; -- the tables of one row have none
    PERFORM ptk_add(tab, lower(TG_OP), COALESCE((COALESCE(old_row, new_row) ->> key)::bigint, 1),
        CASE WHEN old_row IS NOT NULL THEN ('{' || was || '}')::json END, CASE WHEN new_row IS NOT NULL THEN ('{' || is_now || '}')::json END,
        (old_row ->> 'employeeid')::integer, (new_row ->> 'employeeid')::integer);
    RETURN NULL;
END
$$;
REVOKE EXECUTE ON FUNCTION ptk_tell FROM PUBLIC;

-- One entry of no row, but of the database as a whole: an import, and of which file.
CREATE OR REPLACE FUNCTION ptk_add_entry(act text, file text) RETURNS void LANGUAGE sql SECURITY DEFINER SET search_path FROM CURRENT AS $$
    SELECT ptk_add(NULL, act, NULL, NULL, json_build_object('file', file), NULL, NULL)
$$;
REVOKE EXECUTE ON FUNCTION ptk_add_entry FROM PUBLIC;
