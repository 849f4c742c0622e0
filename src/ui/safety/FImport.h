// Bringing an older database along: first what is in it, then, when the user wants it, the import.
#pragma once

#include "office/import/Import.h"

#include <functional>
#include <memory>
#include <QDialog>

namespace Ui {
class FImport;
}

namespace ptk {

// Tells all that goes wrong itself, and then stays for another try.
class FImport final : public QDialog
{
    Q_OBJECT

public:
    // Given the file and what is wanted of it; see office/Import.
    using Importer = std::function<ImportOutcome(const ImportOrder&, const ImportProgress&)>;

    FImport(QWidget* parent, Importer importer);
    ~FImport() override;

    // Once the window is closed.
    [[nodiscard]] bool HasImported() const { return m_imported; }

private:
    void Browse();
    void Forget();
    void Read();
    void Import();
    bool Run(bool trial, ImportOutcome& outcome);
    void ShowRead(const ImportOutcome& outcome);
    void ShowImported(const ImportOutcome& outcome);
    void EnableImport();

    std::unique_ptr<Ui::FImport> m_ui;
    Importer m_importer;
    bool m_read = false; // the account is that of the file that is named
    bool m_damaged = false;
    bool m_imported = false;
};

} // namespace ptk
