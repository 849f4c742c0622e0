#include "office/records/LeftBehind.h"

namespace ptk {

std::string LeavingQuestion(const std::vector<std::string>& unsaved)
{
    std::string question;
    for (const std::string& sentence : unsaved) {
        question += sentence + ".\n";
    }
    return question + "\nSave before leaving?";
}

} // namespace ptk
