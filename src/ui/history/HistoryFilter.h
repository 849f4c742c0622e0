// What of the history is asked for: of whom, by whom, what, when.
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

    // See DateCombo.
    void SetClock(const Clock& clock);

    // Of whom and by whom; what is chosen stays chosen where it is still there.
    void Fill(const EmployeeNames& employees, const std::vector<std::string>& persons);

    // Everything, or just this; what is filled in afterwards has its employee.
    void Start(const std::optional<HistoryScope>& scope);

    // Nothing while the days are no days, or end before they begin.
    [[nodiscard]] std::optional<TrailQuery> Query() const;

    // Anything less than all.
    [[nodiscard]] bool Narrows() const;

signals:
    // By the user; typed days when they have been left alone for a moment.
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
    std::optional<HistoryScope> m_scope; // offered by the box, whether it is ticked or not
    QTimer m_typing;
};

} // namespace ptk
