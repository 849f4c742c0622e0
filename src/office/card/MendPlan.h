// Mending several people's cards at once: all their findings, each with its first remedy, to be ticked, changed and stored as one step.
#pragma once

#include "office/card/CardChecker.h"
#include "office/card/Mending.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

struct MendLine
{
    std::size_t card = 0; // whose, by the order of the people
    Finding finding;
    std::optional<Remedy> remedy; // the first; none: a person must judge
    bool ticked = false;          // to be done
};

class MendPlan
{
public:
    // Reads the cards of these people, all of one moment, until `goOn` answers false; it is asked after each card. Of a server many cards
    // are asked for at once. Ticked is what has a remedy that deletes nothing and leaves no shift that is too long, of several for one
    // record the first. autoShiftEnd: see ShiftEnds. Raises what reading the database raises. REQUIRES: nothing is nullptr.
    MendPlan(const std::shared_ptr<CJetDB>& database, const CheckTerms& terms, std::vector<std::shared_ptr<CEmployee>> people,
             std::optional<std::int64_t> autoShiftEnd, const std::function<bool()>& goOn = {});

    // In the order of the people and their findings.
    [[nodiscard]] const std::vector<MendLine>& Lines() const { return m_lines; }

    [[nodiscard]] const CEmployee& PersonOf(const MendLine& line) const { return *m_cards.at(line.card).employee; }

    // Unticks whatever else would change one of the same records. Nothing for a line without a remedy.
    void Tick(std::size_t line, bool ticked);

    // Whether the remedy does no more than end a shift, so that the end can be another one.
    [[nodiscard]] bool HasEnd(std::size_t line) const;

    // The end of the shift instead of the one that was offered: the first moment of that time of day after its start. Ticks the line.
    // REQUIRES: HasEnd.
    void EndAt(std::size_t line, DateTime timeOfDay);

    // REQUIRES: HasEnd.
    [[nodiscard]] DateTime EndOf(std::size_t line) const { return m_lines.at(line).remedy.value().changes.front().end; }

    // Of all lines, and of how many people.
    [[nodiscard]] std::size_t Ticked() const;
    [[nodiscard]] std::size_t PeopleTicked() const;

    // The shown hours of the person's card, now and with all that is ticked; none where it cannot be computed.
    [[nodiscard]] std::optional<std::string> HoursBefore(const MendLine& line) const;
    [[nodiscard]] std::optional<std::string> HoursAfter(const MendLine& line) const;

    // All that is ticked, or nothing: see Mend. True where nothing is.
    [[nodiscard]] bool Store(CJetDB& database) const;

private:
    struct Card
    {
        std::shared_ptr<CEmployee> employee;
        Punches rows;
        CardCheck check;
    };

    void Add(Card card, const std::vector<std::vector<Remedy>>& remedies);
    [[nodiscard]] bool IsHarmless(const Remedy& remedy) const;
    [[nodiscard]] std::vector<RecordChange> TickedOf(std::size_t card) const;
    [[nodiscard]] std::optional<std::string> HoursOf(const Card& card, const std::vector<RecordChange>& changes) const;

    CheckTerms m_terms;
    std::vector<Card> m_cards;
    std::vector<MendLine> m_lines;
};

} // namespace ptk
