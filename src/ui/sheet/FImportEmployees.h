// Employees from a CSV file: first what would become of each line, known employees field by field with a tick for each, then, when the user
// wants it, the import.
#pragma once

#include "office/sheet/EmployeeImport.h"

#include <functional>
#include <memory>
#include <QDialog>

namespace Ui {
class FImportEmployees;
}

namespace ptk {

class DifferenceModel;

// Tells all that goes wrong itself, and then stays for another try.
class FImportEmployees final : public QDialog
{
    Q_OBJECT

public:
    // See office/sheet/EmployeeImport.
    using Importer = std::function<EmployeeAccount(const EmployeeOrder&, const GoesOn&)>;

    FImportEmployees(QWidget* parent, Importer importer);
    ~FImportEmployees() override;

    // What was stored, for the status bar; empty where nothing was.
    [[nodiscard]] QString Stored() const { return m_stored; }

    // Space ticks the row, whichever of its cells is the current one.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PrepareTable();
    void Connect();
    void FitColumns();
    void Browse();
    void Forget();
    void Read();
    void Save();
    bool Run(bool trial, EmployeeAccount& account);
    void ShowRead(const EmployeeAccount& account);
    void ShowStored(const EmployeeAccount& account);
    void ShowTicks();

    std::unique_ptr<Ui::FImportEmployees> m_ui;
    Importer m_importer;
    DifferenceModel* m_differences; // belongs to it
    EmployeeAccount m_read;         // of the file that is named; nothing before it was read
    QString m_stored;
};

} // namespace ptk
