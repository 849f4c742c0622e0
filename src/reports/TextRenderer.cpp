#include "reports/TextRenderer.h"

#include "platform/Succeeds.h"
#include "reports/forms/ReportDocument.h"
#include "reports/ReportErrors.h"
#include "reports/ReportFile.h"
#include "reports/ReportViewer.h"

namespace ptk {

std::int32_t RenderText(const ReportDocument& document, ReportFile& file, ReportViewer& viewer)
{
    std::int32_t code = 0;
    for (const ReportLine& line : document.lines) {
        if (!file.WriteLine(line.text)) {
            code = report::LineNotWritten;
        }
        if (!Succeeds([&] { return viewer.WriteLine(line.text); })) {
            code = report::LineNotShown;
        }
        if (line.code != 0) {
            code = line.code;
        }
    }
    return code;
}

} // namespace ptk
