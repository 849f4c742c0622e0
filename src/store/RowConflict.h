// A row that somebody else changed or removed after it was read: what a save or a deletion must not overwrite.
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
    std::string column; // as the table names it
    std::string read;   // as texts for people; passwords are no texts for people
    std::string present;

    bool operator==(const FieldDifference&) const = default;
};

struct RowConflict
{
    std::string table;
    std::int32_t key = 0;                     // 0 for the options and limits
    std::vector<FieldDifference> differences; // none for a row that is no more

    [[nodiscard]] bool Removed() const { return differences.empty(); }

    // "Employee 40 was changed since it was read: PayRate was 10 and is 12 now", "TimeRecord 7 was removed since it was read".
    [[nodiscard]] std::string Text() const;
};

// Why an operation was not done; number 0 and no text where it was. With the row that somebody else had changed or removed since it was
// read, where that was why.
struct Refusal
{
    Failure failure{0, "", ""};
    std::optional<RowConflict> conflict{};
};

// Failure jetdb::RowChanged with the conflict's text.
class RowChanged : public Failure
{
public:
    explicit RowChanged(RowConflict conflict);
    [[nodiscard]] const RowConflict& Conflict() const { return m_conflict; }

private:
    RowConflict m_conflict;
};

// As steps of Engine::Write: raise RowChanged unless the stored row is as it was read. Compared is what the program reads of a row.
void RequireAsRead(Engine& engine, const EmployeeRow& read);
void RequireAsRead(Engine& engine, const CompanyRow& read);
void RequireAsRead(Engine& engine, const TimeRecordRow& read);

// What the options are now.
[[nodiscard]] OptionsRow PresentOptions(Engine& engine);
void RequireAsRead(const OptionsRow& present, const OptionsRow& read);
void RequireAsRead(const CheckLimits& present, const CheckLimits& read);

} // namespace ptk
