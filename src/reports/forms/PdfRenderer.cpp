#include "reports/forms/PdfRenderer.h"

#include "platform/Failure.h"
#include "platform/system/Clock.h"
#include "platform/text/DayText.h"
#include "reports/forms/PageDrawing.h"
#include "reports/forms/PageLayout.h"
#include "reports/forms/ReportDocument.h"

#include <dlfcn.h>
#include <filesystem>
#include <fmt/format.h>
#include <iterator>
#include <utility>
#include <vector>

namespace ptk {

namespace {

constexpr auto kNoDrawing = "pages cannot be drawn: {}";
constexpr auto kTitleOfMany = "{}, and {} more";

constexpr auto kInstalledFolder = "../lib"; // relative to the programs, each of which has a folder of its name there

// The module lies beside a program that was only built, otherwise where the program is installed.
std::filesystem::path ModulePath()
{
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
    const std::filesystem::path folder = program.parent_path();
    std::error_code ignored;
    const bool isBeside = std::filesystem::exists(folder / kPageModule, ignored);
    return isBeside ? folder / kPageModule : folder / kInstalledFolder / program.filename() / kPageModule;
}

// The module stays loaded until the program ends: its libraries keep caches that the next document needs again.
PtkDrawPages LoadDrawing()
{
    void* module = ::dlopen(ModulePath().c_str(), RTLD_LAZY | RTLD_LOCAL);
    void* draw = module == nullptr ? nullptr : ::dlsym(module, kDrawPages);
    if (draw == nullptr) {
        throw Failure(failure::FileNotFound, "PTK", fmt::format(kNoDrawing, ::dlerror()));
    }
    return reinterpret_cast<PtkDrawPages>(draw);
}

// One page, ready to be drawn.
class Sheet
{
public:
    Sheet(const Page& page, const Paper& paper);
    [[nodiscard]] PtkPage Drawn() const { return {m_texts.data(), m_texts.size(), m_rules.data(), m_rules.size()}; }

private:
    std::vector<PtkText> m_texts;
    std::vector<PtkRule> m_rules;
};

Sheet::Sheet(const Page& page, const Paper& paper)
{
    for (const PlacedLine& line : page) {
        const double y = paper.margin + static_cast<double>(line.row) * paper.lineHeight;
        if (line.style == LineStyle::Rule) {
            m_rules.push_back({paper.margin, y + paper.lineHeight / 2, paper.width - 2 * paper.margin});
        }
        for (const TextPiece& piece : line.pieces) {
            m_texts.push_back({paper.margin + static_cast<double>(piece.column) * paper.characterWidth, y,
                               static_cast<double>(piece.room) * paper.characterWidth, piece.text.c_str(), line.style == LineStyle::Bold});
        }
    }
}

std::vector<Page> PagesOf(std::span<const ReportDocument> documents, const Paper& paper, DateTime printed)
{
    std::vector<Page> pages;
    for (const ReportDocument& document : documents) {
        std::vector<Page> own = LayOut(document, paper, printed);
        std::move(own.begin(), own.end(), std::back_inserter(pages));
    }
    return pages;
}

// The title for the file's properties, which must not hold control characters.
std::string TitleOf(std::span<const ReportDocument> documents)
{
    const std::string head = HeadOf(documents.front());
    const auto pieces = PiecesOf(head, 2 * head.size() + 1).front(); // wide enough that it stays one piece
    const std::string title = pieces.empty() ? "" : pieces.front().text;
    return documents.size() == 1 ? title : fmt::format(kTitleOfMany, title, documents.size() - 1);
}

int Take(void* taker, const unsigned char* bytes, unsigned length) noexcept
{
    try {
        static_cast<std::string*>(taker)->append(reinterpret_cast<const char*>(bytes), length);
        return 1;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

} // namespace

std::string PdfOf(std::span<const ReportDocument> documents, PaperSize size, DateTime now)
{
    const DateTime made = ReproducibleMoment().value_or(now);
    static const PtkDrawPages draw = LoadDrawing();
    const auto widest = std::max_element(documents.begin(), documents.end(), [](const ReportDocument& left, const ReportDocument& right) {
        return left.columns < right.columns;
    });
    const Paper paper = PaperFor(widest->columns, size);
    const std::vector<Page> pages = PagesOf(documents, paper, made);
    std::vector<Sheet> sheets;
    std::vector<PtkPage> drawn;
    sheets.reserve(pages.size());
    drawn.reserve(pages.size());
    for (const Page& page : pages) {
        drawn.push_back(sheets.emplace_back(page, paper).Drawn());
    }
    const std::string title = TitleOf(documents);
    const std::string moment = IsoMoment(made);
    const PtkPages job{paper.width,   paper.height,   paper.characterWidth, paper.lineHeight,
                       title.c_str(), moment.c_str(), drawn.data(),         drawn.size()};
    std::string bytes;
    if (const char* error = draw(&job, &Take, &bytes)) {
        throw Failure(failure::DeviceIoError, "PTK", fmt::format(kNoDrawing, error));
    }
    return bytes;
}

} // namespace ptk
