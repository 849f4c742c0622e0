#include "platform/system/SystemPaper.h"

#include "platform/text/Characters.h"
#include "platform/text/Text.h"

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <langinfo.h>
#include <locale.h>
#include <optional>
#include <string>

namespace ptk {

namespace {

constexpr const char* kSystemFile = "/etc/papersize";
constexpr std::intptr_t kLetterWidth = 216; // millimetres, as locales have it
constexpr std::intptr_t kA4Width = 210;

std::string Variable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::optional<PaperSize> Named(const std::string& name)
{
    const std::string known = LowerCase(Trimmed(name));
    if (known == "letter") {
        return PaperSize::Letter;
    }
    return known == "a4" ? std::optional(PaperSize::A4) : std::nullopt;
}

// The size in the file's first line that is neither empty nor a comment.
std::optional<PaperSize> NamedIn(const std::string& path)
{
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        const std::string name(Trimmed(line.substr(0, line.find('#'))));
        if (!name.empty()) {
            return Named(name);
        }
    }
    return std::nullopt;
}

// The locale that decides about paper, empty when none is set.
std::string LocaleName()
{
    for (const char* name : {"LC_ALL", "LC_PAPER", "LANG"}) {
        if (std::string value = Variable(name); !value.empty()) {
            return value;
        }
    }
    return "";
}

// The size of the locale. The plain locale has a width as well, but nobody chose it, so it says nothing.
std::optional<PaperSize> OfLocale()
{
    const std::string name = LocaleName();
    if (name.empty() || name == "POSIX" || name == "C" || name.starts_with("C.")) {
        return std::nullopt;
    }
    const locale_t locale = ::newlocale(LC_PAPER_MASK, name.c_str(), nullptr);
    if (locale == nullptr) {
        return std::nullopt;
    }
    const auto width = reinterpret_cast<std::intptr_t>(::nl_langinfo_l(_NL_PAPER_WIDTH, locale)); // a number by this name, not a text
    ::freelocale(locale);
    if (width == kLetterWidth) {
        return PaperSize::Letter;
    }
    return width == kA4Width ? std::optional(PaperSize::A4) : std::nullopt;
}

} // namespace

PaperSize SystemPaper()
{
    std::optional<PaperSize> paper = Named(Variable("PAPERSIZE"));
    for (const std::string& file : {Variable("PAPERCONF"), std::string(kSystemFile)}) {
        paper = paper || file.empty() ? paper : NamedIn(file);
    }
    paper = paper ? paper : OfLocale();
    return paper.value_or(PaperSize::Letter);
}

} // namespace ptk
