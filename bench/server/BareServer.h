// The same work as the program's on a server, written directly against its client library: what every figure is compared with.
#pragma once

#include <cstdint>
#include <libpq-fe.h>
#include <memory>
#include <string>
#include <vector>

namespace bench {

// One connection. As in the program, what opens and ends a transaction is prepared, goes along with the statement behind it, and the end of
// one that only read is not waited for.
class BareServer
{
public:
    explicit BareServer(const std::string& address);

    void Run(const std::string& sql);

    void BeginRead();
    void EndRead();

    // Within a read: fetches the period, reads its texts, sums the hours per day. Returns the hours.
    double Card(std::int32_t employee, const std::string& from, const std::string& to);

    // The same of so many employees in one question.
    double Cards(std::int32_t first, std::int32_t count, const std::string& from, const std::string& to);

    // All columns of an employee's entries in the edit trail, newest first. Returns their bytes.
    std::size_t History(std::int32_t employee);

    // Reads every column of every employee in the program's order. Returns their bytes.
    std::size_t Employees();

    // One step of the edit trail: reads the record of kFirstEmployee's last day to change it, moves its end, commits to the disk.
    void Save(std::int32_t record, const std::string& end);

private:
    struct Clearing
    {
        void operator()(PGresult* result) const { PQclear(result); }
    };
    using Result = std::unique_ptr<PGresult, Clearing>;

    struct Finishing
    {
        void operator()(PGconn* connection) const { PQfinish(connection); }
    };

    void Prepare(const char* name, const char* sql);
    void PostPrepared(const char* name, const std::vector<const char*>& values = {});
    void Post(const std::string& sql);
    Result Ask(); // answers the last one's result
    void Require(bool done) const;

    std::unique_ptr<PGconn, Finishing> m_connection;
    int m_posted = 0;
    bool m_unheard = false;
};

} // namespace bench
