// No window is deaf while a disk, a server or another program is slow. With PTK_DEAF=all every action is tried on years of records, in
// minutes; PTK_DEAF_LIMIT are the milliseconds that a window may be deaf.
#include "gui/deaf/DeafDesk.h"
#include "gui/deaf/SlowDisk.h"
#include "platform/Failure.h"
#include "platform/Waiting.h"
#include "store/backup/Backups.h"
#include "store/engine/RecordSet.h"
#include "store/sqlite/SqliteEngine.h"
#include "support/CuttingProxy.h"
#include "support/Execute.h"
#include "support/ServerDatabase.h"
#include "ui/frame/QtDesktop.h"
#include "ui/work/PaintMeanwhile.h"

#include <atomic>
#include <cstdio>
#include <thread>

namespace ptk {

namespace {

using std::chrono::milliseconds;

bool TriesAll()
{
    return qEnvironmentVariable("PTK_DEAF") == "all";
}

int DaysBefore()
{
    return TriesAll() ? 700 : 0;
}

// A build with sanitizers paints several times slower than what is delivered.
milliseconds Limit()
{
    constexpr int kLoose = 250;
    return milliseconds(qEnvironmentVariableIsSet("PTK_DEAF_LIMIT") ? qEnvironmentVariableIntValue("PTK_DEAF_LIMIT") : kLoose);
}

// Another program's hold on a file, for 600 ms.
class HeldFile
{
public:
    ~HeldFile() { Wait(); }

    void Hold(const std::string& file)
    {
        Wait();
        std::atomic<bool> isHeld = false;
        m_holder = std::thread([file, &isHeld] {
            const SqliteEngine holder(file);
            isHeld = true;
            isHeld.notify_one();
            std::this_thread::sleep_for(milliseconds(600));
        });
        isHeld.wait(false);
    }

private:
    void Wait()
    {
        if (m_holder.joinable()) {
            m_holder.join();
        }
    }

    std::thread m_holder;
};

class DeafTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { PaintWhileWaiting(); }
    static void TearDownTestSuite() { WhileWaiting({}); }

    static void Nothing(const std::string& /*file*/) {}

    static void Tell(const char* surroundings, const std::vector<DeafDesk::Heard>& heard)
    {
        std::vector<milliseconds> all;
        for (const auto& [action, longest] : heard) {
            std::printf("%-14s %-18s %4d ms\n", surroundings, action, static_cast<int>(longest.count()));
            EXPECT_LE(longest, Limit()) << action;
            all.push_back(longest);
        }
        std::sort(all.begin(), all.end());
        std::printf("%-14s %-18s %4d ms, worst %d ms\n", surroundings, "median", static_cast<int>(all[all.size() / 2].count()),
                    static_cast<int>(all.back().count()));
    }
};

TEST_F(DeafTest, OnAQuickDisk)
{
    DeafDesk desk(DaysBefore(), Nothing);
    desk.GoThrough(true);
    Tell("quick disk", desk.AllHeard());
}

TEST_F(DeafTest, OnASlowDisk)
{
    std::optional<SlowDisk> disk;
    DeafDesk desk(DaysBefore(), [&](const std::string& /*file*/) { disk.emplace(); });
    desk.GoThrough(TriesAll());
    Tell("slow disk", desk.AllHeard());
}

TEST_F(DeafTest, OnAFileThatOthersHold)
{
    HeldFile held;
    DeafDesk desk(DaysBefore(), [&](const std::string& file) { held.Hold(file); });
    desk.GoThrough(TriesAll());
    Tell("held file", desk.AllHeard());
}

TEST_F(DeafTest, OnALongLineToAServer)
{
    const ServerDatabase server;
    CreateDatabase(server.Address(), [](BulkWriter& writer) { AddDeafStaff(writer, DaysBefore()); });
    CuttingProxy line;
    line.Delay(milliseconds(25));
    std::string address = server.Address();
    address.replace(address.find(TestServer()), TestServer().size(), line.Folder());
    DeafDesk desk(0, Nothing, address);
    desk.GoThrough(TriesAll());
    Tell("line of 50 ms", desk.AllHeard());
}

TEST_F(DeafTest, CancelEndsTheWaitForASilentServerAndLeavesNothing)
{
    const ServerDatabase server;
    CreateDatabase(server.Address(), [](BulkWriter& writer) { AddDeafStaff(writer, 0); });
    CuttingProxy line;
    std::string address = server.Address();
    address.replace(address.find(TestServer()), TestServer().size(), line.Folder());
    DeafDesk desk(0, Nothing, address);
    const auto backups = [&] { return BackupsIn(BackupFolder(desk.Program().folder.Path())); };
    const auto before = backups();
    line.Stall();
    std::atomic<bool> isOver = false;
    std::chrono::steady_clock::time_point pressed;
    std::thread user([&] { // no timer of the windows runs in a wait
        while (!isOver) {
            std::this_thread::sleep_for(milliseconds(20));
            QMetaObject::invokeMethod(
                qApp,
                [&] {
                    const QWidget* const window = QApplication::activeModalWidget();
                    if (window != nullptr && window->isVisible() && window->objectName() == "dlgProgress") {
                        pressed = std::chrono::steady_clock::now();
                        Click(*window, "cmdCancel");
                    }
                },
                Qt::QueuedConnection);
        }
    });
    desk.Measure("back up, cancel", [&] { Find<QAction>(desk.Main(), "mnuFileBackUp").trigger(); });
    EXPECT_EQ(backups(), before);
    const auto ended = std::chrono::steady_clock::now();
    isOver = true;
    user.join();
    line.Flow();
    ASSERT_NE(pressed, std::chrono::steady_clock::time_point()) << "Cancel could be pressed";
    EXPECT_LE(std::chrono::duration_cast<milliseconds>(ended - pressed), milliseconds(200));
    Tell("silent server", desk.AllHeard());
}

// The number of the failure that statements end with which are cancelled in their fourth turn, and the time that they took to end.
std::pair<std::int32_t, milliseconds> Cancelled(const std::function<void()>& statements)
{
    const SlowDisk disk;
    std::chrono::steady_clock::time_point pressed;
    int turns = 0;
    const WaitingAs work([&] {
        if (++turns == 4) {
            pressed = std::chrono::steady_clock::now();
        }
        return turns < 4;
    });
    std::int32_t number = 0;
    try {
        statements();
    } catch (const Failure& failure) {
        number = failure.Number();
    }
    return {number, std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - pressed)};
}

