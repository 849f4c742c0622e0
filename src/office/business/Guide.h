// The user's guide in a program folder, in two forms: as a document, and as a page for a computer on which nothing opens the document.
#pragma once

#include <filesystem>
#include <string>

namespace ptk {

// Paths below the program folder.
inline constexpr const char* kGuideDocument = R"(\documentation\PTKAdminUserGuide.doc)";
inline constexpr const char* kGuidePage = R"(\documentation\PTKAdminUserGuide.html)";

inline constexpr const char* kInstalledGuide = "doc/ptk-admin"; // the package's own folder of guides, for InstalledFile

// Copies both forms from the installed package, if the folder lacks one or still has the one of an earlier package. A form that somebody
// changed stays; a hidden file beside it tells whether it was changed. Does nothing if no package is installed. Raises what reading and
// writing files raises. REQUIRES: the program folder has its folder for documentation.
void RenewGuide(const std::string& programFolder, const std::filesystem::path& installed);

} // namespace ptk
