// One text file, read item by item or written line by line, with error numbers instead of raised failures.
#pragma once

#include "platform/ErrorNumbers.h"
#include "platform/LineFile.h"
#include "platform/Value.h"

#include <cstdint>
#include <string>

namespace ptk {

class Failure;
class Clock;

// Modes: 0 reads an existing file, 1 creates or truncates for writing, 2 writes on at the end (created if missing). Each written line lands
// at what is then the end of the file. What is no regular file is not opened (75); what is created is for its owner only.
// Every operation but GetTempFile clears the error first. The destructor closes an open file.
class CFile
{
public:
    CFile();                            // tells the time by the system's clock
    explicit CFile(const Clock& clock); // must outlive the file
    ~CFile();
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;

    std::string FileName() const { return m_fileName; } // as given, not the platform's own form
    std::string FileMode() const { return m_fileMode; } // "0", "1" or "2"; "" before the first OpenFile
    bool FileOpen() const { return m_fileOpen; }
    std::int32_t FileNumber() const { return m_fileNumber; }
    std::string TempFile() const { return {}; }    // there are no temporary files
    bool EndOfFile() const { return m_endOfFile; } // once true it stays true, also for the next file opened
    std::int32_t ErrorNumber() const { return m_errorNumber; }
    std::string ErrorDescription() const { return m_errorDescription; }

    bool GetTempFile(std::string& parampath); // deliberately does nothing and answers false

    // A mode that is missing, not numeric or outside 0 to 2 reads. Another file that this object still has open is closed once this one is
    // open.
    bool OpenFile(const std::string& paramfile, const Value& parammode = {});
    bool CloseFile(); // false when the system could not keep what was written; the file is closed all the same

    // The next item: up to a comma or the line's end, quotes removed. At the end of the file "EOF" and EndOfFile; "" after an error.
    std::string ReadLine();

    // Each is on its way to the disk when it answers: a full disk is told by the write that meets it. Lines end with CR LF.
    bool WriteDateTime();                            // the general date-time text; deliberately false even when it was written
    bool WriteHeader(const std::string& thisheader); // an empty line, then the header in brackets
    bool WriteLine(const std::string& buffer, const std::string& notes = {},
                   bool lineStatus = false); // `notes` only when lineStatus is true

private:
    bool ClearError(); // always true
    std::int32_t AcquireFileNumber();
    void OpenUnder(std::int32_t number, linefile::Mode mode);
    bool WriteText(std::string text);
    bool ReadyToRead();
    bool ReadyToWrite();
    bool Refuse(std::int32_t errorNumber, const char* description); // always false
    void Fail(const char* opening, const Failure& failure);

    const Clock& m_clock;
    std::string m_fileName = "C:\\default.txt";
    std::string m_fileMode;
    bool m_fileOpen = false;
    std::int32_t m_fileNumber = 0;
    bool m_endOfFile = false;
    std::int32_t m_errorNumber = 0;
    std::string m_errorDescription;
};

} // namespace ptk
