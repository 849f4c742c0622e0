// The buttons of the payday overview that start an action for people, with captions and tool tips that say for whom.
#pragma once

#include "model/PayPeriod.h"

#include <memory>
#include <optional>
#include <QObject>
#include <QStringList>

class QPushButton;
class QWidget;

namespace ptk {

class AccountWindow;
class NoticeLine;
class OverviewReading;
class OverviewTables;
class Workplace;
class PaydayActions;
struct HistoryScope;
struct PaydayWhom;

// The buttons act on the people who are chosen in the table, or on everybody of the reading where nobody is chosen.
class PaydayButtons final : public QObject
{
    Q_OBJECT

public:
    // The controls that the buttons work with. All outlive it.
    struct Place
    {
        QWidget& window; // the one that holds them all
        QPushButton& close;
        QPushButton& mend;
        QPushButton& more;
        NoticeLine& notice;
        OverviewTables& tables;
    };

    PaydayButtons(Workplace& host, const Place& place);
    ~PaydayButtons() override;

    // Enables the buttons for the people of this reading; nullptr disables them, for as long as not everybody has been read. To be called
    // also whenever somebody else is chosen.
    void Offer(std::shared_ptr<const OverviewReading> reading);

    // The history of the person who is chosen in the account; nothing where the account's window is not the active one.
    [[nodiscard]] std::optional<HistoryScope> ShownHistory() const;

signals:
    // Something may have been stored, so the overview is to be read again. The sentence about it is shown after that.
    void ReadAgainWanted();

private:
    void Connect();
    [[nodiscard]] PaydayWhom Whom() const;
    void ShowAccount();
    void SaveForAccountant();
    void TellDone(const QString& news, const QString& title, const QStringList& lines);

    Workplace& m_host;
    Place m_place;
    PaydayActions* m_actions; // belongs to the window
    std::shared_ptr<const OverviewReading> m_reading;
    std::unique_ptr<AccountWindow> m_account; // nullptr until it is asked for
};

} // namespace ptk
