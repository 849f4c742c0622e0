// One text file, read item by item or written line by line, with error numbers instead of raised failures.
#pragma once

#include "platform/files/LineFile.h"
#include "platform/text/Value.h"
#include "shell/ShellErrors.h"

#include <cstdint>
#include <string>

namespace ptk {

class Failure;
class Clock;

// A text file. Modes: 0 reads an existing file, 1 creates or truncates it for writing, 2 writes on at the end (created if missing). Each
// written line lands at what is then the end of the file, ends with CR LF, and is on its way to the disk when the call returns: a full disk
// is told by the write that meets it. What is no regular file is not opened (75); a new file is for its owner only. Every operation but
// GetTempFile clears the error first. The destructor closes an open file.
class CFile
{
public:
    // Tells the time by the system's clock.
    CFile();

    // The clock must outlive the file.
    explicit CFile(const Clock& clock);

    ~CFile();
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;

    // The name as it was given, not in the platform's own form.
    [[nodiscard]] std::string FileName() const { return m_fileName; }

    // "0", "1" or "2"; "" before the first OpenFile.
    [[nodiscard]] std::string FileMode() const { return m_fileMode; }

    [[nodiscard]] bool FileOpen() const { return m_fileOpen; }
    [[nodiscard]] std::int32_t FileNumber() const { return m_fileNumber; }

    // Always empty: there are no temporary files.
    [[nodiscard]] std::string TempFile() const { return {}; }

    // Whether ReadLine came to the end of a file. Once true it stays true, also for the next file opened.
    [[nodiscard]] bool EndOfFile() const { return m_endOfFile; }

    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }
    [[nodiscard]] std::string ErrorDescription() const { return m_errorDescription; }

    // Deliberately does nothing and answers false.
    bool GetTempFile(std::string& parampath);

    // Opens a file. A mode that is missing, not numeric or outside 0 to 2 reads. A file that is still open is closed once the new one is
    // open.
    bool OpenFile(const std::string& paramfile, const Value& parammode = {});

    // Closes the file. False when the system could not keep what was written; the file is closed all the same.
    bool CloseFile();

    // Reads the next item: up to a comma or the line's end, quotes removed. "EOF" and EndOfFile at the end of the file; "" after an error.
    std::string ReadLine();

    // Writes the present moment as the general date-time text; deliberately answers false even when it was written.
    bool WriteDateTime();

    // Writes an empty line, then the header in brackets.
    bool WriteHeader(const std::string& thisheader);

    bool WriteLine(const std::string& buffer, const std::string& notes = {},
                   bool lineStatus = false); // `notes` only when lineStatus is true

private:
    // Always true.
    bool ClearError();

    std::int32_t AcquireFileNumber();
    void OpenUnder(std::int32_t number, linefile::Mode mode);
    bool WriteText(std::string text);
    bool ReadyToRead();
    bool ReadyToWrite();

    // Always false.
    bool Refuse(std::int32_t errorNumber, const char* description);

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
