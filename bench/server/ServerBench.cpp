// Time cards, the overview, the employee list, saving, the review and the history on a server: the program's own classes beside the bare
// client library, over the same socket.
#include "model/CEmployeeList.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordList.h"
#include "office/history/History.h"
#include "office/overview/Overview.h"
#include "server/BareServer.h"
#include "server/ServerData.h"
#include "store/ProgramCards.h"
#include "store/RawStore.h"
#include "store/ReportOffice.h"

namespace bench {

namespace {

constexpr Size kSmall{"10k", 10, 10'000};
constexpr Size kMedium{"1m", 1'000, 1'000'000};
constexpr Size kLarge{"10m", 1'000, 10'000'000};
constexpr Size kStaff{"staff", 10'000, 10'000};
constexpr Size kChanges{"changes", 10, 10'000, true};
constexpr std::int32_t kEmployee = kFirstEmployee + 3;
constexpr std::int32_t kLastRecord = kSmall.records - kSmall.employees + 1; // of the first employee

void BareCards(benchmark::State& state)
{
    BareServer server(ServerDatabase(kSmall));
    const std::string from = StoredText(Newest().from);
    const std::string to = StoredText(Newest().to);
    for (auto unused : state) {
        server.BeginRead();
        benchmark::DoNotOptimize(server.Card(kEmployee, from, to));
        server.EndRead();
    }
}

void ProgramCards(benchmark::State& state, const Size& size)
{
    const Program program(ServerDatabase(size));
    const auto employee = Program::Employee(kEmployee);
    program.Card(employee, Newest()); // which connects
    for (auto unused : state) {
        benchmark::DoNotOptimize(program.Card(employee, Newest()));
    }
}

void BareList(benchmark::State& state)
{
    BareServer server(ServerDatabase(kStaff));
    for (auto unused : state) {
        server.BeginRead();
        benchmark::DoNotOptimize(server.Employees());
        server.EndRead();
    }
}

void ProgramList(benchmark::State& state)
{
    const Program program(ServerDatabase(kStaff));
    for (auto unused : state) {
        ptk::CEmployeeList list;
        if (!list.LoadList(program.Database())) {
            throw std::runtime_error("no list");
        }
    }
}

// The shift's last minute, another one each time.
ptk::DateTime End(std::int32_t save)
{
    return ptk::DateTime::FromSeconds(kLastDay.Seconds() + std::int64_t{16 * 60 + save % 60} * 60);
}

void BareSaves(benchmark::State& state)
{
    BareServer server(ServerDatabase(kSmall));
    std::int32_t save = 0;
    for (auto unused : state) {
        ++save;
        server.Save(kLastRecord, StoredText(End(save)));
    }
}

void ProgramSaves(benchmark::State& state)
{
    const Program program(ServerDatabase(kSmall));
    program.Database()->StoredBy({"Ann Lee", "bench"});
    program.Factory().BuildList(kFirstEmployee, Newest().from, Newest().to);
    const auto list = program.Factory().TimeRecordList();
    const auto record = list->Item(list->Count());
    record->ObjectState(ptk::state::Changed);
    std::int32_t save = 0;
    for (auto unused : state) {
        ++save;
        record->EndTime(End(save));
        if (!program.Factory().Save(record) || program.Factory().ErrorNumber() != 0) {
            throw std::runtime_error("not saved");
        }
    }
}

void BareReview(benchmark::State& state)
{
    Office office(ServerDatabase(kMedium), Newest().from);
    const std::string bytes = Bytes(WriteReview(office, Everyone(kMedium.employees)), office);
    BareServer server(ServerDatabase(kMedium));
    const std::string from = StoredText(Newest().from);
    const std::string to = StoredText(Newest().to);
    for (auto unused : state) {
        server.BeginRead();
        RawReport(office, kMedium.employees, bytes,
                  [&](std::int32_t employee) { benchmark::DoNotOptimize(server.Card(employee, from, to)); });
        server.EndRead();
    }
}

void ProgramReview(benchmark::State& state)
{
    Office office(ServerDatabase(kMedium), Newest().from);
    const auto list = Everyone(kMedium.employees);
    for (auto unused : state) {
        WriteReview(office, list);
    }
}

void BareOverview(benchmark::State& state)
{
    BareServer server(ServerDatabase(kMedium));
    const std::string from = StoredText(Newest().from);
    const std::string to = StoredText(Newest().to);
    for (auto unused : state) {
        server.BeginRead();
        benchmark::DoNotOptimize(server.Cards(kFirstEmployee, kMedium.employees, from, to));
        server.EndRead();
    }
}

void ProgramOverview(benchmark::State& state)
{
    const Program program(ServerDatabase(kMedium));
    ptk::Employees employees;
    for (std::int32_t i = 0; i < kMedium.employees; ++i) {
        employees.push_back(Program::Employee(kFirstEmployee + i));
    }
    for (auto unused : state) {
        ptk::Overview overview;
        overview.period = {Newest().from, kLastDay};
        overview.made = Newest().to;
        ReadOverview(overview, program.Database(), employees);
        benchmark::DoNotOptimize(TotalsOf(overview.rows));
    }
}

void BareHistory(benchmark::State& state)
{
    BareServer server(ServerDatabase(kChanges));
    for (auto unused : state) {
        server.BeginRead();
        benchmark::DoNotOptimize(server.History(kEmployee));
        server.EndRead();
    }
}

void ProgramHistory(benchmark::State& state)
{
    const Program program(ServerDatabase(kChanges));
    ptk::TrailQuery query;
    query.employee = kEmployee;
    for (auto unused : state) {
        benchmark::DoNotOptimize(HistoryIn(ptk::ReportForm::Text, program.Database(), query));
    }
}

} // namespace

void RegisterServerBenchmarks(bool large)
{
    Pair("server, card", BareCards, [](benchmark::State& state) { ProgramCards(state, kSmall); });
    Pair("server, one record saved", BareSaves, ProgramSaves);
    Pair("server, list of 10,000 employees", BareList, ProgramList);
    Pair("server, review of 1,000 employees", BareReview, ProgramReview);
    Pair("server, overview of 1,000 employees", BareOverview, ProgramOverview);
    Pair("server, history of one employee, 10 thousand changes", BareHistory, ProgramHistory);
    if (large) {
        Pair(
            "server, card of 10 million records, of 10 thousand", [](benchmark::State& state) { ProgramCards(state, kSmall); },
            [](benchmark::State& state) { ProgramCards(state, kLarge); });
    }
}

} // namespace bench
