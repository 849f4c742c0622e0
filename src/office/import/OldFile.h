// Reads an older database file by way of a guarded child, the reader program.
#pragma once

#include "platform/files/SystemFile.h"
#include "platform/system/GuardedChild.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// One stored value; see jetreader/Lines.h.
struct OldValue
{
    enum class Kind
    {
        None,
        Impossible,
        Text,
        PartlyReadText, // a mark stands for characters that could not be read
        Number,         // decimal digits, which read back to the same stored number
        Moment          // in seconds since the zero date-time
    };

    Kind kind = Kind::None;
    std::string text;
};

struct OldColumn
{
    std::string name;
    std::string type; // boolean, integer, number, date, text, memo, other
};

struct OldTable
{
    std::uint32_t id = 0;
    std::string name;
    std::vector<OldColumn> columns;
};

// The names in one part of a stored query.
struct OldQueryPart
{
    std::string query;
    std::int64_t attribute = 0;
    std::string expression;
    std::string name;
    std::string secondName;
};

struct OldCatalog
{
    std::int64_t bytesBehind = 0; // bytes at the end that make up no page
    std::vector<OldTable> tables; // people's tables, without those of the file format
    std::vector<OldQueryPart> queryParts;
    std::vector<std::string> broken; // tables that cannot be read
};

// The wanted columns of a table, as indexes in the catalog.
struct OldRowsOrder
{
    std::uint32_t table = 0;
    std::vector<std::size_t> columns;
};

struct OldRowsEnd
{
    std::int64_t read = 0;
    std::int64_t counted = 0; // by the table itself; 0 if it does not say
};

// Takes the rows of each table as they are read.
class OldRowSink
{
public:
    virtual ~OldRowSink() = default;

    // Takes a row of the order with this index, counted from 0. The values are valid until it returns.
    virtual void TakeRow(std::size_t order, std::span<const OldValue> values) = 0;
    virtual void EndRows(std::size_t order, const OldRowsEnd& end) = 0;
};

// An older database file. Its failures have no number and say in one sentence why the file cannot be read, but for 53 without the reader
// program and those of OpenRegularFile. What was read before a failure must not be used.
class OldFile
{
public:
    // Opens the file for reading only; its time of last access changes only if it is somebody else's. All reading together must end by the
    // deadline. `codePage` is used instead of that of a Jet 3 file; `goesOn` may end the reading.
    OldFile(const std::string& path, std::optional<int> codePage, std::chrono::steady_clock::time_point deadline,
            std::function<bool()> goesOn);

    [[nodiscard]] OldCatalog ReadCatalog();
    void ReadRows(std::span<const OldRowsOrder> orders, OldRowSink& sink);

    // The number of warnings that the reader gave so far.
    [[nodiscard]] std::int64_t Complaints() const { return m_complaints; }

private:
    void Run(std::vector<std::string> arguments, const std::function<void(std::span<const std::string_view>)>& take);

    SystemFile m_file;
    std::optional<int> m_codePage;
    ChildLimits m_limits;
    std::function<bool()> m_goesOn;
    std::int64_t m_complaints = 0;
};

} // namespace ptk
