#include "reports/forms/PageLayout.h"

#include "platform/text/Text.h"
#include "reports/forms/ReportDocument.h"

#include <algorithm>
#include <fmt/format.h>
#include <sstream>
#include <string_view>
#include <utility>

namespace ptk {

namespace {

constexpr Paper kLetter{612, 792};
constexpr Paper kA4{595.276, 841.89};

constexpr auto kPrinted = "Printed {}";
constexpr auto kPageOf = "Page {} of {}";

constexpr std::size_t kBelowTitle = 2;  // the title's rule and an empty line
constexpr std::size_t kHeadingRows = 2; // the heading and an empty line below it
constexpr std::size_t kFootRows = 2;    // the foot and an empty line above it
constexpr std::size_t kShortestRule = 20;

using Line = std::vector<TextPiece>;

// A group with its lines as the paper breaks them.
struct Block
{
    std::vector<std::pair<LineStyle, Line>> lines{};
    bool atFoot = false;
    bool underHeading = false;

    // The rows that the group needs: the empty lines at its end need none.
    [[nodiscard]] std::size_t Rows() const
    {
        const auto last = std::find_if(lines.rbegin(), lines.rend(), [](const auto& line) { return !IsEmpty(line); });
        return static_cast<std::size_t>(lines.rend() - last);
    }

    static bool IsEmpty(const std::pair<LineStyle, Line>& line) { return line.first != LineStyle::Rule && line.second.empty(); }
};

bool IsRule(std::string_view text)
{
    return text.size() >= kShortestRule && text.find_first_not_of('-') == std::string_view::npos;
}

// The document's lines, split at the line ends inside them.
std::vector<std::string_view> SingleLines(const ReportDocument& document)
{
    std::vector<std::string_view> lines;
    for (const ReportLine& line : document.lines) {
        std::string_view rest = line.text;
        for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
            lines.push_back(rest.substr(0, end > 0 && rest[end - 1] == '\r' ? end - 1 : end));
            rest.remove_prefix(end + 1);
        }
        lines.push_back(rest);
    }
    return lines;
}

// The number of lines at the document's beginning that every page has at its head instead.
std::size_t LinesOfTitle(const ReportDocument& document)
{
    const bool begins = document.lines.size() > 1 && document.lines[0].text == document.title && IsRule(document.lines[1].text);
    return begins ? CountLines(document.title) + 1 : 0;
}

void AddLine(Block& block, std::string_view text, std::size_t columns)
{
    if (IsRule(text)) {
        block.lines.push_back({LineStyle::Rule, {}});
        return;
    }
    for (Line& line : PiecesOf(text, columns)) {
        block.lines.push_back({LineStyle::Plain, std::move(line)});
    }
}

std::vector<Block> BlocksOf(const ReportDocument& document, std::size_t columns)
{
    const std::vector<std::string_view> lines = SingleLines(document);
    const std::size_t first = LinesOfTitle(document);
    std::vector<Block> blocks;
    std::size_t at = 0;
    for (const LineGroup& group : document.groups) {
        Block& block = blocks.emplace_back();
        block.atFoot = group.atFoot;
        block.underHeading = group.underHeading;
        for (const std::size_t end = std::min(at + group.lines, lines.size()); at < end; ++at) {
            if (at >= first) {
                AddLine(block, lines[at], columns);
            }
        }
    }
    return blocks;
}

class PageMaker
{
public:
    PageMaker(const ReportDocument& document, const Paper& paper);
    void Place(const Block& block, const Block* next);
    std::vector<Page> Finish(DateTime printed);

private:
    [[nodiscard]] bool Fits(std::size_t rows) const { return m_row + rows <= m_end; }
    [[nodiscard]] bool AtTop() const { return m_row == m_top; }
    void NextPage(bool underHeading);
    void PlaceLine(const std::pair<LineStyle, Line>& line);
    void AddFoot(Page& page, const std::string& left, const std::string& right) const;

