// Two desks at one person's records: every order of what they do, up to a number of steps each, beside a model of what that must come to.
// A step is either done as if its desk were alone with what is stored at that moment, or refused and told, which it is only where the
// desk's knowledge is out of date. What orders lead to is therefore what some order of whole steps, one after the other, leads to.
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "office/payday/PaydayClosing.h"
#include "office/records/UndoStack.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "support/EitherDatabase.h"
#include "support/Execute.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <set>

namespace ptk {

namespace {

enum class Deed : std::uint8_t
{
    Read,
    Edit, // not stored yet
    Save,
    Delete,
    Undo, // and read, as the pages do
    Fill,
    Close
};

constexpr std::array kDeeds{Deed::Read, Deed::Edit, Deed::Save, Deed::Delete, Deed::Undo, Deed::Fill, Deed::Close};
constexpr std::array kDeedNames{"reads", "edits", "saves", "deletes", "undoes", "fills", "closes"};

struct Move
{
    std::size_t desk = 0;
    Deed deed = Deed::Read;
};

using Order = std::vector<Move>;

std::string TextOf(const Order& order)
{
    std::string text;
    for (const Move& move : order) {
        text += fmt::format("{} {}, ", move.desk == 0 ? "Ann" : "Bob", kDeedNames.at(static_cast<std::size_t>(move.deed)));
    }
    return text;
}

// Hours of the shift that both know at first; of Ann's and of Bob's edit of it; of what one fill adds.
constexpr int kHours = 8;
constexpr std::array kEdited{7, 6};
constexpr int kFilled = 2; // an hour on each of two days, so that eight of them are no overtime

// What is stored and what each desk knows. A shift of 0 hours is not there.
class OrderModel
{
public:
    // Ann's and Bob's steps at most.
    OrderModel(int ann, int bob) : m_desks{Desk{ann}, Desk{bob}} {}

    [[nodiscard]] bool IsPossible(const Move& move) const
    {
        const Desk& desk = m_desks.at(move.desk);
        switch (move.deed) {
        case Deed::Read:
            return desk.left > 0 && (desk.seen != m_shift || desk.edited);
        case Deed::Edit:
            return desk.left > 0 && desk.seen != 0 && !desk.edited;
        case Deed::Save:
            return desk.left > 0 && desk.edited;
        case Deed::Delete:
            return desk.left > 0 && desk.seen != 0;
        case Deed::Undo:
            return desk.left > 0 && !desk.done.empty();
        default:
            return desk.left > 0;
        }
    }

    // Whether it is done; otherwise it is refused, and nothing of what is stored changes.
    bool Take(const Move& move)
    {
        Desk& desk = m_desks.at(move.desk);
        --desk.left;
        switch (move.deed) {
        case Deed::Read:
            Read(desk);
            return true;
        case Deed::Edit:
            return desk.edited = true;
        case Deed::Save:
            return Store(move.desk, HoursToSave(move.desk));
        case Deed::Delete:
            return Store(move.desk, 0);
        case Deed::Undo:
            return Undo(move.desk);
        case Deed::Fill:
            ++m_fills;
            desk.done.push_back({Deed::Fill});
            return true;
        case Deed::Close:
            return Close(move.desk);
        }
        return false;
    }

    [[nodiscard]] int HoursToSave(std::size_t desk) const { return m_desks.at(desk).seen == kEdited.at(desk) ? kHours : kEdited.at(desk); }

    [[nodiscard]] std::string Stored() const
    {
        std::string text = fmt::format("{} hours, {} filled, paid", m_shift, m_fills);
        for (const auto& [desk, hours] : m_paid) {
            text += fmt::format(" {}", hours);
        }
        return text;
    }

    // Two orders of one text go on alike.
    [[nodiscard]] std::string Text() const
    {
        std::string text = Stored();
        for (const Desk& desk : m_desks) {
            text += fmt::format("; {} left, {}{}", desk.left, desk.seen, desk.edited ? " edited" : "");
            for (const Done& done : desk.done) {
                text += fmt::format(" {}{}{}", static_cast<int>(done.deed), done.before, done.isOvertaken ? "!" : "");
            }
        }
        for (const auto& [desk, hours] : m_paid) {
            text += fmt::format(" by {}", desk);
        }
        return text;
    }

private:
    struct Done
    {
        Deed deed = Deed::Save; // Save also of what was deleted
        int before = 0;
        bool isOvertaken = false; // the other desk changed the shift since
    };

    struct Desk
    {
        int left;
        int seen = kHours;
        bool edited = false;
        std::vector<Done> done{};
    };

    void Read(Desk& desk) const
    {
        desk.seen = m_shift;
        desk.edited = false;
    }

    void Change(std::size_t desk, int hours)
    {
        m_shift = hours;
        for (Done& done : m_desks.at(1 - desk).done) {
            done.isOvertaken = done.isOvertaken || done.deed == Deed::Save;
        }
        Read(m_desks.at(desk));
    }

