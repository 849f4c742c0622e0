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

    // Starts it today; false when its length cannot be had, the end is then left alone.
    bool InitializePayPeriod();

    // Always true.
    bool ClearTimeCardDisplay();

    void SelectFirstEmployee();
    void EnablePrint();

    // The current one; the display stays.
    void GiveUpCard();

    // As the boxes show it.
    [[nodiscard]] PeriodTexts Period() const;

    // Nothing while a box holds no date.
    [[nodiscard]] std::optional<PayPeriod> ChosenPeriod() const;

    // In the list; nothing for a typed text.
    [[nodiscard]] std::optional<std::int32_t> ChosenEmployee() const;

    // Whom and which days the boxes name, in the status bar.
    void ShowChoice();

    // Chooses and generates it, with the list of what was found and the first of it chosen.
    void ShowCard(std::int32_t employeeID, const PayPeriod& period);

    // The card that is shown, by limits that have changed.
    void CheckAgain();

    void ReadAgain(std::optional<std::int64_t> row) override;
    void TellChanges() override;

    // The hours per day below the grid; remembered.
    void ShowHours(bool shown);

    [[nodiscard]] bool HoursShown() const;

    // As an editor hands it over.
    bool ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord);

    // Of the chosen record, else of the card.
    void AskForHistory();

    // See HistoryActions.
    [[nodiscard]] std::optional<HistoryScope> SincePaid() const;

signals:
    void HistoryWanted(const ptk::HistoryScope& scope);

    // See CardMending.
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
