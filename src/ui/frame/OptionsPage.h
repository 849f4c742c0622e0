// The Options page: the length of a pay period, the times of the automatic shift, the limits of the check of time cards and the folder for
// a second copy of backups.
#pragma once

#include "office/records/OptionTexts.h"
#include "store/RowConflict.h"

#include <memory>
#include <optional>
#include <QWidget>

namespace Ui {
class OptionsPage;
}

namespace ptk {

class CJetDB;
class CSystemOptions;
class Failure;
class Workplace;

// The page reads the limits of the check when it is first shown, and writes them only where they were changed: a database of an earlier
// version has no table for them until then.
class OptionsPage final : public QWidget
{
    Q_OBJECT

public:
    explicit OptionsPage(Workplace& host, QWidget* parent = nullptr);
    ~OptionsPage() override;

    // Shows the options; false for nullptr.
    bool DisplaySystemOptions(const std::shared_ptr<CSystemOptions>& options);

    // Saves what the page shows, without a message. False for any failure. Limits or a folder that cannot be used are refused
    // before anything is stored.
    bool SaveSystemOptions();

    // Shows the controller's options again.
    bool RestoreSystemOptions();

    // Has the limits read again when the page is shown next, at once where it is visible.
    void ForgetLimits();

signals:
    // Changed limits were stored.
    void LimitsStored();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void AlignFrames();
    void LoadLimits();
    void ShowStoredLimits();
    bool StoreLimits();
    [[nodiscard]] OptionTexts Texts() const;
    void ShowTexts(const OptionTexts& texts);
    [[nodiscard]] LimitTexts Limits() const;
    void ShowLimitTexts(const LimitTexts& texts);
    bool SaveOptions();
    bool SaveToDatabase();
    void TakeRefusal(const CJetDB& database);

    [[nodiscard]] bool StoreBackupFolder();
    [[nodiscard]] std::string BackupFolder() const;
    [[nodiscard]] std::string Refusal() const;
    void ShowBackupFolder();
    void BrowseForFolder();
    void ShowExample();
    void Apply();
    void AskForPresent();
    void LoadPresent();
    void Complain(const char* what, const Failure& reason);
    void Cancel();

    Workplace& m_host;
    std::unique_ptr<Ui::OptionsPage> m_ui;
    OptionTexts m_shown;                   // what the boxes showed before anybody typed
    std::optional<CheckLimits> m_limits;   // as they are stored; nothing until they have been read
    std::optional<RowConflict> m_conflict; // why the last save was refused, where somebody else had changed the options
};

} // namespace ptk
