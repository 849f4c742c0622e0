// Rows that somebody else changed or removed after they were read: a save or a deletion must not overwrite them.
#pragma once

#include "platform/Failure.h"
#include "store/CheckLimits.h"
#include "store/rows/Rows.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

class Engine;

struct FieldDifference
{
    std::string column;  // as the table names it
    std::string read;    // the value as people read it; empty for a password
    std::string present; // "changed" for a password

    bool operator==(const FieldDifference&) const = default;
};

struct RowConflict
{
    std::string table;
    std::int32_t key = 0;                     // 0 for the options and limits
    std::vector<FieldDifference> differences; // none where the row was removed

    [[nodiscard]] bool Removed() const { return differences.empty(); }

    // The conflict in words: "Employee 40 was changed since it was read: PayRate was 10 and is 12 now", "TimeRecord 7 was removed since it
    // was read".
    [[nodiscard]] std::string Text() const;
};

// Why an operation was not done, with the conflict where that was the reason; number 0 and no text where it was done.
struct Refusal
{
    Failure failure{0, "", ""};
    std::optional<RowConflict> conflict{};
};

// The failure jetdb::RowChanged, with the conflict and its text.
class RowChanged : public Failure
{
public:
    explicit RowChanged(RowConflict conflict);
    [[nodiscard]] const RowConflict& Conflict() const { return m_conflict; }

private:
    RowConflict m_conflict;
};

// Raise RowChanged unless the stored row is as read, in the columns that the program reads. For use within the steps of Engine::Write.
void RequireAsRead(Engine& engine, const EmployeeRow& read);
void RequireAsRead(Engine& engine, const CompanyRow& read);
void RequireAsRead(Engine& engine, const TimeRecordRow& read);

// The options as they are stored now; on a server they are locked until the write ends.
[[nodiscard]] OptionsRow PresentOptions(Engine& engine);
void RequireAsRead(const OptionsRow& present, const OptionsRow& read);
void RequireAsRead(const CheckLimits& present, const CheckLimits& read);

} // namespace ptk
