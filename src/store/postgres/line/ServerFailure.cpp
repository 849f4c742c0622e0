#include "store/postgres/line/ServerFailure.h"

#include "store/engine/EngineSource.h"

#include <utility>

namespace ptk {

namespace {

constexpr std::string_view kTakesNoChanges = "25006"; // also where only the transaction takes none

struct Meaning
{
    std::string_view state; // of one fault, or the first characters of several
    std::int32_t number;
    const char* words; // nullptr: the server's own words, which also follow words that end in a blank
};

// The first meaning that fits is taken.
constexpr Meaning kMeanings[] = {
    {"55P03", engine::Busy, "somebody else is changing what is to be read or changed"},
    {"40", engine::Busy, "somebody else is changing what is to be read or changed"},
    {"57014", engine::Interrupted, "the statement did not come to an end in time"},
    {"57", engine::Lost, "the server is going down or gave the connection up"},
    {"25P03", engine::Lost, "the server gave the connection up"},
    {"08", engine::Lost, "the connection to the server was lost"},
    {"53100", engine::DiskFull, "the server's disk is full"},
    {"53200", engine::NoMemory, "the server is out of memory"},
    {"53", engine::CannotOpen, "the server takes no more connections"},
    {"42501", engine::ReadOnly, nullptr},
    {kTakesNoChanges, engine::ReadOnly, "the server takes no changes"},
    {"54000", engine::Constraint, "a text is longer than an index of the server takes: "},
    {"28", engine::CannotOpen, nullptr},
    {"3D", engine::CannotOpen, nullptr},
    {"23", engine::Constraint, nullptr},
    {"22", engine::Constraint, nullptr},
    {"XX001", engine::Damaged, "the server's database is damaged"},
    {"XX002", engine::Damaged, "the server's database is damaged"},
    {"58030", engine::Lost, "the server's disk failed while reading or writing the database"},
};

// The first line of a message: the library ends its own words with a line end.
std::string OneLine(std::string_view message)
{
    std::string line(message.substr(0, message.find('\n')));
    while (!line.empty() && line.back() == ' ') {
        line.pop_back();
    }
    return line;
}

} // namespace

ServerFailure::ServerFailure(std::int32_t number, std::string description) : Failure(number, kServerSource, std::move(description)) {}

ServerFailure ServerFailure::OfState(std::string_view state, std::string_view message)
{
    Meaning meaning{"", engine::Refused, nullptr};
    for (const Meaning& each : kMeanings) {
        if (state.starts_with(each.state)) {
            meaning = each;
            break;
        }
    }
    std::string words = meaning.words == nullptr ? "" : meaning.words;
    if (words.empty() || words.back() == ' ') {
        words += OneLine(message);
    }
    ServerFailure failure(meaning.number, std::move(words));
    failure.m_lost = state.starts_with("57P") || state.starts_with("08") || state == "25P03";
    failure.m_again = state == "40001" || state == "40P01";
    failure.m_missingTable = state == "42P01";
    failure.m_takesNoChanges = state == kTakesNoChanges;
    return failure;
}

ServerFailure ServerFailure::OfLostConnection(std::string_view message)
{
    ServerFailure failure(engine::Lost, "the connection to the server was lost" + (message.empty() ? "" : ": " + OneLine(message)));
    failure.m_lost = true;
    return failure;
}

} // namespace ptk
