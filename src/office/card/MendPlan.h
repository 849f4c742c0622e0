// Mends the cards of several people at once: all their findings, each with its first remedy, are ticked, changed and stored as one step.
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
    std::size_t card = 0; // index of the person
    Finding finding;
    std::optional<Remedy> remedy; // the first; none: a person must judge
    bool ticked = false;          // will be stored
};

class MendPlan
{
public:
    // Reads the cards of these people, all at one moment, until `goOn` answers false; it is asked after each card. On a server many cards
    // are read by one question. A remedy is ticked if it deletes nothing and leaves no shift that is too long; of several that change the
    // same record, only the first. autoShiftEnd: see ShiftEnds. Raises what reading the database raises. REQUIRES: nothing is nullptr.
    MendPlan(const std::shared_ptr<CJetDB>& database, const CheckTerms& terms, std::vector<std::shared_ptr<CEmployee>> people,
             std::optional<std::int64_t> autoShiftEnd, const std::function<bool()>& goOn = {});

    // All lines, by person and then in the order of the findings.
    [[nodiscard]] const std::vector<MendLine>& Lines() const { return m_lines; }

    [[nodiscard]] const CEmployee& PersonOf(const MendLine& line) const { return *m_cards.at(line.card).employee; }

    // Ticks or unticks a line. Ticking unticks the other lines that would change one of the same records. A line without a remedy stays.
    void Tick(std::size_t line, bool ticked);

    // Whether the remedy only sets the end of one shift, so that another end can be chosen.
    [[nodiscard]] bool HasEnd(std::size_t line) const;

    // Gives the shift another end: the first moment of that time of day after its start. Ticks the line. REQUIRES: HasEnd.
    void EndAt(std::size_t line, DateTime timeOfDay);

    // The moment at which the remedy ends the shift. REQUIRES: HasEnd.
    [[nodiscard]] DateTime EndOf(std::size_t line) const { return m_lines.at(line).remedy.value().changes.front().end; }

    // How many lines are ticked, and how many people they belong to.
    [[nodiscard]] std::size_t Ticked() const;
    [[nodiscard]] std::size_t PeopleTicked() const;

    // The shown hours of the person's card, as stored and with everything that is ticked; none if they cannot be computed.
    [[nodiscard]] std::optional<std::string> HoursBefore(const MendLine& line) const;
    [[nodiscard]] std::optional<std::string> HoursAfter(const MendLine& line) const;

    // Stores everything that is ticked, or nothing: see Mend. True if nothing is ticked.
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
