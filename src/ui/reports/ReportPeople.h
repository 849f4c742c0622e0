// The Reports page's list of employees. It marks those whose cards have problems, to be looked at before a report is passed on.
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

// The employees of a list, some of whom have an icon, a tool tip, and words for a screen reader.
class MarkedEmployees final : public QIdentityProxyModel
{
    Q_OBJECT

public:
    using Marks = std::unordered_map<std::int32_t, QString>; // by EmployeeID

    // `size` is that of the icon, in pixels.
    MarkedEmployees(int size, QObject* parent);

    void Mark(Marks marks);
    [[nodiscard]] bool IsMarked(std::int32_t employeeID) const { return m_marks.contains(employeeID); }

    QVariant data(const QModelIndex& index, int role) const override;

private:
    Marks m_marks;
    QIcon m_blank;
};

// Checks the cards of the days that the page shows, a few at a time while the list is visible and nothing else is to be done, so that
// neither the list nor anything else waits for it. Checks again after records were changed. An employee who could not be checked has no
// mark.
class ReportPeople final : public QObject
{
    Q_OBJECT

public:
    // Puts the employees into the list. Nobody is checked while `isBusy`. Host and list outlive it.
    ReportPeople(PageHost& host, QListView& list, std::function<bool()> isBusy);

    ~ReportPeople() override;

    // Checks the cards of these days; without days (for a report that needs none) removes all marks. Answers whether the days are new.
    bool Check(const std::optional<PayPeriod>& days);

    // "17 of 40 have problems: F9", of the chosen employees as far as they have been checked; empty where nobody has any.
    [[nodiscard]] std::string ProblemsOfChosen() const;

    // One sentence on who has records in these days and is in no list; empty where there is nobody, and while that is not known.
    [[nodiscard]] std::string LeftOut() const;

    // Whether the list can take in anybody of those whom LeftOut names.
    [[nodiscard]] bool CanTakeIn() const;

    // Puts those who were left out into the list, until other days are checked or the employees are read again.
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
    MarkedEmployees* m_employees; // belongs to this
    EmployeeColumn m_withTakenIn{EmployeeText::Name};
    std::vector<std::shared_ptr<CEmployee>> m_takenIn; // the whole list while it has taken somebody in; else empty
    std::optional<PayPeriod> m_days;
    std::unique_ptr<OverviewReading> m_reading; // nullptr before the days are checked
    std::optional<std::int64_t> m_asOf;         // the newest entry of the trail when the reading began
    QTimer m_next;
};

} // namespace ptk
