// Reads the time records that the check of a card looks at, as they stand in the file.
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

// For the cards of one period, one employee after the other. What it costs does not grow with the history before and after.
class PunchReader
{
public:
    // firstWeekday: of the work weeks, 0 Sunday to 6 Saturday. Raises what opening or reading the file raises.
    // REQUIRES: a CJetDB::Hold on the database outlives the reader, so that card and check are of the same moment.
    PunchReader(CJetDB& database, const PayPeriod& period, std::int32_t firstWeekday);
    ~PunchReader();
    PunchReader(const PunchReader&) = delete;
    PunchReader& operator=(const PunchReader&) = delete;

    // People whom one question is about, where a question costs time.
    static constexpr std::size_t kAtOnce = 250;

    // Whether it does, as on a server: then the rows of those who are to be read next are asked for together. In a file nothing is read
    // ahead.
    [[nodiscard]] bool ReadsAhead() const { return m_ofMany != nullptr; }
    void ReadAhead(std::span<const std::int32_t> employeeIDs);

    // Sends off what the next ReadAhead of the same people reads, to be on its way while these are looked at. Those who were asked about
    // last are not asked about again.
    void AskAhead(std::span<const std::int32_t> employeeIDs);

    // All that CheckCard needs, by start, end and number.
    Punches Read(std::int32_t employeeID);

    // All that CheckCard needs of records that name no employee there is: by the number that they have, or of those without one.
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
    DateTime m_first; // of the starts that are looked for, both included
    DateTime m_last;
    std::unique_ptr<Statement> m_ofMany; // or the other
    std::unique_ptr<Statement> m_ofOne;
    std::map<std::int32_t, Punches> m_ahead; // by employees
    std::vector<std::int32_t> m_asked;       // whom the question that was sent off is about
};

} // namespace ptk
