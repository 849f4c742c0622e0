// The backups that the program makes by itself and when it is asked to, and the way back to one.
#pragma once

#include "office/safety/BackupRun.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace ptk {

class CJetDB;
class Desktop;
class WindowFactory;

// Every failure is told and logged, and holds nothing else up. Texts are sentences without a full stop. No member raises, and for all but
// Begin the database must not be open here.
class Safekeeping
{
public:
    // The two outlive it.
    Safekeeping(Desktop& desktop, WindowFactory& windows, std::function<void(std::int32_t number, const std::string& text)> log);

    // Changes count from here on.
    void Begin(const std::shared_ptr<CJetDB>& database);

    // The day's first backup, where there is none. Answers what is to be told of it; empty when all is well.
    [[nodiscard]] std::string BackUpWhenDue(const BackupOrder& order);

    // At the end of a session in which something changed, or whose day has no backup. Tells a failure in a box.
    void BackUpChanges(const BackupOrder& order, const std::shared_ptr<CJetDB>& database);

    // Answers what came of it.
    [[nodiscard]] std::string BackUpNow(const BackupOrder& order);

    // Lets the user choose a file, and choose again where that could not be restored. Answers what was done; empty when nothing was.
    [[nodiscard]] std::string Restore(const BackupOrder& order, const Author& author);

    // Whether the database is a file, damaged, none, or missing, and there is a backup to take its place.
    [[nodiscard]] static bool CanReplace(const BackupOrder& order);

private:
    struct Attempt
    {
        BackupOutcome outcome; // without a path when it was not made
        std::string problem;   // empty also when the user ended it
    };

    [[nodiscard]] Attempt Make(const BackupOrder& order);

    // For people who did not ask for the backup: empty where all is well or was told before.
    [[nodiscard]] static std::string NewsOf(const Attempt& attempt);
    [[nodiscard]] bool PutBack(const BackupOrder& order, const std::string& file, const Author& author);
    void Tell(const char* title, const std::string& text);

    Desktop& m_desktop;
    WindowFactory& m_windows;
    std::function<void(std::int32_t number, const std::string& text)> m_log;
    std::optional<std::int64_t> m_newest; // change when the session began; nothing where it could not be read
};

} // namespace ptk
