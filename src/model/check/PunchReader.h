// Reads the time records that the check of a card looks at, as they are stored.
#pragma once

#include "model/check/Punch.h"
#include "model/PayPeriod.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ptk {

class CJetDB;
class Statement;

// Reads for the cards of one period, one employee after the other. Its cost does not grow with the records before and after the period.
class PunchReader
{
public:
    // firstWeekday: of the work weeks, 0 Sunday to 6 Saturday. Raises what opening or reading the database raises.
    // REQUIRES: a CJetDB::Hold on the database outlives the reader, so that card and check see the same moment.
    PunchReader(CJetDB& database, const PayPeriod& period, std::int32_t firstWeekday);
    ~PunchReader();
    PunchReader(const PunchReader&) = delete;
    PunchReader& operator=(const PunchReader&) = delete;

    // How many people one question should ask about, where a question costs time.
    static constexpr std::size_t kAtOnce = 250;

    // Whether rows can be read ahead: in a server's database, not in a file.
    [[nodiscard]] bool ReadsAhead() const { return m_ofMany != nullptr; }

    // Reads the rows of several people, who are to be read next, by one question. Does nothing in a file.
    void ReadAhead(std::span<const std::int32_t> employeeIDs);

    // Sends off the question of the next ReadAhead, for these people, so that it is answered while others are looked at. People who were
    // asked about last are not asked about again.
    void AskAhead(std::span<const std::int32_t> employeeIDs);

    // All rows of an employee that CheckCard needs, ordered by start, end and number.
    Punches Read(std::int32_t employeeID);

    // All rows that CheckCard needs of records that belong to nobody: those with this EmployeeID, which no employee has, or without any.
    Punches ReadOfNobody(CJetDB& database, const std::optional<std::int64_t>& employeeID) const;

private:
    [[nodiscard]] bool IsFetched(const Statement& row) const;
    [[nodiscard]] Punch ReadPunch(const Statement& row) const;
    [[nodiscard]] std::unique_ptr<Statement> Prepare(CJetDB& database, const std::string& sql) const;
    [[nodiscard]] Punches TakeAhead(std::int32_t employeeID);
    [[nodiscard]] bool IsAsked(std::span<const std::int32_t> employeeIDs) const;
    void Choose(std::span<const std::int32_t> employeeIDs);
    void Fetch(std::span<const std::int32_t> employeeIDs);

    DateTime m_from; // the bounds of the card's fetch, both included
    DateTime m_end;
    DateTime m_first; // the bounds of the starts that are looked for, both included
    DateTime m_last;
    std::unique_ptr<Statement> m_ofMany; // nullptr in a file, where m_ofOne is used
    std::unique_ptr<Statement> m_ofOne;
    std::map<std::int32_t, Punches> m_ahead; // by EmployeeID
    std::vector<std::int32_t> m_asked;       // the people of the question that was sent off last
};

} // namespace ptk
