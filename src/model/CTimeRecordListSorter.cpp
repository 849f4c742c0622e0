#include "model/CTimeRecordListSorter.h"

#include "model/CTimeRecordList.h"
#include "platform/Failure.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/text/Value.h"

#include <tuple>

namespace ptk {

namespace {

constexpr std::int32_t kNotFound = -1;

bool Earlier(const CTimeRecord& a, const CTimeRecord& b)
{
    return std::tuple(a.StartTime(), a.EndTime()) < std::tuple(b.StartTime(), b.EndTime());
}

bool InOrder(const CTimeRecordList& list)
{
    for (std::int32_t i = 2; i <= list.Count(); ++i) {
        if (Earlier(list.RecordAt(i), list.RecordAt(i - 1))) {
            return false;
        }
    }
    return true;
}

// The position of the earliest record from `first` on; among equal records the lowest position.
std::int32_t EarliestFrom(const CTimeRecordList& list, std::int32_t first)
{
    std::int32_t earliest = first;
    for (std::int32_t i = first + 1; i <= list.Count(); ++i) {
        if (Earlier(list.RecordAt(i), list.RecordAt(earliest))) {
            earliest = i;
        }
    }
    return earliest;
}

} // namespace

CTimeRecordListSorter::CTimeRecordListSorter(std::shared_ptr<CTimeRecordList> list) : m_list(std::move(list)) {}

void CTimeRecordListSorter::TimeRecordList(std::shared_ptr<CTimeRecordList> value)
{
    m_list = std::move(value);
}

template <typename Predicate>
std::int32_t CTimeRecordListSorter::FirstPosition(Predicate matches)
{
    m_errorNumber = 0;
    std::int32_t found = kNotFound;
    SucceedsOr(recordsorter::ReadFailed, m_errorNumber, [&] {
        const CTimeRecordList& list = *Required(m_list);
        for (std::int32_t i = 1; i <= list.Count() && found == kNotFound; ++i) {
            if (matches(list.RecordAt(i))) {
                found = i;
            }
        }
    });
    return found;
}

std::int32_t CTimeRecordListSorter::Find(const std::shared_ptr<CTimeRecord>& thisobject)
{
    return FirstPosition([&](const CTimeRecord& record) { return &record == thisobject.get(); });
}

std::shared_ptr<CTimeRecord> CTimeRecordListSorter::GetTimeRecordByKey(DateTime thestarttime, DateTime theendtime)
{
    const std::int32_t position = GetIndexByKey(DateTime(), thestarttime, theendtime);
    return position == kNotFound ? nullptr : m_list->Item(position);
}

std::int32_t CTimeRecordListSorter::GetIndexByKey(DateTime /*theshiftdate*/, DateTime thestarttime, DateTime theendtime)
{
    return FirstPosition([&](const CTimeRecord& record) { return record.StartTime() == thestarttime && record.EndTime() == theendtime; });
}

bool CTimeRecordListSorter::Sort(std::int16_t /*sortorder*/)
{
    m_errorNumber = 0;
    if (m_list == nullptr) {
        return false;
    }
    return SucceedsOr(recordsorter::SortFailed, m_errorNumber, [&] {
        static_cast<void>(NarrowToInt16(m_list->Count())); // positions are 16-bit numbers here
        if (!InOrder(*m_list)) {
            SelectionSort();
        }
    });
}

// Every Move loses the record that it should move, and the list gets shorter; the walk still goes on at the next position.
void CTimeRecordListSorter::SelectionSort()
{
    for (std::int32_t i = 1; i <= m_list->Count(); ++i) {
        const std::int32_t earliest = EarliestFrom(*m_list, i);
        if (earliest != i) {
            m_list->Move(earliest, i);
        }
    }
}

} // namespace ptk
