#include "office/reports/SaveReport.h"

#include "platform/files/FileDraft.h"
#include "platform/Succeeds.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kSaved = "Saved as {}.";
constexpr auto kNotSaved = "Not saved: {}.";

constexpr ReportForm kForms[] = {ReportForm::Pdf, ReportForm::Csv, ReportForm::Text, ReportForm::Json};

const char* FormName(ReportForm form)
{
    switch (form) {
    case ReportForm::Pdf:
        return "PDF document";
    case ReportForm::Csv:
        return "Table for spreadsheets";
    case ReportForm::Json:
        return "Data for other programs";
    case ReportForm::Text:
        break;
    }
    return "Text";
}

} // namespace

std::span<const ReportForm> SavedForms()
{
    return std::span(kForms).first(std::size(kForms) - 1);
}

std::span<const ReportForm> AllForms()
{
    return kForms;
}

std::string FilterOf(ReportForm form)
{
    return fmt::format("{} (*{})", FormName(form), EndingOf(form));
}

ReportForm FormOfName(const std::string& path, ReportForm chosen, std::span<const ReportForm> forms)
{
    const std::string name = LowerCase(path);
    const auto named = std::find_if(forms.begin(), forms.end(), [&](ReportForm form) { return name.ends_with(EndingOf(form)); });
    return named == forms.end() ? chosen : *named;
}

SaveOutcome SaveAs(const std::string& path, ReportForm form, const MakeFile& make)
{
    std::string reason;
    const bool saved = Succeeds([&] { PutFile(path, make(form)); }, [&](const Failure& failure) { reason = failure.Description(); });
    while (reason.ends_with('.')) {
        reason.pop_back();
    }
    return {saved, saved ? fmt::format(kSaved, path) : fmt::format(kNotSaved, reason)};
}

} // namespace ptk
