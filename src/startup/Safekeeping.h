// The backups that the program makes by itself and when it is asked to, and restoring one.
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

// Every failure is told and logged, and does not keep the program from anything else. Answers are sentences without a full stop. No member
// raises. REQUIRES, for all members but Begin: the program does not have the database open.
class Safekeeping
{
public:
    // REQUIRES: desktop and windows outlive this object.
    Safekeeping(Desktop& desktop, WindowFactory& windows, std::function<void(std::int32_t number, const std::string& text)> log);

    // Begins the session: changes that are made from now on count for BackUpChanges.
    void Begin(const std::shared_ptr<CJetDB>& database);

    // Makes a backup where the day has none yet. Answers what the user must be told about it; empty when all is well.
    [[nodiscard]] std::string BackUpWhenDue(const BackupOrder& order);

    // Ends the session: makes a backup where something changed in it, or where the day has no backup. Tells a failure in a box.
    void BackUpChanges(const BackupOrder& order, const std::shared_ptr<CJetDB>& database);

    // Makes a backup and answers whether that succeeded, in words.
    [[nodiscard]] std::string BackUpNow(const BackupOrder& order);

    // Lets the user choose a backup and restores it; where that fails, the user may choose again. Answers what was done; empty for nothing.
    [[nodiscard]] std::string Restore(const BackupOrder& order, const Author& author);

    // Whether there are backups, and the database is a file that is damaged, is no database or is missing.
    [[nodiscard]] static bool CanReplace(const BackupOrder& order);

private:
    struct Attempt
    {
        BackupOutcome outcome; // without a path when no backup was made
        std::string problem;   // empty also when the user stopped the backup
    };

    [[nodiscard]] Attempt Make(const BackupOrder& order);

    // What to tell somebody who did not ask for the backup; empty where all is well or was told before.
    [[nodiscard]] static std::string NewsOf(const Attempt& attempt);
    [[nodiscard]] bool PutBack(const BackupOrder& order, const std::string& file, const Author& author);
    void Tell(const char* title, const std::string& text);

    Desktop& m_desktop;
    WindowFactory& m_windows;
    std::function<void(std::int32_t number, const std::string& text)> m_log;
    std::optional<std::int64_t> m_newest; // the newest change when the session began; nothing where it could not be read
};

} // namespace ptk
