#include "console/ErrorText.h"

#include "reports/ReportErrors.h"
#include "store/StoreErrors.h"
#include "store/whole/DatabaseName.h"

#include <algorithm>
#include <array>

namespace ptk {

namespace {

struct NumberedText
{
    std::int32_t number;
    const char* text;
};

// Where several classes set the same number, its text is for the class whose failure reaches the console.
constexpr std::array kTexts{
    NumberedText{listerror::CreateFailed, "a list could not be loaded from the database"},
    NumberedText{listerror::DestroyFailed, "a list could not be given up"},
    NumberedText{listerror::InsertFailed, "a record of the database could not be taken into its list"},
    NumberedText{listerror::RemoveFailed, "an entry could not be taken from its list"},
    NumberedText{recordsorter::SortFailed, "the time records could not be put into order"},
    NumberedText{listerror::SaveFailed, "not everything of a list could be stored"},
    NumberedText{report::ListEmpty, "there are no employees to report on"},
    NumberedText{listerror::ReadFailed, "an entry could not be read from its list"},
    NumberedText{listerror::NoSuchPosition, "a list has no such position"},
    NumberedText{jetdb::NoDatabase, "there is no open database"},
    NumberedText{timecard::NoDatabase, "there is no database"},
    NumberedText{jetdb::NoSql, "there is no statement to run"},
    NumberedText{jetdb::StatementFailed, "the database refused a statement"},
    NumberedText{jetdb::ListingFailed, "a stored query of the database could not be read"},
    NumberedText{jetdb::InsertFailed, "a record could not be added through its stored query"},
    NumberedText{jetdb::UpdateFailed, "a record could not be changed through its stored query"},
    NumberedText{jetdb::RowChanged, "the record was changed or removed since it was read"},
    NumberedText{jetdb::NegativeCount, "a stored query of the database answered a negative number of rows"},
    NumberedText{report::NotOpen, "the report's file cannot be opened; is there a reports folder, and may it be written?"},
    NumberedText{fileerror::WriteOnly, "a file opened for writing cannot be read"},
    NumberedText{fileerror::ReadOnly, "a file opened for reading cannot be written"},
    NumberedText{report::NotClosed, "the report's file could not be closed"},
    NumberedText{timecard::GenerateFailed, "the time card could not be generated"},
    NumberedText{timecard::NoEmployee, "no employee has this name"},
    NumberedText{timecard::InvalidRange, "not a valid pay period"},
    NumberedText{timecard::CalculationFailed, "the totals of the time card could not be calculated"},
    NumberedText{timecard::NoRecords, "there are no time records in this period"},
    NumberedText{timecard::NoSuchRecord, "the time card has no such record"},
    NumberedText{timecard::RecordRejected, "the time record was not accepted"},
    NumberedText{report::NoViewer, "the report could not be shown"},
    NumberedText{report::LineNotWritten, "a line of the report could not be written to its file"},
    NumberedText{report::LineNotShown, "a line of the report could not be shown"},
    NumberedText{report::NoPhoneBookList, "there is no list for the phone book"},
    NumberedText{report::NoEmployeeList, "there is no list for the employee records"},
    NumberedText{report::NoTimeCard, "there is no time card to report on"},
    NumberedText{report::NotGenerated, "a time card or another part of the report is missing from it"},
    NumberedText{report::Cancelled, "the report was stopped before its end"},
    NumberedText{daterange::NotADate, "one end of the period is not a date"},
    NumberedText{daterange::EndBeforeStart, "the period ends before it starts"},
    NumberedText{daterange::OutOfLimits, "outside the dates that the program takes, or nothing that could be stored"},
    NumberedText{daterange::NeverValidated, "the period was not checked"},
    NumberedText{timerecord::TextFailed, "a record could not be put into words"},
    NumberedText{sqlerror::InsertFailed, "the statement that adds a time record could not be made"},
    NumberedText{sqlerror::UpdateFailed, "the statement that changes a time record could not be made"},
    NumberedText{sqlerror::DeleteFailed, "the statement that removes a time record could not be made"},
    NumberedText{sqlerror::FetchFailed, "the statement that reads time records could not be made"},
    NumberedText{daterange::NotConvertible, "a value is no date"},
    NumberedText{docerror::NoDocumentName, "no document was named"},
    NumberedText{docerror::DocumentNotFound, "the document was not found"},
    NumberedText{docerror::NoParentWindow, "there is no window to open the document from"},
};

// The text of a number; "the operation failed" for one that is not in the table.
const char* ErrorText(std::int32_t number)
{
    const auto* found = std::find_if(kTexts.begin(), kTexts.end(), [&](const NumberedText& entry) { return entry.number == number; });
    return found == kTexts.end() ? "the operation failed" : found->text;
}

} // namespace

Failure ProgramFailure(std::int32_t number, const std::string& subject, const std::string& reason)
{
    // The number says that there are no records even where they could not be read; the reason tells the two apart.
    std::string text = number == timecard::NoRecords && !reason.empty() ? "the time records could not be read" : ErrorText(number);
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
    return {reason.Number(), reason.Source(), named ? reason.Description() : reason.Description() + ": " + SaidDatabase(path)};
}

} // namespace ptk
