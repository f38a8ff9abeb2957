#include "host/driver/png.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <string>

namespace lx::host {
namespace {

using Data = std::vector<std::uint8_t>;

std::uint32_t bigEndian(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8U | static_cast<std::uint8_t>(bytes[at + i]);
    return value;
}

// Reads what the fixed code of the format says, by its published tables.
class Inflater {
public:
    explicit Inflater(const std::string& bytes) : m_bytes(bytes) {}

    Data run() {
        EXPECT_EQ(bits(16) % 31, 0x0178U % 31) << "header";
        EXPECT_EQ(bits(3), 3U) << "one last block with the fixed code";
        Data out;
        for (unsigned symbol = next(); symbol != 256; symbol = next()) {
            if (symbol < 256) {
                out.push_back(static_cast<std::uint8_t>(symbol));
                continue;
            }
            const unsigned length = lengths[symbol - 257] + bits(lengthExtra[symbol - 257]);
            const unsigned code = reversed(5);
            const std::size_t distance = distances(code);
            if (distance > out.size()) throw std::runtime_error("before the beginning");
            for (unsigned i = 0; i < length; ++i) out.push_back(out[out.size() - distance]);
        }
        return out;
    }

private:
    static constexpr unsigned lengths[] = {3,  4,  5,  6,   7,   8,   9,   10,  11, 13,
                                           15, 17, 19, 23,  27,  31,  35,  43,  51, 59,
                                           67, 83, 99, 115, 131, 163, 195, 227, 258};
    static constexpr unsigned lengthExtra[] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                               2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
    std::size_t distances(unsigned code) {
        if (code < 4) return code + 1;
        const unsigned extra = code / 2 - 1;
        return ((2U + code % 2) << extra) + 1 + bits(extra);
    }
    unsigned bits(unsigned count) {
        unsigned value = 0;
        for (unsigned i = 0; i < count; ++i) value |= bit() << i;
        return value;
    }
    unsigned reversed(unsigned count) {
        unsigned value = 0;
        for (unsigned i = 0; i < count; ++i) value = value << 1U | bit();
        return value;
    }
    unsigned next() {
        unsigned code = reversed(7);
        if (code <= 0x17) return 256 + code;
        code = code << 1U | bit();
        if (code >= 0x30 && code <= 0xBF) return code - 0x30;
        if (code >= 0xC0 && code <= 0xC7) return 280 + code - 0xC0;
        return (code << 1U | bit()) - 0x190 + 144;
    }
    unsigned bit() {
        const auto byte = static_cast<std::uint8_t>(m_bytes.at(m_at / 8));
        return byte >> (m_at++ % 8) & 1U;
    }

    const std::string& m_bytes;
    std::size_t m_at = 0;
};

// Flat areas, repeated rows and noise, so that copies of every length and distance come about.
Data picture(int width, int height) {
    std::mt19937 random(7);
    Data rgb;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < 3 * width; ++x) {
            const bool noise = y % 7 == 3 || x % 101 < 5;
            const auto flat = static_cast<std::uint8_t>(240 + x / 300);
            rgb.push_back(noise ? static_cast<std::uint8_t>(random()) : flat);
        }
    }
    return rgb;
}

TEST(Png, ReadsBackAsThePicture) {
    const int width = 211;
    const int height = 90;
    const Data rgb = picture(width, height);
    const std::string file = encodePng(width, height, rgb);
    ASSERT_EQ(file.substr(0, 8), "\x89PNG\r\n\x1A\n");
    EXPECT_EQ(file.substr(12, 4), "IHDR");
    EXPECT_EQ(bigEndian(file, 16), 211U);
    EXPECT_EQ(bigEndian(file, 20), 90U);
    EXPECT_EQ(file.substr(24, 5), std::string("\x08\x02\0\0\0", 5));
    // The end mark's check sum is published with the format.
    EXPECT_EQ(file.substr(file.size() - 12), std::string("\0\0\0\0IEND\xAE\x42\x60\x82", 12));

    const std::size_t size = bigEndian(file, 33);
    ASSERT_EQ(file.substr(37, 4), "IDAT");
    ASSERT_EQ(file.size(), 41 + size + 4 + 12);
    EXPECT_LT(size, rgb.size() / 2);
    const std::string content = file.substr(41, size);
    Data rows = Inflater(content).run();
    const std::size_t rowSize = std::size_t{3} * width;
    ASSERT_EQ(rows.size(), (rowSize + 1) * height);
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const std::uint8_t byte : rows) b = (b + (a = (a + byte) % 65521)) % 65521;
    EXPECT_EQ(bigEndian(content, size - 4), b << 16U | a);
    for (int y = height; y-- > 0;) {
        const auto start = rows.begin() + static_cast<std::ptrdiff_t>(rowSize + 1) * y;
        EXPECT_EQ(*start, 0);
        rows.erase(start);
    }
    EXPECT_TRUE(rows == rgb);
}

}  // namespace
}  // namespace lx::host
