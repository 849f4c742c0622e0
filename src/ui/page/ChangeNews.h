// Whether anything was stored since, by anybody: for windows that show much at once and are read again as a whole.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

class QObject;

namespace ptk {

class Workplace;

// Looks for changes without waiting for the database. What could not be asked now is asked the next time.
void LookForChanges(const Workplace& host);

// The newest entry of the edit trail that any look has found; nothing until the trail could be read.
[[nodiscard]] std::optional<std::int64_t> NewestChange(const Workplace& host);

// To be called right after a window stored something, before anything is read again: the step can then be undone, and all pages show it.
void TellStored(const Workplace& host);

// Has `looked` called after each look for changes, as long as `context` lives.
void AfterEachLook(const Workplace& host, QObject& context, const std::function<void()>& looked);

} // namespace ptk
