#include "reports/ReportPrinter.h"

#include "platform/Desktop.h"
#include "platform/Notice.h"
#include "platform/Succeeds.h"
#include "shell/CDocLauncher.h"

namespace ptk {

namespace {

constexpr Notice kNoFile{kNotOpenedTitle, "The path to the report is invalid or not able to be opened by Windows.", Icon::Exclamation};

} // namespace

bool PrintReportFile(Desktop& desktop, const DesktopWindow* window, const std::string& path)
{
    return Succeeds([&] {
        CDocLauncher launcher(desktop);
        const bool printed = !path.empty() && launcher.PrintDocument(window, path);
        if (path.empty() || launcher.ErrorNumber() == docerror::DocumentNotFound) {
            Tell(desktop, kNoFile);
        }
        return printed;
    });
}

} // namespace ptk
