#include "console/Transcript.h"

#include "console/Console.h"

#include <sstream>
#include <utility>

namespace ptk {

void Transcript::Print(std::string text)
{
    m_sayings.push_back({std::move(text), false});
}

void Transcript::Note(std::string_view line)
{
    m_sayings.push_back({"ptk-console: " + TerminalText(line) + "\n", true});
}

void Transcript::Complain(const Failure& failure)
{
    std::ostringstream line;
    ptk::Complain(line, failure);
    m_sayings.push_back({line.str(), true});
}

void Transcript::SayAll(const Console& console)
{
    for (const Saying& saying : std::exchange(m_sayings, {})) {
        (saying.isError ? console.err : console.out) << saying.text;
    }
}

} // namespace ptk
