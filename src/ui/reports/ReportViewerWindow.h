// The viewer window of the reports: the text as it was written, find, zoom, save, show as pages, print and close.
#pragma once

#include "reports/ReportViewer.h"

#include <memory>
#include <QMainWindow>
#include <string>

namespace Ui {
class ReportViewerWindow;
}

namespace ptk {

// The lines are collected and become one text when the window is shown, so that ten thousand of them open at once. Closing it unloads the
// report.
class ReportViewerWindow : public QMainWindow, public ReportViewer
{
    Q_OBJECT

public:
    // The object's name, under which its size is remembered.
    explicit ReportViewerWindow(const QString& name);

    ~ReportViewerWindow() override;

    void Controller(std::shared_ptr<Report> value) override { m_controller = std::move(value); }
    void Caption(const std::string& value) override;

    // Always true.
    bool WriteLine(const std::string& buffer) override;

    // To the front, or behind everything where it is opened so.
    void Show() override;
    void Hide() override;
    void Unload() override;

    // To be called before it is shown: it opens below all other windows, without the keyboard, and stays there until it is to rise.
    void OpenBehind();

    // In front of the others, still without the keyboard.
    void Rise();

    // To the front.
    void BringUp();

    // Hides the window when the printer has taken the report, and says so in its line when not.
    bool Print();

    // What closing does: hides the window and unloads its report, once.
    void LetGo();

    // Hidden by printing, where nobody can close it.
    [[nodiscard]] bool Printed() const { return m_printed; }

signals:
    // For the session log.
    void Failed(const QString& line);

protected:
    void closeEvent(QCloseEvent* event) override;

    // Ctrl+wheel over the text.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LayOutButtons();
    void ConnectControls();

    void SaveAs();
    void OpenPdf();
    void Say(const std::string& text);

    // In the window's line, and for the session log.
    void TellRefusal(const char* what, const char* advice);

    // Leaves the find bar, then the window.
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
    QSize m_placed; // as it was opened
};

} // namespace ptk
