#include "reports/ReportPrinter.h"

#include "platform/files/PrivateFile.h"
#include "platform/Succeeds.h"
#include "platform/system/Desktop.h"
#include "platform/system/Notice.h"
#include "reports/forms/ReportDocument.h"
#include "reports/forms/ReportForms.h"
#include "shell/CDocLauncher.h"

namespace ptk {

namespace {

constexpr Notice kNoFile{kNotOpenedTitle, "The path to the report is invalid or not able to be opened by Windows.", Icon::Exclamation};

std::unique_ptr<PrivateFile> PagesOf(const ReportDocument& document, DateTime now)
{
    return std::make_unique<PrivateFile>(FileNameFor(document, ReportForm::Pdf), FileOf(ReportForm::Pdf, {&document, 1}, now));
}

} // namespace

bool PrintPages(Desktop& desktop, const DesktopWindow* window, const ReportDocument& document, DateTime now, std::string& refusal)
{
    const auto print = [&] {
        const auto pages = PagesOf(document, now); // the spooler has a copy of its own when it answers
        CDocLauncher launcher(desktop);
        const bool printed = launcher.PrintDocument(window, pages->Path(), document.title);
        refusal = printed ? "" : desktop.Refusal();
        if (launcher.ErrorNumber() == docerror::DocumentNotFound) {
            TellNoFile(desktop);
        }
        return printed;
    };
    return Succeeds(print, [&](const Failure& reason) { refusal = reason.Description(); });
}

std::unique_ptr<PrivateFile> OpenPages(Desktop& desktop, const DesktopWindow* window, const ReportDocument& document, DateTime now,
                                       std::string& refusal)
{
    std::unique_ptr<PrivateFile> pages;
    const auto open = [&] {
        pages = PagesOf(document, now);
        const bool opened = CDocLauncher(desktop).DisplayDocument(window, pages->Path());
        refusal = opened ? "" : desktop.Refusal();
        return opened;
    };
    const bool opened = Succeeds(open, [&](const Failure& reason) { refusal = reason.Description(); });
    return opened ? std::move(pages) : nullptr;
}

void TellNoFile(Desktop& desktop)
{
    Tell(desktop, kNoFile);
}

} // namespace ptk
