// Makes small Jet 3 files (.mdb, code page 1252) for tests of the import: sound ones, and ones with rows that no database program would
// write.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <numeric>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace ptk {

class JetFileBuilder
{
public:
    enum class Type : std::uint8_t
    {
        Flag = 1,
        Short = 3,
        Long = 4,
        Single = 6,
        Double = 7,
        Date = 8,
        Text = 10
    };

    struct Column
    {
        const char* name;
        Type type;
    };

    // monostate is NULL. A number fits every numeric type; a date is a number of days since 30 December 1899; text is in code page 1252.
    using Cell = std::variant<std::monostate, double, std::string>;
    using Row = std::vector<Cell>;

    JetFileBuilder()
    {
        m_pages.resize(3); // the header, an unused page, the definition of the catalog
    }

    // `counted`: the number of rows that the table claims to hold, instead of the true one. REQUIRES: all rows are shorter than 256 bytes.
    void AddTable(const std::string& name, const std::vector<Column>& columns, const std::vector<Row>& rows,
                  std::optional<std::uint32_t> counted = {})
    {
        m_pages.emplace_back();
        const auto definition = static_cast<std::uint32_t>(m_pages.size() - 1);
        WriteTable(definition, columns, rows, counted.value_or(static_cast<std::uint32_t>(rows.size())));
        m_catalog.push_back({static_cast<double>(definition), name, 1.0, 0.0});
    }

    // Adds an object of the catalog that is no table. Type 5 is a stored query, whose parts are rows of the table MSysQueries.
    void AddObject(double id, const std::string& name, double type) { m_catalog.push_back({id, name, type, 0.0}); }

    // The bytes of the file.
    std::string Build()
    {
        WriteTable(2, {{"Id", Type::Long}, {"Name", Type::Text}, {"Type", Type::Short}, {"Flags", Type::Long}}, m_catalog,
                   static_cast<std::uint32_t>(m_catalog.size()));
        m_pages[0] = Header();
        std::string bytes;
        for (std::string& page : m_pages) {
            page.resize(kPage);
            bytes += page;
        }
        return bytes;
    }

private:
    static constexpr std::size_t kPage = 2048;

    static std::string Little(std::uint64_t number, std::size_t width)
    {
        std::string bytes;
        for (; width > 0; --width, number >>= 8U) {
            bytes += static_cast<char>(number & 0xFFU);
        }
        return bytes;
    }

    // The header page. From byte 24 on, 126 bytes are enciphered (RC4) with a key that is the same in all files.
    static std::string Header()
    {
        std::string page("\0\1\0\0Standard Jet DB\0\0", 21);
        page.resize(kPage);
        page.replace(0x3C, 2, Little(1252, 2));
        const std::uint8_t key[] = {0xC7, 0xDA, 0x39, 0x6B};
        std::uint8_t state[256];
        std::iota(std::begin(state), std::end(state), std::uint8_t{0});
        for (std::size_t i = 0, j = 0; i < 256; ++i) {
            j = (j + state[i] + key[i % 4]) % 256;
            std::swap(state[i], state[j]);
        }
        for (std::size_t i = 0, j = 0, n = 0; n < 126; ++n) {
            i = (i + 1) % 256;
            j = (j + state[i]) % 256;
            std::swap(state[i], state[j]);
            page[0x18 + n] = static_cast<char>(page[0x18 + n] ^ state[(state[i] + state[j]) % 256]);
        }
        return page;
    }

    static std::size_t WidthOf(Type type)
    {
        switch (type) {
        case Type::Short:
            return 2;
        case Type::Long:
        case Type::Single:
            return 4;
        case Type::Double:
        case Type::Date:
            return 8;
        default:
            return 0;
        }
    }

    static std::string Fixed(Type type, double number)
    {
        char bytes[8];
        if (type == Type::Single) {
            const auto single = static_cast<float>(number);
            std::memcpy(bytes, &single, sizeof single);
            return {bytes, sizeof single};
        }
        if (type == Type::Double || type == Type::Date) {
            std::memcpy(bytes, &number, sizeof number);
            return {bytes, sizeof number};
        }
        return Little(static_cast<std::uint64_t>(static_cast<std::int64_t>(number)), WidthOf(type));
    }

