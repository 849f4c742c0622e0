#include "office/history/ColumnWords.h"

#include "platform/text/DayText.h"
#include "platform/text/Text.h"
#include "store/engine/StoredTable.h"

#include <algorithm>

namespace ptk {

namespace {

using Shape = ColumnShape;

Shape ShapeOf(const StoredColumn& column)
{
    switch (column.told) {
    case ColumnTold::Day:
        return Shape::Day;
    case ColumnTold::Weekday:
        return Shape::Weekday;
    case ColumnTold::Employee:
        return Shape::Employee;
    case ColumnTold::ByKind:
        break;
    }
    switch (column.kind) {
    case ColumnKind::Date:
        return Shape::Moment;
    case ColumnKind::Flag:
        return Shape::Flag;
    default:
        return Shape::Plain;
    }
}

} // namespace

ColumnWords WordsOf(std::string_view column)
{
    for (const StoredTable& table : StoredTables()) {
        const auto found = std::ranges::find(table.columns, column, &StoredColumn::name);
        if (found != table.columns.end()) {
            return {found->words, ShapeOf(*found)};
        }
    }
    return {nullptr, Shape::Plain};
}

// Seconds are shown only if they are not 0, because nobody types them.
std::string MomentText(DateTime moment, ColumnShape shape)
{
    if (moment.IsZero()) {
        return "none";
    }
    if (shape == Shape::Day && moment == DateTime(moment.Date())) {
        return DayText(moment);
    }
    const std::string_view pattern = moment.Time().second == 0 ? "mm/dd/yyyy hh:mm AM/PM" : "mm/dd/yyyy hh:mm:ss AM/PM";
    return FormatDateTime(moment, moment.DayNumber() == 0 ? pattern.substr(pattern.find('h')) : pattern);
}

} // namespace ptk
