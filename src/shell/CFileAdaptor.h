// The configuration file in memory: every line as it stands, found and replaced by key.
#pragma once

#include "platform/Failure.h"
#include "shell/CStringList.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ptk {

class CFile;

// Lines are "[header]", "key=value" (split at the first "=", nothing trimmed, letter case counts) or anything else, kept as it is. Headers
// do not scope keys. Positions are 1-based and 16-bit; more lines than that hold raise Failure 6 inside. Caught failures answer false or
// ""; FileLineCount, FindLine, ReplaceLine and FindKeyValue let them through.
class CFileAdaptor
{
public:
    explicit CFileAdaptor(const std::string& programFolder);

    // First <program folder>\system\ptk_11.cfg, then the last one read or written.
    [[nodiscard]] std::string FileName() const { return m_fileName; }

    [[nodiscard]] std::int16_t FileLineCount() const;
    void Header(std::string value) { m_header = std::move(value); }

    // Header, KeyString, KeyValue: parsed from the line that GetLine last fetched.
    [[nodiscard]] std::string Header() const { return m_header; }

    void KeyString(std::string value) { m_keyString = std::move(value); }
    [[nodiscard]] std::string KeyString() const { return m_keyString; }
    void KeyValue(std::string value) { m_keyValue = std::move(value); }
    [[nodiscard]] std::string KeyValue() const { return m_keyValue; }

    // Puts the file's lines in front of those already held; a line is what one CFile::ReadLine gives, so a comma splits it, and a line
    // "EOF" is dropped. True also when the file could not be opened: a missing file reads as an empty configuration.
    bool ReadFile(const std::string& thefilename);
    bool PrintFile() { return false; }

    // Replaces the file by the lines held, at once and whole, or not at all; a file that holds just these is left alone. True also when it
    // could not be written.
    bool WriteFile(const std::string& thefilename);

    // What the two answers above do not tell: why the last ReadFile could not open its file, or the last WriteFile not write it. Number 0
    // when it did.
    [[nodiscard]] const Failure& LastFailure() const { return m_lastFailure; }

    // Deliberately before the present last line, not after it.
    bool AddLine(const std::string& buffer);

    // "" outside 1 to the count; parses the line.
    std::string GetLine(std::int16_t index);

    // The first line that contains the text anywhere, or -1.
    std::int16_t FindLine(const std::string& thekeystring);

    bool InsertLine(const std::string& buffer, std::int16_t index);

    // Replaces the line that FindLine finds (not the one that FindKeyValue reads: the two tests differ on purpose). Adds nothing when there
    // is none.
    bool ReplaceLine(const std::string& thekeystring, const std::string& thekeyvalue);
    bool RemoveLine(std::int16_t index);

    // Of the first line with exactly that key, or "".
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