    bool Store(std::size_t desk, int hours)
    {
        if (m_desks.at(desk).seen != m_shift) {
            return false;
        }
        m_desks.at(desk).done.push_back({Deed::Save, m_shift});
        Change(desk, hours);
        return true;
    }

    bool Undo(std::size_t desk)
    {
        std::vector<Done>& steps = m_desks.at(desk).done;
        const Done done = steps.back();
        if (done.isOvertaken) {
            Read(m_desks.at(desk));
            return false;
        }
        steps.pop_back();
        if (done.deed == Deed::Save) {
            Change(desk, done.before);
        } else if (done.deed == Deed::Fill) {
            --m_fills;
        } else {
            const auto last = std::ranges::find(m_paid.rbegin(), m_paid.rend(), desk, &Paid::first);
            m_paid.erase(std::next(last).base());
        }
        Read(m_desks.at(desk));
        return true;
    }

    // Whom these very hours were paid for is not paid again.
    bool Close(std::size_t desk)
    {
        const int hours = m_shift + kFilled * m_fills;
        if (!m_paid.empty() && m_paid.back().second == hours) {
            return false;
        }
        m_paid.emplace_back(desk, hours);
        m_desks.at(desk).done.push_back({Deed::Close});
        return true;
    }

    using Paid = std::pair<std::size_t, int>; // by whom, and the hours

    int m_shift = kHours;
    int m_fills = 0;
    std::vector<Paid> m_paid;
    std::array<Desk, 2> m_desks;
};

// One program at a person's card.
class RealDesk
{
public:
    RealDesk(const std::shared_ptr<CJetDB>& database, std::int32_t employee) : m_database(database), m_undo(database), m_employee(employee)
    {
        m_factory.PTKDatabase(database);
        Read();
    }

    // Whether it was done.
    bool Take(Deed deed, int hours)
    {
        switch (deed) {
        case Deed::Read:
            Read();
            return true;
        case Deed::Edit:
            m_shift->EndTime(ToDateTime(fmt::format("3/5/2003 {}:00", 8 + hours)));
            return true;
        case Deed::Save:
            return Save(state::Changed);
        case Deed::Delete:
            return Save(state::Deleted);
        case Deed::Undo: {
            const bool done = m_undo.Undo();
            EXPECT_EQ(m_undo.Refusal().empty(), done) << m_undo.Refusal();
            Read();
            return done;
        }
        case Deed::Fill:
            return Fill() && m_undo.Remember();
        case Deed::Close:
            return Close();
        }
        return false;
    }

private:
    void Read()
    {
        m_factory.BuildList(m_employee, ToDateTime("3/5/2003"), ToDateTime("3/6/2003"));
        m_shift = m_factory.TimeRecordList()->Item(1);
    }

    bool Save(std::int16_t how)
    {
        m_shift->ObjectState(how);
        m_factory.ResetError();
        EXPECT_TRUE(m_factory.Save(m_shift) && m_undo.Remember());
        const bool done = m_factory.ErrorNumber() == 0;
        EXPECT_EQ(m_factory.Conflict().has_value(), !done);
        if (done) {
            Read();
        }
        return done;
    }

    bool Fill()
    {
        CTimeRecordFactory filling;
        filling.PTKDatabase(m_database);
        filling.BuildList(m_employee, ToDateTime("3/10/2003"), ToDateTime("3/12/2003"));
        for (const char* day : {"3/10/2003", "3/11/2003"}) {
            const auto shift = std::make_shared<CTimeRecord>();
            shift->EmployeeID(static_cast<std::int16_t>(m_employee));
            shift->StartTime(ToDateTime(fmt::format("{} 8:00", day)));
            shift->EndTime(ToDateTime(fmt::format("{} 9:00", day)));
            filling.TimeRecordList()->AddNew(shift);
        }
        return filling.SaveList() && filling.ErrorNumber() == 0;
    }

    bool Close()
    {
        const PaydayOrder order{{ToDateTime("3/1/2003"), ToDateTime("3/14/2003")}, {m_employee}, ToDateTime("3/16/2003 9:30")};
        const auto lines = ClosePayday(m_database, order);
        EXPECT_TRUE(m_undo.Remember());
        return lines.at(0).deed == PaydayDeed::Closed;
    }

    std::shared_ptr<CJetDB> m_database;
    UndoStack m_undo;
    std::int32_t m_employee;
    CTimeRecordFactory m_factory;
    std::shared_ptr<CTimeRecord> m_shift; // nullptr: not there when it was read last
};

// Two programs at one database, in which each order has a person of its own.
class Office
{
public:
    Office()
    {
        for (auto& database : m_databases) {
            database = std::make_shared<CJetDB>(m_kept.Folder());
            database->DatabaseName(m_kept.Name());
            database->StoredBy({"Ann Lee", "ptk-admin"}); // both: a name tells nobody apart
        }
        m_tool = m_kept.Open();
    }

    [[nodiscard]] bool IsFull() const { return m_employee == kFirst + 30; } // closing reads all people

