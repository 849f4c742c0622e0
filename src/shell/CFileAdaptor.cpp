#include "shell/CFileAdaptor.h"

#include "platform/files/FileDraft.h"
#include "platform/files/ProgramFolder.h"
#include "platform/Succeeds.h"
#include "platform/text/Value.h"
#include "shell/CFile.h"

namespace ptk {

namespace {

constexpr std::int32_t kToRead = 0;
constexpr const char* kLineEnd = "\r\n";

const Failure kNone(0, "", "");

} // namespace

CFileAdaptor::CFileAdaptor(const std::string& programFolder) : m_fileName(programFolder + kConfigurationFile), m_lastFailure(kNone) {}

std::int16_t CFileAdaptor::FileLineCount() const
{
    return NarrowToInt16(m_lines.Count());
}

bool CFileAdaptor::ReadFile(const std::string& thefilename)
{
    return Succeeds([&] {
        if (thefilename.empty()) {
            return false;
        }
        m_fileName = thefilename;
        CFile file;
        m_lastFailure = kNone;
        if (file.OpenFile(thefilename, kToRead)) {
            ReadLines(file);
        } else {
            m_lastFailure = Failure(file.ErrorNumber());
        }
        return true;
    });
}

// Inserts what is read. The position counts dropped lines, too, which ends the reading of a file whose device keeps failing: at the
// 32,768th item.
void CFileAdaptor::ReadLines(CFile& file)
{
    std::int16_t position = 1;
    while (!file.EndOfFile()) {
        const std::string line = file.ReadLine();
        if (line != "EOF") {
            m_lines.Insert(line, position);
        }
        position = NarrowToInt16(position + 1);
    }
    file.CloseFile();
}

bool CFileAdaptor::WriteFile(const std::string& thefilename)
{
    return Succeeds([&] {
        if (thefilename.empty()) {
            return false;
        }
        m_fileName = thefilename;
        Put(Bytes());
        return true;
    });
}

std::string CFileAdaptor::Bytes()
{
    std::string bytes;
    const std::int16_t count = FileLineCount();
    for (std::int32_t position = 1; position <= count; ++position) {
        bytes += m_lines.Item(position) + kLineEnd;
    }
    return bytes;
}

void CFileAdaptor::Put(const std::string& bytes)
{
    m_lastFailure = kNone;
    Succeeds([&] { PutFile(NativePath(m_fileName).string(), bytes); }, [&](const Failure& reason) { m_lastFailure = reason; });
}

bool CFileAdaptor::AddLine(const std::string& buffer)
{
    return Succeeds([&] { return Insert(buffer, m_lines.Count()); });
}

bool CFileAdaptor::InsertLine(const std::string& buffer, std::int16_t index)
{
    return Succeeds([&] { return Insert(buffer, index); });
}

bool CFileAdaptor::Insert(const std::string& buffer, std::int32_t index)
{
    m_lines.Insert(buffer, index);
    return m_lines.ErrorNumber() == 0;
}

bool CFileAdaptor::RemoveLine(std::int16_t index)
{
    return Succeeds([&] {
        m_lines.Remove(index);
        return m_lines.ErrorNumber() == 0;
    });
}

std::string CFileAdaptor::GetLine(std::int16_t index)
{
    std::string line;
    const bool read = Succeeds([&] {
        line = m_lines.Item(index);
        ParseHeader(line);
        ParseKeyString(line);
        ParseKeyValue(line);
    });
    return read ? line : std::string();
}

std::int16_t CFileAdaptor::FindLine(const std::string& thekeystring)
{
    const std::int16_t count = FileLineCount();
    for (std::int32_t position = 1; position <= count; ++position) {
        if (m_lines.Item(position).find(thekeystring) != std::string::npos) {
            return NarrowToInt16(position);
        }
    }
    return -1;
}

bool CFileAdaptor::ReplaceLine(const std::string& thekeystring, const std::string& thekeyvalue)
{
    const std::int16_t index = FindLine(thekeystring);
    if (index < 1 || !RemoveLine(index)) {
        return false;
    }
    return InsertLine(thekeystring + "=" + thekeyvalue, index);
}

std::string CFileAdaptor::FindKeyValue(const std::string& thekeystring)
{
    const std::int16_t count = FileLineCount();
    for (std::int32_t position = 1; position <= count; ++position) {
        GetLine(NarrowToInt16(position));
        if (m_keyString == thekeystring) {
            return m_keyValue;
        }
    }
    return {};
}

void CFileAdaptor::ParseHeader(std::string_view line)
{
    m_header.clear();
    if (line.starts_with('[') && line.ends_with(']')) {
        m_header = line.substr(1, line.size() - 2);
    }
}

void CFileAdaptor::ParseKeyString(std::string_view line)
{
    const std::size_t equals = line.find('=');
    m_keyString = equals == std::string_view::npos ? std::string_view() : line.substr(0, equals);
}

void CFileAdaptor::ParseKeyValue(std::string_view line)
{
    const std::size_t equals = line.find('=');
    m_keyValue = equals == std::string_view::npos ? std::string_view() : line.substr(equals + 1);
}

} // namespace ptk
