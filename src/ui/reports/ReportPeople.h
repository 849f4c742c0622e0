// Whose time cards have problems, in the Reports page's list of employees: who is to be looked at before a report of him is passed on.
#pragma once

#include "model/PayPeriod.h"
#include "ui/boxes/EmployeeModels.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <QIcon>
#include <QIdentityProxyModel>
#include <QTimer>
#include <string>
#include <unordered_map>
#include <vector>

class QListView;

namespace ptk {

class OverviewReading;
class PageHost;

// The employees of a list, some of them with an icon, a tool tip, and words for a screen reader.
class MarkedEmployees final : public QIdentityProxyModel
{
    Q_OBJECT

public:
    using Marks = std::unordered_map<std::int32_t, QString>; // by EmployeeID

    // size: pixels of the icon.
    MarkedEmployees(int size, QObject* parent);

    void Mark(Marks marks);
    [[nodiscard]] bool IsMarked(std::int32_t employeeID) const { return m_marks.contains(employeeID); }

    QVariant data(const QModelIndex& index, int role) const override;

private:
    Marks m_marks;
    QIcon m_blank;
};

// Checks the cards of the days that the page shows, a few at a time while the list can be seen and nothing else is to be done, so that
// neither the list nor anything else waits for it; again where records have been changed. Who could not be checked has no mark.
class ReportPeople final : public QObject
{
    Q_OBJECT

public:
    // Puts the employees into the list. Not while `isBusy`. Host and list outlive it.
    ReportPeople(PageHost& host, QListView& list, std::function<bool()> isBusy);

    ~ReportPeople() override;

    // Nothing for a report without days: no marks. Whether these are other days than before.
    bool Check(const std::optional<PayPeriod>& days);

    // "17 of 40 have problems: F9", of the chosen ones, as far as they have been checked; empty where nobody has any.
    [[nodiscard]] std::string ProblemsOfChosen() const;

    // Who has records in these days and is in no list, in one sentence; empty where there is nobody, and while that is not known.
    [[nodiscard]] std::string LeftOut() const;

    // Whether there is anybody of them who can be chosen.
    [[nodiscard]] bool CanTakeIn() const;

    // Puts them into the list, where they stay until other days are checked or the employees are read again.
    void TakeIn();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // Everybody has been checked.
    void Checked();

private:
    void CheckSoon();
    void CheckOn();
    void Begin();
    void ReadOn();
    void ShowMarks();
    void LookAgain();
    void GiveBack();

    PageHost& m_host;
    QListView& m_list;
    std::function<bool()> m_isBusy;
    MarkedEmployees* m_employees; // belongs to it
    EmployeeColumn m_withTakenIn{EmployeeText::Name};
    std::vector<std::shared_ptr<CEmployee>> m_takenIn; // all of the list then; empty while it is the given one
    std::optional<PayPeriod> m_days;
    std::unique_ptr<OverviewReading> m_reading; // nullptr before the days are checked
    std::optional<std::int64_t> m_asOf;         // the newest entry of the trail when it began
    QTimer m_next;
};

} // namespace ptk
