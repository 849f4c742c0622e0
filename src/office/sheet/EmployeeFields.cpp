#include "office/sheet/EmployeeFields.h"

#include "office/sheet/SheetFile.h"
#include "office/sheet/SheetHeadings.h"
#include "office/sheet/SheetMoment.h"
#include "platform/Succeeds.h"
#include "platform/text/Characters.h"
#include "platform/text/DataText.h"
#include "platform/text/Text.h"
#include "platform/text/Utf8.h"
#include "reports/EmployeeRecords.h"
#include "reports/forms/CellText.h"
#include "shell/CDataValidator.h"

#include <cmath>
#include <fmt/format.h>
#include <functional>
#include <map>

namespace ptk {

namespace {

constexpr const char* kStoredColumns[kEmployeeFieldCount] = {
    "EmployeeNumber", "FirstName", "LastName",    "SSNumber", "Address",  "Address2",    "City",    "State",
    "ZipCode",        "Phone",     "DateOfBirth", "Active",   "HireDate", "ReleaseDate", "PayRate", "OvertimePayRate"};

constexpr std::size_t kLongestField = 255; // characters
constexpr char32_t kNoCharacter = 0xFFFD;

constexpr auto kEmptyField = "empty";
constexpr auto kNoEmployeeNumber = "no employee number: {}";
constexpr auto kNoFieldDay = "no day: {}";
constexpr auto kNoFlag = "neither true nor false: {}";
constexpr auto kNoRate = "no rate: {}";
constexpr auto kTooManyCharacters = "more than {} characters";
constexpr auto kControl = "a control character, or one that cannot be read";

std::size_t PlaceOf(EmployeeField field)
{
    return static_cast<std::size_t>(field);
}

CellType TypeOf(EmployeeField field)
{
    return EmployeeRecordColumns()[PlaceOf(field)].type;
}

[[noreturn]] void RefuseField(const std::string& heading, std::string_view reason)
{
    throw LineRefused{fmt::format("{}: {}", heading, reason)};
}

[[noreturn]] void RefuseField(const std::string& heading, const char* reason, std::string_view cell)
{
    RefuseField(heading, cell.empty() ? kEmptyField : fmt::format(fmt::runtime(reason), ShownCell(cell)));
}

// Whether it is a control character: C0, delete or C1.
bool IsControl(char32_t character)
{
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

Value ReadTextField(std::string_view cell, const std::string& heading)
{
    const std::string_view text = WithoutFormulaMark(cell);
    std::size_t count = 0;
    for (std::string_view left = text; !left.empty(); ++count) {
        const char32_t character = TakeCharacter(left);
        if (IsControl(character) || character == kNoCharacter) {
            RefuseField(heading, kControl);
        }
    }
    if (count > kLongestField) {
        RefuseField(heading, fmt::format(kTooManyCharacters, kLongestField));
    }
    return std::string(text);
}

Value ReadNumberField(std::string_view cell, const std::string& heading)
{
    const bool isNumber =
        !cell.empty() && CDataValidator().CheckIntegerValues(std::string(cell)) && Succeeds([&] { static_cast<void>(ToInt32(cell)); });
    if (!isNumber) {
        RefuseField(heading, kNoEmployeeNumber, cell);
    }
    return ToInt32(cell);
}

Value ReadRateField(std::string_view cell, const std::string& heading)
{
    if (cell.empty()) {
        return 0.0F;
    }
    if (!CDataValidator().CheckSingleValues(std::string(cell)) || !std::isfinite(ToSingle(cell))) {
        RefuseField(heading, kNoRate, cell);
    }
    return ToSingle(cell);
}

Value ReadDayField(std::string_view cell, const std::string& heading)
{
    if (cell.empty()) {
        return {};
    }
    const auto day = ReadSheetDay(cell);
    if (!day || day->IsZero()) { // the zero date stands for no day
        RefuseField(heading, kNoFieldDay, cell);
    }
    return *day;
}

Value ReadFlagField(std::string_view cell, const std::string& heading)
{
    const std::string word = LowerCase(cell);
    if (word != "true" && word != "false" && word != "1" && word != "0") {
        RefuseField(heading, kNoFlag, cell);
    }
    return word == "true" || word == "1";
}

} // namespace

std::string HeadingOf(EmployeeField field)
{
    return EmployeeRecordColumns()[PlaceOf(field)].name;
}

std::span<const char* const> StoredEmployeeColumns()
{
    return kStoredColumns;
}

std::optional<EmployeeField> FindEmployeeField(std::string_view normalized)
{
    static const std::map<std::string, EmployeeField, std::less<>> fields = [] {
        std::map<std::string, EmployeeField, std::less<>> all{{"number", EmployeeField::Number}, {"ssn", EmployeeField::Ssn}};
        for (std::size_t i = 0; i < kEmployeeFieldCount; ++i) {
            const auto field = static_cast<EmployeeField>(i);
            all.emplace(NormalizedWord(HeadingOf(field)), field);
        }
        return all;
    }();
    const auto found = fields.find(normalized);
    return found == fields.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::vector<EmployeeField>> ReadEmployeeFields(std::string_view text)
{
    std::vector<EmployeeField> fields;
    for (;;) {
        const std::size_t comma = text.find(',');
        const auto field = FindEmployeeField(NormalizedWord(text.substr(0, comma)));
        if (!field || *field == EmployeeField::Number) { // by the number people are recognized
            return std::nullopt;
        }
        fields.push_back(*field);
        if (comma == std::string_view::npos) {
            return fields;
        }
        text.remove_prefix(comma + 1);
    }
}

std::string PrintedField(EmployeeField field, const Value& value)
{
    return CellText(TypeOf(field), value);
}

// Compares both in their CSV form, in which the mark before a formula, and bytes that are no text, make no difference.
bool IsPrintedAs(EmployeeField field, const Value& value, std::string_view cell)
{
    return CsvText(Trimmed(PrintedField(field, value))) == CsvText(cell);
}

Value ReadField(EmployeeField field, std::string_view cell, const std::string& heading)
{
    switch (TypeOf(field)) {
    case CellType::WholeNumber:
        return ReadNumberField(cell, heading);
    case CellType::Rate:
        return ReadRateField(cell, heading);
    case CellType::Date:
        return ReadDayField(cell, heading);
    case CellType::Boolean:
        return ReadFlagField(cell, heading);
    default:
        return ReadTextField(cell, heading);
    }
}

} // namespace ptk
