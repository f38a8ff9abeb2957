#include "host/driver/png.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

namespace lx::host {
namespace {

// Flat areas, repeated rows and noise, so that copies of every length and distance come about.
std::vector<std::uint8_t> picture(int width, int height) {
    std::mt19937 random(7);
    std::vector<std::uint8_t> rgb;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < 3 * width; ++x) {
            const bool noise = y % 7 == 3 || x % 101 < 5;
            const auto flat = static_cast<std::uint8_t>(240 + x / 300);
            rgb.push_back(noise ? static_cast<std::uint8_t>(random()) : flat);
        }
    }
    return rgb;
}

// That file is one which other programs read as this picture; look at it anew when the writer
// compresses otherwise.
TEST(Png, IsTheFileThatOtherProgramsRead) {
    std::ifstream file(LX_SOURCE_DIR "/tests/host/picture.png", std::ios::binary);
    const std::string expected{std::istreambuf_iterator<char>(file), {}};
    EXPECT_TRUE(encodePng(211, 90, picture(211, 90)) == expected);
}

}  // namespace
}  // namespace lx::host
