#include "store/whole/OpenDatabase.h"

#include "store/postgres/PostgresEngine.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/DatabaseName.h"

namespace ptk {

namespace {

std::unique_ptr<Engine> OpenServer(const std::string& address, OpenFor purpose, WhenHeld whenHeld)
{
    if (purpose == OpenFor::Whole) {
        return std::make_unique<PostgresEngine>(address, Unhurried{});
    }
    return std::make_unique<PostgresEngine>(address, whenHeld);
}

std::unique_ptr<Engine> OpenFile(const std::string& path, OpenFor purpose, WhenHeld whenHeld, const KeepCopy& keepCopy)
{
    if (purpose == OpenFor::Look) {
        return std::make_unique<SqliteEngine>(path, ReadOnly{});
    }
    auto file = std::make_unique<SqliteEngine>(path, whenHeld);
    if (keepCopy) {
        file->KeepCopy([keepCopy, engine = file.get()] { keepCopy(*engine); });
    }
    return file;
}

} // namespace

std::unique_ptr<Engine> OpenDatabase(const std::string& name, OpenFor purpose, WhenHeld whenHeld, const KeepCopy& keepCopy)
{
    return IsFileName(name) ? OpenFile(name, purpose, whenHeld, keepCopy) : OpenServer(name, purpose, whenHeld);
}

} // namespace ptk
