#include "store/postgres/line/ServerName.h"

#include "platform/Waiting.h"
#include "store/postgres/line/ServerFailure.h"

#include <fmt/format.h>
#include <netdb.h>

#include <array>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace ptk {

namespace {

struct NameAnswer
{
    int error = 0;
    std::vector<std::string> addresses;
};

// Shared with the thread that asks the name server. It ends when the system lets it, perhaps long after nobody waits any more.
struct Lookup
{
    std::mutex mutex;
    std::condition_variable told;
    std::optional<NameAnswer> answer;
};

std::string NumericAddress(const addrinfo& found)
{
    std::array<char, NI_MAXHOST> text{};
    const int failed = ::getnameinfo(found.ai_addr, found.ai_addrlen, text.data(), text.size(), nullptr, 0, NI_NUMERICHOST);
    return failed != 0 ? "" : text.data();
}

NameAnswer AskNameServer(const std::string& name)
{
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* first = nullptr;
    NameAnswer answer;
    answer.error = ::getaddrinfo(name.c_str(), nullptr, &hints, &first);
    if (answer.error != 0) {
        return answer;
    }
    for (const addrinfo* found = first; found != nullptr; found = found->ai_next) {
        answer.addresses.push_back(NumericAddress(*found));
    }
    ::freeaddrinfo(first);
    return answer;
}

std::shared_ptr<Lookup> BeginLookup(const std::string& name)
{
    auto lookup = std::make_shared<Lookup>();
    std::thread([lookup, name] {
        NameAnswer answer = AskNameServer(name);
        const std::lock_guard lock(lookup->mutex);
        lookup->answer = std::move(answer);
        lookup->told.notify_one();
    }).detach();
    return lookup;
}

bool IsToldWithinSlice(Lookup& lookup)
{
    std::unique_lock lock(lookup.mutex);
    return lookup.told.wait_for(lock, waiting::kSlice, [&] { return lookup.answer.has_value(); });
}

} // namespace

std::vector<std::string> LookUpServer(const std::string& name, std::chrono::steady_clock::time_point until)
{
    const auto lookup = BeginLookup(name);
    while (!IsToldWithinSlice(*lookup)) {
        if (std::chrono::steady_clock::now() >= until) {
            throw ServerFailure(engine::CannotOpen, fmt::format("where the server {} is was not told in time", name));
        }
        if (!waiting::Turn()) {
            throw ServerFailure(engine::Interrupted, "the wait for the server was given up");
        }
    }
    const std::lock_guard lock(lookup->mutex);
    if (lookup->answer->error != 0) {
        throw ServerFailure(engine::CannotOpen, fmt::format("the server {} is not known: {}", name, ::gai_strerror(lookup->answer->error)));
    }
    return lookup->answer->addresses;
}

} // namespace ptk
