// A window of its own beside the main one, which shows what it has read from the database and can be read again, copied and saved.
#pragma once

#include "office/reports/SaveReport.h"

#include <cstddef>
#include <functional>
#include <QSize>
#include <QWidget>
#include <string>

class QKeySequence;
class QTableView;

namespace ptk {

class NoticeLine;
class Workplace;

// Keeps its place on the screen from one session to the next. Its line says what was done, and the log what could not be read.
class ReadingWindow : public QWidget
{
    Q_OBJECT

public:
    // Shows a text in the line beside the window's buttons.
    void Say(const QString& text);

protected:
    // `place` is the name under which the window's place is kept. REQUIRES: the host outlives the window.
    ReadingWindow(Workplace& host, QString place);

    [[nodiscard]] Workplace& Host() const { return m_host; }

    // To be called once the controls are there. `icon` is a name of the theme; `firstSize` holds until a place was kept.
    void Furnish(NoticeLine& line, const QString& icon, QSize firstSize);

    // Calls `action` whenever the key is pressed in this window.
    void OnKey(const QKeySequence& key, const std::function<void()>& action);

    // Calls `action` whenever the rows of the table get more or less room.
    void OnRoom(const QTableView& table, std::function<void()> action);

    // Brings the window to the front and answers whether it was open before.
    bool ShowInFront();

    // Shows a failure in the line and writes it into the session log.
    void Complain(const std::string& line);

    // Puts a text of a heading and so many rows on the clipboard. `thing` is what one row is, "change".
    void CopyRows(const std::string& text, std::size_t rows, const std::string& thing);

    // Asks where to save, proposing this name, and shows what came of it in the line.
    void SaveUnder(const std::string& name, std::span<const ReportForm> forms, const MakeFile& make);

    // Called when the window came to the front.
    virtual void Activated() {}

    // Called when the window is being closed: whatever goes on in it ends.
    virtual void End() {}

    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Workplace& m_host;
    QString m_place;
    NoticeLine* m_line = nullptr; // one of the window's controls
    std::function<void()> m_onRoom;
};

} // namespace ptk
