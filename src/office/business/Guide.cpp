#include "office/business/Guide.h"

#include "platform/files/FileDraft.h"
#include "platform/files/FileSteps.h"
#include "platform/files/ProgramFolder.h"
#include "platform/files/SystemFile.h"

#include <array>
#include <fcntl.h>
#include <fmt/format.h>

namespace ptk {

namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path)
{
    SystemFile file = OpenRegularFile(path, O_RDONLY);
    std::string bytes;
    std::array<char, 65536> portion{};
    for (std::size_t read = 0; (read = file.Read(portion.data(), portion.size())) > 0;) {
        bytes.append(portion.data(), read);
    }
    return bytes;
}

// FNV-1a. It shows whether somebody edited the text; it does not have to resist anybody.
std::string MarkOf(const std::string& bytes)
{
    std::uint64_t hash = 14695981039346656037U;
    for (const char byte : bytes) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211U;
    }
    return fmt::format("{:016x}\n", hash);
}

bool IsChanged(const fs::path& present, const fs::path& mark, const std::string& shipped)
{
    const std::string bytes = BytesOf(present);
    return bytes != shipped && (!IsThere(mark.string()) || BytesOf(mark) != MarkOf(bytes));
}

} // namespace

void RenewGuide(const std::string& programFolder, const fs::path& installed)
{
    for (const char* form : {kGuideDocument, kGuidePage}) {
        const fs::path present = NativePath(programFolder + form);
        const fs::path source = installed / present.filename();
        if (!IsThere(source.string())) {
            continue;
        }
        const fs::path mark = present.parent_path() / ("." + present.filename().string() + ".shipped");
        const std::string shipped = BytesOf(source);
        if (!IsThere(present.string()) || !IsChanged(present, mark, shipped)) {
            PutFile(present.string(), shipped);
            PutFile(mark.string(), MarkOf(shipped));
        }
    }
}

} // namespace ptk
