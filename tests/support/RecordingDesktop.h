// A desktop that shows nothing. It keeps what it was to show and answers as the test has set it up.
#pragma once

#include "platform/Failure.h"
#include "platform/system/Desktop.h"

#include <deque>
#include <string>
#include <utility>
#include <vector>

namespace ptk {

struct ShownBox
{
    std::string text;
    std::string title;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;

    bool operator==(const ShownBox&) const = default;
};

struct ShellRequest
{
    ShellVerb verb = ShellVerb::Open;
    std::string path;

    bool operator==(const ShellRequest&) const = default;
};

class RecordingDesktop : public Desktop
{
public:
    std::vector<ShownBox> boxes;
    std::vector<ShellRequest> requests;
    Pointer pointer = Pointer::Default;  // the shape set last
    std::deque<Answer> answers;          // to the next boxes that ask; once none is left: No
    std::deque<std::int32_t> shellCodes; // for the next shell requests; once none is left, documents are taken over
    std::string reason;                  // is typed into every box with a line for a reason
    std::vector<ReasonLine> reasons;     // the lines for a reason as they were offered
    std::string refusal;                 // why a document was not taken over

    Answer MessageBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) override
    {
        boxes.push_back({text, title, icon, buttons});
        if (buttons == Buttons::Ok) {
            return Answer::Ok;
        }
        if (answers.empty()) {
            return Answer::No;
        }
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    Answer AskWithReason(const std::string& text, const std::string& title, Icon icon, Buttons buttons, ReasonLine& line) override
    {
        reasons.push_back(line);
        line.reason = reason;
        return MessageBox(text, title, icon, buttons);
    }

    void SetPointer(Pointer shape) override { pointer = shape; }

    std::int32_t Shell(const DesktopWindow&, ShellVerb verb, const std::string& path) override
    {
        requests.push_back({verb, path});
        if (shellCodes.empty()) {
            return ShellSuccess + 1;
        }
        const std::int32_t code = shellCodes.front();
        shellCodes.pop_front();
        return code;
    }

    [[nodiscard]] std::string Refusal() const override { return refusal; }

    // The boxes since the last call.
    std::vector<ShownBox> Take() { return std::exchange(boxes, {}); }
};

} // namespace ptk
