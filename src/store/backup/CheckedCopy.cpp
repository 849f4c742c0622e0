#include "store/backup/CheckedCopy.h"

#include "platform/files/FileDraft.h"
#include "platform/Waiting.h"
#include "store/engine/EngineNumber.h"
#include "store/engine/RecordSet.h"
#include "store/sqlite/EngineFailure.h"

#include <atomic>
#include <chrono>
#include <future>

namespace ptk {

namespace {

constexpr std::chrono::milliseconds kSlice(20);

constexpr const char* kTables = "SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name COLLATE NOCASE IN "
                                "('Company', 'Employee', 'TimeRecord', '_System', '_StoredQuery')";
constexpr std::int32_t kTableCount = 5;

void RefuseForeignTables(SqliteEngine& engine)
{
    if (engine.Select(kTables)->Int32At(0) != kTableCount) {
        throw EngineFailure(engine::NoDatabase);
    }
}

BackupContent ContentOf(SqliteEngine& engine)
{
    RefuseForeignTables(engine);
    BackupContent content;
    content.employees = engine.Select("SELECT COUNT(*) FROM Employee")->Int64At(0);
    content.records = engine.Select("SELECT COUNT(*) FROM TimeRecord")->Int64At(0);
    const auto newest = engine.Select("SELECT MAX(StartTime) FROM TimeRecord");
    if (!newest->IsNull(0) && newest->HasStoredDate(0)) {
        content.newestShift = newest->DateTimeAt(0);
    }
    return content;
}

// Work on a thread of its own while the caller's windows live: how far it is, and whether it is to end.
class Behind
{
public:
    // The progress that the work calls on its own thread.
    [[nodiscard]] CopyProgress Told()
    {
        return [this](std::int32_t done, std::int32_t all) {
            m_done = done;
            m_all = all;
            return !m_ended;
        };
    }

    // Waits for the work, and raises what it raises once it has come to its end.
    template <typename Result>
    Result Await(std::future<Result>& work, const CopyProgress& progress)
    {
        while (work.wait_for(kSlice) != std::future_status::ready) {
            if (!m_ended) {
                m_ended = progress ? !progress(m_done, m_all) : !waiting::GoOn();
            }
        }
        return work.get();
    }

private:
    std::atomic<std::int32_t> m_done = 0; // pages
    std::atomic<std::int32_t> m_all = 1;
    std::atomic<bool> m_ended = false;
};

} // namespace

CopyProgress PartOf(const CopyProgress& whole, std::int32_t part, std::int32_t parts)
{
    if (!whole) {
        return {};
    }
    return [=](std::int32_t done, std::int32_t all) {
        constexpr std::int32_t kMost = 1 << 20; // so that parts of a file of any size can be told
        const auto scaled = static_cast<std::int32_t>(static_cast<double>(done) / all * kMost);
        return whole(part * kMost + scaled, parts * kMost);
    };
}

// The copy goes to the disk while it is checked. Nobody cuts it short meanwhile, so it is mapped and need not be read into buffers.
void FillChecked(SqliteEngine& database, FileDraft& draft, const CopyProgress& progress)
{
    database.CopyTo(draft.Path(), PartOf(progress, 0, 2));
    Behind behind;
    auto flushed = std::async(std::launch::async, [&] { draft.File().Flush(); });
    auto checked = std::async(std::launch::async, [&] {
        SqliteEngine copy(draft.Path(), ReadOnly{});
        copy.RunScript("PRAGMA mmap_size = 2147418112"); // the engine's most
        copy.RefuseDamage(behind.Told());
    });
    const CopyProgress second = PartOf(progress, 1, 2);
    behind.Await(checked, second);
    behind.Await(flushed, second);
}

BackupContent ExamineBackup(const std::string& path, const CopyProgress& progress)
{
    Behind behind;
    auto examined = std::async(std::launch::async, [&] {
        SqliteEngine engine(path, ReadOnly{});
        engine.RefuseDamage(behind.Told());
        return ContentOf(engine);
    });
    return behind.Await(examined, progress);
}

} // namespace ptk
