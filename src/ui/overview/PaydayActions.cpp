#include "ui/overview/PaydayActions.h"

#include "model/CEmployeeList.h"
#include "office/card/MendPlan.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Clock.h"
#include "store/CJetDB.h"
#include "store/CSystemOptions.h"
#include "ui/mend/FAddShift.h"
#include "ui/mend/FMendSeveral.h"
#include "ui/page/ChangeNews.h"
#include "ui/page/OfferedReasons.h"
#include "ui/page/Workplace.h"
#include "ui/work/WorkProgress.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>
#include <optional>
#include <QApplication>

namespace ptk {

namespace {

constexpr auto kCloseTitle = "Close Payday";
constexpr auto kClosing = "Closing the payday...";
constexpr auto kNotClosedAny = "Nothing was closed: ";
constexpr auto kNobodyToClose = "There is nobody to close the payday of";
constexpr auto kReopenTitle = "Reopen Payday";
constexpr auto kReopening = "Reopening the payday...";
constexpr auto kNotReopened = "Nothing was reopened: ";
constexpr auto kNothingToReopen = "Nothing is closed that could be reopened";
constexpr auto kTakeBack = "; Edit > Undo (Ctrl+Z) takes it back";
constexpr auto kTroubled = "{} of the {} chosen {} problems. Close the payday all the same?";
constexpr auto kTroubledOne = "There are problems on this time card. Close the payday all the same?";

constexpr auto kMendTitle = "Mend Several";
constexpr auto kChecking = "Checking the time cards...";
constexpr auto kMending = "Mending...";
constexpr auto kNotMended = "Nothing was changed: ";
constexpr auto kNothingFound = "Nothing was found on these time cards";

constexpr auto kShiftTitle = "Add a Shift";
constexpr auto kAdding = "Adding...";
constexpr auto kNotAdded = "Nothing was added: ";
constexpr auto kNoPeople = "There is nobody to add a shift for";
constexpr auto kCancelled = "you cancelled it";
constexpr auto kChangedMeanwhile = "somebody else has changed one of these records. Open this window again";

FAddShift::Usual UsualShift(const CSystemOptions& options, const std::shared_ptr<CJetDB>& database)
{
    return {options.AutoShiftStartTime(), options.AutoShiftEndTime(), LoadCheckLimits(database).longShiftHours};
}

// Today where it lies in the period, else the period's last day.
DateTime ProposedDay(const PayPeriod& period, DateTime today)
{
    return period.from <= today && today <= period.to ? today : period.to;
}

} // namespace

PaydayActions::PaydayActions(Workplace& host, QWidget& window) : QObject(&window), m_host(host), m_window(window) {}

std::shared_ptr<CJetDB> PaydayActions::Database() const
{
    return m_host.Database();
}

std::vector<std::shared_ptr<CEmployee>> PaydayActions::PeopleOf(const PaydayWhom& whom) const
{
    const auto all = m_host.Employees();
    std::vector<std::shared_ptr<CEmployee>> people;
    for (const std::int32_t id : whom.People()) {
        if (auto employee = all->GetEmployeeByID(id)) {
            people.push_back(std::move(employee));
        }
    }
    return people;
}

// Blocks all windows: nothing else of the program may use the database while `work` runs.
bool PaydayActions::Run(const Texts& texts, const Work& work)
{
    bool cancelled = false;
    const auto run = [&] {
        const BusyPointer busy(m_host.Desktop());
        WorkProgress progress(&m_window, {texts.title, texts.doing});
        progress.setWindowModality(Qt::ApplicationModal);
        try {
            work(progress);
        } catch (...) {
            cancelled = progress.IsCancelled();
            throw;
        }
    };
    return Succeeds(run, [&](const Failure& reason) {
        const std::string line = texts.refused + (cancelled ? std::string(kCancelled) : PaydayRefusal(reason));
        emit Said(QString::fromStdString(line));
        if (!cancelled) {
            m_host.Log(line);
        }
    });
}

void PaydayActions::TellStored(const QString& news, const QString& title, const QStringList& lines)
{
    ptk::TellStored(m_host);
    emit Done(news, title, lines);
}

bool PaydayActions::MayClose(const PaydayWhom& whom)
{
    if (whom.troubled == 0) {
        return true;
    }
    const std::string question = whom.chosen.size() == 1
                                     ? kTroubledOne
                                     : fmt::format(kTroubled, whom.troubled, whom.chosen.size(), whom.troubled == 1 ? "has" : "have");
    return m_host.Desktop().MessageBox(question, kCloseTitle, Icon::Question, Buttons::YesNo) == Answer::Yes;
}

void PaydayActions::Close(const PaydayWhom& whom)
{
    if (MayClose(whom)) {
        ChangePayday(whom, true);
    }
}

void PaydayActions::Reopen(const PaydayWhom& whom)
{
    ChangePayday(whom, false);
}

void PaydayActions::ChangePayday(const PaydayWhom& whom, bool close)
{
    const PaydayOrder order{whom.period, whom.chosen, m_host.Clock().Now(), whom.takenIn};
    const char* title = close ? kCloseTitle : kReopenTitle;
    std::vector<PaydayLine> lines;
    const auto change = [&](WorkProgress& progress) {
        const PaydayGoesOn goesOn = [&](std::size_t done, std::size_t all) {
            return progress.GoOn(static_cast<std::int32_t>(done), static_cast<std::int32_t>(all));
        };
        lines = close ? ClosePayday(Database(), order, goesOn) : ReopenPayday(Database(), order);
    };
    if (!Run({title, close ? kClosing : kReopening, close ? kNotClosedAny : kNotReopened}, change)) {
        return;
    }
    const auto isStored = [](const PaydayLine& line) { return line.deed == PaydayDeed::Closed || line.deed == PaydayDeed::Reopened; };
    const bool stored = std::any_of(lines.begin(), lines.end(), isStored);
    const QString news = QString::fromStdString(NewsOf(lines));
    if (lines.empty()) {
        return (void)emit Said(close ? kNobodyToClose : kNothingToReopen);
    }
    QStringList texts;
    std::transform(lines.begin(), lines.end(), std::back_inserter(texts),
                   [](const auto& line) { return QString::fromStdString(TextOf(line)); });
    if (stored) {
        TellStored(news + kTakeBack, title, texts);
    } else {
        emit Done(news, title, texts);
    }
}

// Stores changes of time records. Answers why nothing was stored, in a sentence; empty where it was.
QString PaydayActions::Store(const Texts& texts, const std::string& reason, const std::function<bool(CJetDB& database)>& store)
{
    std::string refusal;
    const auto run = [&] {
        const BusyPointer busy(m_host.Desktop());
        const auto database = Database();
        WorkProgress progress(QApplication::activeModalWidget(), {texts.title, texts.doing});
        progress.setWindowModality(Qt::ApplicationModal);
        const CJetDB::Reason why(database, reason);
        if (!store(*database)) {
            refusal = database->Conflict() ? kChangedMeanwhile : database->LastFailure().Description();
            refusal = progress.IsCancelled() ? kCancelled : refusal;
        }
    };
    Succeeds(run, [&](const Failure& failure) { refusal = failure.Description(); });
    if (refusal.empty()) {
        return {};
    }
    m_host.Log(texts.refused + refusal);
    return QString::fromStdString(texts.refused + refusal + '.');
}

void PaydayActions::MendSeveral(const PaydayWhom& whom)
{
    std::optional<MendPlan> plan;
    const auto read = [&](WorkProgress& progress) {
        const auto options = m_host.Options();
        const auto people = PeopleOf(whom);
        std::int32_t done = 0;
        bool goesOn = true;
        const auto goOn = [&] { return goesOn = progress.GoOn(++done, static_cast<std::int32_t>(people.size())); };
        MendPlan made(Database(), {whom.period, m_host.Clock().Now(), LoadCheckLimits(Database())}, people,
                      AutoShiftEnd(options->AutoShiftStartTime(), options->AutoShiftEndTime()), goOn);
        if (!goesOn) {
            throw Failure(0, "PTK", kCancelled);
        }
        plan = std::move(made);
    };
    if (!Run({kMendTitle, kChecking, kNotMended}, read)) {
        return;
    }
    if (plan->Lines().empty()) {
        return (void)emit Said(kNothingFound);
    }
    FMendSeveral window(
        &m_window, std::move(*plan), OfferedReasons(m_host, whom.paid), [this](const MendPlan& ticked, const std::string& reason) {
            return Store({kMendTitle, kMending, kNotMended}, reason, [&](CJetDB& database) { return ticked.Store(database); });
        });
    window.exec();
    if (!window.Stored().isEmpty()) {
        TellStored(window.Stored());
    }
}

void PaydayActions::AddShift(const PaydayWhom& whom)
{
    const auto add = [&] {
        const auto people = PeopleOf(whom);
        if (people.empty()) {
            return (void)emit Said(kNoPeople);
        }
        std::vector<std::int32_t> numbers;
        std::transform(people.begin(), people.end(), std::back_inserter(numbers), [](const auto& person) { return person->EmployeeID(); });
        const auto store = [&](const Shift& shift, const std::string& reason) {
            return Store({kShiftTitle, kAdding, kNotAdded}, reason,
                         [&](CJetDB& database) { return ptk::AddShift(database, numbers, shift.start, shift.end); });
        };
        const auto options = m_host.Options();
        FAddShift window(&m_window, people, {m_host.Clock(), [this](DateTime day) { return WithRecordsOn(Database(), day); }, store},
                         UsualShift(*options, Database()), ProposedDay(whom.period, m_host.Clock().Today()),
                         OfferedReasons(m_host, whom.paid));
        window.exec();
        if (!window.Stored().isEmpty()) {
            TellStored(window.Stored());
        }
    };
    Succeeds(add, [this](const Failure& reason) { emit Said(QString::fromStdString(kNotAdded + reason.Description())); });
}

} // namespace ptk
