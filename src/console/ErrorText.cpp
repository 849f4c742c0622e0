#include "console/ErrorText.h"

#include "model/CTimeCard.h"

#include <algorithm>
#include <array>

namespace ptk {

namespace {

struct NumberedText
{
    std::int32_t number;
    const char* text;
};

constexpr std::array kProgramTexts{
    NumberedText{301, "a list could not be loaded from the database"},
    NumberedText{331, "there are no employees to report on"},
    NumberedText{403, "there is no open database"},
    NumberedText{405, "there is no database"},
    NumberedText{406, "there is no statement to run"},
    NumberedText{407, "the database refused a statement"},
    NumberedText{411, "a stored query of the database could not be read"},
    NumberedText{421, "a stored query of the database answered a negative number of rows"},
    NumberedText{312, "a record of the database could not be taken into its list"},
    NumberedText{503, "the report's file cannot be opened; is there a reports folder, and may it be written?"},
    NumberedText{506, "the report's file could not be closed"},
    NumberedText{601, "the time card could not be generated"},
    NumberedText{602, "no employee has this name"},
    NumberedText{603, "not a valid pay period"},
    NumberedText{605, "there are no time records in this period"},
    NumberedText{701, "the report could not be shown"},
    NumberedText{702, "a line of the report could not be written to its file"},
    NumberedText{703, "a line of the report could not be shown"},
    NumberedText{704, "there is no list for the phone book"},
    NumberedText{705, "there is no list for the employee records"},
    NumberedText{710, "a time card or another part of the report is missing from it"},
    NumberedText{711, "the report was stopped before its end"},
};

std::string TextOf(std::int32_t number)
{
    const auto found =
        std::find_if(kProgramTexts.begin(), kProgramTexts.end(), [&](const NumberedText& entry) { return entry.number == number; });
    return found == kProgramTexts.end() ? "the operation failed" : found->text;
}

} // namespace

Failure ProgramFailure(std::int32_t number, const std::string& subject, const std::string& reason)
{
    // The number says that there are no records also where they could not be read.
    std::string text = number == timecard::NoRecords && !reason.empty() ? "the time records could not be read" : TextOf(number);
    for (const std::string& part : {subject, reason}) {
        if (!part.empty()) {
            text += ": " + part;
        }
    }
    return {number, "PTK", std::move(text)};
}

Failure FileFailure(const Failure& reason, const std::string& path)
{
    const bool named = reason.Description().find(path) != std::string::npos;
    return {reason.Number(), reason.Source(), named ? reason.Description() : reason.Description() + ": " + path};
}

} // namespace ptk
