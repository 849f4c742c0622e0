// ptk_desk ADDRESS SEED SECONDS PAUSE: one of many who work on the same few employees' records at once, with up to twice PAUSE milliseconds
// between two of its turns. Prints a line for each operation: its name, its microseconds, and what became of it; at the end how many steps
// of the edit trail it stored.
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "office/records/UndoStack.h"
#include "store/CJetDB.h"

#include <chrono>
#include <fmt/format.h>
#include <random>
#include <string>
#include <thread>

namespace bench {

namespace {

using ptk::DateTime;

const DateTime kFrom({2026, 11, 1});
constexpr int kDays = 14;
constexpr int kEnough = 30; // records on a card
constexpr int kEmployees = 10;
constexpr std::int32_t kFirstEmployee = 40;

class Desk
{
public:
    Desk(const std::string& address, unsigned seed, std::uint64_t pause) : m_random(seed), m_pause(pause)
    {
        m_database->DatabaseName(address);
        m_database->StoredBy({fmt::format("Desk {}", seed), "load"});
        m_factory.PTKDatabase(m_database);
    }

    void WorkFor(std::chrono::seconds time)
    {
        const auto until = std::chrono::steady_clock::now() + time;
        while (std::chrono::steady_clock::now() < until) {
            std::this_thread::sleep_for(std::chrono::milliseconds(m_random() % (2 * m_pause + 1)));
            const std::uint64_t what = m_random() % 10;
            if (what < 8) {
                ReadAndSave(what);
            } else if (what == 8) {
                SaveEmployee();
            } else {
                Undo();
            }
        }
        fmt::print("steps {}\n", m_steps);
    }

private:
    // "done", "refused" where somebody else was first, else the failure.
    void Told(const char* operation, const std::function<std::string()>& work)
    {
        const auto begun = std::chrono::steady_clock::now();
        const std::string became = work();
        const auto took = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - begun);
        fmt::print("{} {} {}\n", operation, took.count(), became);
    }

    std::string OfFactory() const
    {
        if (m_factory.LastFailure().Number() == 0) {
            return "done";
        }
        return m_factory.Conflict() ? "refused" : m_factory.LastFailure().Description();
    }

    void Remember(const char* operation, const std::function<std::string()>& save)
    {
        bool stored = false;
        Told(operation, [&] {
            std::string became = save();
            stored = became == "done";
            return became;
        });
        if (stored && Counted()) {
            Told("remember", [&] { return m_undo.Remember() ? "done" : m_undo.Refusal(); });
        }
    }

    // Whether a step was stored: what is as it was before makes none.
    bool Counted()
    {
        const bool isNew = m_database->LastStep() != 0 && m_database->LastStep() != m_lastStep;
        m_lastStep = m_database->LastStep();
        m_steps += isNew ? 1 : 0;
        return isNew;
    }

    void ReadAndSave(std::uint64_t what)
    {
        Told("card", [&] {
            m_factory.BuildList(RandomEmployee(), kFrom, kFrom.AddDays(kDays));
            return OfFactory();
        });
        const auto list = m_factory.TimeRecordList();
        if (list->Count() == 0 || (what == 0 && list->Count() < kEnough)) {
            return AutoFill();
        }
        if (what < 2) {
            return; // only looked at
        }
        const auto record = list->Item(static_cast<std::int32_t>(m_random() % static_cast<std::uint64_t>(list->Count())) + 1);
        const bool goes = what == 2;
        record->ObjectState(goes ? ptk::state::Deleted : ptk::state::Changed);
        record->EndTime(DateTime::FromSeconds(record->StartTime().Seconds() + 3600 + static_cast<std::int64_t>(m_random() % 600) * 60));
        Remember(goes ? "delete" : "save", [&] {
            m_factory.Save(record);
            return OfFactory();
        });
    }

    void AutoFill()
    {
        m_factory.BuildList(0, kFrom, kFrom); // nobody's
        const std::int32_t employee = RandomEmployee();
        for (int day = 0; day < 5; ++day) {
            const auto record = std::make_shared<ptk::CTimeRecord>();
            record->EmployeeID(employee);
            record->StartTime(DateTime::FromSeconds(kFrom.AddDays(day).Seconds() + std::int64_t{8} * 3600));
            record->EndTime(DateTime::FromSeconds(kFrom.AddDays(day).Seconds() + std::int64_t{17} * 3600));
            m_factory.TimeRecordList()->AddNew(record);
        }
        Remember("auto-fill", [&] {
            m_factory.SaveList();
            return OfFactory();
        });
    }

    void SaveEmployee()
    {
        ptk::CEmployeeList list;
        Told("employees", [&] { return list.LoadList(m_database) ? "done" : m_database->LastFailure().Description(); });
        if (const auto employee = list.GetEmployeeByID(RandomEmployee())) {
            employee->Phone(fmt::format("555-{:04}", m_random() % 10000));
            Remember("employee", [&] {
                if (list.SaveList()) {
                    return std::string("done");
                }
                return m_database->Conflict() ? "refused" : m_database->LastFailure().Description();
            });
        }
    }

    void Undo()
    {
        if (m_undo.NextUndo() == nullptr) {
            return;
        }
        Told("undo", [&] {
            if (m_undo.Undo()) {
                Counted();
                return std::string("done");
            }
            return m_database->Conflict() ? "refused" : m_undo.Refusal();
        });
    }

    std::int32_t RandomEmployee() { return kFirstEmployee + static_cast<std::int32_t>(m_random() % kEmployees); }

    std::mt19937 m_random;
    std::uint64_t m_pause; // milliseconds
    std::shared_ptr<ptk::CJetDB> m_database = std::make_shared<ptk::CJetDB>(".");
    ptk::CTimeRecordFactory m_factory;
    ptk::UndoStack m_undo{m_database};
    std::int64_t m_steps = 0;
    std::int64_t m_lastStep = 0;
};

} // namespace

} // namespace bench

int main(int argc, char** argv)
{
    if (argc != 5) {
        fmt::print(stderr, "usage: ptk_desk ADDRESS SEED SECONDS PAUSE\n");
        return 2;
    }
    bench::Desk(argv[1], static_cast<unsigned>(std::stoul(argv[2])), std::stoul(argv[4])).WorkFor(std::chrono::seconds(std::stol(argv[3])));
    return 0;
}
