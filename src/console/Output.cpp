#include "console/Output.h"

#include "console/Console.h"
#include "console/ErrorText.h"
#include "platform/files/FileDraft.h"

#include <ostream>

namespace ptk {

namespace {

constexpr auto kPagesAreForFiles = "a PDF file is nothing for a terminal: name a file with -o";
constexpr auto kOutputNeedsName = "-o needs the name of a file";

} // namespace

const char* WrongOutput(ReportForm form, const std::optional<std::string>& output, const Console& console)
{
    if (form == ReportForm::Pdf && !output && console.terminal) {
        return kPagesAreForFiles;
    }
    return output && output->empty() ? kOutputNeedsName : nullptr;
}

void WriteOutput(const std::string& path, const std::string& bytes)
{
    try {
        PutFile(path, bytes);
    } catch (const Failure& reason) {
        throw FileFailure(reason, path);
    }
}

void Deliver(ReportForm form, const std::optional<std::string>& output, const std::string& bytes, Console& console)
{
    if (output) {
        return WriteOutput(*output, bytes);
    }
    console.out << (form == ReportForm::Pdf ? bytes : TerminalText(bytes));
}

} // namespace ptk
