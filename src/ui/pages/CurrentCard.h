// The main window's current time card, and how the Timecards page shows it.
#pragma once

#include "platform/DateTime.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QObject>
#include <string>

namespace ptk {

class CardChoice;
class CardDisplay;
class CEmployee;
class CTimeCard;
class CTimeRecord;
class HintLabel;
class NoticeLine;
class PageHost;
struct CheckedTimecard;
struct PayPeriod;

// Made of what the page's boxes name, and marked as soon as it is not what they name any more. Moving to another period or employee clears
// the display but keeps the card. Whatever goes wrong is told in the given boxes, and its reason in the page's line and the session log.
class CurrentCard final : public QObject
{
    Q_OBJECT

public:
    // The page's widgets, which outlive this.
    struct Place
    {
        CardChoice& choice;
        HintLabel& mark;
        CardDisplay& display;
        NoticeLine& line;
    };

    CurrentCard(PageHost& host, const Place& place, QObject* parent);

    const std::shared_ptr<CTimeCard>& Card() const { return m_card; } // nullptr before the first generation
    void GiveUp() { m_card = nullptr; }
    bool RefreshTimeCard();                    // generates and shows it; false for any run-time failure
    void RegenerateAfterSave();                // the same, with a box for that failure, and with nothing in the line when it is shown
    bool ReadAgain();                          // without a box; where that fails, false, what is shown stays. May raise failures.
    void CheckAgain();                         // with the limits that the options hold now
    void RenewFor(std::int32_t savedEmployee); // name, rates and deductions of that employee may be others now
    bool ClearTimeCardDisplay();               // always true

    std::string Employee() const;                      // display name; empty when there is no card or it is nobody's
    std::shared_ptr<CTimeRecord> ChosenRecord() const; // nullptr when the user has chosen none since the grid was rebuilt
    void ForgetChosenRecord();
    void Complain(const std::string& line); // into the page's line and the session log; nothing for an empty text

    // Of several of one name, the card is to be of this one as long as the box holds its row; nothing: of the first of the name.
    void Mean(std::optional<std::int32_t> employeeID) { m_meant = employeeID; }

signals:
    void Rebuilt(); // the grid, with or without a card in it

private:
    void Mark();
    std::shared_ptr<CEmployee> EmployeeToShow() const;
    bool GenerateTimeCard();
    bool Load(CTimeCard& card, const std::shared_ptr<CEmployee>& employee, const PayPeriod& period);
    void ShowFindings();
    bool Regenerate();
    bool ShowTimeCard(); // deliberately always false; nobody looks at it
    bool SetupTimeRecordGrid();
    void ReportCardError(std::int32_t errorNumber);

    PageHost& m_host;
    CardChoice& m_choice;
    HintLabel& m_mark;
    CardDisplay& m_display;
    NoticeLine& m_line;
    std::shared_ptr<CTimeCard> m_card;
    std::optional<std::int32_t> m_meant;
    std::shared_ptr<const CheckedTimecard> m_checked; // the current card as it was last loaded; nullptr before
};

} // namespace ptk
