// The window that mends what the check found on the cards of several people. It shows each finding with its first remedy, lets the user
// tick and change remedies, and stores what is ticked at once.
#pragma once

#include "office/card/MendPlan.h"

#include <functional>
#include <memory>
#include <QDialog>
#include <string>

namespace Ui {
class FMendSeveral;
}

namespace ptk {

class MendModel;
struct ReasonLine;

// Shows every failure to store the remedies itself and then stays open for another try.
class FMendSeveral final : public QDialog
{
    Q_OBJECT

public:
    // Stores all that is ticked, or nothing. An empty `reason` is none. Answers why nothing was stored, in a sentence; empty where it was.
    using Storer = std::function<QString(const MendPlan& plan, const std::string& reason)>;

    // REQUIRES: the plan has at least one line.
    FMendSeveral(QWidget* parent, MendPlan plan, const ReasonLine& reasons, Storer storer);
    ~FMendSeveral() override;

    // What was stored, as a line to show; empty where nothing was.
    [[nodiscard]] QString Stored() const { return m_stored; }

protected:
    // Fits the columns to a new size of the table.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PrepareTable();
    void Connect();
    void FitColumns();
    void ShowOnlyMendable(bool only);
    void ShowTicked();
    void ShowLine();
    void EditEnd();
    void Toggle();
    void Save();

    std::unique_ptr<Ui::FMendSeveral> m_ui;
    MendPlan m_plan;
    MendModel* m_rows; // belongs to the window
    Storer m_storer;
    QString m_stored;
};

} // namespace ptk