    const Paper& m_paper;
    std::vector<Line> m_title;
    Line m_heading;
    std::size_t m_top; // the first row below the head; what lies between head and foot ends above m_end
    std::size_t m_end;
    std::size_t m_row = 0;
    std::vector<Page> m_pages;
};

PageMaker::PageMaker(const ReportDocument& document, const Paper& paper) : m_paper(paper)
{
    m_title = PiecesOf(HeadOf(document), paper.Columns());
    m_heading = PiecesOf(document.heading, paper.Columns()).front();
    m_end = paper.Rows() - kFootRows;
    m_title.resize(std::min(m_title.size(), m_end / 2)); // a very long name must not fill the page
    m_top = m_title.size() + kBelowTitle;
    NextPage(false);
}

void PageMaker::NextPage(bool underHeading)
{
    Page& page = m_pages.emplace_back();
    for (const Line& line : m_title) {
        page.push_back({page.size(), LineStyle::Bold, line});
    }
    page.push_back({m_title.size(), LineStyle::Rule});
    m_row = m_top;
    if (underHeading && !m_heading.empty()) {
        page.push_back({m_row, LineStyle::Plain, m_heading});
        m_row += kHeadingRows;
    }
}

void PageMaker::Place(const Block& block, const Block* next)
{
    const bool signs = next != nullptr && next->atFoot;
    const std::size_t alone = block.Rows();
    const std::size_t joint = signs ? block.lines.size() + next->Rows() : alone;
    const std::size_t page = m_end - m_top - (block.underHeading ? kHeadingRows : 0);
    const std::size_t needed = joint <= page ? joint : alone;
    if (!AtTop() && !Fits(needed) && needed <= page) {
        NextPage(block.underHeading);
    }
    if (block.atFoot && Fits(alone)) {
        m_row = m_end - alone;
    }
    for (std::size_t i = 0; i < block.lines.size(); ++i) {
        if (!Fits(1) && i < alone) {
            NextPage(block.underHeading);
        }
        PlaceLine(block.lines[i]);
    }
}

void PageMaker::PlaceLine(const std::pair<LineStyle, Line>& line)
{
    const bool empty = Block::IsEmpty(line);
    if (!Fits(1) || (empty && AtTop())) {
        return;
    }
    if (!empty) {
        m_pages.back().push_back({m_row, line.first, line.second});
    }
    ++m_row;
}

std::vector<Page> PageMaker::Finish(DateTime printed)
{
    const std::string day = fmt::format(kPrinted, ShortDateText(printed));
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        AddFoot(m_pages[i], day, fmt::format(kPageOf, i + 1, m_pages.size()));
    }
    return std::move(m_pages);
}

void PageMaker::AddFoot(Page& page, const std::string& left, const std::string& right) const
{
    const std::size_t columns = m_paper.Columns();
    const std::size_t start = columns - right.size();
    page.push_back({m_paper.Rows() - 1, LineStyle::Plain, {{0, start, left}, {start, right.size(), right}}});
}

} // namespace

Paper PaperOf(PaperSize size)
{
    return size == PaperSize::A4 ? kA4 : kLetter;
}

Paper PaperFor(std::size_t columns, PaperSize size)
{
    constexpr double kSmallest = 2.0 / 3;
    Paper paper = PaperOf(size);
    if (columns > paper.Columns()) {
        const double scale = std::max(kSmallest, static_cast<double>(paper.Columns()) / static_cast<double>(columns));
        paper.characterWidth *= scale;
        paper.lineHeight *= scale;
    }
    return paper;
}

std::string HeadOf(const ReportDocument& document)
{
    std::istringstream words(document.title);
    std::string head;
    for (std::string word; words >> word;) {
        head += (head.empty() ? "" : " ") + word;
    }
    return head;
}

std::vector<Page> LayOut(const ReportDocument& document, const Paper& paper, DateTime printed)
{
    const std::vector<Block> blocks = BlocksOf(document, paper.Columns());
    PageMaker pages(document, paper);
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        pages.Place(blocks[i], i + 1 < blocks.size() ? &blocks[i + 1] : nullptr);
    }
    return pages.Finish(printed);
}

} // namespace ptk
