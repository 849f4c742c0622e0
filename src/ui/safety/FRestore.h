// The window in which the user chooses the backup that is to replace the database.
#pragma once

#include "startup/Windows.h"

#include <memory>
#include <QDialog>
#include <QTimer>
#include <string>
#include <vector>

namespace Ui {
class FRestore;
}

namespace ptk {

struct BackupCells;
struct BackupEntry;

// Checks one backup after the other while it waits for the user. Only backups that were found sound can be chosen from the list.
class FRestore final : public QDialog, public RestoreWindow
{
    Q_OBJECT

public:
    explicit FRestore(QWidget* parent);
    ~FRestore() override;

    [[nodiscard]] std::string Choose(const std::string& folder) override;

private:
    enum class State
    {
        Unchecked,
        Sound,
        Useless
    };

    void PrepareTable();
    void Fill();
    QString ReadNames();
    void CheckNext();
    void ShowChecked(int row, const BackupEntry& entry);
    void ShowCells(int row, const BackupCells& cells);
    void Put(int row, int column, const std::string& text);
    void EnableRestore();
    void Take();
    void TakeOther();

    std::unique_ptr<Ui::FRestore> m_ui;
    std::string m_folder;
    std::vector<std::string> m_names; // in the order of the rows
    std::vector<State> m_states;
    std::string m_chosen;
    QTimer m_next;
};

} // namespace ptk
