#include "model/CardLine.h"

#include "model/CTimeRecord.h"
#include "platform/text/Text.h"

namespace ptk {

std::string CardLine::StartText() const
{
    std::string text;
    record->AppendTime(text, start);
    return text;
}

std::string CardLine::EndText() const
{
    std::string text;
    record->AppendTime(text, end);
    return text;
}

std::string CardLine::HoursText(float breakHours) const
{
    return TwoDecimals(hours - breakHours);
}

void CardLine::AppendTo(std::string& text, float breakHours) const
{
    record->AppendTime(text, start);
    text += '\t';
    record->AppendTime(text, end);
    text += '\t' + HoursText(breakHours);
}

} // namespace ptk
