// The account of a payday: what each person was paid, what the card says now, and what was changed since.
#pragma once

#include "model/PayPeriod.h"
#include "office/payday/PaydayAccount.h"
#include "ui/page/ReadingWindow.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace Ui {
class AccountWindow;
}

namespace ptk {

class AccountModel;
struct HistoryScope;

class AccountWindow final : public ReadingWindow
{
    Q_OBJECT

public:
    // REQUIRES: the host outlives the window.
    explicit AccountWindow(Workplace& host);

    ~AccountWindow() override;

    // Brings the window to the front and reads the account of this period.
    void Open(const PayPeriod& period);

    // The history of the chosen person; nothing without one, and for somebody who is no employee any more.
    [[nodiscard]] std::optional<HistoryScope> ShownHistory() const;

private:
    void Activated() override;
    void LayOut();
    void PrepareTable();
    void Connect();

    void Refresh();
    bool Read(std::string& refusal);
    void Show();
    void FitColumns();
    void ShowPerson();
    void SaveAs();
    void TellChanges();

    std::unique_ptr<Ui::AccountWindow> m_ui;
    AccountModel* m_rows; // belongs to the window
    PayPeriod m_period;
    std::shared_ptr<const PaydayAccount> m_account; // as it was read last; nullptr before
    std::optional<std::int64_t> m_asOf;             // the newest entry of the trail when it was read
};

} // namespace ptk
