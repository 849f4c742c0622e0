// Saving what a window shows where its user wants it: under which name, in which form, and what came of it.
#pragma once

#include "reports/forms/ReportForms.h"

#include <functional>
#include <span>
#include <string>

namespace ptk {

// The forms in which windows offer to save, the most usual first.
[[nodiscard]] std::span<const ReportForm> SavedForms();

// With data for other programs behind them.
[[nodiscard]] std::span<const ReportForm> AllForms();

// The line of a file dialog: "PDF document (*.pdf)".
[[nodiscard]] std::string FilterOf(ReportForm form);

// The one of the forms whose ending the name has, in any letter case; else `chosen`.
[[nodiscard]] ReportForm FormOfName(const std::string& path, ReportForm chosen, std::span<const ReportForm> forms);

// Makes the bytes of a form; may raise.
using MakeFile = std::function<std::string(ReportForm form)>;

struct SaveOutcome
{
    bool saved = false;
    std::string said; // in one sentence: where it is, or why it is not
};

// Writes the file whole or not at all, over one that is there; a new one is for its owner only. Raises nothing.
[[nodiscard]] SaveOutcome SaveAs(const std::string& path, ReportForm form, const MakeFile& make);

} // namespace ptk
