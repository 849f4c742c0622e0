// The interface between the programs and the module that draws pages (src/pages). The module is loaded only when pages are wanted: the
// libraries that it draws with take longer to load than a time card takes from the file to the terminal. It is plain data, since each side
// has its own C++ runtime, and no failure may be raised from one into the other.
#pragma once

#include <cstddef>

extern "C" {

// Lengths in points, from the upper left corner of the paper. Texts are UTF-8 without control characters.
struct PtkText
{
    double x;
    double y;     // the upper edge of the text's line
    double width; // the most that the text may take
    const char* text;
    int bold;
};

struct PtkRule
{
    double x;
    double y;
    double width;
};

struct PtkPage
{
    const PtkText* texts;
    std::size_t textCount;
    const PtkRule* rules;
    std::size_t ruleCount;
};

struct PtkPages
{
    double width;
    double height;
    double characterWidth; // the typeface's size is chosen so that its characters have this width
    double lineHeight;
    const char* title;
    const char* created; // YYYY-MM-DDTHH:MM:SS, by the wall clock
    const PtkPage* pages;
    std::size_t count;
};

// Takes the next bytes of the PDF file; 0 when it cannot. Raises nothing.
using PtkTakeBytes = int (*)(void* taker, const unsigned char* bytes, unsigned length);

// Draws the pages and hands over the bytes of their PDF file. Answers nullptr, or what went wrong, in a text that is never freed.
using PtkDrawPages = const char* (*)(const PtkPages* pages, PtkTakeBytes take, void* taker);

} // extern "C"

namespace ptk {

inline constexpr const char* kPageModule = "ptk-pages.so";
inline constexpr const char* kDrawPages = "ptk_draw_pages"; // the name of the module's PtkDrawPages

} // namespace ptk
