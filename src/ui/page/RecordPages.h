// The pages that show stored records, together: read again after an undo or on request, and told of other people's changes.
#pragma once

#include "office/records/UndoStack.h"

#include <array>
#include <functional>
#include <QObject>

class QStackedWidget;
class QTabBar;

namespace ptk {

class NoticeLine;
class PageHost;
class RecordPage;

// Looks for other people's changes whenever the window or one of the pages comes to the front, and every two seconds where the database
// tells them by itself; but never while `isBusy`. In the latter case lists of people and companies are kept as they are stored, too.
class RecordPages final : public QObject
{
    Q_OBJECT

public:
    struct Place
    {
        int tab; // on the strip and in the stack, from 0
        const char* table;
        RecordPage& page;
    };

    struct Frame
    {
        QTabBar& strip;
        QStackedWidget& pages;
        PageHost& host;
        std::function<bool()> isBusy;
    };

    // All outlive it. The window is the parent.
    RecordPages(QWidget& window, Frame frame, const std::array<Place, 3>& places);

    // Brings up the page that the step is about, with what is stored now, and says there what was done.
    void ShowMoved(const MovedStep& step, const QString& done);

    // All of them; where the database cannot be opened nothing is, and the shown page says so.
    void ReadAgain();

    // Whether the program may end: asks what is to become of what was typed and not saved, where there is any, and does that. A page that
    // refuses to save is brought up. True from then on once it is; nobody is asked where the end comes from outside.
    bool MayLeave();

    // It may from now on.
    void LeaveUnasked() { m_mayLeave = true; }

    // In the shown page's line and the session log: what was stored cannot be undone.
    void TellNotRemembered(const QString& reason);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::string ReadPages(const MovedStep& step);
    bool SettleTyped();
    bool SaveTyped();
    void LookSoon();
    void Look();
    void ReadIdleLists();
    void RequireDatabase() const;
    [[nodiscard]] NoticeLine* Line() const;

    Frame m_frame;
    std::array<Place, 3> m_places;
    bool m_mayLeave = false;
};

} // namespace ptk
