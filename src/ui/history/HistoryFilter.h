// The boxes that say which part of the history is asked for: whose records, changed by whom, which kind of change, on which days.
#pragma once

#include "office/history/HistoryScope.h"

#include <array>
#include <memory>
#include <optional>
#include <QTimer>
#include <QWidget>
#include <string>
#include <vector>

class QComboBox;

namespace Ui {
class HistoryFilter;
}

namespace ptk {

class Clock;
class EmployeeNames;

class HistoryFilter final : public QWidget
{
    Q_OBJECT

public:
    explicit HistoryFilter(QWidget* parent = nullptr);
    ~HistoryFilter() override;

    // Hands the clock to both date boxes, see DateCombo.
    void SetClock(const Clock& clock);

    // Fills the boxes of employees and of persons who made changes. What is chosen stays chosen where it is still there.
    void Fill(const EmployeeNames& employees, const std::vector<std::string>& persons);

    // Sets all boxes back: everything is asked for, or only `scope`, whose employee the next call of Fill chooses.
    void Start(const std::optional<HistoryScope>& scope);

    // What is asked for; nothing where a date box holds no date, or the last day is before the first.
    [[nodiscard]] std::optional<TrailQuery> Query() const;

    // Whether less than the whole history is asked for; also true while a scope is offered and not ticked.
    [[nodiscard]] bool Narrows() const;

signals:
    // The user has changed what is asked for. A changed day is told once the boxes were left alone for 400 ms.
    void Changed();

private:
    [[nodiscard]] std::array<QComboBox*, 4> Boxes() const;
    void LayOut();
    void FillFixed();
    void Connect();
    void DropScope();
    void ShowScope();
    void ShowAll();

    std::unique_ptr<Ui::HistoryFilter> m_ui;
    std::optional<HistoryScope> m_scope; // what the check box offers, whether it is ticked or not
    QTimer m_typing;
};

} // namespace ptk
