// The Timecards page: one employee's pay period, its time records and what they come to.
#pragma once

#include "model/PayPeriod.h"
#include "ui/page/RecordPage.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QWidget>
#include <string>

namespace Ui {
class TimeCardPage;
}

namespace ptk {

class CardChoice;
class CardFilling;
class CardMending;
class CardStoring;
class CTimeRecord;
class CurrentCard;
class HistoryActions;
class PageHost;
class RecordEditing;
struct HistoryScope;
struct PeriodTexts;

// Every change to a record is stored at once and followed by a fresh generation of the card.
class TimeCardPage final : public QWidget, public RecordPage
{
    Q_OBJECT

public:
    explicit TimeCardPage(PageHost& host, QWidget* parent = nullptr);
    ~TimeCardPage() override;

    // Has the period start today. False when the length of a period is not known; the end then stays as it is.
    bool InitializePayPeriod();

    // Clears the display and keeps the card; always true.
    bool ClearTimeCardDisplay();

    void SelectFirstEmployee();
    void EnablePrint();

    // Forgets the current card; the display stays.
    void GiveUpCard();

    // The period as the boxes show it.
    [[nodiscard]] PeriodTexts Period() const;

    // The period in the boxes; nothing while a box holds no date.
    [[nodiscard]] std::optional<PayPeriod> ChosenPeriod() const;

    // The ID of the employee who is chosen in the list; nothing for a typed text.
    [[nodiscard]] std::optional<std::int32_t> ChosenEmployee() const;

    // Shows in the status bar which employee and which days the boxes name.
    void ShowChoice();

    // Chooses the employee and the period and generates the card, with the list of findings open and the first one to be mended chosen.
    void ShowCard(std::int32_t employeeID, const PayPeriod& period);

    // Checks the shown card again after the limits have changed.
    void CheckAgain();

    void ReadAgain(std::optional<std::int64_t> row) override;
    void TellChanges() override;

    // Shows or hides the chart of the hours per day below the grid; remembered for the next session.
    void ShowHours(bool shown);

    [[nodiscard]] bool HoursShown() const;

    // Stores the record as if the editor had handed it over; always true.
    bool ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord);

    // Asks for the history of the chosen record, or else of the card.
    void AskForHistory();

    // The changes of the shown card since it was paid, see HistoryActions.
    [[nodiscard]] std::optional<HistoryScope> SincePaid() const;

signals:
    void HistoryWanted(const ptk::HistoryScope& scope);

    // What CardMending asks for.
    void NextCardWanted(const ptk::PayPeriod& period);
    void RateWanted(std::int32_t employeeID);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void ConnectChoice();
    void ConnectActions();
    void ConnectFindings();
    void ConnectHistory();

    void ChooseEmployee();
    void TurnToChosenEmployee();
    void ShowStatus();
    void EnableFill();
    void Generate();
    void Print();

    PageHost& m_host;
    std::unique_ptr<Ui::TimeCardPage> m_ui;
    CardChoice* m_choice; // these four belong to the page
    CurrentCard* m_card = nullptr;
    CardMending* m_mending = nullptr;
    HistoryActions* m_history = nullptr;
    std::unique_ptr<CardStoring> m_storing;
    std::unique_ptr<RecordEditing> m_records;
    std::unique_ptr<CardFilling> m_filling;
    std::string m_employeeName; // as of the last change of employee
    bool m_seen = false;
};

} // namespace ptk
