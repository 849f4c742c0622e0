// Prepared statements that wait to be used again.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct sqlite3_stmt;

namespace ptk {

// Preparing a statement takes longer than a short answer. Of one connection, before which it must end. The engine prepares a kept statement
// anew by itself when the tables are no longer those that it was prepared for.
class StatementCache
{
public:
    StatementCache();
    ~StatementCache();
    StatementCache(const StatementCache&) = delete;
    StatementCache& operator=(const StatementCache&) = delete;

    // nullptr when there is none of that text; the caller owns it.
    [[nodiscard]] sqlite3_stmt* Take(std::string_view sql);

    // Takes over one that is done with, and lets go of the one that has waited longest where there are too many.
    void Keep(std::string&& sql, sqlite3_stmt* statement) noexcept;

private:
    struct Waiting
    {
        std::string sql;
        sqlite3_stmt* statement;
    };

    std::vector<Waiting> m_waiting; // the longest first
};

} // namespace ptk
