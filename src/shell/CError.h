// The failure that is being handled when this is created, and the box that tells the user of it.
#pragma once

#include "platform/Failure.h"
#include "platform/text/Value.h"

#include <cstdint>
#include <string>

namespace ptk {

class Desktop;

// Made inside a catch block; outside one it holds zeros and empty texts.
class CError
{
public:
    explicit CError(Desktop& desktop) : m_desktop(desktop), m_failure(CurrentFailure()), m_description(m_failure.Description()) {}

    [[nodiscard]] std::int32_t ErrorNumber() const { return m_failure.Number(); }
    [[nodiscard]] std::string ErrorSource() const { return m_failure.Source(); }

    // Deliberately appends to the description; an empty text only gives an empty description its default.
    void ErrorDescription(const std::string& thisDesc);

    [[nodiscard]] std::string ErrorDescription() const { return m_description; }
    void AdditionalDescription(std::string thisDesc) { m_additionalDescription = std::move(thisDesc); }
    [[nodiscard]] std::string AdditionalDescription() const { return m_additionalDescription; }
    [[nodiscard]] std::int32_t HelpContext() const { return m_failure.HelpContext(); }
    [[nodiscard]] std::int32_t LastSystemError() const { return m_failure.LastSystemError(); }
    void ModuleName(std::string thisModule);
    [[nodiscard]] std::string ModuleName() const { return m_moduleName; }
    [[nodiscard]] std::int16_t MsgBoxRetVal() const { return m_msgBoxRetVal; }

    // Shows the box. The arguments are the values of Icon and Buttons; one that is missing or not numeric means an exclamation icon or OK.
    // Sets the pointer back to its default. Returns the Answer's value. Raises Failure 6 when an argument or the sum of both does not fit
    // 16 bits.
    std::int16_t MessageBox(const Value& userIcon = {}, const Value& userButtons = {});

    // Deliberately does nothing: the code that catches the failure writes the log.
    bool LogMessage() { return false; }

private:
    [[nodiscard]] std::string Text() const;

    Desktop& m_desktop;
    Failure m_failure;
    std::string m_description;
    std::string m_additionalDescription;
    std::string m_moduleName;
    std::int16_t m_msgBoxRetVal = 0;
};

} // namespace ptk
