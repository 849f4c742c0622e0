#include "office/sheet/PunchLines.h"

#include "office/sheet/PunchEvents.h"
#include "office/sheet/SheetMoment.h"
#include "office/sheet/SheetPeople.h"
#include "platform/text/Characters.h"

#include <fmt/format.h>
#include <span>

namespace ptk {

namespace {

constexpr auto kNobody = "nobody has {}";
constexpr auto kSeveral = "several people have {}";
constexpr auto kEmpty = "empty";
constexpr auto kNoDay = "no day: {}";
constexpr auto kNoTime = "no time: {}";
constexpr auto kNoMoment = "no day with a time: {}";
constexpr auto kNoDirection = "neither in nor out: {}";
constexpr auto kBackward = "the end is before the start";
constexpr auto kZero = "a day on which nobody can have come";

class PunchTable
{
public:
    PunchTable(SheetColumns columns, const SheetPeople& people, PunchLines& read)
        : m_columns(std::move(columns)), m_people(people), m_read(read)
    {
    }

    void Take(const CsvRecord& record)
    {
        ++m_read.lines;
        m_cells = record.cells;
        try {
            m_columns.Headings().RefuseStrange(record);
            if (m_columns.AreEvents()) {
                m_events.push_back(Event(record.line));
            } else {
                m_read.punches.push_back(Punch(record.line));
            }
        } catch (const LineRefused& refused) {
            m_read.refused.push_back({record.line, refused.reason});
        }
    }

    void Finish(std::int32_t longestHours)
    {
        m_read.startColumn = m_columns.Heading(m_columns.AreEvents() ? SheetColumn::Time : SheetColumn::Start);
        if (m_columns.AreEvents()) {
            PairEvents(std::move(m_events), longestHours, {m_columns.Heading(SheetColumn::Time), m_columns.Heading(SheetColumn::Direction)},
                       m_read);
        }
    }

private:
    [[noreturn]] void Refuse(SheetColumn column, std::string_view reason) const
    {
        throw LineRefused{fmt::format("{}: {}", m_columns.Heading(column), reason)};
    }

    [[nodiscard]] std::string_view Cell(SheetColumn column) const { return m_columns.Cell(m_cells, column); }

    [[nodiscard]] std::int32_t Person() const
    {
        const std::string_view cell = Cell(m_columns.Person());
        const auto found = m_people.Find(m_columns.Person(), cell);
        if (const auto* fault = std::get_if<PersonFault>(&found)) {
            Refuse(m_columns.Person(), *fault == PersonFault::None      ? kEmpty
                                       : *fault == PersonFault::Unknown ? fmt::format(kNobody, ShownCell(cell))
                                                                        : fmt::format(kSeveral, ShownCell(cell)));
        }
        return std::get<std::int32_t>(found);
    }

    // The moment in this cell. If the file has a column for the date, the cell holds only the time.
    [[nodiscard]] DateTime Moment(SheetColumn column) const
    {
        const std::string_view cell = Cell(column);
        if (cell.empty()) {
            Refuse(column, kEmpty);
        }
        const auto moment = m_columns.Has(SheetColumn::Date) ? TimeOnDay(column, cell) : ReadSheetMoment(cell);
        if (!moment) {
            Refuse(column, fmt::format(kNoMoment, ShownCell(cell)));
        }
        if (moment->IsZero()) {
            Refuse(column, kZero); // the zero date-time stands for no moment
        }
        return *moment;
    }

    [[nodiscard]] std::optional<DateTime> TimeOnDay(SheetColumn column, std::string_view cell) const
    {
        const std::string_view dayCell = Cell(SheetColumn::Date);
        const auto day = ReadSheetDay(dayCell);
        if (!day) {
            Refuse(SheetColumn::Date, dayCell.empty() ? kEmpty : fmt::format(kNoDay, ShownCell(dayCell)));
        }
        const auto time = ReadSheetTime(cell);
        if (!time) {
            Refuse(column, fmt::format(kNoTime, ShownCell(cell)));
        }
        return OnDay(*day, *time);
    }

    [[nodiscard]] SheetPunch Punch(std::int64_t line) const
    {
        SheetPunch punch{Person(), Moment(SheetColumn::Start), DateTime(), line, 0};
        if (!Cell(SheetColumn::End).empty()) {
            punch.end = Moment(SheetColumn::End);
            if (punch.end < punch.start) {
                Refuse(SheetColumn::End, kBackward);
            }
        }
        return punch;
    }

    [[nodiscard]] PunchEvent Event(std::int64_t line) const
    {
        const std::string_view word = Cell(SheetColumn::Direction);
        const std::int32_t person = Person();
        const DateTime time = Moment(SheetColumn::Time);
        const auto direction = m_columns.ReadDirection(word);
        if (!direction) {
            Refuse(SheetColumn::Direction, word.empty() ? kEmpty : fmt::format(kNoDirection, ShownCell(word)));
        }
        return {person, time, line, *direction};
    }

    SheetColumns m_columns;
    const SheetPeople& m_people;
    PunchLines& m_read;
    std::span<const std::string> m_cells; // of the line that is being read
    std::vector<PunchEvent> m_events;
};

} // namespace

PunchLines ReadPunches(std::string_view text, const SheetWords& words, const SheetPeople& people, std::int32_t longestHours,
                       const GoesOn& goesOn)
{
    SheetReader reader(text);
    PunchLines read;
    PunchTable table(SheetColumns(reader.Record().cells, words), people, read);
    while (reader.Next()) {
        table.Take(reader.Record());
        AskWhetherToGoOn(goesOn, read.lines);
    }
    table.Finish(longestHours);
    return read;
}

} // namespace ptk
