// Opens or prints a document through the desktop's shell.
#pragma once

#include "shell/ShellErrors.h"

#include <cstdint>
#include <string>

namespace ptk {

class Desktop;
class DesktopWindow;

// The title of the box about a document that is not where it should be: deliberately the guide's, which the reports have always shown too.
inline constexpr const char* kNotOpenedTitle = "User's Guide Open Error";

class CDocLauncher
{
public:
    explicit CDocLauncher(Desktop& desktop) : m_desktop(desktop) {}

    // Deliberately a read that sets: stores the path and answers "".
    std::string FileName(const std::string& thedocname);
    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

    // Open and print a document; raise nothing. False when the shell refused, `theparent` is nullptr or `thedocname` is empty.
    bool DisplayDocument(const DesktopWindow* theparent, const std::string& thedocname);
    bool PrintDocument(const DesktopWindow* theparent, const std::string& thedocname);

    // Prints a document under a title that the print queue shows. False in the same cases as PrintDocument without a title.
    bool PrintDocument(const DesktopWindow* theparent, const std::string& thedocname, const std::string& title);

private:
    template <typename Request>
    bool Launch(const DesktopWindow* theparent, const std::string& thedocname, Request request);

    // Always false.
    bool Refuse(std::int32_t errorNumber);

    Desktop& m_desktop;
    const DesktopWindow* m_parent = nullptr; // the last one given; not owned
    std::string m_fileName;
    std::int32_t m_errorNumber = 0;
};

} // namespace ptk