    std::array<RealDesk, 2> NextPerson()
    {
        ++m_employee;
        Execute(*m_tool,
                fmt::format("INSERT INTO Employee (EmployeeID, LastName, Active, AutoDeduct, PayRate) VALUES ({}, 'Lee', '1', '0', 10)",
                            m_employee));
        Execute(*m_tool,
                fmt::format("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES ({}, #3/5/2003 8:00 AM#, #3/5/2003 4:00 PM#)",
                            m_employee));
        return {RealDesk(m_databases[0], m_employee), RealDesk(m_databases[1], m_employee)};
    }

    // As the model tells it, with each record and each amount as it stands.
    [[nodiscard]] std::string Stored() const
    {
        int shift = 0;
        int filled = 0;
        Rows(fmt::format("SELECT CAST(StartTime AS TEXT), CAST(EndTime AS TEXT) FROM TimeRecord WHERE EmployeeID = {}", m_employee),
             [&](const Statement& row) {
                 if (row.TextAt(0) == "2003-03-05 08:00:00") {
                     shift += ToInt32(std::string(row.TextAt(1).substr(11, 2))) - 8;
                 } else {
                     ++filled;
                 }
             });
        std::string text = fmt::format("{} hours, {} filled, paid", shift, filled / 2);
        Rows(fmt::format("SELECT CAST(CAST(Regular AS REAL) + CAST(Overtime AS REAL) AS INTEGER) FROM _Payday WHERE EmployeeID = {} ORDER "
                         "BY PaydayID",
                         m_employee),
             [&](const Statement& row) { text += fmt::format(" {}", ToInt32(std::string(row.TextAt(0)))); });
        m_tool->GiveUp();
        return text;
    }

private:
    static constexpr std::int32_t kFirst = 40;

    template <typename Take>
    void Rows(const std::string& sql, const Take& take) const
    {
        const auto rows = m_tool->Prepare(sql);
        rows->ForEachRow([&] { take(*rows); });
    }

    EitherDatabase m_kept;
    std::array<std::shared_ptr<CJetDB>, 2> m_databases;
    std::unique_ptr<Engine> m_tool;
    std::int32_t m_employee = kFirst;
};

class WholeOrdersTest : public testing::Test
{
protected:
    // What was not tried yet where an order left off.
    std::vector<Move> Untried(const OrderModel& model)
    {
        std::vector<Move> moves;
        const std::string at = model.Text();
        for (const std::size_t desk : {0U, 1U}) {
            for (const Deed deed : kDeeds) {
                if (model.IsPossible({desk, deed}) && !m_tried.contains(fmt::format("{}: {}{}", at, desk, static_cast<int>(deed)))) {
                    moves.push_back({desk, deed});
                }
            }
        }
        return moves;
    }

    [[nodiscard]] OrderModel After(const Order& order) const
    {
        OrderModel model(m_wanted == 0 ? 2 : m_wanted, m_wanted == 0 ? 1 : m_wanted);
        for (const Move& move : order) {
            model.Take(move);
        }
        return model;
    }

    // Goes along an order, and on to what is untried behind it.
    void GoOn(Order order)
    {
        if (Untried(After(order)).empty()) {
            return;
        }
        if (!m_office || m_office->IsFull()) {
            m_office.emplace();
        }
        OrderModel model = After({});
        auto desks = m_office->NextPerson();
        const auto take = [&](const Move& move) {
            const int hours = model.HoursToSave(move.desk);
            const bool done = desks.at(move.desk).Take(move.deed, hours);
            EXPECT_EQ(done, model.Take(move)) << TextOf(order);
            return done;
        };
        std::ranges::for_each(order, take);
        for (auto untried = Untried(model); !untried.empty() && !HasFailure(); untried = Untried(model)) {
            if (untried.size() > 1) {
                m_begun.push_back(order);
            }
            const Move move = untried.front();
            m_tried.insert(fmt::format("{}: {}{}", model.Text(), move.desk, static_cast<int>(move.deed)));
            order.push_back(move);
            m_refused += take(move) ? 0 : 1;
            EXPECT_EQ(m_office->Stored(), model.Stored()) << TextOf(order);
        }
    }

    const int m_wanted = std::getenv("PTK_ORDERS") == nullptr ? 0 : ToInt32(std::getenv("PTK_ORDERS"));
    std::optional<Office> m_office;
    std::set<std::string> m_tried;       // where, and what
    std::vector<Order> m_begun{Order{}}; // that led to something untried
    int m_refused = 0;
};

// A sample; with PTK_ORDERS=4 up to four steps of each.
TEST_F(WholeOrdersTest, EachStepIsDoneWholeOrRefused)
{
    while (!m_begun.empty() && !HasFailure()) {
        const Order order = m_begun.back();
        m_begun.pop_back();
        GoOn(order);
    }
    RecordProperty("steps", static_cast<int>(m_tried.size()));
    RecordProperty("refused", m_refused);
    EXPECT_GT(m_refused, 0);
}

} // namespace

} // namespace ptk
