// The window that imports an older database. It first shows what is in the file, then imports it when the user wants that.
#pragma once

#include "office/import/Import.h"
#include "ui/work/ImportWindow.h"

#include <functional>
#include <memory>

namespace Ui {
class FImport;
}

namespace ptk {

class FImport final : public ImportWindow
{
    Q_OBJECT

public:
    // Reads or imports the file of the order, see ImportOldDatabase.
    using Importer = std::function<ImportOutcome(const ImportOrder&, const ImportProgress&)>;

    FImport(QWidget* parent, Importer importer);
    ~FImport() override;

    // Whether the database was imported, once the window is closed.
    [[nodiscard]] bool HasImported() const { return m_imported; }

private:
    void ForgetRead() override;
    void Work(bool trial, const GoesOn& goesOn) override;
    void ShowOutcome(bool trial) override;
    void ShowRead();
    void ShowImported();
    void EnableImport();

    std::unique_ptr<Ui::FImport> m_ui;
    Importer m_importer;
    ImportOutcome m_outcome;
    bool m_read = false; // whether m_outcome is that of the file that is named
    bool m_damaged = false;
    bool m_imported = false;
};

} // namespace ptk
