// What a time card is to be made of, the pay period and the employee, and the button that makes it: the top of the Timecards page.
#pragma once

#include "model/PayPeriod.h"
#include "office/CardTexts.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QWidget>
#include <string>

namespace Ui {
class CardChoice;
}

namespace ptk {

class PageHost;
struct PeriodTexts;

class CardChoice final : public QWidget
{
    Q_OBJECT

public:
    explicit CardChoice(PageHost& host, QWidget* parent = nullptr);
    ~CardChoice() override;

    bool InitializePayPeriod(); // starts it today; false when its length cannot be had, the end is then left alone
    PayPeriod Period() const;   // raises Failure 13 when a box holds no date
    void Period(PayPeriod value);
    ptk::PeriodTexts PeriodTexts() const; // as the boxes show it
    std::string PeriodText() const;       // both in one

    std::string EmployeeText() const;               // as it stands in the box
    CardName Chosen() const;                        // the employee is empty while the box holds nobody's name
    void Employee(std::int32_t employeeID);         // chooses that row of the list, also of namesakes
    std::optional<std::int32_t> EmployeeID() const; // of the row that the box holds; nothing for a typed text
    void SelectFirstEmployee();
    void FocusEmployee();

signals:
    void PeriodTyped();    // or picked in a calendar; the end has followed the start by then
    void Stepped();        // by an arrow, also where there was nowhere to go
    void EmployeeChosen(); // from the list or by typing
    void GenerateAsked();
    void Changed(); // any text of the boxes, by whatever means

private:
    void LayOut();
    void ConnectBoxes();
    bool AlignPeriodEnd();
    bool MovePayPeriod(std::int16_t direction); // raises what the calculation raises
    void StepPeriod(std::int16_t direction);
    void StepEmployee(int direction);
    std::int16_t PeriodLength() const; // raises Failure 91 before the window has its controller

    PageHost& m_host;
    std::unique_ptr<Ui::CardChoice> m_ui;
};

} // namespace ptk
