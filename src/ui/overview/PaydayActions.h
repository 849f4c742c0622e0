// What the payday overview does for people besides showing them: closing their payday and taking that back, mending their cards, adding a
// shift.
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

// For whom. Without anybody chosen it is everybody who is shown.
struct PaydayWhom
{
    PayPeriod period;
    std::vector<std::int32_t> shown;   // EmployeeIDs, in the order of the list
    std::vector<std::int32_t> takenIn; // of these the ones who are in no list
    std::vector<std::int32_t> chosen;
    std::int64_t troubled = 0; // how many of the chosen have problems, what was paid differently aside
    bool paid = false;         // the period, to one of the people

    [[nodiscard]] const std::vector<std::int32_t>& People() const { return chosen.empty() ? shown : chosen; }
};

// Each is one step of the edit trail, which Edit > Undo takes back; nothing else happens meanwhile but painting and Cancel. No member
// raises.
class PaydayActions final : public QObject
{
    Q_OBJECT

public:
    // Both outlive it; the window is what its dialogs belong to.
    PaydayActions(Workplace& host, QWidget& window);

    // Asks where chosen ones have problems.
    void Close(const PaydayWhom& whom);
    void Reopen(const PaydayWhom& whom);
    void MendSeveral(const PaydayWhom& whom);
    void AddShift(const PaydayWhom& whom);

signals:
    // It was done: what came of it, and where that is of use, a line a person under a title.
    void Done(const QString& news, const QString& title, const QStringList& lines);

    // Nothing was stored, and why.
    void Said(const QString& text);

private:
    using Work = std::function<void(WorkProgress& progress)>;

    bool Run(const char* title, const char* text, const Work& work, const char* refused);
    void ChangePayday(const PaydayWhom& whom, bool close);
    [[nodiscard]] bool MayClose(const PaydayWhom& whom);
    [[nodiscard]] std::vector<std::shared_ptr<CEmployee>> PeopleOf(const PaydayWhom& whom) const;
    void TellStored(const QString& news, const QString& title = {}, const QStringList& lines = {});
    [[nodiscard]] QString Store(const char* title, const std::string& reason, const std::function<bool(CJetDB& database)>& store);
    [[nodiscard]] std::shared_ptr<CJetDB> Database() const;

    Workplace& m_host;
    QWidget& m_window;
};

} // namespace ptk
