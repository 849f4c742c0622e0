// Saves what a window shows under the name and in the form that the user chooses, and says what came of it.
#pragma once

#include "reports/forms/ReportForms.h"

#include <functional>
#include <span>
#include <string>

namespace ptk {

// The forms in which windows offer to save, the most usual first.
[[nodiscard]] std::span<const ReportForm> SavedForms();

// The forms of SavedForms, and behind them the one for other programs.
[[nodiscard]] std::span<const ReportForm> AllForms();

// The form's line in a file dialog: "PDF document (*.pdf)".
[[nodiscard]] std::string FilterOf(ReportForm form);

// The form whose file extension the name has, in any letter case; otherwise `chosen`.
[[nodiscard]] ReportForm FormOfName(const std::string& path, ReportForm chosen, std::span<const ReportForm> forms);

// Makes the bytes of a form; may raise.
using MakeFile = std::function<std::string(ReportForm form)>;

struct SaveOutcome
{
    bool saved = false;
    std::string said; // one sentence: where the file is, or why it was not saved
};

// Writes the file whole or not at all, over one that is there; a new one is for its owner only. Raises nothing.
[[nodiscard]] SaveOutcome SaveAs(const std::string& path, ReportForm form, const MakeFile& make);

} // namespace ptk
