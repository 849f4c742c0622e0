// Why a file gives no rows at all: the exit status by which the caller tells people the reason.
#pragma once

#include <exception>

namespace jet {

enum class Refusal
{
    Unreadable = 1, // what was asked for is damaged, or there was no memory for it
    WrongUsage = 2,
    NoJetFile = 3,
    NewerFormat = 4, // than Jet 4
    TooLarge = 5,    // for the memory that the reader may have
    CutShort = 6     // not even the catalog of tables is there
};

class Refused : public std::exception
{
public:
    explicit Refused(Refusal reason) : m_reason(reason) {}

    [[nodiscard]] Refusal Reason() const { return m_reason; }

private:
    Refusal m_reason;
};

} // namespace jet
