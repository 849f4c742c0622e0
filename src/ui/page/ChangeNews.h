// Whether anything was stored since, by whomever: for windows that show much at once and are read anew as a whole.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

class QObject;

namespace ptk {

class Workplace;

// Does not wait for the database. What could not be asked now is asked the next time.
void LookForChanges(const Workplace& host);

// The newest entry of the edit trail as far as anybody looked; nothing until the trail could be read.
[[nodiscard]] std::optional<std::int64_t> NewestChange(const Workplace& host);

// To be called right after a window stored something, before anything is read again: it can be undone then, and all pages show it.
void TellStored(const Workplace& host);

// Has it called after each look, as long as `context` is there.
void AfterEachLook(const Workplace& host, QObject& context, const std::function<void()>& looked);

} // namespace ptk
