// The receiver of the record that the user saves in the time record editor.
#pragma once

#include <memory>

namespace ptk {

class CTimeRecord;

class TimeRecordReceiver
{
public:
    virtual ~TimeRecordReceiver() = default;

    // Stores the record, new or edited, and shows the card afresh. Tells the user what goes wrong on the way; always true.
    virtual bool ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord) = 0;
};

} // namespace ptk