// What was changed is read back from the journal first, so that only reading ends at once.
TEST_F(DeafTest, CancelEndsAReadingOfASlowDiskAndUndoesAChange)
{
    const TemporaryFolder folder;
    const std::string file = folder.Path() + "/ptk.mdb";
    CreateDatabase(file, [](BulkWriter& writer) { AddDeafStaff(writer, 100); });
    {
        SqliteEngine database(file);
        const auto [number, took] = Cancelled([&] { database.Select("SELECT SUM(LENGTH(EndTime)) FROM TimeRecord"); });
        EXPECT_EQ(number, 9);
        EXPECT_LE(took, milliseconds(200));
    }
    {
        SqliteEngine database(file);
        EXPECT_EQ(Cancelled([&] { Execute(database, "UPDATE TimeRecord SET EmployeeID = 1"); }).first, 9);
    }
    SqliteEngine database(file);
    EXPECT_EQ(database.Select("SELECT COUNT(*) FROM TimeRecord WHERE EmployeeID = 1")->Int32At(0), 0);
}

TEST_F(DeafTest, WhileTheOpenerAndTheSpoolerHang)
{
    const TemporaryFolder folder;
    for (const char* program : {"lp", "xdg-open"}) {
        const std::string path = folder.Path() + '/' + program;
        WriteBytes(path, "#!/bin/sh\nexec sleep 6\n");
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(folder.Path()) + ':' + before);
    QtDesktop desktop;
    Deafness deafness;
    std::vector<DeafDesk::Heard> heard;
    const auto measure = [&](const char* action, const std::function<void()>& work) {
        deafness.Begin();
        work();
        heard.push_back({action, deafness.Longest()});
    };
    const DesktopWindow none{};
    measure("open", [&] { EXPECT_GT(desktop.Shell(none, ShellVerb::Open, folder.Path() + "/lp"), ShellSuccess); });
    if (TriesAll()) {
        measure("print", [&] { EXPECT_LE(desktop.Print(none, folder.Path() + "/lp", "Timecard"), ShellSuccess); });
    }
    qputenv("PATH", before);
    Tell("hanging child", heard);
}

} // namespace

} // namespace ptk
