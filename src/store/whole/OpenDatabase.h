// The one place that knows which engine keeps a database of a given name; whoever opens one says only what for.
#pragma once

#include "store/engine/WhenHeld.h"

#include <functional>
#include <memory>
#include <string>

namespace ptk {

class Engine;
class SqliteEngine;

enum class OpenFor
{
    Work,  // operation by operation: given up where the database does not answer in time
    Whole, // reads or writes all that it holds, however long that takes
    Look   // nothing is changed; a file may be one that cannot be written, and others may read it meanwhile
};

// Called before a file of an earlier version is brought up to date; without it, such a file stays of its version.
using KeepCopy = std::function<void(SqliteEngine&)>;

// Opens a database: `name` is a file's in the platform's own form or a server's address. Never makes a file. Raises what the engine's
// constructor raises.
[[nodiscard]] std::unique_ptr<Engine> OpenDatabase(const std::string& name, OpenFor purpose, WhenHeld whenHeld = WhenHeld::Wait,
                                                   const KeepCopy& keepCopy = {});

} // namespace ptk
