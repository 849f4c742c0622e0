// An older database file as its reader, a guarded child, tells of it.
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

// One value as it is stored; see jetreader/Lines.h.
struct OldValue
{
    enum class Kind
    {
        None,
        Impossible,
        Text,
        PartlyReadText, // a mark stands for characters that could not be read
        Number,         // in decimal digits, which read back to the same stored number
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

// What a part of a stored query names.
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
    std::int64_t bytesBehind = 0; // that make up no page
    std::vector<OldTable> tables; // of people, not of the file's own
    std::vector<OldQueryPart> queryParts;
    std::vector<std::string> broken; // tables that cannot be read
};

// Which columns of which table are wanted, by their place in the catalog.
struct OldRowsOrder
{
    std::uint32_t table = 0;
    std::vector<std::size_t> columns;
};

struct OldRowsEnd
{
    std::int64_t read = 0;
    std::int64_t counted = 0; // as the table itself says; 0 tells nothing
};

// Takes the rows of each table as they come.
class OldRowSink
{
public:
    virtual ~OldRowSink() = default;

    // Of the order of this number, counted from 0; valid until it returns.
    virtual void TakeRow(std::size_t order, std::span<const OldValue> values) = 0;
    virtual void EndRows(std::size_t order, const OldRowsEnd& end) = 0;
};

// Failures have no number and one sentence: that the file cannot be read and why, or what OpenRegularFile says. Whatever was read before
// a failure counts for nothing.
class OldFile
{
public:
    // Opened for reading only, without leaving any trace on it. All reading together must be done by the deadline. `codePage` overrules
    // that of a Jet 3 file; `goesOn` may end the reading.
    OldFile(const std::string& path, std::optional<int> codePage, std::chrono::steady_clock::time_point deadline,
            std::function<bool()> goesOn);

    [[nodiscard]] OldCatalog ReadCatalog();
    void ReadRows(std::span<const OldRowsOrder> orders, OldRowSink& sink);

    // That the reader had to make so far.
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
