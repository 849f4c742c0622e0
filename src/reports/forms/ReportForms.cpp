#include "reports/forms/ReportForms.h"

#include "reports/forms/CsvRenderer.h"
#include "reports/forms/JsonRenderer.h"
#include "reports/forms/PdfRenderer.h"
#include "reports/forms/ReportDocument.h"

namespace ptk {

namespace {

constexpr auto kDocumentEnd = "\r\n";

std::string TextOf(std::span<const ReportDocument> documents)
{
    std::string text;
    for (const ReportDocument& document : documents) {
        text += &document == documents.data() ? "" : kDocumentEnd;
        for (const ReportLine& line : document.lines) {
            text += line.text + kDocumentEnd;
        }
    }
    return text;
}

} // namespace

std::string_view EndingOf(ReportForm form)
{
    switch (form) {
    case ReportForm::Csv:
        return ".csv";
    case ReportForm::Json:
        return ".json";
    case ReportForm::Pdf:
        return ".pdf";
    case ReportForm::Text:
        break;
    }
    return ".txt";
}

std::string FileOf(ReportForm form, std::span<const ReportDocument> documents, DateTime made)
{
    switch (form) {
    case ReportForm::Csv:
        return std::string(kByteOrderMark) + CsvOf(documents);
    case ReportForm::Json:
        return JsonOf(documents, made);
    case ReportForm::Pdf:
        return PdfOf(documents, SystemPaper(), made);
    case ReportForm::Text:
        break;
    }
    return TextOf(documents);
}

std::string FileNameFor(const ReportDocument& document, ReportForm form)
{
    const std::string& name = document.fileName;
    return name.substr(0, name.rfind('.')).append(EndingOf(form));
}

} // namespace ptk
