// The text file of a report: written aside, for its owner only; it takes the place of an earlier one of its name at the end or not at all.
#pragma once

#include "platform/files/FileDraft.h"
#include "shell/CFile.h"

#include <optional>
#include <string>

namespace ptk {

// Without an ending nothing is left of it. No member raises.
class ReportFile
{
public:
    explicit ReportFile(const Clock& clock) : m_file(clock) {}

    // With backslashes; once.
    [[nodiscard]] bool Open(const std::string& path);

    // Writes the text and CR LF behind it; false when the line is lost.
    [[nodiscard]] bool WriteLine(const std::string& text);

    // Whether any line was.
    [[nodiscard]] bool Lost() const { return m_lost; }

    // False when the system refuses it.
    [[nodiscard]] bool Close();

    // After Close; false when it could not take its place.
    [[nodiscard]] bool Publish();

private:
    std::optional<FileDraft> m_draft;
    CFile m_file;
    bool m_lost = false;
};

} // namespace ptk
