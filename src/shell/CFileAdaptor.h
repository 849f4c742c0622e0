// The configuration file in memory: every line unchanged, found and replaced by key.
#pragma once

#include "platform/Failure.h"
#include "shell/CStringList.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ptk {

class CFile;

// A line is "[header]", "key=value" (split at the first "=", nothing trimmed, letter case counts) or anything else, kept unchanged. Keys do
// not belong to headers. Positions are 1-based and 16-bit; more lines than that raise Failure 6 inside. FileLineCount, FindLine,
// ReplaceLine and FindKeyValue let failures through; all others catch them and answer false or "".
class CFileAdaptor
{
public:
    explicit CFileAdaptor(const std::string& programFolder);

    // The file that was read or written last; before that, <program folder>\system\ptk_11.cfg.
    [[nodiscard]] std::string FileName() const { return m_fileName; }

    [[nodiscard]] std::int16_t FileLineCount() const;
    void Header(std::string value) { m_header = std::move(value); }

    // The header of the line that GetLine fetched last; KeyString and KeyValue are its key and value.
    [[nodiscard]] std::string Header() const { return m_header; }

    void KeyString(std::string value) { m_keyString = std::move(value); }
    [[nodiscard]] std::string KeyString() const { return m_keyString; }
    void KeyValue(std::string value) { m_keyValue = std::move(value); }
    [[nodiscard]] std::string KeyValue() const { return m_keyValue; }

    // Puts the file's lines in front of those already held. A line is what one CFile::ReadLine gives, so a comma splits it; a line "EOF" is
    // dropped. True also when the file could not be opened: a missing file reads as an empty configuration.
    bool ReadFile(const std::string& thefilename);
    bool PrintFile() { return false; }

    // Replaces the file by the lines held, at once and whole, or not at all; a file that holds just these lines is left alone. True also
    // when it could not be written.
    bool WriteFile(const std::string& thefilename);

    // Why the last ReadFile could not open its file, or the last WriteFile not write it, though they answered true. Number 0 when they
    // could.
    [[nodiscard]] const Failure& LastFailure() const { return m_lastFailure; }

    // Adds a line, deliberately before the present last line, not after it.
    bool AddLine(const std::string& buffer);

    // The line at a position, "" outside 1 to the count. It is taken apart for Header, KeyString and KeyValue.
    std::string GetLine(std::int16_t index);

    // The position of the first line that contains the text anywhere, or -1.
    std::int16_t FindLine(const std::string& thekeystring);

    bool InsertLine(const std::string& buffer, std::int16_t index);

    // Replaces the line that FindLine finds (not the one that FindKeyValue reads: the two tests differ on purpose). Adds nothing when there
    // is none.
    bool ReplaceLine(const std::string& thekeystring, const std::string& thekeyvalue);
    bool RemoveLine(std::int16_t index);

    // The value of the first line with exactly that key, or "".
    std::string FindKeyValue(const std::string& thekeystring);

private:
    void ReadLines(CFile& file);
    std::string Bytes();
    void Put(const std::string& bytes);
    bool Insert(const std::string& buffer, std::int32_t index);
    void ParseHeader(std::string_view line);
    void ParseKeyString(std::string_view line);
    void ParseKeyValue(std::string_view line);

    std::string m_fileName;
    CStringList m_lines;
    Failure m_lastFailure;
    std::string m_header;
    std::string m_keyString;
    std::string m_keyValue;
};

} // namespace ptk
