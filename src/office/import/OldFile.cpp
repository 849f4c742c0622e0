#include "office/import/OldFile.h"

#include "platform/Failure.h"
#include "platform/files/ProgramFolder.h"

#include <algorithm>
#include <charconv>
#include <fcntl.h>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

namespace ptk {

namespace {

constexpr const char* kReader = "ptk-jet-reader";
constexpr std::size_t kLongestLine = std::size_t{64} << 20; // bytes

constexpr const char* kUnreadable = "the file is too damaged to be read";
constexpr const char* kCut = "the file is cut short: it ends within a page, and what is missing is needed";
constexpr const char* kNotRun = "the program ptk-jet-reader, which reads older files, could not be run";
constexpr const char* kGarbled = "the reader of older files gave something that it never should";
constexpr const char* kNoReader = "the program ptk-jet-reader, which reads older files, is missing; it comes with the package ptk-console";

// The sentence for each exit status of the reader; see jetreader/Refusal.h.
struct Reason
{
    int status;
    const char* text;
};
constexpr Reason kReasons[] = {
    {3, "the file is no Jet database (.mdb)"},
    {4, "the file is of a newer format than Jet 4; save it as an Access 2000 database first"},
    {5, "the file is larger than 400 MB"},
    {6, "the file is cut short: not even its list of tables is there"},
    {126, kNotRun},
    {127, kNotRun}, // no such program, or one of its libraries is missing
};

constexpr off_t kVersionAt = 20;  // offset in the file; the byte there is 0 for Jet 3
constexpr off_t kJet3Page = 2048; // bytes
constexpr off_t kJet4Page = 4096;

// Reading does not change the time of last access of one's own file. For somebody else's file the system does not allow that choice.
SystemFile OpenWithoutTrace(const std::string& path)
{
    try {
        return OpenRegularFile(path, O_RDONLY | O_NOATIME);
    } catch (const Failure& failure) {
        if (failure.LastSystemError() != EPERM) {
            throw Failure(failure.Number(), failure.Source(), path + ": " + failure.Description(), failure.LastSystemError());
        }
        return OpenRegularFile(path, O_RDONLY);
    }
}

Failure Garbled()
{
    return {0, "PTK", kGarbled};
}

std::int64_t NumberOf(std::string_view digits)
{
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size()) {
        throw Garbled();
    }
    return number;
}

char Unescaped(char mark)
{
    switch (mark) {
    case 't':
        return '\t';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case '\\':
        return '\\';
    default:
        throw Garbled();
    }
}

std::string TextOf(std::string_view field)
{
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        const bool isEscape = field[i] == '\\';
        if (isEscape && ++i == field.size()) {
            throw Garbled();
        }
        text += isEscape ? Unescaped(field[i]) : field[i];
    }
    return text;
}

OldValue::Kind KindOf(char mark)
{
    switch (mark) {
    case '-':
        return OldValue::Kind::None;
    case '!':
        return OldValue::Kind::Impossible;
    case '=':
        return OldValue::Kind::Text;
    case '~':
        return OldValue::Kind::PartlyReadText;
    case '#':
        return OldValue::Kind::Number;
    case '@':
        return OldValue::Kind::Moment;
    default:
        throw Garbled();
    }
}

OldValue ValueOf(std::string_view field)
{
    if (field.empty()) {
        throw Garbled();
    }
    return {KindOf(field.front()), TextOf(field.substr(1))};
}

using Fields = std::span<const std::string_view>;

const std::string_view& FieldAt(Fields fields, std::size_t place)
{
    if (place >= fields.size() || fields[place].empty()) {
        throw Garbled();
    }
    return fields[place];
}

std::int64_t NumberAt(Fields fields, std::size_t place)
{
    return NumberOf(FieldAt(fields, place).substr(1));
}

std::string TextAt(Fields fields, std::size_t place)
{
    return TextOf(FieldAt(fields, place).substr(1));
}

// Cuts the reader's output into lines and these into fields, and hands over complete lines. The last line must be "end".
class LineCutter
{
public:
    explicit LineCutter(const std::function<void(Fields)>& take) : m_take(take) {}

    void Take(std::string_view portion)
    {
        for (std::size_t end = 0; (end = portion.find('\n')) != std::string_view::npos; portion.remove_prefix(end + 1)) {
            m_line += portion.substr(0, end);
            TakeLine();
            m_line.clear();
        }
        m_line += portion;
        if (m_line.size() > kLongestLine) {
            throw GuardedChild::TooMuch();
        }
    }

    [[nodiscard]] bool Complete() const { return m_ended && m_line.empty(); }

private:
    void TakeLine()
    {
        if (m_ended) {
            throw Garbled();
        }
        m_ended = m_line == "end";
        if (m_ended) {
            return;
        }
        m_fields.clear();
        for (std::string_view rest = m_line;;) {
            const std::size_t tab = rest.find('\t');
            m_fields.push_back(rest.substr(0, tab));
            if (tab == std::string_view::npos) {
                break;
            }
            rest.remove_prefix(tab + 1);
        }
        m_take(m_fields);
    }

    const std::function<void(Fields)>& m_take;
    std::string m_line;
    std::vector<std::string_view> m_fields;
    bool m_ended = false;
};

