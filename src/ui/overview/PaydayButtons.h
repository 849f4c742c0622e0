// The buttons of the payday overview that do something for people, and the words that say for whom.
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

// They mean those who are chosen in the table, or, where nobody is, everybody of the reading.
class PaydayButtons final : public QObject
{
    Q_OBJECT

public:
    // All outlive it.
    struct Place
    {
        QWidget& window; // theirs
        QPushButton& close;
        QPushButton& mend;
        QPushButton& more;
        NoticeLine& notice;
        OverviewTables& tables;
    };

    PaydayButtons(Workplace& host, const Place& place);
    ~PaydayButtons() override;

    // For those of this reading; nullptr as long as not everybody has been read. To be called whenever somebody else is chosen, too.
    void Offer(std::shared_ptr<const OverviewReading> reading);

    // Of the person in the account, where that is in front.
    [[nodiscard]] std::optional<HistoryScope> ShownHistory() const;

signals:
    // Something may have been stored. What is said of it follows.
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
