// What a time card is to be made of, the pay period and the employee, and the button that makes it: the top of the Timecards page.
#pragma once

#include "model/PayPeriod.h"
#include "office/card/CardTexts.h"

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

    // Starts it today; false when its length cannot be had, the end is then left alone.
    bool InitializePayPeriod();

    // Raises Failure 13 when a box holds no date.
    [[nodiscard]] PayPeriod Period() const;

    void Period(PayPeriod value);

    // The period is offered as the last one used, also after the next start of the program; not one that only begins today, as it does
    // where nobody has chosen any. Raises Failure 13 when a box holds no date.
    void KeepAsLastUsed();

    // As the boxes show it.
    [[nodiscard]] ptk::PeriodTexts PeriodTexts() const;

    // Both in one.
    [[nodiscard]] std::string PeriodText() const;

    // As it stands in the box.
    [[nodiscard]] std::string EmployeeText() const;

    // The employee is empty while the box holds nobody's name.
    [[nodiscard]] CardName Chosen() const;

    // Chooses that row of the list, also of namesakes.
    void Employee(std::int32_t employeeID);

    // Of the row that the box holds; nothing for a typed text.
    [[nodiscard]] std::optional<std::int32_t> EmployeeID() const;

    void SelectFirstEmployee();
    void FocusEmployee();

signals:
    // Or picked in a calendar; the end has followed the start by then.
    void PeriodTyped();

    // By an arrow, also where there was nowhere to go.
    void Stepped();

    // From the list or by typing.
    void EmployeeChosen();

    void GenerateAsked();

    // Any text of the boxes, by whatever means.
    void Changed();

private:
    void LayOut();
    void ConnectBoxes();
    bool AlignPeriodEnd();

    // Raises what the calculation raises.
    bool MovePayPeriod(std::int16_t direction);

    void StepPeriod(std::int16_t direction);
    void OfferLastUsed();
    void TakeLastUsed();
    void StepEmployee(int direction);

    PageHost& m_host;
    std::unique_ptr<Ui::CardChoice> m_ui;
};

} // namespace ptk
