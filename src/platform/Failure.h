// The one exception of the program: the platform raises it, and every public routine above turns it into a false result and a number.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace ptk {

// The platform's failure numbers, as the error log and the message boxes show them. Failures of the database engine carry the engine's own
// result codes instead (5 is then "busy", not "invalid procedure call"); the source tells the two apart.
namespace failure {
inline constexpr std::int32_t InvalidProcedureCall = 5;
inline constexpr std::int32_t Overflow = 6;
inline constexpr std::int32_t OutOfMemory = 7;
inline constexpr std::int32_t SubscriptOutOfRange = 9;
inline constexpr std::int32_t DivisionByZero = 11;
inline constexpr std::int32_t TypeMismatch = 13;
inline constexpr std::int32_t BadFileNumber = 52;
inline constexpr std::int32_t FileNotFound = 53;
inline constexpr std::int32_t FileAlreadyOpen = 55;
inline constexpr std::int32_t DeviceIoError = 57;
inline constexpr std::int32_t DiskFull = 61;
inline constexpr std::int32_t InputPastEnd = 62;
inline constexpr std::int32_t TooManyFiles = 67;
inline constexpr std::int32_t PermissionDenied = 70;
inline constexpr std::int32_t PathFileAccess = 75;
inline constexpr std::int32_t PathNotFound = 76;
inline constexpr std::int32_t ObjectNotSet = 91;
inline constexpr std::int32_t InvalidUseOfNull = 94;
inline constexpr std::int32_t NoCurrentRecord = 3021;
} // namespace failure

class Failure : public std::exception
{
public:
    // A failure of the platform: its source is "PTK", its description the standard one of the number.
    explicit Failure(std::int32_t number);
    Failure(std::int32_t number, std::string source, std::string description, std::int32_t lastSystemError = 0);

    // The failure that an errno of a file operation stands for; the errno is kept as the last system error.
    [[nodiscard]] static Failure FromErrno(int error);

    [[nodiscard]] std::int32_t Number() const { return m_number; }
    [[nodiscard]] const std::string& Source() const { return m_source; }
    [[nodiscard]] const std::string& Description() const { return m_description; }
    [[nodiscard]] std::int32_t HelpContext() const { return m_helpContext; }
    [[nodiscard]] std::int32_t LastSystemError() const { return m_lastSystemError; }
    const char* what() const noexcept override { return m_description.c_str(); }

private:
    std::int32_t m_number;
    std::string m_source;
    std::string m_description;
    std::int32_t m_helpContext = 0;
    std::int32_t m_lastSystemError = 0;
};

// The exception that the catch block around the call handles, as a Failure: a Failure as it is, bad_alloc as 7, any other as 5, with its
// own text if it is a std::exception. Outside a catch block: number 0 and empty texts.
[[nodiscard]] Failure CurrentFailure();

} // namespace ptk
