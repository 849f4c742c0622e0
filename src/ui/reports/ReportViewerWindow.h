// The viewer window of a report: shows the text as it was written, with find, zoom, save, show as pages, print and close.
#pragma once

#include "reports/ReportViewer.h"

#include <memory>
#include <QMainWindow>
#include <string>

namespace Ui {
class ReportViewerWindow;
}

namespace ptk {

// Collects the lines and makes one text of them when the window is shown, so that ten thousand of them open at once. Closing the window
// unloads the report.
class ReportViewerWindow : public QMainWindow, public ReportViewer
{
    Q_OBJECT

public:
    // `name` is the object's name, under which the window's size is remembered.
    explicit ReportViewerWindow(const QString& name);

    ~ReportViewerWindow() override;

    void Controller(std::shared_ptr<Report> value) override { m_controller = std::move(value); }
    void Caption(const std::string& value) override;

    // Appends a line; always true.
    bool WriteLine(const std::string& buffer) override;

    // Shows the window in front of all others, or behind them after OpenBehind.
    void Show() override;
    void Hide() override;
    void Unload() override;

    // Has the window open below all others, without the keyboard, and stay there until Rise. To be called before it is shown.
    void OpenBehind();

    // Puts the window in front of the others, still without the keyboard.
    void Rise();

    // Puts the window in front of the others and gives it the keyboard.
    void BringUp();

    // Hides the window when the printer has taken the report; otherwise says in its line why not.
    bool Print();

    // Hides the window and unloads its report, once, as closing does.
    void LetGo();

    // Whether printing has hidden the window, so that nobody can close it.
    [[nodiscard]] bool Printed() const { return m_printed; }

signals:
    // Something failed; `line` is for the session log.
    void Failed(const QString& line);

protected:
    void closeEvent(QCloseEvent* event) override;

    // Zooms for Ctrl and the wheel over the text.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LayOutButtons();
    void ConnectControls();

    void SaveAs();
    void OpenPdf();
    void Say(const std::string& text);

    // Says in the window's line what was refused and why, or without a reason the advice, and sends it to the session log.
    void TellRefusal(const char* what, const char* advice);

    // Closes the find bar, or else the window.
    void Escape();

    void ShowFindBar(bool shown);
    void Find(bool backward);

    void SetPointSize(double size);
    void ShowText();
    void ShowNotice();
    void Place();
    [[nodiscard]] QSize FirstSize() const;

    std::unique_ptr<Ui::ReportViewerWindow> m_ui;
    std::shared_ptr<Report> m_controller;
    std::string m_lines; // written and not yet in the text box
    double m_firstPointSize = 0;
    bool m_printed = false;
    QSize m_placed; // the size with which it was opened
};

} // namespace ptk
