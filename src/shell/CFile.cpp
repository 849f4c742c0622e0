#include "shell/CFile.h"

#include "platform/Failure.h"
#include "platform/files/LineFile.h"
#include "platform/files/ProgramFolder.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "platform/text/Text.h"
#include "shell/Numeric.h"

#include <fmt/format.h>

#include <utility>

namespace ptk {

namespace {

// The reading and writing operations share the first wording.
constexpr const char* kOpening = "There has been an error opening the file.";
constexpr const char* kClosing = "There has been an error closing the file.";
constexpr const char* kNotOpenToRead = "The file cannot be read from because it is not open.";
constexpr const char* kWriteOnly = "The file cannot be read from because it is open in write mode or append mode.";
constexpr const char* kNotOpenToWrite = "The file cannot be written to because it is not open.";
constexpr const char* kReadOnly = "The file cannot be written to because it is open in read-only mode.";
constexpr const char* kReadMode = "0";
constexpr std::int32_t kNoNumber = 0;

const Clock& MachineClock()
{
    static const SystemClock clock;
    return clock;
}

std::int16_t ModeOf(const Value& mode)
{
    if (!IsNumeric(mode)) {
        return 0;
    }
    const double number = mode.ToDouble();
    return number < 0 || number > 2 ? std::int16_t{0} : mode.ToInt16();
}

} // namespace

CFile::CFile() : CFile(MachineClock()) {}

CFile::CFile(const Clock& clock) : m_clock(clock) {}

CFile::~CFile()
{
    if (m_fileOpen) {
        CloseFile();
    }
}

bool CFile::GetTempFile(std::string& /*parampath*/)
{
    return false;
}

bool CFile::OpenFile(const std::string& paramfile, const Value& parammode)
{
    ClearError();
    m_fileName = paramfile;
    const std::int16_t mode = ModeOf(parammode);
    m_fileMode = std::to_string(mode);
    const auto open = [&] {
        const std::int32_t number = AcquireFileNumber();
        if (number != 0) {
            OpenUnder(number, static_cast<linefile::Mode>(mode));
        }
        return number != 0;
    };
    return Succeeds(open, [&](const Failure& reason) { Fail(kOpening, reason); });
}

std::int32_t CFile::AcquireFileNumber()
{
    const std::int32_t number = linefile::FreeNumber();
    if (number == 0) {
        m_errorNumber = fileerror::NotOpen;
    }
    return number;
}

void CFile::OpenUnder(std::int32_t number, linefile::Mode mode)
{
    linefile::Open(number, NativePath(m_fileName).string(), mode);
    const std::int32_t earlierNumber = std::exchange(m_fileNumber, number);
    if (std::exchange(m_fileOpen, true)) {
        linefile::Close(earlierNumber);
    }
}

bool CFile::CloseFile()
{
    ClearError();
    // The file counts as closed also when closing fails: from now on the number may be another file's.
    const bool wasOpen = std::exchange(m_fileOpen, false);
    return Succeeds([&] { linefile::Close(wasOpen ? m_fileNumber : kNoNumber); }, [&](const Failure& reason) { Fail(kClosing, reason); });
}

std::string CFile::ReadLine()
{
    ClearError();
    if (!ReadyToRead()) {
        return {};
    }
    std::string line;
    const auto read = [&] {
        const bool atEnd = linefile::AtEnd(m_fileNumber);
        line = atEnd ? "EOF" : linefile::ReadItem(m_fileNumber);
        m_endOfFile = m_endOfFile || atEnd;
    };
    Succeeds(read, [&](const Failure& reason) { Fail(kOpening, reason); });
    return line;
}

bool CFile::WriteDateTime()
{
    WriteText(GeneralText(m_clock.Now()));
    return false;
}

bool CFile::WriteHeader(const std::string& thisheader)
{
    return WriteText("\r\n[" + thisheader + "]");
}

bool CFile::WriteLine(const std::string& buffer, const std::string& notes, bool lineStatus)
{
    return WriteText(lineStatus ? buffer + notes : buffer);
}

bool CFile::WriteText(std::string text)
{
    ClearError();
    if (!ReadyToWrite()) {
        return false;
    }
    return Succeeds([&] { linefile::Write(m_fileNumber, text.append("\r\n")); }, [&](const Failure& reason) { Fail(kOpening, reason); });
}

bool CFile::ReadyToRead()
{
    if (!m_fileOpen) {
        return Refuse(fileerror::NotOpen, kNotOpenToRead);
    }
    return m_fileMode == kReadMode || Refuse(fileerror::WriteOnly, kWriteOnly);
}

bool CFile::ReadyToWrite()
{
    if (!m_fileOpen) {
        return Refuse(fileerror::NotOpen, kNotOpenToWrite);
    }
    return m_fileMode != kReadMode || Refuse(fileerror::ReadOnly, kReadOnly);
}

bool CFile::ClearError()
{
    m_errorNumber = 0;
    m_errorDescription.clear();
    return true;
}

bool CFile::Refuse(std::int32_t errorNumber, const char* description)
{
    m_errorNumber = errorNumber;
    m_errorDescription = description;
    return false;
}

void CFile::Fail(const char* opening, const Failure& failure)
{
    m_errorNumber = failure.Number();
    m_errorDescription = fmt::format("{}\r\n\r\nError Number: {}\r\nError: {}", opening, failure.Number(), failure.Description());
}

} // namespace ptk
