#include "ui/page/RecordPages.h"

#include "office/records/LeftBehind.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Desktop.h"
#include "startup/CController.h"
#include "store/CJetDB.h"
#include "ui/page/PageHost.h"
#include "ui/page/RecordPage.h"
#include "ui/page/SharedRecords.h"
#include "ui/widgets/NoticeLine.h"
#include "ui/work/ProgramEnd.h"

#include <algorithm>
#include <chrono>
#include <QApplication>
#include <QEvent>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimer>

namespace ptk {

namespace {

constexpr std::chrono::seconds kBetweenLooks(2);

constexpr auto kLoaded = "What is stored now was loaded";
constexpr auto kLeaveTitle = "Exit";
constexpr auto kNotLoaded = "what is stored now could not be loaded: ";

} // namespace

RecordPages::RecordPages(QWidget& window, Frame frame, const std::array<Place, 3>& places)
    : QObject(&window), m_frame(std::move(frame)), m_places(places)
{
    window.installEventFilter(this);
    connect(&m_frame.pages, &QStackedWidget::currentChanged, this, &RecordPages::LookSoon);
    connect(&m_frame.host.SharedRecords(), &SharedRecords::ReadAgainWanted, this, &RecordPages::ReadAgain);
    auto* const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this] {
        if (m_frame.host.SharedRecords().AnnouncesChanges()) {
            Look();
        }
    });
    timer->start(kBetweenLooks);
    connect(&m_frame.host.SharedRecords(), &SharedRecords::NotRemembered, this, &RecordPages::TellNotRemembered, Qt::QueuedConnection);
}

void RecordPages::ShowMoved(const MovedStep& step, const QString& done)
{
    for (const Place& place : m_places) {
        if (step.table == place.table) {
            m_frame.strip.setCurrentIndex(place.tab);
        }
    }
    const std::string trouble = ReadPages(step);
    Line()->SayBefore(trouble.empty() ? done : done + "; " + QString::fromStdString(trouble));
}

void RecordPages::ReadAgain()
{
    const std::string trouble = ReadPages({});
    if (!trouble.empty()) {
        Line()->SayBefore(QString::fromStdString(trouble));
    } else {
        Line()->Remark(kLoaded);
    }
}

// Raises a failure where the database cannot be opened. It is asked first, because lists that cannot be read are empty afterwards.
void RecordPages::RequireDatabase() const
{
    const auto database = m_frame.host.Database();
    RequireOpen(*database);
    database->CloseDB();
}

// Returns what went wrong, or nothing. The time card is read last, so that it is made with the employee's new row.
std::string RecordPages::ReadPages(const MovedStep& step)
{
    const auto read = [&] {
        const BusyPointer busy(m_frame.host.Desktop());
        RequireDatabase();
        std::for_each(m_places.rbegin(), m_places.rend(), [&](const Place& place) {
            place.page.ReadAgain(step.table == place.table ? std::optional(step.row) : std::nullopt);
        });
    };
    std::string trouble;
    Succeeds(read, [&](const Failure& failure) {
        trouble = kNotLoaded + failure.Description();
        m_frame.host.Log(failure.Number(), trouble);
    });
    return trouble;
}

bool RecordPages::MayLeave()
{
    m_mayLeave = m_mayLeave || IsEnding() || qApp->isSavingSession() || SettleTyped();
    return m_mayLeave;
}

bool RecordPages::SettleTyped()
{
    std::vector<std::string> unsaved;
    for (const Place& place : m_places) {
        if (std::string typed = place.page.Unsaved(); !typed.empty()) {
            unsaved.push_back(std::move(typed));
        }
    }
    if (unsaved.empty() || m_frame.host.Controller() == nullptr) {
        return true;
    }
    const Answer answer =
        m_frame.host.Desktop().MessageBox(LeavingQuestion(unsaved), kLeaveTitle, Icon::Question, Buttons::SaveDiscardCancel);
    return answer == Answer::No || (answer == Answer::Yes && SaveTyped());
}

bool RecordPages::SaveTyped()
{
    return std::all_of(m_places.begin(), m_places.end(), [this](const Place& place) {
        if (place.page.Unsaved().empty()) {
            return true;
        }
        m_frame.strip.setCurrentIndex(place.tab);
        return place.page.SaveTyped();
    });
}

void RecordPages::TellNotRemembered(const QString& reason)
{
    m_frame.host.Log(reason.toStdString());
    Line()->SayBefore(reason);
}

bool RecordPages::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        LookSoon();
    }
    return QObject::eventFilter(watched, event);
}

// Looks for changes from the event loop, when the window is visible.
void RecordPages::LookSoon()
{
    QMetaObject::invokeMethod(this, &RecordPages::Look, Qt::QueuedConnection);
}

void RecordPages::Look()
{
    if (m_frame.isBusy()) {
        return;
    }
    m_frame.host.SharedRecords().Look();
    if (m_frame.host.SharedRecords().AnnouncesChanges()) {
        ReadIdleLists();
    }
    for (const Place& place : m_places) {
        if (place.tab == m_frame.pages.currentIndex()) {
            Succeeds([&] { place.page.TellChanges(); });
        }
    }
}

// Reads no list while the user chooses from one that has dropped down.
void RecordPages::ReadIdleLists()
{
    for (const Place& place : m_places) {
        const auto list = place.page.IdleList();
        if (list && m_frame.host.SharedRecords().IsAnyChanged(*list) && QApplication::activePopupWidget() == nullptr) {
            Succeeds([&] {
                RequireDatabase();
                place.page.ReadAgain(std::nullopt);
            });
        }
    }
}

NoticeLine* RecordPages::Line() const
{
    return m_frame.pages.currentWidget()->findChild<NoticeLine*>();
}

} // namespace ptk
