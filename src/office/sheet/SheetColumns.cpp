#include "office/sheet/SheetColumns.h"

#include "platform/Failure.h"
#include "platform/text/Characters.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>

namespace ptk {

namespace {

struct ColumnName
{
    std::string_view name; // without blanks, in lower case
    SheetColumn column;
};
constexpr ColumnName kNames[] = {
    {"employee", SheetColumn::Employee},
    {"number", SheetColumn::Number},
    {"employeenumber", SheetColumn::Number},
    {"id", SheetColumn::Id},
    {"name", SheetColumn::Name},
    {"ssn", SheetColumn::Ssn},
    {"start", SheetColumn::Start},
    {"starttime", SheetColumn::Start},
    {"end", SheetColumn::End},
    {"endtime", SheetColumn::End},
    {"time", SheetColumn::Time},
    {"direction", SheetColumn::Direction},
    {"date", SheetColumn::Date},
};

struct DirectionName
{
    std::string_view name;
    Direction direction;
};
constexpr DirectionName kDirections[] = {{"in", Direction::In}, {"i", Direction::In}, {"out", Direction::Out}, {"o", Direction::Out}};

constexpr SheetColumn kPeople[] = {SheetColumn::Number, SheetColumn::Id, SheetColumn::Name, SheetColumn::Ssn};

constexpr auto kTwoColumns = "the columns {} and {} mean the same";
constexpr auto kNotThere = "the file has no column {}";
constexpr auto kNoPerson = "no column says whose punches these are: Employee, Number, ID, Name or SSN";
constexpr auto kTwoPersons = "the columns {} and {} both say whose punches these are";
constexpr auto kBothKinds = "the columns are those of pairs (Start, End) and of events (Time, Direction) at once";
constexpr auto kNoPairs = "pairs need both columns, Start and End";
constexpr auto kNoEvents = "events need both columns, Time and Direction";
constexpr auto kNoMoments = "no columns say when somebody came and went: Start and End, or Time and Direction";

[[noreturn]] void Refuse(std::string text)
{
    throw Failure(0, "PTK", std::move(text));
}

const ColumnName* FindColumn(std::string_view normalized)
{
    const auto* found = std::find_if(std::begin(kNames), std::end(kNames), [&](const ColumnName& name) { return name.name == normalized; });
    return found == std::end(kNames) ? nullptr : found;
}

// Adds one FILE=OURS to the words; false if the text is not of this form.
bool TakeWord(std::string_view text, SheetWords& words)
{
    const std::size_t equals = text.rfind('=');
    const std::string file = NormalizedWord(text.substr(0, equals));
    if (equals == std::string_view::npos || file.empty()) {
        return false;
    }
    const std::string ours = NormalizedWord(text.substr(equals + 1));
    if (ours == "in" || ours == "out") {
        words.directions.emplace_back(file, ours == "in" ? Direction::In : Direction::Out);
        return true;
    }
    const ColumnName* const column = FindColumn(ours);
    if (column != nullptr) {
        words.columns.emplace_back(file, column->column);
    }
    return column != nullptr;
}

} // namespace

std::optional<SheetWords> ReadSheetWords(std::string_view text)
{
    SheetWords words;
    for (;;) {
        const std::size_t comma = text.find(',');
        if (!TakeWord(text.substr(0, comma), words)) {
            return std::nullopt;
        }
        if (comma == std::string_view::npos) {
            return words;
        }
        text.remove_prefix(comma + 1);
    }
}

SheetColumns::SheetColumns(std::span<const std::string> headings, SheetWords words) : m_headings(headings), m_words(std::move(words))
{
    PlaceTold();
    PlaceByName();
    ChoosePerson();
    RequireMoments();
}

void SheetColumns::PlaceTold()
{
    for (const auto& [heading, column] : m_words.columns) {
        const auto found = m_headings.Find(heading);
        if (!found) {
            Refuse(fmt::format(kNotThere, heading));
        }
        Place(column, *found);
    }
}

// Places the columns that the user's words did not place, by their names. Headings that the words name are passed over. If there is a
// column Employee, the others that say who somebody is are further columns.
void SheetColumns::PlaceByName()
{
    bool byEmployee = Has(SheetColumn::Employee);
    for (std::size_t place = 0; place < m_headings.Count(); ++place) {
        byEmployee = byEmployee || NamedAt(place) == SheetColumn::Employee;
    }
    std::vector<bool> taken(kSheetColumnCount);
    for (std::size_t i = 0; i < kSheetColumnCount; ++i) {
        const bool saysWho = std::find(std::begin(kPeople), std::end(kPeople), static_cast<SheetColumn>(i)) != std::end(kPeople);
        taken[i] = m_places[i].has_value() || (byEmployee && saysWho);
    }
    for (std::size_t place = 0; place < m_headings.Count(); ++place) {
        if (const auto column = NamedAt(place); column && !taken[Index(*column)]) {
            Place(*column, place);
        }
    }
}

// Our column of this heading; nothing if the heading means nothing to us, or if the user's words name it.
std::optional<SheetColumn> SheetColumns::NamedAt(std::size_t place) const
{
    const std::string& normalized = m_headings.NormalizedAt(place);
    const bool isTold =
        std::any_of(m_words.columns.begin(), m_words.columns.end(), [&](const auto& word) { return word.first == normalized; });
    const ColumnName* const name = isTold ? nullptr : FindColumn(normalized);
    return name == nullptr ? std::nullopt : std::optional(name->column);
}

void SheetColumns::Place(SheetColumn column, std::size_t place)
{
    if (Has(column)) {
        Refuse(fmt::format(kTwoColumns, Heading(column), m_headings.At(place)));
    }
    m_places[Index(column)] = place;
}

void SheetColumns::ChoosePerson()
{
    if (Has(SheetColumn::Employee)) {
        return;
    }
    std::vector<SheetColumn> found;
    std::copy_if(std::begin(kPeople), std::end(kPeople), std::back_inserter(found), [&](SheetColumn column) { return Has(column); });
    if (found.empty()) {
        Refuse(kNoPerson);
    }
    if (found.size() > 1) {
        Refuse(fmt::format(kTwoPersons, Heading(found[0]), Heading(found[1])));
    }
    m_person = found.front();
}

void SheetColumns::RequireMoments() const
{
    const bool start = Has(SheetColumn::Start);
    const bool end = Has(SheetColumn::End);
    const bool time = Has(SheetColumn::Time);
    const bool direction = Has(SheetColumn::Direction);
    if ((start || end) && (time || direction)) {
        Refuse(kBothKinds);
    }
    if (start != end) {
        Refuse(kNoPairs);
    }
    if (time != direction) {
        Refuse(kNoEvents);
    }
    if (!start && !time) {
        Refuse(kNoMoments);
    }
}

std::string_view SheetColumns::Cell(std::span<const std::string> cells, SheetColumn column) const
{
    const std::size_t place = *m_places[Index(column)];
    return place < cells.size() ? Trimmed(cells[place]) : std::string_view();
}

std::optional<Direction> SheetColumns::ReadDirection(std::string_view word) const
{
    const std::string normalized = NormalizedWord(word);
    for (const auto& [own, direction] : m_words.directions) {
        if (own == normalized) {
            return direction;
        }
    }
    const auto* found =
        std::find_if(std::begin(kDirections), std::end(kDirections), [&](const DirectionName& name) { return name.name == normalized; });
    return found == std::end(kDirections) ? std::nullopt : std::optional(found->direction);
}

} // namespace ptk
