// What a window asks of the layers below while the machine runs out of something at one call after the other. Nothing is raised beyond
// what is promised; either it is done, whole and right, or nothing of it, with a sentence; the same objects do it as soon as there is
// plenty again.
#include "faults/ScarceBusiness.h"
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/check/PunchReader.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "office/card/CheckedTimecard.h"
#include "office/card/Mending.h"
#include "office/history/EmployeeNames.h"
#include "office/history/HistoryReading.h"
#include "office/overview/OverviewReading.h"
#include "office/payday/PaydayClosing.h"
#include "office/records/UndoStack.h"
#include "platform/Succeeds.h"
#include "store/CJetDB.h"
#include "store/CSystemOptions.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace ptk {

namespace {

constexpr std::int64_t kTriesOfSample = 1; // of each work, each want, and each way to run out

DateTime Day(int day)
{
    return {CalendarDate{2026, 3, day}, TimeOfDay{}};
}

DateTime At(int day, int hour)
{
    return {CalendarDate{2026, 3, day}, TimeOfDay{hour, 0, 0}};
}

const PayPeriod kPeriod{Day(1), Day(14)};

// As a window keeps it while somebody is logged in.
struct Desk
{
    explicit Desk(const ScarceBusiness& business)
        : database(std::make_shared<CJetDB>(business.Folder())), factory(std::make_shared<CTimeRecordFactory>())
    {
        database->DatabaseName(business.Database());
        database->StoredBy({"Ann Lee", "ptk-admin"});
        factory->PTKDatabase(database);
        options.PTKDatabase(database);
        EXPECT_TRUE(undo.Remember());
    }

    void ReadPeople() const { EXPECT_TRUE(people->Destroy() && people->Create() && people->LoadList(database)); }
    void ReadCard() const { EXPECT_TRUE(factory->BuildList(40, Day(1), Day(15))); }
    [[nodiscard]] std::shared_ptr<CTimeRecord> Shift() const { return factory->TimeRecordList()->Item(1); }

    // Work that may raise something, as an event handler would run it. Where it answers false the reason is the database's.
    bool Raising(const std::function<bool()>& work)
    {
        answer.clear();
        raised = Failure(0, "", "");
        return Succeeds(work, [&](const Failure& failure) { raised = failure; });
    }

