// The window that imports employees from a CSV file. It first shows what each line would do, and known employees field by field with a tick
// for each field; then it imports when the user wants that.
#pragma once

#include "office/sheet/EmployeeImport.h"
#include "ui/work/ImportWindow.h"

#include <functional>
#include <memory>

namespace Ui {
class FImportEmployees;
}

namespace ptk {

class DifferenceModel;

class FImportEmployees final : public ImportWindow
{
    Q_OBJECT

public:
    // Reads or imports the file of the order, see ImportEmployees.
    using Importer = std::function<EmployeeAccount(const EmployeeOrder&, const GoesOn&)>;

    FImportEmployees(QWidget* parent, Importer importer);
    ~FImportEmployees() override;

    // What was stored, for the status bar; empty where nothing was.
    [[nodiscard]] QString Stored() const { return m_stored; }

    // Space ticks the row, whichever of its cells is the current one.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PrepareTable();
    void FitColumns();
    void ForgetRead() override;
    void Work(bool trial, const GoesOn& goesOn) override;
    void ShowOutcome(bool trial) override;
    void ShowRead();
    void ShowStored();
    void ShowTicks();

    std::unique_ptr<Ui::FImportEmployees> m_ui;
    Importer m_importer;
    DifferenceModel* m_differences; // belongs to the window
    EmployeeAccount m_read;         // the account of the file that is named; empty before it was read
    QString m_stored;
};

} // namespace ptk
