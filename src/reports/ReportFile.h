// The text file of a report. It is written to a draft that only its owner can read; at the end this replaces an earlier file, or is
// dropped.
#pragma once

#include "platform/files/FileDraft.h"
#include "shell/CFile.h"

#include <optional>
#include <string>

namespace ptk {

// Without Publish nothing is left of the draft. No member raises.
class ReportFile
{
public:
    explicit ReportFile(const Clock& clock) : m_file(clock) {}

    // Opens the draft of the file at this path, with backslashes; false when that fails. To be called once.
    [[nodiscard]] bool Open(const std::string& path);

    // Writes the text and CR LF behind it; false when the line is lost.
    [[nodiscard]] bool WriteLine(const std::string& text);

    // Whether any line was lost.
    [[nodiscard]] bool Lost() const { return m_lost; }

    // Closes the draft; false when the system refuses it.
    [[nodiscard]] bool Close();

    // Puts the closed draft in the file's place; false when that fails. REQUIRES: Close was called.
    [[nodiscard]] bool Publish();

private:
    std::optional<FileDraft> m_draft;
    CFile m_file;
    bool m_lost = false;
};

} // namespace ptk
