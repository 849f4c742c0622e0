// Orders a time record list by time and finds records in it by their times.
#pragma once

#include "model/ModelErrors.h"
#include "platform/text/DateTime.h"

#include <cstdint>
#include <memory>

namespace ptk {

class CTimeRecord;
class CTimeRecordList;

// Searches answer the first match, or nullptr or -1: with number 0 when nothing matches, with 341 when the list cannot be read.
class CTimeRecordListSorter
{
public:
    CTimeRecordListSorter() = default;
    explicit CTimeRecordListSorter(std::shared_ptr<CTimeRecordList> list);

    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }
    void TimeRecordList(std::shared_ptr<CTimeRecordList> value);
    [[nodiscard]] std::shared_ptr<CTimeRecordList> TimeRecordList() const { return m_list; }

    // The position of this very object in the list, whatever its values.
    std::int32_t Find(const std::shared_ptr<CTimeRecord>& thisobject);

    std::shared_ptr<CTimeRecord> GetTimeRecordByKey(DateTime thestarttime, DateTime theendtime);

    // The position of the first record with these two times; the shift date is not used.
    std::int32_t GetIndexByKey(DateTime theshiftdate, DateTime thestarttime, DateTime theendtime);

    // Sorts ascending by start, then end, whatever the sort order; equal records stay in place. False without a list, and with 314 for more
    // than 32,767 records. A list that is out of order loses each record that would have to move, deliberately: see CTimeRecordList::Move.
    bool Sort(std::int16_t sortorder);

private:
    template <typename Predicate>
    std::int32_t FirstPosition(Predicate matches);
    void SelectionSort();

    std::shared_ptr<CTimeRecordList> m_list;
    std::int32_t m_errorNumber = 0;
};

} // namespace ptk
