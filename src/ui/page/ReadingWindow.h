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
    // In its line.
    void Say(const QString& text);

protected:
    // `place`: under which its place is kept. The host outlives it.
    ReadingWindow(Workplace& host, QString place);

    [[nodiscard]] Workplace& Host() const { return m_host; }

    // To be called once the controls are there. `icon`: of the theme; `firstSize`: before its place was kept.
    void Furnish(NoticeLine& line, const QString& icon, QSize firstSize);

    // Has it called when the key is pressed in this window.
    void OnKey(const QKeySequence& key, const std::function<void()>& action);

    // Has it called whenever the rows of the table get more or less room.
    void OnRoom(const QTableView& table, std::function<void()> action);

    // Brings it to the front. Answers whether it was open before.
    bool ShowInFront();

    // Says it and logs it.
    void Complain(const std::string& line);

    // `thing`: what one of the rows is, "change". The text has a heading and the rows.
    void CopyRows(const std::string& text, std::size_t rows, const std::string& thing);

    // Asks where to save under this name and says what came of it.
    void SaveUnder(const std::string& name, std::span<const ReportForm> forms, const MakeFile& make);

    // It came to the front.
    virtual void Activated() {}

    // It is being closed: what goes on in it ends.
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
