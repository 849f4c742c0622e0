// Punches from a CSV file: first what would become of each line, then, when the user wants it, the import.
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
    // See office/sheet/PunchImport.
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
    PunchAccount m_read; // of the file that is named; nothing before it was read
    QString m_stored;
};

} // namespace ptk
