#include "platform/text.h"

#include <gtest/gtest.h>

namespace lx {
namespace {

TEST(Text, EveryByteComesBackFromUtf8) {
    Text all;
    for (int byte = 1; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
    EXPECT_EQ(fromUtf8(toUtf8(all)), all);
}

TEST(Text, ConvertsCzechLettersByTheirCodePage) {
    const std::string_view czech = "PŘEKLADY žluťoučký 5 € – ůň"_cz;
    EXPECT_EQ(toUtf8(czech), "PŘEKLADY žluťoučký 5 € – ůň");
    EXPECT_EQ(czech.substr(0, 8), "\x50\xD8\x45\x4B\x4C\x41\x44\x59");
}

TEST(Text, RefusesWhatTheCodePageLacksAndMalformedUtf8) {
    EXPECT_EQ(fromUtf8("Ω"), std::nullopt);
    EXPECT_EQ(fromUtf8("😀"), std::nullopt);
    const std::string_view malformed[] = {"\xC5",         "a\xC5(",           "\x80",
                                          "\xC0\xAF",     "\xE0\x81\x81",     "\xED\xA0\x80",
                                          "\xF8\x88\x80", "\xF4\x90\x80\x80", {"a\0b", 3}};
    for (const std::string_view text : malformed) EXPECT_EQ(fromUtf8(text), std::nullopt) << text;
}

TEST(Text, LowersEveryCapitalOfTheCodePageAndNothingElse) {
    const std::string_view capitals = "AZÁÄČĎÉĚÍĽĹŁŇÓÔŘŔŠŚŤÚŮÝŽŹŻĄŞ"_cz;
    const std::string_view small = "azáäčďéěíľĺłňóôřŕšśťúůýžźżąş"_cz;
    ASSERT_EQ(capitals.size(), small.size());
    for (std::size_t i = 0; i < capitals.size(); ++i) {
        EXPECT_EQ(lowerCase(static_cast<unsigned char>(capitals[i])),
                  static_cast<unsigned char>(small[i]));
    }
    for (const char c : "@[`{×÷ß˙azžł0"_cz) {
        EXPECT_EQ(lowerCase(static_cast<unsigned char>(c)), static_cast<unsigned char>(c));
    }
}

TEST(Text, ComparesWithoutRegardToCaseByteByByte) {
    EXPECT_TRUE(equalIgnoringCase("Název ŽĎÁR"_cz, "NÁZEV žďár"_cz));
    EXPECT_FALSE(equalIgnoringCase("Nazev", "Název"_cz));
    EXPECT_FALSE(equalIgnoringCase("abc", "abcd"));
    EXPECT_TRUE(equalIgnoringCase("", ""));
}

TEST(Text, FillsPlacesInOrder) {
    EXPECT_EQ(fillIn("%s: %d x %C", {"KP", "3", "M"}), "KP: 3 x M");
    EXPECT_EQ(fillIn("100%% %s%", {"a", "surplus"}), "100% a%");
    EXPECT_EQ(fillIn("%s|%d|", {"a"}), "a||");
    EXPECT_EQ(fillIn("%s %s", {"%s", "%%"}), "%s %%") << "arguments are no formats";
    EXPECT_EQ(fillIn("%x %", {"a"}), "%x %");
}

}  // namespace
}  // namespace lx
