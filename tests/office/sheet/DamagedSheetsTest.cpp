// Damaged files of punches and employees: a few hundred, or as many of each as PTK_DAMAGED_SHEETS says. None crashes or hangs, what is
// refused changes no byte of the database, and what is not refused stores just what the account says.
#include "office/sheet/EmployeeImport.h"
#include "office/sheet/PunchImport.h"
#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "store/CJetDB.h"
#include "store/engine/RecordSet.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Execute.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <chrono>
#include <cstdlib>
#include <fmt/format.h>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace ptk {

namespace {

constexpr int kFewFiles = 120;
constexpr std::chrono::seconds kLongest{10};

class Damage
{
public:
    std::string To(std::string text)
    {
        for (std::size_t times = 1 + Below(4); times > 0 && !text.empty(); --times) {
            (this->*kKinds[Below(std::size(kKinds))])(text);
        }
        return text;
    }

private:
    std::size_t Below(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_random); }
    std::size_t Place(const std::string& text) { return Below(text.size() + 1); }

    void Flip(std::string& text)
    {
        char& byte = text[Below(text.size())];
        byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << Below(7)));
    }
    void Cut(std::string& text) { text.resize(Place(text)); }
    void TakeOut(std::string& text) { text.erase(Below(text.size()), Below(30)); }
    void Double(std::string& text) { text.insert(Place(text), text.substr(Below(text.size()), Below(200))); }
    void Lengthen(std::string& text) { text.insert(Place(text), std::string(Below(40) == 0 ? 2U << 20 : Below(5000), 'x')); }
    void Insert(std::string& text)
    {
        using namespace std::string_literals;
        static const std::string pieces[] = {"\0"s, "\xFF",         "\xC3", "\xEF\xBB\xBF",         "\"", "\"\"", "\r",     "\n", ",", ";",
                                             "\t",  "\xF4\x90\x80", "-",    "99999999999999999999", "'=", "7",    "\x1B[2J"};
        text.insert(Place(text), pieces[Below(std::size(pieces))]);
    }

    static constexpr void (Damage::*kKinds[])(std::string&) = {&Damage::Flip,   &Damage::Cut,      &Damage::TakeOut,
                                                               &Damage::Double, &Damage::Lengthen, &Damage::Insert};
    std::mt19937 m_random{2003};
};

class DamagedSheetsTest : public testing::Test
{
protected:
    DamagedSheetsTest()
    {
        CreateDatabase(m_path);
        ExecuteIn(m_path, "INSERT INTO Employee (FirstName, LastName, EmployeeNumber, SSNumber, PayRate, Active) VALUES "
                          "('Ann', 'Lee', 7, '123-45-6789', 12.5, 1), ('Bo', 'Kim', 8, '2', 9, 1)");
        m_whole = ReadBytes(m_path);
        m_database->DatabaseName(m_path);
    }

    std::int64_t Rows(const char* table) const
    {
        return SqliteEngine(m_path).Select(fmt::format("SELECT COUNT(*) FROM {}", table))->Int64At(0);
    }

    // `import` answers how many rows it stored.
    void Try(const std::string& good, const char* table, const std::function<std::int64_t(const std::string& file)>& import)
    {
        const char* const wanted = std::getenv("PTK_DAMAGED_SHEETS");
        const int count = wanted == nullptr ? kFewFiles : std::atoi(wanted);
        const std::int64_t before = Rows(table);
        const std::string file = m_folder.Path() + "/damaged.csv";
        int storing = 0;
        for (int i = 0; i < count; ++i) {
            WriteBytes(file, m_damage.To(good));
            const auto start = std::chrono::steady_clock::now();
            std::int64_t stored = 0;
            Succeeds([&] { stored = import(file); });
            ASSERT_LT(std::chrono::steady_clock::now() - start, kLongest) << i;
            if (stored == 0) {
                ASSERT_TRUE(ReadBytes(m_path) == m_whole) << i;
                continue;
            }
            ++storing;
            ASSERT_EQ(Rows(table), before + stored) << i;
            WriteBytes(m_path, m_whole);
        }
        EXPECT_GT(storing, 0); // some survive the damage, or nothing would be tried
        EXPECT_LT(storing, count);
    }

    TemporaryFolder m_folder;
    std::string m_path = m_folder.Path() + "/system/ptk_11.mdb";
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_folder.Path());
    std::string m_whole;
    Damage m_damage;
};

TEST_F(DamagedSheetsTest, OfPunches)
{
    const std::string note(200, 'n'); // some of the damage is to hit what is left aside
    std::string pairs = "Number,Note,Start,End\r\n";
    std::string events = "Employee;Time;Direction;Note\n";
    for (int day = 10; day < 28; ++day) {
        pairs += fmt::format("7,\"a, \"\"b\"\"{1}\",2003-03-{0} 08:00,3/{0}/2003 5:00 PM\r\n", day, note);
        events += fmt::format("Bo Kim;2003-03-{0}T08:00:00;in;{1}\nBo Kim;2003-03-{0}T17:00;out;{1}\n", day, note);
    }
    for (const std::string& good : {pairs, events}) {
        Try(good, "TimeRecord", [this](const std::string& file) {
            const PunchAccount account = ImportPunches(m_database, {{file, std::nullopt, {}}});
            EXPECT_EQ(account.isStored, !account.IsRefused(false) && !account.punches.empty());
            return account.isStored ? static_cast<std::int64_t>(account.punches.size()) : 0;
        });
    }
}

TEST_F(DamagedSheetsTest, OfEmployees)
{
    std::string good = "Employee Number,First Name,Last Name,Social Security Number,Active,Hire Date,Regular Pay Rate\r\n"
                       "7,Ann,Lee,123-45-6789,true,,12.5\r\n";
    for (int number = 20; number < 40; ++number) {
        good += fmt::format("{0},\"José, {0}\",N,S{0},true,2003-03-05,{0}.25\r\n", number);
    }
    Try(good, "Employee", [this](const std::string& file) {
        const EmployeeAccount account = ImportEmployees(m_database, {file, false, {}, {}});
        EXPECT_EQ(account.isStored, !account.IsRefused() && account.HasNews());
        return account.isStored ? static_cast<std::int64_t>(account.added.size()) : 0;
    });
}

} // namespace

} // namespace ptk
