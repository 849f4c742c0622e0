// Whatever a CSV file of punches (the first byte is even) or employees holds, the whole of it is refused, or each of its lines is taken or
// refused by itself.
#include "fuzz/Targets.h"
#include "office/sheet/EmployeeLines.h"
#include "office/sheet/PunchLines.h"
#include "office/sheet/SheetFile.h"
#include "office/sheet/SheetPeople.h"
#include "store/engine/Statement.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/BulkWriter.h"
#include "store/whole/DatabaseCreator.h"
#include "support/TemporaryFolder.h"

namespace ptk {

namespace {

constexpr std::int32_t kLongestHours = 16;

// Two people with shifts; Ann Lee is number 7.
class Business
{
public:
    Business()
    {
        CreateDatabase(m_path, [](BulkWriter& writer) {
            EmployeeRow row;
            row.FirstName = "Ann";
            row.LastName = "Lee";
            row.SSN = "123-45-6789";
            row.EmployeeNumber = 7;
            row.EmployeeActive = true;
            writer.AddEmployee(row);
            row.FirstName = "Bo";
            row.EmployeeNumber = 8;
            writer.AddEmployee(row);
        });
        m_engine.emplace(m_path);
    }

    void ReadPunchesOf(std::string_view text) const
    {
        static const SheetPeople people(m_prepare);
        const PunchLines read = ReadPunches(text, {}, people, kLongestHours);
        std::int64_t taken = 0;
        for (const SheetPunch& punch : read.punches) {
            taken += punch.Lines();
        }
        Require(taken + static_cast<std::int64_t>(read.refused.size()) == read.lines);
    }

    void ReadEmployeesOf(std::string_view text) const
    {
        const EmployeeLines read = ReadEmployeeLines(text, m_prepare, {}, [](const EmployeeDifference&) { return true; });
        const std::size_t taken = read.added.size() + read.changed.size() + read.refused.size();
        Require(static_cast<std::int64_t>(taken) + read.there == read.lines);
    }

private:
    TemporaryFolder m_folder;
    std::string m_path = m_folder.Path() + "/system/ptk_11.mdb";
    mutable std::optional<SqliteEngine> m_engine;
    PrepareStatement m_prepare = [this](const std::string& sql) { return m_engine->Prepare(sql); };
};

} // namespace

} // namespace ptk

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const ptk::Business business;
    if (size == 0) {
        return 0;
    }
    ptk::MayFail([&] {
        const std::string text = ptk::ReadSheet(ptk::InFile(ptk::TextIn({data + 1, size - 1})));
        data[0] % 2 == 0 ? business.ReadPunchesOf(text) : business.ReadEmployeesOf(text);
    });
    return 0;
}
