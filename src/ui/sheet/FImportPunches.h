// The window that imports punches from a CSV file. It first shows what each line would do, then imports when the user wants that.
#pragma once

#include "office/sheet/PunchImport.h"
#include "ui/work/ImportWindow.h"

#include <functional>
#include <memory>

namespace Ui {
class FImportPunches;
}

namespace ptk {

class FImportPunches final : public ImportWindow
{
    Q_OBJECT

public:
    // Reads or imports the file of the order, see ImportPunches.
    using Importer = std::function<PunchAccount(const PunchOrder&, const GoesOn&)>;

    FImportPunches(QWidget* parent, Importer importer);
    ~FImportPunches() override;

    // What was stored, for the status bar; empty where nothing was.
    [[nodiscard]] QString Stored() const { return m_stored; }

private:
    void ForgetRead() override;
    void Work(bool trial, const GoesOn& goesOn) override;
    void ShowOutcome(bool trial) override;
    void ShowRead();
    void ShowStored();
    void EnableImport();

    std::unique_ptr<Ui::FImportPunches> m_ui;
    Importer m_importer;
    PunchAccount m_read; // the account of the file that is named; empty before it was read
    QString m_stored;
};

} // namespace ptk