    std::shared_ptr<CJetDB> database;
    UndoStack undo{database};
    std::shared_ptr<CEmployeeList> people = std::make_shared<CEmployeeList>();
    std::shared_ptr<CTimeRecordFactory> factory;
    CSystemOptions options;
    Failure raised{0, "", ""};
    std::string answer; // of what only reads
};

struct Work
{
    const char* name;
    bool writes;
    void (*prepare)(Desk&);    // with plenty
    bool (*run)(Desk&);        // whether it is done
    std::string (*why)(Desk&); // it is not
};

void PrintTo(const Work& work, std::ostream* out)
{
    *out << work.name;
}

void Nothing(Desk& /*desk*/) {}

void ReadPeople(Desk& desk)
{
    desk.ReadPeople();
}

void EditShift(Desk& desk)
{
    desk.ReadCard();
    desk.Shift()->EndTime(At(2, 18));
    desk.Shift()->ObjectState(state::Changed);
}

void DropShift(Desk& desk)
{
    desk.ReadCard();
    desk.Shift()->ObjectState(state::Deleted);
}

void AddShifts(Desk& desk)
{
    desk.ReadCard();
    for (const int day : {9, 10, 11}) {
        const auto shift = std::make_shared<CTimeRecord>();
        shift->EmployeeID(40);
        shift->StartTime(At(day, 8));
        shift->EndTime(At(day, 16));
        desk.factory->TimeRecordList()->AddNew(shift);
    }
}

bool SaveShift(Desk& desk)
{
    desk.factory->ResetError();
    return desk.factory->Save(desk.Shift()) && desk.factory->ErrorNumber() == 0;
}

bool SaveShifts(Desk& desk)
{
    desk.factory->ResetError();
    return desk.factory->SaveList() && desk.factory->ErrorNumber() == 0;
}

bool SaveEmployee(Desk& desk)
{
    return desk.Raising([&] {
        desk.people->GetEmployeeByID(40)->Phone("77");
        return desk.people->SaveList();
    });
}

void ReadOptions(Desk& desk)
{
    EXPECT_TRUE(desk.database->OpenDB() && desk.options.Load() && desk.database->CloseDB());
}

bool SaveOptions(Desk& desk)
{
    desk.options.PeriodLength(10);
    return desk.Raising([&] { return desk.options.Update(); });
}

void SaveAndRemember(Desk& desk)
{
    EditShift(desk);
    EXPECT_TRUE(SaveShift(desk) && desk.undo.Remember());
}

void SaveAndUndo(Desk& desk)
{
    SaveAndRemember(desk);
    EXPECT_TRUE(desk.undo.Undo());
}

bool MendShift(Desk& desk)
{
    return desk.Raising([&] {
        const CJetDB::Hold hold(desk.database);
        const Punches rows = PunchReader(*desk.database, kPeriod, 0).Read(40);
        return Mend(*desk.database, std::array{Mending{40, &rows, {{rows.at(0).id, At(2, 8), At(2, 17)}}}});
    });
}

bool AddShiftOfTwo(Desk& desk)
{
    return desk.Raising([&] { return AddShift(*desk.database, std::array{40, 41}, At(5, 8), At(5, 16)); });
}

PaydayOrder Order()
{
    return {kPeriod, {40}, At(20, 9)};
}

bool Close(Desk& desk)
{
    return desk.Raising([&] { return !ClosePayday(desk.database, Order()).empty(); });
}

void CloseBefore(Desk& desk)
{
    EXPECT_TRUE(Close(desk));
}

bool Reopen(Desk& desk)
{
    return desk.Raising([&] { return !ReopenPayday(desk.database, Order()).empty(); });
}

bool ReadCheckedCard(Desk& desk)
{
    return desk.Raising([&] {
        CTimeCard card(desk.factory);
        card.PTKDatabase(desk.database);
        const CheckedTimecard checked = GenerateChecked(card, desk.database, desk.people->GetEmployeeByID(40), kPeriod, At(20, 9));
        desk.raised = checked.generated ? checked.failure : card.LastFailure();
        desk.answer = fmt::format("{} {} {}", card.RegularHoursWorked(), card.OvertimeHoursWorked(), checked.punches.size());
        return checked.generated && checked.check;
    });
}

bool ReadOverview(Desk& desk)
{
    return desk.Raising([&] {
        OverviewReading reading(desk.database, {desk.people->GetEmployeeByID(40), desk.people->GetEmployeeByID(41)}, kPeriod, At(20, 9),
                                desk.people);
        while (!reading.IsDone()) {
            reading.ReadOn([] { return true; });
        }
        for (const OverviewRow& row : reading.Result().rows) {
            desk.answer += fmt::format("{} {} {};", row.figures->Hours(), row.figures->gross, row.check.findings.size());
        }
        return true;
    });
}

bool ReadHistory(Desk& desk)
{
    return desk.Raising([&] {
        HistoryReading reading(desk.database, {}, std::make_shared<EmployeeNames>(desk.database));
        reading.ReadOn();
        for (const HistoryCells& row : reading.Rows()) {
            desk.answer += row.back() + ';';
        }
        return reading.IsDone();
    });
}

std::string Raised(Desk& desk)
{
    return desk.raised.Number() != 0 ? desk.raised.Description() : desk.database->LastFailure().Description();
}

std::string OfFactory(Desk& desk)
{
    return desk.factory->LastFailure().Description();
}

std::string OfUndo(Desk& desk)
{
    return desk.undo.Refusal();
}

constexpr std::array kWorks{
    Work{"save", true, EditShift, SaveShift, OfFactory},
    Work{"delete", true, DropShift, SaveShift, OfFactory},
    Work{"fill", true, AddShifts, SaveShifts, OfFactory},
    Work{"employee", true, ReadPeople, SaveEmployee, Raised},
    Work{"options", true, ReadOptions, SaveOptions, Raised},
    Work{"undo", true, SaveAndRemember, [](Desk& desk) { return desk.undo.Undo(); }, OfUndo},
    Work{"redo", true, SaveAndUndo, [](Desk& desk) { return desk.undo.Redo(); }, OfUndo},
    Work{"mend", true, Nothing, MendShift, Raised},
    Work{"shift", true, Nothing, AddShiftOfTwo, Raised},
    Work{"close", true, Nothing, Close, Raised},
    Work{"reopen", true, CloseBefore, Reopen, Raised},
    Work{"card", false, ReadPeople, ReadCheckedCard, Raised},
    Work{"overview", false, ReadPeople, ReadOverview, Raised},
    Work{"history", false, SaveAndRemember, ReadHistory, Raised},
};

class WorkTest : public testing::TestWithParam<Work>
{
protected:
    void TryAt(Scarce what, std::int64_t call, bool all)
    {
        const Work& work = GetParam();
        {
            Desk desk(m_business);
            work.prepare(desk);
            const std::string before = m_business.Stored();
            bool raises = false;
            RunOut(what, call, all);
            bool done = false;
            try {
                done = work.run(desk);
            } catch (...) {
                raises = true;
            }
            Plenty();
            EXPECT_FALSE(raises);
            EXPECT_EQ(m_business.Stored(), done ? m_done : before) << work.why(desk);
            EXPECT_TRUE(done || work.why(desk).size() > 10) << work.why(desk);
            EXPECT_TRUE(done || work.run(desk)) << work.why(desk);
            EXPECT_EQ(desk.answer, m_answer);
            EXPECT_EQ(m_business.Stored(), m_done);
        }
        m_business.PutBack();
    }

    ScarceBusiness m_business;
    std::string m_done;
    std::string m_answer;
};

TEST_P(WorkTest, IsDoneOrToldAndDoneAfterwards)
{
    const Work& work = GetParam();
    for (std::size_t index = 0; index < kScarceNames.size(); ++index) {
        const auto what = static_cast<Scarce>(index);
        std::int64_t calls = 0;
        {
            Desk desk(m_business);
            work.prepare(desk);
            const std::string before = m_business.Stored();
            bool done = false;
            calls = CallsOf(what, [&] { done = work.run(desk); });
            ASSERT_TRUE(done) << work.why(desk) << desk.answer;
            m_done = m_business.Stored();
            m_answer = desk.answer;
            EXPECT_EQ(m_done != before, work.writes);
        }
        m_business.PutBack();
        TryCalls(what, 0, calls, kTriesOfSample, [&](std::int64_t call, bool all) { TryAt(what, call, all); });
    }
}

INSTANTIATE_TEST_SUITE_P(Of, WorkTest, testing::ValuesIn(kWorks), [](const auto& of) { return of.param.name; });

} // namespace

} // namespace ptk
