#include "shell/CError.h"

#include "platform/system/Desktop.h"
#include "shell/Numeric.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr const char* kLineBreak = "\r\n";

// A box's style is one number: the buttons in its lowest four bits, the icon in the next four.
constexpr std::int16_t kButtonBits = 0x0F;
constexpr std::int16_t kIconBits = 0xF0;

std::int16_t Style(const Value& userValue, std::int16_t otherwise)
{
    return IsNumeric(userValue) ? userValue.ToInt16() : otherwise;
}

} // namespace

void CError::ErrorDescription(const std::string& thisDesc)
{
    m_description += thisDesc;
    if (m_description.empty()) {
        m_description = "No Error Description Available";
    }
}

void CError::ModuleName(std::string thisModule)
{
    m_moduleName = thisModule.empty() ? "No module name available" : std::move(thisModule);
}

std::int16_t CError::MessageBox(const Value& userIcon, const Value& userButtons)
{
    const std::int16_t icon = Style(userIcon, static_cast<std::int16_t>(Icon::Exclamation));
    const std::int16_t buttons = Style(userButtons, static_cast<std::int16_t>(Buttons::Ok));
    const std::string text = Text();
    m_desktop.SetPointer(Pointer::Default);
    const std::int16_t style = NarrowToInt16(std::int32_t{icon} + buttons);
    const Answer answer = m_desktop.MessageBox(text, fmt::format("Error Number: {}", ErrorNumber()), static_cast<Icon>(style & kIconBits),
                                               static_cast<Buttons>(style & kButtonBits));
    m_msgBoxRetVal = static_cast<std::int16_t>(answer);
    return m_msgBoxRetVal;
}

std::string CError::Text() const
{
    std::string text = "The following error ocurred in module " + m_moduleName;
    if (!ErrorSource().empty()) {
        text.append(kLineBreak).append("Error Source: ").append(ErrorSource());
    }
    text.append(kLineBreak).append(fmt::format("{}: {}", ErrorNumber(), m_description));
    if (!m_additionalDescription.empty()) {
        text.append(kLineBreak).append(m_additionalDescription);
    }
    return text;
}

} // namespace ptk
