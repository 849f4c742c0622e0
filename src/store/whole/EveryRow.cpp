#include "store/whole/EveryRow.h"

#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"

namespace ptk {

namespace {

constexpr std::int32_t kRowsAtOnce = 10'000; // rows

bool ReadsOneByOne(const Engine& engine)
{
    return *engine.Words().openCursor == '\0';
}

// Calls until it answers that there was no row any more.
void WithCursor(Engine& engine, const std::string& select, const std::function<bool(Statement& nextRows)>& take)
{
    engine.Prepare(Said(engine.Words().openCursor, select))->Run();
    const auto next = engine.Prepare(engine.Words().nextRows);
    while (take(*next)) {
    }
    engine.Prepare("CLOSE ptk_rows")->Run();
}

} // namespace

void ForEachRowOf(Engine& engine, const std::string& select, const std::function<void(const Statement& row)>& take)
{
    if (ReadsOneByOne(engine)) {
        const auto rows = engine.Prepare(select);
        return rows->ForEachRow([&] { take(*rows); });
    }
    WithCursor(engine, select, [&](Statement& next) {
        bool any = false;
        next.ForEachRow([&] {
            any = true;
            take(next);
        });
        return any;
    });
}

void ForEachPortionOf(Engine& engine, const std::string& select, const std::function<void(RecordSet& rows)>& take)
{
    const auto takeAll = [&](Statement& next) {
        const auto rows = next.ReadRows(kRowsAtOnce);
        take(*rows);
        return rows->RecordCount() == kRowsAtOnce;
    };
    if (ReadsOneByOne(engine)) {
        const auto rows = engine.Prepare(select);
        while (takeAll(*rows)) {
        }
        return;
    }
    WithCursor(engine, select, [&](Statement& next) {
        const auto rows = next.ReadRows();
        take(*rows);
        return rows->RecordCount() != 0;
    });
}

} // namespace ptk
