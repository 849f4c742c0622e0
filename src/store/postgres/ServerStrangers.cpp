#include "store/postgres/ServerStrangers.h"

#include "store/engine/RecordSet.h"
#include "store/postgres/PostgresEngine.h"

namespace ptk {

namespace {

// Stands in front of each question. All values have the very types that the operators and functions take, so that no stranger fits better.
constexpr const char* kPlace = "WITH place AS (SELECT relnamespace AS schema, relowner AS owner FROM pg_class "
                               "WHERE oid = CAST(to_regclass(CAST('_structure' AS text)) AS oid)), "
                               "extended AS (SELECT classid, objid FROM pg_depend WHERE deptype = 'e') ";

constexpr const char* kFunctions =
    "SELECT called FROM (SELECT *, oid AS id, CAST(proname AS text) || '(' || oidvectortypes(proargtypes) || ')' AS called FROM pg_proc) "
    "AS made JOIN place ON pronamespace = schema "
    "WHERE NOT (proowner = owner AND called IN ('ptk_number(text)', 'ptk_said(text)', 'ptk_told(jsonb, text)', 'ptk_next()', 'ptk_tell()', "
    "'ptk_add(text, text, bigint, json, json, integer, integer)', 'ptk_add_entry(text, text)')) "
    "AND NOT EXISTS (SELECT 1 FROM extended WHERE classid = CAST(CAST('pg_catalog.pg_proc' AS regclass) AS oid) AND objid = id)";

constexpr const char* kOperators =
    "SELECT CAST(oprname AS text) || '(' || CASE WHEN oprleft = CAST(0 AS oid) THEN '' ELSE format_type(oprleft, CAST(NULL AS integer)) "
    "|| ', ' END || format_type(oprright, CAST(NULL AS integer)) || ')' FROM pg_operator JOIN place ON oprnamespace = schema "
    "WHERE NOT EXISTS "
    "(SELECT 1 FROM extended WHERE classid = CAST(CAST('pg_catalog.pg_operator' AS regclass) AS oid) AND objid = pg_operator.oid)";

constexpr const char* kMakers =
    "SELECT COALESCE((SELECT CAST(rolname AS text) FROM pg_roles WHERE oid = given.grantee), 'PUBLIC') FROM pg_namespace "
    "JOIN place ON pg_namespace.oid = schema "
    "CROSS JOIN aclexplode(COALESCE(nspacl, acldefault(CAST('n' AS \"char\"), nspowner))) AS given "
    "WHERE given.privilege_type = 'CREATE' AND given.grantee <> nspowner AND given.grantee <> owner";

std::vector<std::string> NamesOf(PostgresEngine& engine, const char* question)
{
    std::vector<std::string> names;
    const auto rows = engine.Prepare(std::string(kPlace) + question)->ReadRows();
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        names.emplace_back(rows->TextAt(0));
    }
    return names;
}

} // namespace

ServerStrangers FindStrangers(PostgresEngine& engine)
{
    return {NamesOf(engine, kFunctions), NamesOf(engine, kOperators), NamesOf(engine, kMakers)};
}

} // namespace ptk
