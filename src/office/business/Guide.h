// The user's guide in a program folder, in two forms: as a document, and as a page for a computer on which nothing opens the document.
#pragma once

#include <filesystem>
#include <string>

namespace ptk {

// Below the program folder.
inline constexpr const char* kGuideDocument = R"(\documentation\PTKAdminUserGuide.doc)";
inline constexpr const char* kGuidePage = R"(\documentation\PTKAdminUserGuide.html)";

inline constexpr const char* kInstalledGuide = "doc/ptk-admin"; // the folder of the package's own, for InstalledFile

// Brings both forms along from the installed package, where the folder lacks one or still has what an earlier package brought. A form that
// somebody changed stays, which a hidden file beside it tells. Nothing where no package is installed. Raises what reading and writing files
// raises. REQUIRES: the folder has its folder for documentation.
void RenewGuide(const std::string& programFolder, const std::filesystem::path& installed);

} // namespace ptk
