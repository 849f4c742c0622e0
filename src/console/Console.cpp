#include "console/Console.h"

#include <algorithm>

namespace ptk {

void Complain(std::ostream& err, const Failure& failure)
{
    std::string text = failure.Description();
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    err << "ptk-console: ";
    if (failure.Number() != 0) {
        err << failure.Number() << ": ";
    }
    err << text << '\n';
}

std::string TerminalText(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool beforeLineFeed = text.substr(i, 2) == "\r\n";
        if (!beforeLineFeed) {
            result += text[i];
        }
    }
    return result;
}

} // namespace ptk
