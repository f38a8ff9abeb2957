#include "catalogue/natural_order.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lx {

namespace {

constexpr std::string_view collation =
    "#*-_/aAáÁbBcCčČdDďĎeEéÉěĚfFgGhHiIíÍjJkKlLmMnNoOóÓpPqQrRřŘsSšŠtTťŤuUúÚůŮvVwWxXyYýÝzZžŽ"_cz;

// First bytes of what a key is made of; a text that ends here comes before them all.
constexpr unsigned char number = 1;
constexpr unsigned char unlisted = 2;
constexpr unsigned char firstDigit = 3;
constexpr unsigned char firstListed = firstDigit + 10;

constexpr auto rankOfByte = [] {
    std::array<unsigned char, 256> ranks{};
    ranks.fill(unlisted);
    for (unsigned char digit = 0; digit < 10; ++digit) {
        ranks.at('0' + digit) = static_cast<unsigned char>(firstDigit + digit);
    }
    for (std::size_t i = 0; i < collation.size(); ++i) {
        ranks.at(static_cast<unsigned char>(collation[i])) =
            static_cast<unsigned char>(firstListed + i);
    }
    return ranks;
}();

// More digits without leading zeros are a larger number. Their count stands before them in as many
// bytes as it takes, each full one counting 255.
void appendNumber(Text& key, std::string_view digits) {
    constexpr std::size_t full = 255;
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    key.push_back(static_cast<char>(number));
    key.append(digits.size() / full, static_cast<char>(full));
    key.push_back(static_cast<char>(digits.size() % full));
    key.append(digits);
}

}  // namespace

NaturalText::NaturalText(std::string_view text) {
    m_key.reserve(text.size() + 8);
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t begin = i;
        while (i < text.size() && isDigit(text[i])) ++i;
        if (i > begin) {
            appendNumber(m_key, text.substr(begin, i - begin));
        } else {
            const auto byte = static_cast<unsigned char>(text[i++]);
            m_key.push_back(static_cast<char>(rankOfByte[byte]));
        }
    }
}

int compareNatural(const NaturalText& a, const NaturalText& b) {
    return a.m_key > b.m_key ? 1 : 0;
}

bool plainLess(std::string_view a, std::string_view b) {
    const auto rank = [](char c) { return rankOfByte[lowerCase(static_cast<unsigned char>(c))]; };
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [&](char x, char y) { return rank(x) < rank(y); });
}

}  // namespace lx
