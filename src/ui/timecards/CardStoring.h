// Storing changes to the records of the current time card, and telling what came of it.
#pragma once

#include "store/RowConflict.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace ptk {

class CTimeCard;
class CTimeRecord;
class CTimeRecordFactory;
class CurrentCard;
class NoticeLine;
class Workplace;
struct Notice;

class CardStoring
{
public:
    struct Change
    {
        std::function<bool(CTimeCard&, CTimeRecordFactory&)> step;
        const Notice& failed;
        const char* refused; // for the page's line, before the reason
        std::string done;
        std::shared_ptr<CTimeRecord> record; // nullptr for several new ones
        std::string reason{};                // goes into the edit trail; empty for none
        bool pastFactory = false;            // the step stores by the database itself, which knows then why it was refused
    };

    // All outlive it.
    CardStoring(Workplace& host, CurrentCard& card, NoticeLine& line) : m_host(host), m_card(card), m_line(line) {}

    // The card shows what is in the database from then on, or the user learns that nothing has changed there. Of what the check found then,
    // the next finding is chosen where one was.
    bool Store(const Change& change);

    // Why the last one was refused, where somebody else had changed or removed the record.
    [[nodiscard]] const std::optional<RowConflict>& Conflict() const { return m_conflict; }

private:
    bool StoreQuietly(const Change& change);
    std::string TellRefusal(const Change& change);
    [[nodiscard]] std::string Refused(const Change& change) const;
    void TellConflict(const Change& change);

    Workplace& m_host;
    CurrentCard& m_card;
    NoticeLine& m_line;
    std::optional<RowConflict> m_conflict;
};

} // namespace ptk
