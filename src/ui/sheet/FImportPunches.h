// Punches from a CSV file: first what would become of each line, then, when the user wants it, the import.
#pragma once

#include "office/sheet/PunchImport.h"

#include <functional>
#include <memory>
#include <QDialog>

namespace Ui {
class FImportPunches;
}

namespace ptk {

// Tells all that goes wrong itself, and then stays for another try.
class FImportPunches final : public QDialog
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
    void Browse();
    void Forget();
    void Read();
    void Import();
    bool Run(bool trial, PunchAccount& account);
    void ShowRead(const PunchAccount& account);
    void ShowStored(const PunchAccount& account);
    void EnableImport();

    std::unique_ptr<Ui::FImportPunches> m_ui;
    Importer m_importer;
    PunchAccount m_read; // of the file that is named; nothing before it was read
    QString m_stored;
};

} // namespace ptk
