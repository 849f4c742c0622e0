// Texts of a database file as UTF-8.
#pragma once

#include <span>
#include <string>

namespace jet {

struct DecodedText
{
    std::string utf8;
    bool exact = true; // false where characters could not be read and a mark stands for them
};

// Jet 3 stores one or two bytes a character by a code page, Jet 4 UTF-16, shortened where a text begins with FF FE.
class TextDecoder
{
public:
    static constexpr int kUtf16 = 1200; // stands for Jet 4

    // Unknown code pages are read as 1252, the western one.
    explicit TextDecoder(int codePage);
    ~TextDecoder();
    TextDecoder(const TextDecoder&) = delete;
    TextDecoder& operator=(const TextDecoder&) = delete;

    [[nodiscard]] DecodedText Decode(std::span<const unsigned char> bytes) const;

private:
    [[nodiscard]] DecodedText FromCodePage(std::span<const unsigned char> bytes) const;

    void* m_converter = nullptr; // of iconv; nullptr for UTF-16
};

// The name by which conversions know a code page; nullptr for an unknown one.
[[nodiscard]] const char* NameOfCodePage(int codePage);

} // namespace jet
