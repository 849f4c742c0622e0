// The Timecards page: one employee's pay period, its time records and what they come to.
#pragma once

#include "office/card/FillPlan.h"
#include "office/card/NewRecord.h"
#include "ui/page/RecordPage.h"
#include "ui/timecards/TimeRecordReceiver.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <QWidget>
#include <string>

namespace Ui {
class TimeCardPage;
}

namespace ptk {

class CardChoice;
class CardStoring;
class CController;
class CurrentCard;
class FAutoFill;
class FTimeEditor;
class HistoryActions;
class PageHost;
struct FindingPlace;
struct HistoryScope;
struct PeriodTexts;
struct Punch;

// Every change to a record is stored at once and followed by a fresh generation of the card.
class TimeCardPage final : public QWidget, public TimeRecordReceiver, public RecordPage
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

    // Chooses and generates it, with the list of what was found.
    void ShowCard(std::int32_t employeeID, const PayPeriod& period);

    // The card that is shown, by limits that have changed.
    void CheckAgain();

    void ReadAgain(std::optional<std::int64_t> row) override;
    void TellChanges() override;

    // The hours per day below the grid; remembered.
    void ShowHours(bool shown);

    [[nodiscard]] bool HoursShown() const;

    bool ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord) override;

    // Of the chosen record, else of the card.
    void AskForHistory();

signals:
    void HistoryWanted(const ptk::HistoryScope& scope);

protected:
    void showEvent(QShowEvent* event) override;

private:
    // A record in the editor, and what was typed for it in vain before.
    struct Editing
    {
        std::shared_ptr<CTimeRecord> record;
        bool isNew = false;
        std::optional<RecordTexts> typed;
    };

    void ConnectChoice();
    void ConnectActions();
    void ConnectHistory();

    void ChooseEmployee();
    void TurnToChosenEmployee();
    void ShowStatus();
    void EnableFill();

    void Generate();
    void NewRecord();
    void EditRecord();
    void DeleteRecord();
    void Delete(const std::shared_ptr<CTimeRecord>& record);
    void AutoFill(const std::optional<FillTexts>& typed);
    void Print();

    void OfferElsewhere(const FindingPlace& place);
    void EditElsewhere(const Punch& punch);
    void DeleteElsewhere(const Punch& punch);

    // nullptr, said in the line with that text, where it cannot be had.
    [[nodiscard]] std::shared_ptr<CTimeRecord> RecordElsewhere(const Punch& punch, const char* refused);

    void OpenEditor(const Editing& editing);
    void Prepare(FTimeEditor& editor, const Editing& editing);
    void HandOver(FAutoFill& window);
    void TakeOver(const FAutoFill& window, std::int32_t records);
    void EditAgain(const Editing& editing, const RecordTexts& typed);
    void OfferAgain(const std::function<void()>& action);

    // Raises Failure 91 when there is none.
    [[nodiscard]] std::shared_ptr<CController> Controller() const;

    PageHost& m_host;
    std::unique_ptr<Ui::TimeCardPage> m_ui;
    CardChoice* m_choice; // these three belong to the page
    CurrentCard* m_card = nullptr;
    std::unique_ptr<CardStoring> m_storing;
    HistoryActions* m_history = nullptr;
    const FTimeEditor* m_editor = nullptr; // the one that is open
    std::string m_employeeName;            // as of the last change of employee
    bool m_editingNew = false;             // whether the editor was last opened for a new record; nothing depends on it
    bool m_refused = false;                // whether the record that the editor returned could not be stored
    bool m_seen = false;
};

} // namespace ptk
