// The program's only way to the user outside its own windows: message boxes, the pointer's shape, and documents handed to the desktop.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ptk {

enum class Icon : std::int16_t
{
    None = 0,
    Critical = 16,
    Question = 32,
    Exclamation = 48,
    Information = 64
};
enum class Buttons : std::int16_t
{
    Ok = 0,
    OkCancel = 1,
    SaveDiscardCancel = 3, // answered by Yes, No and Cancel
    YesNo = 4
};
enum class Answer : std::int16_t
{
    Ok = 1,
    Cancel = 2,
    Yes = 6,
    No = 7
};
enum class Pointer : std::int16_t
{
    Default = 0,
    Busy = 11
};
enum class ShellVerb
{
    Open,
    Print
};

// Return codes of the shell: anything above ShellSuccess is a success.
inline constexpr std::int32_t ShellFileNotFound = 2;
inline constexpr std::int32_t ShellNoProgram = 31;
inline constexpr std::int32_t ShellSuccess = 32;

// A window as the desktop knows it: the owner of a message box or of a shell request. A program without windows uses the plain one.
class DesktopWindow
{
public:
    virtual ~DesktopWindow() = default;
    [[nodiscard]] virtual std::uintptr_t WindowHandle() const { return 0; }
};

// A line below a question in which the user may give a reason; the reason is stored with what the answer causes.
struct ReasonLine
{
    std::vector<std::string> offered; // what can be chosen instead of typing
    bool wanted = false;              // typing begins in this line; it may stay empty all the same
    std::string reason;               // the text of the line, before and after the question
};

class Desktop
{
public:
    virtual ~Desktop() = default;

    // Shows a modal message box; returns the button pressed. Closing the box counts as Cancel or No where there is one, else as Ok.
    virtual Answer MessageBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) = 0;

    // Shows a message box with a line for a reason below the text. A desktop without windows does not ask for one.
    virtual Answer AskWithReason(const std::string& text, const std::string& title, Icon icon, Buttons buttons, ReasonLine& /*line*/)
    {
        return MessageBox(text, title, icon, buttons);
    }

    virtual void SetPointer(Pointer pointer) = 0;

    // Hands an existing document to the desktop's opener or to the print spooler and does not wait until that is done. `path` is in the
    // platform's own form. Returns more than ShellSuccess when it was taken over, else ShellFileNotFound, ShellNoProgram, or another code
    // up to it.
    virtual std::int32_t Shell(const DesktopWindow& owner, ShellVerb verb, const std::string& path) = 0;

    // Hands a document to the print spooler under a title that the print queue shows. Returns what Shell returns.
    virtual std::int32_t Print(const DesktopWindow& owner, const std::string& path, const std::string& /*title*/)
    {
        return Shell(owner, ShellVerb::Print, path);
    }

    // Why the last document was not taken over, in words; empty where only the code is known.
    [[nodiscard]] virtual std::string Refusal() const { return {}; }

    Answer Show(const std::string& text, const std::string& title, Icon icon) { return MessageBox(text, title, icon, Buttons::Ok); }
};

} // namespace ptk
