// The Timecards page: one employee's pay period, its time records and what they come to.
#pragma once

#include "office/FillPlan.h"
#include "office/NewRecord.h"
#include "ui/dialogs/TimeRecordReceiver.h"

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
class CController;
class CTimeCard;
class CTimeRecordFactory;
class CurrentCard;
class FAutoFill;
class FTimeEditor;
class PageHost;
struct FindingPlace;
struct Notice;
struct PeriodTexts;
struct Punch;

// Every change to a record is stored at once and followed by a fresh generation of the card.
class TimeCardPage final : public QWidget, public TimeRecordReceiver
{
    Q_OBJECT

public:
    explicit TimeCardPage(PageHost& host, QWidget* parent = nullptr);
    ~TimeCardPage() override;

    bool InitializePayPeriod();  // starts it today; false when its length cannot be had, the end is then left alone
    bool ClearTimeCardDisplay(); // always true
    void SelectFirstEmployee();
    void EnablePrint();
    void GiveUpCard();                                               // the current one; the display stays
    PeriodTexts Period() const;                                      // as the boxes show it
    std::optional<PayPeriod> ChosenPeriod() const;                   // nothing while a box holds no date
    void ShowCard(std::int32_t employeeID, const PayPeriod& period); // chooses and generates it, with the list of what was found
    void CheckAgain();                                               // the card that is shown, by limits that have changed
    void ShowHours(bool shown);                                      // the hours per day below the grid; remembered
    bool HoursShown() const;

    bool ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    using CardStep = std::function<bool(CTimeCard&, CTimeRecordFactory&)>;

    // A change to the card's records, and what is said of it.
    struct Storing
    {
        CardStep step;
        const Notice& failed;
        const char* refused; // for the page's line, before the reason
        std::string done;
    };

    // A record in the editor, and what was typed for it in vain before.
    struct Editing
    {
        std::shared_ptr<CTimeRecord> record;
        bool isNew = false;
        std::optional<RecordTexts> typed;
    };

    void ConnectChoice();
    void ConnectActions();

    void ChooseEmployee();
    void TurnToChosenEmployee();
    void ShowStatus();
    void EnableFill();

    void Generate();
    void NewRecord();
    void EditRecord();
    void DeleteRecord();
    void AutoFill(const std::optional<FillTexts>& typed);
    void Print();

    void OfferElsewhere(const FindingPlace& place);
    void EditElsewhere(const Punch& punch);
    void OpenEditor(const Editing& editing);
    void Prepare(FTimeEditor& editor, const Editing& editing);
    void HandOver(FAutoFill& window);
    void TakeOver(const FAutoFill& window, std::int32_t records);
    bool StoreAndShow(const Storing& storing);
    void OfferAgain(const std::function<void()>& action);

    std::shared_ptr<CController> Controller() const; // raises Failure 91 when there is none

    PageHost& m_host;
    std::unique_ptr<Ui::TimeCardPage> m_ui;
    CardChoice* m_choice; // these two belong to the page
    CurrentCard* m_card = nullptr;
    std::string m_employeeName; // as of the last change of employee
    bool m_editingNew = false;  // whether the editor was last opened for a new record; nothing depends on it
    bool m_refused = false;     // whether the record that the editor returned could not be stored
    bool m_seen = false;
};

} // namespace ptk
