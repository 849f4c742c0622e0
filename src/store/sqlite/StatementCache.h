// Prepared statements that wait to be used again.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct sqlite3_stmt;

namespace ptk {

// Keeps the prepared statements of one connection, before which it must end: preparing one takes longer than a short answer. The engine
// itself prepares a kept statement anew when the tables are no longer those that it was prepared for.
class StatementCache
{
public:
    StatementCache();
    ~StatementCache();
    StatementCache(const StatementCache&) = delete;
    StatementCache& operator=(const StatementCache&) = delete;

    // Hands out the kept statement of this text, which the caller then owns; nullptr when there is none.
    [[nodiscard]] sqlite3_stmt* Take(std::string_view sql);

    // Takes over a statement that is done with. Where there are too many, the one that has waited longest is ended.
    void Keep(std::string&& sql, sqlite3_stmt* statement) noexcept;

private:
    struct Waiting
    {
        std::string sql;
        sqlite3_stmt* statement;
    };

    std::vector<Waiting> m_waiting; // the one that waited longest comes first
};

} // namespace ptk
