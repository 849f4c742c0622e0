// The current time card of the main window, and how the Timecards page shows it.
#pragma once

#include "model/check/Finding.h"
#include "office/history/RecordEdits.h"
#include "platform/text/DateTime.h"

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

// The card is made of what the page's boxes name, and is marked as soon as the boxes name another one. Moving to another period or employee
// clears the display but keeps the card. Failures are told in message boxes, and their reasons in the page's line and the session log.
class CurrentCard final : public QObject
{
    Q_OBJECT

public:
    // Widgets of the page, which outlive this.
    struct Place
    {
        CardChoice& choice;
        HintLabel& mark;
        CardDisplay& display;
        NoticeLine& line;
    };

    CurrentCard(PageHost& host, const Place& place, QObject* parent);

    // nullptr before the first generation.
    [[nodiscard]] const std::shared_ptr<CTimeCard>& Card() const { return m_card; }

    void GiveUp() { m_card = nullptr; }

    // The check of the card, from when it was last loaded; nullptr before.
    [[nodiscard]] const std::shared_ptr<const CheckedTimecard>& Checked() const { return m_checked; }

    // Whether the card's period was closed for its employee.
    [[nodiscard]] bool IsPaid() const;

    // Generates and shows the card that the boxes name. False for any run-time failure, which leaves the display empty.
    bool RefreshTimeCard();

    // Generates and shows the card after a save. A run-time failure has a box; the line stays empty when the card is shown.
    void RegenerateAfterSave();

    // Reads the shown card again, without a box. Where that fails, answers false, and what is shown stays. May raise failures.
    bool ReadAgain();

    // Reads the card again with its employee as the list has him now, where it is shown or is what the boxes name. Without a box; where
    // that fails, the display is cleared.
    void Renew();

    // Says in the line that somebody else changed the employee or the records shown, with a button that loads the change.
    void TellChanges();

    // Says in the line, before what stands there, that the card, which somebody is about to be paid by, has problems; nothing otherwise.
    void TellProblems();

    // Checks the shown card again with the limits that are stored now.
    void CheckAgain();

    // Renews the card where this employee, whose name, rates and deductions may have changed, is the card's.
    void RenewFor(std::int32_t savedEmployee);

    // Clears the display and keeps the card; always true.
    bool ClearTimeCardDisplay();

    // The display name of the card's employee; empty when there is no card or no employee.
    [[nodiscard]] std::string Employee() const;

    // The record of the chosen row; nullptr when the user has chosen none since the grid was rebuilt.
    [[nodiscard]] std::shared_ptr<CTimeRecord> ChosenRecord() const;

    void ForgetChosenRecord();

    // The findings of the open list, see CheckPanel.
    [[nodiscard]] std::optional<Finding> ChosenFinding() const;
    bool ChooseNextFinding(const std::optional<Finding>& done);

    // The most hours of a usual shift, by the limits that the card was checked with.
    [[nodiscard]] std::int32_t LongShiftHours() const;

    // Gives the table the keyboard, on the row of that record or, where it has none, on the row at that place, counted from 0. No row is
    // chosen by this.
    void TakeKeyboard(std::int64_t record, int place);

    // The row that has the keyboard in the table, counted from 0; -1 for none.
    [[nodiscard]] int KeyboardPlace() const;

    // Says it in the page's line and writes it into the session log; nothing for an empty text.
    void Complain(const std::string& line);

    // Among namesakes, the card is to be that of this employee as long as the box holds his row. Without an ID it is that of the first of
    // the name.
    void Prefer(std::optional<std::int32_t> employeeID) { m_preferred = employeeID; }

signals:
    // The grid was built anew, with or without a card in it.
    void Rebuilt();

private:
    void Mark();
    [[nodiscard]] bool IsWanted() const;
    bool LoadAgain();
    [[nodiscard]] std::shared_ptr<CEmployee> EmployeeToShow() const;
    bool GenerateTimeCard();
    bool Load(CTimeCard& card, const std::shared_ptr<CEmployee>& employee, const PayPeriod& period);
    void ReadEdits(const CTimeCard& card);
    void ShowFindings();
    bool Regenerate();

    // Deliberately always false; nobody looks at it.
    bool ShowTimeCard();

    bool SetupTimeRecordGrid();
    void ReportCardError(std::int32_t errorNumber);

    PageHost& m_host;
    CardChoice& m_choice;
    HintLabel& m_mark;
    CardDisplay& m_display;
    NoticeLine& m_line;
    std::shared_ptr<CTimeCard> m_card;
    std::optional<std::int32_t> m_preferred;
    std::shared_ptr<const CheckedTimecard> m_checked; // of the card when it was last loaded; nullptr before
    RecordEdits m_edits;                              // of the card's records
};

} // namespace ptk
