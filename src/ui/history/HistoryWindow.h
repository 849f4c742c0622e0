// The history of changes: who changed what, when, from what to what.
#pragma once

#include "office/history/HistoryScope.h"
#include "office/history/HistoryTable.h"
#include "store/trail/TrailReader.h"
#include "ui/page/ReadingWindow.h"

#include <memory>
#include <optional>
#include <QTimer>

namespace Ui {
class HistoryWindow;
}

namespace ptk {

class EmployeeNames;
class HistoryFile;
class HistoryModel;

// Reads the newest changes and more as one scrolls down, never all. Saves all of them while nothing else is to be done, so that the window,
// and every other one, can be used meanwhile.
class HistoryWindow final : public ReadingWindow
{
    Q_OBJECT

public:
    // REQUIRES: the host outlives the window.
    explicit HistoryWindow(Workplace& host);

    ~HistoryWindow() override;

    // Brings the window to the front. With a scope it shows just that; without one it shows everything, unless it was open already.
    void Open(const std::optional<HistoryScope>& scope);

private:
    void End() override { StopSaving(); }
    void LayOut();
    void PrepareTable();
    void Connect();
    void ConnectKeys();
    void StartOver();
    void Refresh();
    void Begin();
    void ShowNews();
    void FitColumns();
    [[nodiscard]] int NamesWidth(HistoryColumn column) const;
    void ShowEntry();
    void Copy();

    void SaveAs();
    void SaveOn();
    void StopSaving();
    void ShowSaving();

    std::unique_ptr<Ui::HistoryWindow> m_ui;
    HistoryModel* m_rows; // belongs to the window
    TrailQuery m_query;   // whose rows are shown
    std::shared_ptr<const EmployeeNames> m_names;
    std::unique_ptr<HistoryFile> m_file; // while it is being saved
    QTimer m_saving;
};

} // namespace ptk
