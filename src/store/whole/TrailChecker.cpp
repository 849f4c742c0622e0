#include "store/whole/TrailChecker.h"

#include "platform/text/Text.h"
#include "store/engine/RecordSet.h"
#include "store/sqlite/OwnRoutines.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr const char* kRoutines = "SELECT type, name, tbl_name, sql FROM sqlite_master WHERE type IN ('trigger', 'view') ORDER BY name";
constexpr const char* kTable = "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = '{}' COLLATE NOCASE";

constexpr const char* kMissesTable = "The edit trail misses changes of the table {}.";
constexpr const char* kTellsNothing = "The edit trail tells nothing: there is no {} {}.";
constexpr const char* kChanged = "The {} {} of the edit trail is not the program's own.";
constexpr const char* kForeign = "The trigger {} on {} is not the program's: it may change what is stored there.";

std::vector<Routine> RoutinesOf(SqliteEngine& engine)
{
    std::vector<Routine> routines;
    for (const auto rows = engine.Select(kRoutines); !rows->EndOfFile(); rows->MoveNext()) {
        const auto text = [&](std::size_t column) { return std::string(rows->TextAt(column)); };
        routines.push_back({text(0), text(1), text(2), text(3)});
    }
    return routines;
}

bool IsSameName(const std::string& left, const std::string& right)
{
    return LowerCase(left) == LowerCase(right);
}

class RoutinesInspector
{
public:
    RoutinesInspector(SqliteEngine& engine, std::vector<std::string>& problems)
        : m_engine(engine), m_problems(problems), m_own(ReadOwnRoutines()), m_found(RoutinesOf(engine))
    {
    }

    void FindSpoiled()
    {
        for (const Routine& own : m_own.routines) {
            const auto found =
                std::find_if(m_found.begin(), m_found.end(), [&](const Routine& routine) { return IsSameName(routine.name, own.name); });
            if (found == m_found.end()) {
                Missing(own);
            } else if (found->text != own.text && !IsOfEarlierVersion(*found)) {
                Report(fmt::format(kChanged, own.type, own.name));
            }
        }
    }

    void FindForeign()
    {
        for (const Routine& found : m_found) {
            const bool ours = std::any_of(m_own.routines.begin(), m_own.routines.end(),
                                          [&](const Routine& routine) { return IsSameName(routine.name, found.name); });
            const bool onOurs = std::any_of(m_own.tables.begin(), m_own.tables.end(),
                                            [&](const std::string& table) { return IsSameName(table, found.table); });
            if (found.type == "trigger" && !ours && onOurs) {
                Report(fmt::format(kForeign, found.name, found.table));
            }
        }
    }

private:
    // Reports a missing routine of the trail, or of a table that is there: a file may be of a version that did not know the table.
    void Missing(const Routine& own)
    {
        const bool ofTrail = own.name == "_Edit" || own.table == "_Edit";
        if (ofTrail) {
            Report(fmt::format(kTellsNothing, own.type, own.name));
        } else if (!m_engine.Select(fmt::format(kTable, own.table))->EndOfFile()) {
            Report(fmt::format(kMissesTable, own.table));
        }
    }

    // Reports each problem once: a table has three triggers.
    void Report(const std::string& problem)
    {
        if (std::find(m_problems.begin(), m_problems.end(), problem) == m_problems.end()) {
            m_problems.push_back(problem);
        }
    }

    SqliteEngine& m_engine;
    std::vector<std::string>& m_problems;
    OwnRoutines m_own;
    std::vector<Routine> m_found;
};

} // namespace

void CheckRoutines(SqliteEngine& engine, bool hasTrail, std::vector<std::string>& problems)
{
    RoutinesInspector inspector(engine, problems);
    if (hasTrail) {
        inspector.FindSpoiled();
    }
    inspector.FindForeign();
}

} // namespace ptk
