// Mends what the check found on the cards of several people: each finding with its first remedy, to be ticked, changed and stored at once.
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

// Tells all that goes wrong itself, and then stays for another try.
class FMendSeveral final : public QDialog
{
    Q_OBJECT

public:
    // Stores what is ticked, all or nothing, for that reason; empty for none. Answers why it did not, in a sentence; empty where it did.
    using Storer = std::function<QString(const MendPlan& plan, const std::string& reason)>;

    // REQUIRES: the plan has a line at least.
    FMendSeveral(QWidget* parent, MendPlan plan, const ReasonLine& reasons, Storer storer);
    ~FMendSeveral() override;

    // What was stored, for a line; empty where nothing was.
    [[nodiscard]] QString Stored() const { return m_stored; }

protected:
    // The room of the table.
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
