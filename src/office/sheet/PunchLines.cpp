#include "office/sheet/PunchLines.h"

#include "office/sheet/PunchEvents.h"
#include "office/sheet/SheetMoment.h"
#include "office/sheet/SheetPeople.h"
#include "platform/Failure.h"
#include "platform/files/SystemFile.h"
#include "platform/text/Characters.h"
#include "platform/text/CodePage.h"
#include "platform/text/CsvReader.h"
#include "platform/text/Utf8.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <span>

namespace ptk {

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";           // the byte order mark of UTF-8
constexpr std::size_t kLargestFile = std::size_t{256} << 20; // bytes
constexpr std::size_t kLongestShown = 40;                    // characters of a value in a reason

constexpr std::int64_t kAskedEvery = 1000;

constexpr auto kCancelled = "it was cancelled";
constexpr auto kTooLarge = "the file is larger than 256 MB";
constexpr auto kBrokenUtf8 = "the file begins with the mark of UTF-8 and is no UTF-8";
constexpr auto kNoHeading = "the file has no heading line";

constexpr auto kNobody = "nobody has {}";
constexpr auto kSeveral = "several people have {}";
constexpr auto kEmpty = "empty";
constexpr auto kNoDay = "no day: {}";
constexpr auto kNoTime = "no time: {}";
constexpr auto kNoMoment = "no day with a time: {}";
constexpr auto kNoDirection = "neither in nor out: {}";
constexpr auto kBackward = "the end is before the start";
constexpr auto kZero = "a day on which nobody can have come";
constexpr auto kStray = "text behind the closing quotation mark";
constexpr auto kNoColumn = "a cell without a heading";

// Why one line is refused.
struct Refused
{
    std::string reason;
};

std::string Shown(std::string_view value)
{
    std::string_view left = value;
    for (std::size_t i = 0; i < kLongestShown && !left.empty(); ++i) {
        static_cast<void>(TakeCharacter(left));
    }
    return fmt::format("\"{}{}\"", value.substr(0, value.size() - left.size()), left.empty() ? "" : "...");
}

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
            RefuseStrange(record);
            if (m_columns.AreEvents()) {
                m_events.push_back(Event(record.line));
            } else {
                m_read.punches.push_back(Punch(record.line));
            }
        } catch (const Refused& refused) {
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
    void RefuseStrange(const CsvRecord& record) const
    {
        if (record.strayCell != 0) {
            throw Refused{fmt::format("{}: {}", m_columns.NameOf(record.strayCell), kStray)};
        }
        for (std::size_t place = m_columns.Count(); place < m_cells.size(); ++place) {
            if (!Trimmed(m_cells[place]).empty()) {
                throw Refused{fmt::format("{}: {}", m_columns.NameOf(place + 1), kNoColumn)};
            }
        }
    }

    [[noreturn]] void Refuse(SheetColumn column, std::string_view reason) const
    {
        throw Refused{fmt::format("{}: {}", m_columns.Heading(column), reason)};
    }

    [[nodiscard]] std::string_view Cell(SheetColumn column) const { return m_columns.Cell(m_cells, column); }

    [[nodiscard]] std::int32_t Person() const
    {
        const std::string_view cell = Cell(m_columns.Person());
        const auto found = m_people.Find(m_columns.Person(), cell);
        if (const auto* fault = std::get_if<PersonFault>(&found)) {
            Refuse(m_columns.Person(), *fault == PersonFault::None      ? kEmpty
                                       : *fault == PersonFault::Unknown ? fmt::format(kNobody, Shown(cell))
                                                                        : fmt::format(kSeveral, Shown(cell)));
        }
        return std::get<std::int32_t>(found);
    }

    // On the day of the line's own column, where there is one.
    [[nodiscard]] DateTime Moment(SheetColumn column) const
    {
        const std::string_view cell = Cell(column);
        if (cell.empty()) {
            Refuse(column, kEmpty);
        }
        const auto moment = m_columns.Has(SheetColumn::Date) ? TimeOnDay(column, cell) : ReadSheetMoment(cell);
        if (!moment) {
            Refuse(column, fmt::format(kNoMoment, Shown(cell)));
        }
        if (moment->IsZero()) {
            Refuse(column, kZero); // the moment that stands for none
        }
        return *moment;
    }

    [[nodiscard]] std::optional<DateTime> TimeOnDay(SheetColumn column, std::string_view cell) const
    {
        const std::string_view dayCell = Cell(SheetColumn::Date);
        const auto day = ReadSheetDay(dayCell);
        if (!day) {
            Refuse(SheetColumn::Date, dayCell.empty() ? kEmpty : fmt::format(kNoDay, Shown(dayCell)));
        }
        const auto time = ReadSheetTime(cell);
        if (!time) {
            Refuse(column, fmt::format(kNoTime, Shown(cell)));
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
            Refuse(SheetColumn::Direction, word.empty() ? kEmpty : fmt::format(kNoDirection, Shown(word)));
        }
        return {person, time, line, *direction};
    }

    SheetColumns m_columns;
    const SheetPeople& m_people;
    PunchLines& m_read;
    std::span<const std::string> m_cells; // of the line that is being read
    std::vector<PunchEvent> m_events;
};

bool NextLine(CsvReader& reader, CsvRecord& record)
{
    while (reader.Next(record)) {
        if (!record.IsBlank()) {
            return true;
        }
    }
    return false;
}

std::string ReadBytes(const std::string& path)
{
    SystemFile file = OpenRegularFile(path, O_RDONLY);
    std::string bytes;
    char buffer[1 << 16];
    while (const std::size_t count = file.Read(buffer, sizeof buffer)) {
        if (bytes.size() + count > kLargestFile) {
            throw Failure(0, "PTK", kTooLarge);
        }
        bytes.append(buffer, count);
    }
    return bytes;
}

} // namespace

std::string ReadSheet(const PunchFile& file)
{
    std::string text = ReadBytes(file.file);
    const bool marked = text.starts_with(kMark);
    text.erase(0, marked ? kMark.size() : 0);
    RefuseStrangeLines(text);
    if (IsUtf8(text)) {
        return text;
    }
    if (marked) {
        throw Failure(0, "PTK", kBrokenUtf8);
    }
    return FromCodePage(text, file.codePage.value_or(kWesternCodePage));
}

void AskWhetherToGoOn(const GoesOn& goesOn, std::int64_t done)
{
    if (done % kAskedEvery == 0 && goesOn && !goesOn()) {
        throw Failure(0, "PTK", kCancelled);
    }
}

PunchLines ReadPunches(std::string_view text, const SheetWords& words, const SheetPeople& people, std::int32_t longestHours,
                       const GoesOn& goesOn)
{
    CsvReader reader(text, SeparatorOf(text));
    CsvRecord record;
    if (!NextLine(reader, record)) {
        throw Failure(0, "PTK", kNoHeading);
    }
    PunchLines read;
    PunchTable table(SheetColumns(record.cells, words), people, read);
    while (NextLine(reader, record)) {
        table.Take(record);
        AskWhetherToGoOn(goesOn, read.lines);
    }
    table.Finish(longestHours);
    return read;
}

} // namespace ptk
