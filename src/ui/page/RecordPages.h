// All pages that show stored records: read again after an undo or on request, and told of other people's changes.
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
// reports them by itself; but never while `isBusy`. Where the database reports them, the lists of people and companies are read again, too.
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

    // Everything that is handed in outlives it; the window is its parent.
    RecordPages(QWidget& window, Frame frame, const std::array<Place, 3>& places);

    // Brings up the page that the step is about, has all pages show what is stored now, and says there what was done.
    void ShowMoved(const MovedStep& step, const QString& done);

    // Has all pages show what is stored now. Where the database cannot be opened no page is read again, and the shown page says so.
    void ReadAgain();

    // Whether the program may end. Where something was typed and not saved, asks whether to save or discard it, and does so; a page that
    // refuses to save is brought up. Once true, it stays true. Nobody is asked where the end comes from outside.
    bool MayLeave();

    // From now on the program may end without a question.
    void LeaveUnasked() { m_mayLeave = true; }

    // Says in the shown page's line and in the session log why what was stored cannot be undone.
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