// Whether the file ends within a page. A sound file is whole pages, except for a few bytes that other programs may have left at its end.
bool EndsWithinPage(const SystemFile& file)
{
    struct stat status
    {
    };
    char version = 0;
    if (::fstat(file.Descriptor(), &status) != 0 || ::pread(file.Descriptor(), &version, 1, kVersionAt) != 1) {
        return false;
    }
    return status.st_size % (version == 0 ? kJet3Page : kJet4Page) != 0;
}

Failure Refusal(int status, const SystemFile& file)
{
    const auto* found =
        std::find_if(std::begin(kReasons), std::end(kReasons), [&](const Reason& reason) { return reason.status == status; });
    if (found != std::end(kReasons)) {
        return {0, "PTK", found->text};
    }
    return {0, "PTK", EndsWithinPage(file) ? kCut : kUnreadable};
}

void AddLine(OldCatalog& catalog, Fields fields)
{
    const std::string_view kind = fields.front();
    if (kind == "file") {
        catalog.bytesBehind = NumberAt(fields, 3);
    } else if (kind == "table") {
        catalog.tables.push_back({static_cast<std::uint32_t>(NumberAt(fields, 1)), TextAt(fields, 2), {}});
    } else if (kind == "column" && !catalog.tables.empty()) {
        catalog.tables.back().columns.push_back({TextAt(fields, 1), TextAt(fields, 2)});
    } else if (kind == "broken") {
        catalog.broken.push_back(TextAt(fields, 1));
    } else if (kind == "query") {
        catalog.queryParts.push_back({TextAt(fields, 1), NumberAt(fields, 2), TextAt(fields, 3), TextAt(fields, 4), TextAt(fields, 5)});
    } else {
        throw Garbled();
    }
}

std::string OrderText(const OldRowsOrder& order)
{
    std::string text = std::to_string(order.table);
    for (std::size_t i = 0; i < order.columns.size(); ++i) {
        text += (i == 0 ? ':' : ',') + std::to_string(order.columns[i]);
    }
    return text;
}

// Reads the lines of all ordered tables, which come in the order of the orders.
class RowLines
{
public:
    RowLines(std::span<const OldRowsOrder> orders, OldRowSink& sink) : m_orders(orders), m_sink(sink) {}

    void Take(Fields fields)
    {
        if (fields.front() == "table" && m_begun == m_done && m_begun < m_orders.size()) {
            ++m_begun;
        } else if (fields.front() == "row" && m_begun > m_done) {
            TakeRow(fields.subspan(1));
        } else if (fields.front() == "rows" && m_begun > m_done) {
            m_sink.EndRows(m_done, {NumberAt(fields, 1), NumberAt(fields, 2)});
            ++m_done;
        } else {
            throw Garbled();
        }
    }

    void RefuseUnlessComplete() const
    {
        if (m_done != m_orders.size()) {
            throw Garbled();
        }
    }

private:
    void TakeRow(Fields fields)
    {
        if (fields.size() != m_orders[m_done].columns.size()) {
            throw Garbled();
        }
        m_values.clear();
        std::transform(fields.begin(), fields.end(), std::back_inserter(m_values), ValueOf);
        m_sink.TakeRow(m_done, m_values);
    }

    std::span<const OldRowsOrder> m_orders;
    OldRowSink& m_sink;
    std::size_t m_begun = 0;
    std::size_t m_done = 0;
    std::vector<OldValue> m_values;
};

} // namespace

OldFile::OldFile(const std::string& path, std::optional<int> codePage, std::chrono::steady_clock::time_point deadline,
                 std::function<bool()> goesOn)
    : m_file(OpenWithoutTrace(path)), m_codePage(codePage), m_goesOn(std::move(goesOn))
{
    m_limits.deadline = deadline;
}

void OldFile::Run(std::vector<std::string> arguments, const std::function<void(Fields)>& take)
{
    const std::string program = HelperProgram(kReader).string();
    if (::access(program.c_str(), X_OK) != 0) {
        throw Failure(failure::FileNotFound, "PTK", kNoReader);
    }
    if (m_codePage) {
        arguments.insert(arguments.begin(), {"--code-page", std::to_string(*m_codePage)});
    }
    GuardedChild reader({program, arguments, m_file, m_limits, m_goesOn});
    LineCutter lines(take);
    for (std::string_view portion = reader.Read(); !portion.empty(); portion = reader.Read()) {
        lines.Take(portion);
    }
    const ChildEnd end = reader.Wait();
    m_complaints += reader.ErrorLines();
    if (!end.clean || !lines.Complete()) {
        throw Refusal(end.status, m_file);
    }
}

OldCatalog OldFile::ReadCatalog()
{
    OldCatalog catalog;
    Run({}, [&](Fields fields) { AddLine(catalog, fields); });
    return catalog;
}

void OldFile::ReadRows(std::span<const OldRowsOrder> orders, OldRowSink& sink)
{
    std::vector<std::string> arguments;
    std::transform(orders.begin(), orders.end(), std::back_inserter(arguments), OrderText);
    RowLines lines(orders, sink);
    Run(arguments, [&](Fields fields) { lines.Take(fields); });
    lines.RefuseUnlessComplete();
}

} // namespace ptk
