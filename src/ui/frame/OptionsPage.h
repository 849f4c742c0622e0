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

// The limits are read when the page is first seen, and written only where they were changed: a database of an earlier version has no table
// for them until then.
class OptionsPage final : public QWidget
{
    Q_OBJECT

public:
    explicit OptionsPage(Workplace& host, QWidget* parent = nullptr);
    ~OptionsPage() override;

    // False for nullptr.
    bool DisplaySystemOptions(const std::shared_ptr<CSystemOptions>& options);

    // Without a message; false also for any failure, and, with nothing stored, for limits or a folder that are none.
    bool SaveSystemOptions();

    // Shows the controller's options again.
    bool RestoreSystemOptions();

    // They are read again when the page is seen next.
    void ForgetLimits();

signals:
    // Others than before.
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
    OptionTexts m_shown;                   // as they were put into the boxes
    std::optional<CheckLimits> m_limits;   // as they stand in the database; nothing until they have been read
    std::optional<RowConflict> m_conflict; // why the last saving was refused, where somebody else had changed the options
};

} // namespace ptk
