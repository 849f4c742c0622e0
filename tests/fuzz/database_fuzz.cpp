// Whatever became of a database file, its header, pages and stored texts (patches of a sound one): it is opened, checked, read and written,
// or refused.
#include "fuzz/Targets.h"
#include "model/CEmployeeList.h"
#include "office/overview/OverviewReading.h"
#include "store/CJetDB.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/trail/TrailReader.h"
#include "store/whole/BulkWriter.h"
#include "store/whole/DatabaseChecker.h"
#include "store/whole/DatabaseCreator.h"
#include "support/TemporaryFolder.h"

namespace ptk {

namespace {

const DateTime kMonday(CalendarDate{2003, 3, 3});

class File
{
public:
    File()
    {
        CreateDatabase(m_path, [](BulkWriter& writer) {
            EmployeeRow row;
            row.LastName = "Lee";
            row.EmployeeActive = true;
            const std::int32_t lee = writer.AddEmployee(row);
            writer.AddTimeRecord({-1, lee, DateTime({2003, 3, 3}, {8, 0, 0}), DateTime({2003, 3, 3}, {17, 0, 0})});
        });
        std::ifstream file(m_path, std::ios::binary);
        m_sound.assign(std::istreambuf_iterator<char>(file), {});
    }

    void Use(std::span<const std::uint8_t> patches) const
    {
        const std::string bytes = Patched(m_sound, patches);
        std::ofstream(m_path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        MayFail([&] { static_cast<void>(CheckDatabase(m_path)); });
        const auto database = std::make_shared<CJetDB>(m_folder.Path());
        database->DatabaseName(m_path);
        MayFail([&] { ReadAll(database); });
        static_cast<void>(database->ExecuteSteps(
            [](Engine& engine) { engine.Run("UPDATE TimeRecord SET EndTime = #3/3/2003 4:00:00 PM# WHERE TimeRecordID = 1"); }));
    }

private:
    static void ReadAll(const std::shared_ptr<CJetDB>& database)
    {
        const auto people = std::make_shared<CEmployeeList>();
        if (people->Create() && people->LoadList(database)) {
            OverviewReading overview(database, OfferedEmployees(*people), {kMonday, kMonday.AddDays(13)}, kMonday.AddDays(20), people);
            while (!overview.IsDone()) {
                overview.ReadOn([] { return true; });
            }
        }
        static_cast<void>(ReadTrailNotes(database, 0, 100));
    }

    TemporaryFolder m_folder;
    std::string m_path = m_folder.Path() + "/system/ptk_11.mdb";
    std::string m_sound;
};

} // namespace

} // namespace ptk

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const ptk::File file;
    file.Use({data, size});
    return 0;
}
