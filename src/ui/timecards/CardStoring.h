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
        const char* refused; // begins the sentence in the page's line; the reason follows
        std::string done;
        std::shared_ptr<CTimeRecord> record; // the changed record; nullptr for several new ones
        std::string reason{};                // goes into the edit trail; empty for none
        bool pastFactory = false;            // the step stores by the database itself, which then knows why it refused
    };

    // Everything that is handed in outlives it.
    CardStoring(Workplace& host, CurrentCard& card, NoticeLine& line) : m_host(host), m_card(card), m_line(line) {}

    // Stores the change. Either the card then shows what is in the database, or the answer is false and the user learns that nothing has
    // changed there. Where a finding was chosen, the next one is chosen afterwards.
    bool Store(const Change& change);

    // Why the last change was refused, where somebody else had changed or removed the record; nothing otherwise.
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
