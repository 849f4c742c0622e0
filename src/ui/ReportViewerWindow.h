// The viewer window of the reports: the text, find, zoom, print and close. The five viewers are this one for their kind.
#pragma once

#include "reports/ReportViewer.h"

#include <QMainWindow>
#include <QPointer>
#include <memory>
#include <vector>

namespace Ui {
class ReportViewerWindow;
}

namespace ptk {

// Lines are collected and set as one text when the window is shown. Closing it unloads the report, once.
class ReportViewerWindow : public QMainWindow, public ReportViewer
{
    Q_OBJECT

public:
    explicit ReportViewerWindow(const QString& objectName);
    ~ReportViewerWindow() override;

    void Controller(std::shared_ptr<Report> value) override { m_controller = std::move(value); }
    void Caption(const std::string& value) override;
    bool WriteLine(const std::string& buffer) override; // always true
    void Show() override;
    void Hide() override;
    void Unload() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override; // Ctrl+wheel over the text

private:
    void BuildActions();
    void Print();
    void Find(bool backward);
    void ShowFindBar(bool shown);
    void Zoom(int steps); // 0: back to the first size
    void RestoreSize();
    void PlaceBesideOthers();
    void StoreSize() const;

    std::unique_ptr<Ui::ReportViewerWindow> m_ui;
    std::shared_ptr<Report> m_controller;
    std::string m_lines; // written and not yet shown
    double m_pointSize = 0;
    bool m_unloaded = false;
};

class QtViewerFactory final : public ReportViewerFactory
{
public:
    ~QtViewerFactory() override;
    std::shared_ptr<ReportViewer> CreateViewer(ReportKind kind) override;
    void UnloadAll(); // every viewer still open

private:
    std::vector<std::weak_ptr<ReportViewerWindow>> m_open;
};

} // namespace ptk
