#include "console/ErrorText.h"

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

// The database engine's result codes that opening a file can give.
constexpr std::array kEngineTexts{
    NumberedText{1, "the database file is not as expected"},
    NumberedText{3, "the database file may not be read"},
    NumberedText{5, "the database is in use by another program"},
    NumberedText{6, "the database is in use by this program"},
    NumberedText{7, "out of memory"},
    NumberedText{8, "the database file may not be written"},
    NumberedText{10, "the disk failed while reading the database"},
    NumberedText{11, "the database file is damaged"},
    NumberedText{13, "the disk is full"},
    NumberedText{14, "the database file is missing or cannot be opened"},
    NumberedText{26, "the file is not a database of this program"},
    NumberedText{403, "there is no open database"},
};

template <std::size_t size>
Failure Numbered(const std::array<NumberedText, size>& texts, std::int32_t number, const std::string& subject)
{
    const auto found = std::find_if(texts.begin(), texts.end(), [&](const NumberedText& entry) { return entry.number == number; });
    std::string text = found == texts.end() ? "the operation failed" : found->text;
    if (!subject.empty()) {
        text += ": " + subject;
    }
    return Failure(number, "PTK", std::move(text));
}

} // namespace

Failure ProgramFailure(std::int32_t number, const std::string& subject)
{
    return Numbered(kProgramTexts, number, subject);
}

Failure OpenFailure(std::int32_t number, const std::string& databasePath)
{
    return Numbered(kEngineTexts, number, databasePath);
}

} // namespace ptk
