#include "store/postgres/ServerTriggers.h"

#include "store/engine/StoredTable.h"

#include <fmt/format.h>

namespace ptk {

namespace {

std::string Trigger(const StoredTable& table)
{
    const std::string_view name = table.name;
    std::string told = fmt::format("'{}'", name);
    for (const StoredColumn& column : table.columns) {
        told += fmt::format(", '{}{}'", column.name, column.kind == ColumnKind::Date ? "@" : "");
    }
    return fmt::format("CREATE TRIGGER _{}Change AFTER INSERT OR UPDATE OR DELETE ON {} FOR EACH ROW EXECUTE FUNCTION ptk_tell({});\n",
                       name.substr(name.find_first_not_of('_')), name, told);
}

} // namespace

std::string ServerTrailTriggers()
{
    std::string text;
    for (const char* table : kFirstToldTables) {
        text += Trigger(StoredTableOf(table));
    }
    return text;
}

} // namespace ptk
