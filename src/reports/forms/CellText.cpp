#include "reports/forms/CellText.h"

#include "platform/text/DayText.h"
#include "platform/text/Text.h"

#include <cmath>

namespace ptk {

std::string CellText(CellType type, const Value& cell)
{
    if (cell.IsNull()) {
        return "";
    }
    switch (type) {
    case CellType::Hours:
    case CellType::Money:
        return TwoDecimals(cell.ToSingle());
    case CellType::Rate:
        return SingleText(cell.ToSingle());
    case CellType::Date:
        return IsoDay(cell.ToDateTime());
    case CellType::DateTime:
        return IsoMoment(cell.ToDateTime());
    case CellType::Boolean:
        return cell.ToBoolean() ? "true" : "false";
    case CellType::Text:
    case CellType::WholeNumber:
        break;
    }
    return cell.ToText();
}

std::int64_t WholeMinutes(float hours)
{
    return std::llround(static_cast<double>(hours) * 60);
}

std::string ClockText(const Value& hours)
{
    return hours.IsNull() ? "" : HoursAndMinutes(WholeMinutes(hours.ToSingle()));
}

} // namespace ptk
