// ptk-jet-reader [--code-page N] [ID:COLUMN,COLUMN...]... <FILE: the rows of an older database file as lines on the standard output.
//
// Without tables to read, the catalog (see Catalog.h); with them, their rows. The last line is "end": without it, or with another status
// than 0 (see Refusal.h), nothing that was written may be used. What the reading library says on the standard error tells of damage.
#include "jetreader/Catalog.h"
#include "jetreader/Confinement.h"
#include "jetreader/JetFile.h"
#include "jetreader/Lines.h"
#include "jetreader/Refusal.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace jet {

namespace {

struct Order
{
    std::uint32_t table = 0;
    std::vector<std::size_t> columns;
};

struct Arguments
{
    int codePage = 0;
    std::vector<Order> orders;
};

// Cuts a number off the front of the text.
template <typename Number>
Number TakeNumber(std::string_view& text)
{
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) {
        throw Refused(Refusal::WrongUsage);
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

Order ReadOrder(std::string_view text)
{
    Order order;
    order.table = TakeNumber<std::uint32_t>(text);
    for (char separator = ':'; !text.empty(); separator = ',') {
        if (text.front() != separator) {
            throw Refused(Refusal::WrongUsage);
        }
        text.remove_prefix(1);
        order.columns.push_back(TakeNumber<std::size_t>(text));
    }
    return order;
}

Arguments ReadArguments(const std::vector<std::string_view>& words)
{
    Arguments arguments;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--code-page" && i + 1 < words.size()) {
            std::string_view number = words[++i];
            arguments.codePage = TakeNumber<int>(number);
            if (!number.empty() || NameOfCodePage(arguments.codePage) == nullptr) {
                throw Refused(Refusal::WrongUsage);
            }
        } else {
            arguments.orders.push_back(ReadOrder(words[i]));
        }
    }
    return arguments;
}

void Read(const Arguments& arguments)
{
    const JetFile file(STDIN_FILENO, arguments.codePage);
    Confine();
    if (arguments.orders.empty()) {
        WriteCatalog(file);
    }
    for (const Order& order : arguments.orders) {
        Line("table").Number(order.table).Write();
        WriteRows(file, order.table, order.columns);
    }
    Line("end").Write();
}

int Run(const std::vector<std::string_view>& words)
{
    try {
        Read(ReadArguments(words));
        return std::fflush(stdout) == 0 ? 0 : static_cast<int>(Refusal::Unreadable);
    } catch (const Refused& refused) {
        return static_cast<int>(refused.Reason());
    } catch (const std::exception&) { // no memory
        return static_cast<int>(Refusal::Unreadable);
    }
}

} // namespace

} // namespace jet

int main(int argc, char* argv[])
{
    const int status = jet::Run({argv + (argc > 0 ? 1 : 0), argv + argc});
    std::_Exit(status); // what the library keeps until the end of a process is the system's to take back
}
