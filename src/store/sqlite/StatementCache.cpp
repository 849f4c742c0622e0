#include "store/sqlite/StatementCache.h"

#include <algorithm>
#include <sqlite3.h>
#include <utility>

namespace ptk {

namespace {

constexpr std::size_t kMost = 8;

} // namespace

StatementCache::StatementCache()
{
    m_waiting.reserve(kMost); // so that keeping one never fails
}

StatementCache::~StatementCache()
{
    for (const Waiting& waiting : m_waiting) {
        sqlite3_finalize(waiting.statement);
    }
}

sqlite3_stmt* StatementCache::Take(std::string_view sql)
{
    const auto found = std::find_if(m_waiting.begin(), m_waiting.end(), [&](const Waiting& waiting) { return waiting.sql == sql; });
    if (found == m_waiting.end()) {
        return nullptr;
    }
    sqlite3_stmt* const statement = found->statement;
    m_waiting.erase(found);
    return statement;
}

void StatementCache::Keep(std::string&& sql, sqlite3_stmt* statement) noexcept
{
    sqlite3_reset(statement); // answers the failure of the last step, which was raised there
    sqlite3_clear_bindings(statement);
    if (m_waiting.size() == kMost) {
        sqlite3_finalize(m_waiting.front().statement);
        m_waiting.erase(m_waiting.begin());
    }
    m_waiting.push_back({std::move(sql), statement});
}

} // namespace ptk
