// Where the time record editor hands its record when the user saves.
#pragma once

#include <memory>

namespace ptk {

class CTimeRecord;

class TimeRecordReceiver
{
public:
    virtual ~TimeRecordReceiver() = default;

    // Stores the record, new or edited, and shows the card afresh; tells the user what goes wrong on the way. Always true.
    virtual bool ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord) = 0;
};

} // namespace ptk