    // A row: the count of columns, the values of fixed width, the texts, where the last text ends and each begins, from the last to the
    // first, the count of texts, and a bit for each value that is there.
    static std::string RowBytes(const std::vector<Column>& columns, const Row& row)
    {
        std::string bytes(1, static_cast<char>(columns.size()));
        std::string there((columns.size() + 7) / 8, '\0');
        std::string texts;
        std::vector<std::size_t> starts;
        std::size_t fixedWidth = 0;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const auto* const number = std::get_if<double>(&row[i]);
            const auto* const text = std::get_if<std::string>(&row[i]);
            const bool isThere = columns[i].type == Type::Flag ? number != nullptr && *number != 0 : row[i].index() != 0;
            there[i / 8] = static_cast<char>(there[i / 8] | (isThere ? 1 << (i % 8) : 0));
            if (columns[i].type == Type::Text) {
                starts.push_back(texts.size());
                texts += text == nullptr ? "" : *text;
            } else {
                fixedWidth += WidthOf(columns[i].type);
                bytes += Fixed(columns[i].type, number == nullptr ? 0 : *number);
            }
        }
        bytes += texts + static_cast<char>(1 + fixedWidth + texts.size());
        std::reverse(starts.begin(), starts.end());
        for (const std::size_t start : starts) {
            bytes += static_cast<char>(1 + fixedWidth + start);
        }
        return bytes + static_cast<char>(starts.size()) + there;
    }

    // A page of rows. They lie at its end, the first row last.
    std::string DataPage(std::uint32_t table, const std::vector<std::string>& rows) const
    {
        std::string head = std::string("\1\1\0\0", 4) + Little(table, 4) + Little(rows.size(), 2);
        std::string tail;
        for (const std::string& row : rows) {
            tail.insert(0, row);
            head += Little(kPage - tail.size(), 2);
        }
        return head + std::string(kPage - head.size() - tail.size(), '\0') + tail;
    }

    void WriteTable(std::uint32_t definition, const std::vector<Column>& columns, const std::vector<Row>& rows, std::uint32_t counted)
    {
        const auto first = static_cast<std::uint32_t>(m_pages.size());
        std::vector<std::string> pending;
        std::size_t used = 10;
        const auto flush = [&] {
            m_pages.push_back(DataPage(definition, pending));
            pending.clear();
            used = 10;
        };
        for (const Row& row : rows) {
            std::string bytes = RowBytes(columns, row);
            if (used + bytes.size() + 2 > kPage) {
                flush();
            }
            used += bytes.size() + 2;
            pending.push_back(std::move(bytes));
        }
        flush();
        const auto map = static_cast<std::uint32_t>(m_pages.size());
        m_pages.push_back(DataPage(0, {'\0' + Little(first, 4) + Bits(map - first), '\0' + Little(first, 4) + std::string(8, '\0')}));
        m_pages[definition] = Definition(columns, counted, map);
    }

    static std::string Bits(std::size_t count)
    {
        std::string bits(count / 8 + 1, '\0');
        for (std::size_t i = 0; i < count; ++i) {
            bits[i / 8] = static_cast<char>(bits[i / 8] | 1 << (i % 8));
        }
        return bits;
    }

    static std::string Definition(const std::vector<Column>& columns, std::uint32_t counted, std::uint32_t map)
    {
        std::string entries;
        std::string names;
        std::uint64_t texts = 0;
        std::uint64_t offset = 0;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const bool isText = columns[i].type == Type::Text;
            const std::size_t width = isText ? 255 : WidthOf(columns[i].type);
            entries += std::string(1, static_cast<char>(columns[i].type)) + Little(i, 2) + Little(texts, 2) + Little(i, 2) +
                       std::string(6, '\0') + static_cast<char>(isText ? 2 : 3) + Little(offset, 2) + Little(width, 2);
            names += static_cast<char>(std::strlen(columns[i].name)) + std::string(columns[i].name);
            texts += isText ? 1 : 0;
            offset += isText ? 0 : width;
        }
        const auto place = [&](std::uint32_t row) { return Little(map << 8U | row, 4); };
        return std::string("\2\1VC\0\0\0\0", 8) + Little(43 + entries.size() + names.size(), 4) + Little(counted, 4) + Little(0, 4) + 'N' +
               Little(columns.size(), 2) + Little(texts, 2) + Little(columns.size(), 2) + Little(0, 8) + place(0) + place(1) + entries +
               names;
    }

    std::vector<std::string> m_pages;
    std::vector<Row> m_catalog;
};

} // namespace ptk
