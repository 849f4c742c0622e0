#include "jetreader/JetValue.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <vector>

namespace jet {

namespace {

using Bytes = std::span<const unsigned char>;

template <typename Number>
Number Stored(Bytes bytes)
{
    Number number;
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

template <typename Number>
std::string Digits(Number number)
{
    char digits[64];
    return {digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr};
}

template <typename Number>
void AppendNumber(Line& line, Bytes bytes)
{
    if (bytes.size() < sizeof(Number)) {
        line.Impossible();
    } else {
        line.Number(Digits(Stored<Number>(bytes)));
    }
}

// A moment is stored as days since 30 December 1899 and, whatever their sign, the fraction of the day that has passed.
void AppendMoment(Line& line, Bytes bytes)
{
    constexpr double kFirstDay = -657434;  // 1 January 100
    constexpr std::int64_t kEnd = 2958466; // the day behind 31 December 9999
    constexpr std::int64_t kSecondsADay = 86400;
    const double stored = bytes.size() < sizeof(double) ? NAN : Stored<double>(bytes);
    const double day = std::trunc(stored);
    if (!(day >= kFirstDay && day < static_cast<double>(kEnd))) {
        line.Impossible();
        return;
    }
    const auto seconds = static_cast<std::int64_t>(std::llround(std::fabs(stored - day) * static_cast<double>(kSecondsADay)));
    const std::int64_t moment = static_cast<std::int64_t>(day) * kSecondsADay + seconds;
    if (moment >= kEnd * kSecondsADay) {
        line.Impossible();
    } else {
        line.Moment(moment);
    }
}

// Money is stored as a whole number of ten-thousandths.
void AppendMoney(Line& line, Bytes bytes)
{
    constexpr double kUnits = 10000;
    if (bytes.size() < sizeof(std::int64_t)) {
        line.Impossible();
    } else {
        line.Number(Digits(static_cast<double>(Stored<std::int64_t>(bytes)) / kUnits));
    }
}

// A decimal is stored as a sign, then four parts of 32 bits, the highest first.
void AppendDecimal(Line& line, Bytes bytes, int decimals)
{
    constexpr std::size_t kParts = 4;
    constexpr double kPart = 4294967296.0;
    if (bytes.size() < 1 + kParts * sizeof(std::uint32_t)) {
        line.Impossible();
        return;
    }
    double number = 0;
    for (std::size_t part = 0; part < kParts; ++part) {
        number = number * kPart + Stored<std::uint32_t>(bytes.subspan(1 + part * sizeof(std::uint32_t)));
    }
    number /= std::pow(10.0, decimals);
    line.Number(Digits(bytes[0] != 0 ? -number : number));
}

void AppendText(Line& line, const JetFile& file, Bytes bytes)
{
    const DecodedText text = file.Texts().Decode(bytes);
    line.Text(text.utf8, text.exact);
}

constexpr std::size_t kMemoHead = 12; // bytes: length and marks, place of the first piece, four unused ones
constexpr std::uint32_t kInside = 0x80000000;
constexpr std::uint32_t kOnePiece = 0x40000000;
constexpr std::size_t kLongestMemo = 1 << 20; // bytes

// Finds a piece of a memo by its place; false where there is no such piece.
bool FindPiece(const JetFile& file, std::uint32_t place, Bytes& piece)
{
    void* page = nullptr;
    int start = 0;
    std::size_t size = 0;
    if (mdb_find_pg_row(file.Handle(), static_cast<int>(place), &page, &start, &size) != 0) {
        return false;
    }
    piece = {static_cast<const unsigned char*>(page) + (start & 0x1FFF), size};
    return true;
}

// Collects a memo from pieces that each begin with the place of the next. A damaged chain may lead back, or through pieces without text.
bool FollowChain(const JetFile& file, std::uint32_t place, std::vector<unsigned char>& memo)
{
    constexpr int kMostPieces = 1024;
    for (int pieces = 0; place != 0; ++pieces) {
        Bytes piece;
        if (pieces == kMostPieces || !FindPiece(file, place, piece) || piece.size() < sizeof place || memo.size() > kLongestMemo) {
            return false;
        }
        place = Stored<std::uint32_t>(piece);
        memo.insert(memo.end(), piece.begin() + sizeof place, piece.end());
    }
    return true;
}

void AppendMemo(Line& line, const JetFile& file, Bytes bytes)
{
    if (bytes.size() < kMemoHead) {
        line.Impossible();
        return;
    }
    const auto length = Stored<std::uint32_t>(bytes);
    const auto place = Stored<std::uint32_t>(bytes.subspan(sizeof length));
    Bytes piece;
    std::vector<unsigned char> memo;
    if ((length & kInside) != 0) {
        AppendText(line, file, bytes.subspan(kMemoHead));
    } else if ((length & kOnePiece) != 0 && FindPiece(file, place, piece)) {
        AppendText(line, file, piece);
    } else if ((length & (kInside | kOnePiece)) == 0 && FollowChain(file, place, memo)) {
        AppendText(line, file, memo);
    } else {
        line.Impossible();
    }
}

void AppendStored(Line& line, const JetFile& file, const JetTable& table, std::size_t column)
{
    const Bytes bytes = table.Bytes(column);
    const MdbColumn& definition = table.Column(column);
    switch (definition.col_type) {
    case MDB_BYTE:
        return AppendNumber<std::uint8_t>(line, bytes);
    case MDB_INT:
        return AppendNumber<std::int16_t>(line, bytes);
    case MDB_LONGINT:
        return AppendNumber<std::int32_t>(line, bytes);
    case MDB_FLOAT:
        return AppendNumber<float>(line, bytes);
    case MDB_DOUBLE:
        return AppendNumber<double>(line, bytes);
    case MDB_MONEY:
        return AppendMoney(line, bytes);
    case MDB_NUMERIC:
        return AppendDecimal(line, bytes, definition.col_scale);
    case MDB_DATETIME:
        return AppendMoment(line, bytes);
    case MDB_TEXT:
        return AppendText(line, file, bytes);
    case MDB_MEMO:
        return AppendMemo(line, file, bytes);
    default:
        line.Nothing();
    }
}

} // namespace

void AppendValue(Line& line, const JetFile& file, const JetTable& table, std::size_t column)
{
    if (table.Column(column).col_type == MDB_BOOL) {
        line.Number(table.IsNull(column) ? 0 : 1); // the mark for a missing value is the value
    } else if (table.IsNull(column)) {
        line.Nothing();
    } else {
        AppendStored(line, file, table, column);
    }
}

const char* NameOfType(int type)
{
    switch (type) {
    case MDB_BOOL:
        return "boolean";
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
        return "integer";
    case MDB_MONEY:
    case MDB_NUMERIC:
    case MDB_FLOAT:
    case MDB_DOUBLE:
        return "number";
    case MDB_DATETIME:
        return "date";
    case MDB_TEXT:
        return "text";
    case MDB_MEMO:
        return "memo";
    default:
        return "other";
    }
}

} // namespace jet
