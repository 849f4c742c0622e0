// Checks the cards of one pay period, one employee after the other, together with the closings and the shifts before the period.
#pragma once

#include "model/check/CardCheck.h"
#include "model/check/ClockChanges.h"
#include "model/check/PunchReader.h"
#include "model/payday/ClosingReader.h"
#include "model/PayPeriod.h"
#include "model/remedy/Remedy.h"
#include "model/remedy/UsualEnds.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <vector>

namespace ptk {

class CEmployee;
class CJetDB;
class Statement;

// What a check needs besides the records.
struct CheckTerms
{
    PayPeriod period;
    DateTime now;
    CheckLimits limits;
};

// The EmployeeIDs of those whose cards are read together, from the place `first` on.
[[nodiscard]] std::vector<std::int32_t> NextEmployeeIDs(std::span<const std::shared_ptr<CEmployee>> people, std::size_t first);

// Every member raises what reading the database raises.
class CardChecker
{
public:
    // Asks what was closed for everybody. With `closings` it uses that question instead, which may be about the one employee who will be
    // checked. REQUIRES: a CJetDB::Hold on the open database outlives the checker.
    CardChecker(std::shared_ptr<CJetDB> database, const CheckTerms& terms, std::unique_ptr<ClosingsQuestion> closings = nullptr);
    ~CardChecker();
    CardChecker(const CardChecker&) = delete;
    CardChecker& operator=(const CardChecker&) = delete;

    // Read, or ask for, the rows of the employees who are checked next: see PunchReader.
    void ReadAhead(std::span<const std::int32_t> employeeIDs);
    void AskAhead(std::span<const std::int32_t> employeeIDs) { m_reader.AskAhead(employeeIDs); }

    [[nodiscard]] CardCheck Check(const CEmployee& employee);

    // The rows that the last Check looked at, and how many of them belong to the period.
    [[nodiscard]] const Punches& Rows() const { return m_rows; }
    [[nodiscard]] std::int32_t RecordsOfPeriod() const;

    // The newest closing of exactly this period; nothing if it was never closed for this employee.
    [[nodiscard]] std::optional<Closing> Paid(std::int32_t employeeID);

    // The remedies of each of the check's findings, in their order. `check` is the last answer of Check. autoShiftEnd: see ShiftEnds.
    [[nodiscard]] std::vector<std::vector<Remedy>> Remedies(const CEmployee& employee, const CardCheck& check,
                                                            std::optional<std::int64_t> autoShiftEnd);

private:
    [[nodiscard]] const ClosingsOfEmployee* ClosingsOf(std::int32_t employeeID);
    [[nodiscard]] PunchReader& GapReader(const PayPeriod& gap);
    void ReadGap(std::int32_t employeeID, const ClosingsOfEmployee& closings);
    void NameChanged(CardCheck& check, const Closing& paid) const;
    void AskWhoWorkedBefore();
    [[nodiscard]] bool WorkedBefore(std::int32_t employeeID);

    std::shared_ptr<CJetDB> m_database;
    CheckTerms m_terms;
    PunchReader m_reader;
    std::unique_ptr<ClosingsQuestion> m_closingsQuestion;
    std::optional<Closings> m_closings; // empty until the first use
    ClockChanges m_clock;
    UsualEnds m_usualEnds;
    std::map<DateTime, std::unique_ptr<PunchReader>> m_gaps; // by the first day after the last closed period
    std::unique_ptr<Statement> m_workedBeforeQuestion;
    std::optional<std::set<std::int64_t>> m_workedBefore; // EmployeeIDs; read when the first employee without a shift is checked
    Punches m_rows;
};

} // namespace ptk
