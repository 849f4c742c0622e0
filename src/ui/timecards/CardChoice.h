// The top of the Timecards page: the boxes for the pay period and the employee of a time card, and the button that generates it.
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

    // Has the period start today. False when the length of a period is not known; the end then stays as it is.
    bool InitializePayPeriod();

    // The period in the boxes. Raises Failure 13 when a box holds no date.
    [[nodiscard]] PayPeriod Period() const;

    // The period in the boxes; nothing while a box holds no date.
    [[nodiscard]] std::optional<PayPeriod> PeriodIfDates() const;

    void Period(PayPeriod value);

    // Offers the period as the last one used, also after the next start of the program. A period that begins today is not kept, because it
    // is what the boxes hold where nobody has chosen one. Raises Failure 13 when a box holds no date.
    void KeepAsLastUsed();

    // Both dates as the boxes show them.
    [[nodiscard]] ptk::PeriodTexts PeriodTexts() const;

    // Both dates as the boxes show them, in one text: "03/01/2003 - 03/15/2003".
    [[nodiscard]] std::string PeriodText() const;

    // The employee's name as it stands in the box.
    [[nodiscard]] std::string EmployeeText() const;

    // The employee and the period in the boxes. The employee is empty while the box holds nobody's name.
    [[nodiscard]] CardName Chosen() const;

    // Chooses the row of this employee in the list; namesakes have rows of their own.
    void Employee(std::int32_t employeeID);

    // The ID of the employee whose row the box holds; nothing for a typed text.
    [[nodiscard]] std::optional<std::int32_t> EmployeeID() const;

    void SelectFirstEmployee();
    void FocusEmployee();

signals:
    // A date was typed, or picked in a calendar. The end has already followed a new start.
    void PeriodTyped();

    // An arrow or the last used period was pressed, even where there was nowhere to go.
    void Stepped();

    // An employee was chosen from the list or by typing.
    void EmployeeChosen();

    void GenerateAsked();

    // The text of a box has changed, by whatever means.
    void Changed();

private:
    void LayOut();
    void ConnectBoxes();
    bool AlignPeriodEnd();

    // False where the period would leave the years 1900 to 2100. Raises what the calculation of the period raises.
    bool MovePayPeriod(std::int16_t direction);

    void StepPeriod(std::int16_t direction);
    void OfferLastUsed();
    void TakeLastUsed();
    void StepEmployee(int direction);

    PageHost& m_host;
    std::unique_ptr<Ui::CardChoice> m_ui;
};

} // namespace ptk
