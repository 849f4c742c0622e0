// The main window's current time card, and how the Timecards page shows it.
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

    // nullptr before the first generation.
    [[nodiscard]] const std::shared_ptr<CTimeCard>& Card() const { return m_card; }

    void GiveUp() { m_card = nullptr; }

    // The same as it was checked when it was last loaded; nullptr before.
    [[nodiscard]] const std::shared_ptr<const CheckedTimecard>& Checked() const { return m_checked; }

    // Its period was closed for its employee.
    [[nodiscard]] bool IsPaid() const;

    // Generates and shows it; false for any run-time failure.
    bool RefreshTimeCard();

    // The same, with a box for that failure, and with nothing in the line when it is shown.
    void RegenerateAfterSave();

    // Without a box; where that fails, false, what is shown stays. May raise failures.
    bool ReadAgain();

    // With its employee as the list has him now, where the card is shown or is what the boxes name. Without a box.
    void Renew();

    // Says in the line, with a button to load it, that somebody else changed the employee or the records shown.
    void TellChanges();

    // In the line, before what it says: that the card, which somebody is about to be paid by, has problems. Nothing where it has none.
    void TellProblems();

    // With the limits that the options hold now.
    void CheckAgain();

    // Name, rates and deductions of that employee may be others now.
    void RenewFor(std::int32_t savedEmployee);

    // Always true.
    bool ClearTimeCardDisplay();

    // Display name; empty when there is no card or it is nobody's.
    [[nodiscard]] std::string Employee() const;

    // nullptr when the user has chosen none since the grid was rebuilt.
    [[nodiscard]] std::shared_ptr<CTimeRecord> ChosenRecord() const;

    void ForgetChosenRecord();

    // See CheckPanel.
    [[nodiscard]] std::optional<Finding> ChosenFinding() const;
    bool ChooseNextFinding(const std::optional<Finding>& done);

    // By the limits that the card was checked with.
    [[nodiscard]] std::int32_t LongShiftHours() const;

    // Puts the keyboard into the table, on the row of that record, or, where it is not there, on the one at that place; none is chosen by
    // it.
    void TakeKeyboard(std::int64_t record, int place);

    // From 0, of the row that has the keyboard in the table; -1 for none.
    [[nodiscard]] int KeyboardPlace() const;

    // Into the page's line and the session log; nothing for an empty text.
    void Complain(const std::string& line);

    // Of several of one name, the card is to be of this one as long as the box holds its row; nothing: of the first of the name.
    void Mean(std::optional<std::int32_t> employeeID) { m_meant = employeeID; }

signals:
    // The grid, with or without a card in it.
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
    std::optional<std::int32_t> m_meant;
    std::shared_ptr<const CheckedTimecard> m_checked; // the current card as it was last loaded; nullptr before
    RecordEdits m_edits;                              // of its records
};

} // namespace ptk
