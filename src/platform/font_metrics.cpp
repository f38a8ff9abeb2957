#include "platform/font_metrics.h"

#include <array>

namespace lx {

namespace {

constexpr int dialogFontHeight = 13;
// Shares of the cell height in thousandths. The average is what a font's own width stands for.
constexpr int narrowShare = 260;
constexpr int slimShare = 320;
constexpr int normalShare = 480;
constexpr int capitalShare = 620;
constexpr int wideShare = 780;
constexpr int averageShare = 450;

constexpr void giveShare(std::array<int, 256>& shares, std::string_view bytes, int share) {
    for (const char c : bytes) shares[static_cast<unsigned char>(c)] = share;
}

constexpr std::array<int, 256> makeShares() {
    std::array<int, 256> shares{};
    for (int& share : shares) share = normalShare;
    giveShare(shares, "ABCDEFGHJKLNOPQRSTUVXYZÁČĎÉĚŇÓŘŠŤÚŮÝŽ<>=+&"_cz, capitalShare);
    giveShare(shares, "ijlíI|!.,:;'` Í"_cz, narrowShare);
    giveShare(shares, "ftrřť()[]{}/\\-\""_cz, slimShare);
    giveShare(shares, "mwMW@%"_cz, wideShare);
    return shares;
}
constexpr std::array<int, 256> shareOfHeight = makeShares();

}  // namespace

int fontHeight(const Font& font) {
    return font.dialogFont ? dialogFontHeight : font.height;
}

Size measuredText(const Font& font, std::string_view text) {
    long long shares = 0;
    for (const char c : text) shares += shareOfHeight[static_cast<unsigned char>(c)];
    const int height = fontHeight(font);
    const bool ownWidth = font.width > 0 && !font.dialogFont;
    const long long scaled = ownWidth ? shares * font.width / averageShare : shares * height / 1000;
    return {static_cast<int>(scaled), height};
}

}  // namespace lx
