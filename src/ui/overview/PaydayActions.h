// The actions of the payday overview: closing a payday and reopening it, mending the cards of several people, adding a shift for them.
#pragma once

#include "model/PayPeriod.h"
#include "office/payday/PaydayClosing.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <QObject>
#include <QStringList>
#include <string>
#include <vector>

class QWidget;

namespace ptk {

class CEmployee;
class CJetDB;
class Workplace;
class WorkProgress;

// The people whom an action is for: those who are chosen, or everybody who is shown where nobody is chosen.
struct PaydayWhom
{
    PayPeriod period;
    std::vector<std::int32_t> shown;   // EmployeeIDs, in the order of the list
    std::vector<std::int32_t> takenIn; // those of `shown` who are not offered time cards and were taken in
    std::vector<std::int32_t> chosen;
    std::int64_t troubled = 0; // how many of `chosen` have problems; a difference to what was paid does not count as one
    bool paid = false;         // whether the period was paid to at least one of People()

    [[nodiscard]] const std::vector<std::int32_t>& People() const { return chosen.empty() ? shown : chosen; }
};

// Each action stores one step of the edit trail, which Edit > Undo takes back. While it runs, windows only paint and take Cancel. No member
// raises.
class PaydayActions final : public QObject
{
    Q_OBJECT

public:
    // Both outlive it. `window` is the parent of its dialogs.
    PaydayActions(Workplace& host, QWidget& window);

    // Asks first where `troubled` is not 0.
    void Close(const PaydayWhom& whom);
    void Reopen(const PaydayWhom& whom);
    void MendSeveral(const PaydayWhom& whom);
    void AddShift(const PaydayWhom& whom);

signals:
    // The action ran to its end, though it may have found nothing to store. `news` says what came of it; `lines`, one for each person,
    // stand under `title`, both empty where one sentence is enough.
    void Done(const QString& news, const QString& title, const QStringList& lines);

    // Nothing was stored; `text` says why.
    void Said(const QString& text);

private:
    using Work = std::function<void(WorkProgress& progress)>;

    // What an action says while it runs, and before the reason why nothing was stored.
    struct Texts
    {
        const char* title;
        const char* doing;
        const char* refused;
    };

    bool Run(const Texts& texts, const Work& work);
    void ChangePayday(const PaydayWhom& whom, bool close);
    [[nodiscard]] bool MayClose(const PaydayWhom& whom);
    [[nodiscard]] std::vector<std::shared_ptr<CEmployee>> PeopleOf(const PaydayWhom& whom) const;
    void TellStored(const QString& news, const QString& title = {}, const QStringList& lines = {});
    [[nodiscard]] QString Store(const Texts& texts, const std::string& reason, const std::function<bool(CJetDB& database)>& store);
    [[nodiscard]] std::shared_ptr<CJetDB> Database() const;

    Workplace& m_host;
    QWidget& m_window;
};

} // namespace ptk
