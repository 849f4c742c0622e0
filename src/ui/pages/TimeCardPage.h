// The Timecards page: one employee's pay period, its time records and what they come to.
#pragma once

#include "ui/dialogs/TimeRecordReceiver.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <QWidget>
#include <string>

namespace Ui {
class TimeCardPage;
}

namespace ptk {

class CController;
class CTimeCard;
class CTimeRecordFactory;
class CTimeRecordList;
class FAutoFill;
class PageHost;
class TimeRecordGridModel;
struct Notice;
struct PeriodTexts;

// The card is the main window's current one. Every change to a record is stored at once and followed by a fresh generation; moving to
// another period or employee clears the display but keeps the card.
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
    PeriodTexts Period() const; // as the boxes show it

    bool ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    using CardStep = std::function<bool(CTimeCard&, CTimeRecordFactory&)>;

    void PrepareGrid();
    void ConnectSelection();
    void ConnectActions();

    bool AlignPeriodEnd();
    bool MovePayPeriod(std::int16_t direction); // raises what the calculation raises
    void StepPeriod(std::int16_t direction);
    void StepEmployee(int direction);
    void ChooseEmployee();
    void TurnToChosenEmployee();
    void ShowStatus();

    bool RefreshTimeCard(); // false for any run-time failure
    bool GenerateTimeCard();
    void Regenerate();
    void RegenerateAfterSave();
    bool ShowTimeCard(); // deliberately always false; nobody looks at it
    bool DisplayTimeCard();
    bool FillTimeRecordGrid(const std::shared_ptr<CTimeRecordList>& records);
    bool SetupTimeRecordGrid();
    void ReportCardError(std::int32_t errorNumber);

    int ChosenRow() const; // -1 when the user has chosen none since the grid was rebuilt
    std::shared_ptr<CTimeRecord> ChosenRecord() const;
    void ForgetChosenRecord();

    void Generate();
    void NewRecord();
    void EditRecord();
    void DeleteRecord();
    void AutoFill();
    void Print();

    void OpenEditor(const std::shared_ptr<CTimeRecord>& record);
    void HandOver(FAutoFill& window);
    void TakeOver(const FAutoFill& window);
    void StoreAndShow(const CardStep& step, const Notice& failed);

    std::shared_ptr<CController> Controller() const; // raises Failure 91 when there is none
    std::int16_t PeriodLength() const;
    std::string EmployeeText() const;

    PageHost& m_host;
    std::unique_ptr<Ui::TimeCardPage> m_ui;
    TimeRecordGridModel* m_records; // belongs to the page's widgets
    std::string m_employeeName;     // as of the last change of employee
    bool m_editingNew = false;      // whether the editor was last opened for a new record; nothing depends on it
};

} // namespace ptk
