// Profile against the platform's own private-profile functions, on generated files. The platform
// may normalise a file that it writes (blanks, blank lines, line ends), so written files are
// compared by what either side reads from either file.
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <random>

#include "settings/profile.h"

namespace lx {
namespace {

using namespace std::literals;

constexpr std::array sections = {"A"sv, "b b"sv, "Data"sv, ""sv, "missing"sv};
constexpr std::array keys = {"a"sv, "B"sv, "key one"sv, "nr"sv, "absent"sv};
// A section without a name in the middle of a file is left out: the platform drops its heading when
// it writes, so that its keys change section.
constexpr std::array lines = {"[A]"sv,    "[a]"sv,          " [ A ] "sv, "[b b] ; c"sv,
                              "[B B]x"sv, "\t[DATA] = 1"sv, "[Data"sv,   "[[A]"sv,
                              "[A]]"sv,   "; comment"sv,    " ;c=1"sv,   ""sv,
                              "  \t"sv,   "noeq"sv,         "a"sv,       "\x1A"sv};
constexpr std::array names = {"a"sv,        " A"sv, "b"sv,  "B \t"sv, "key one"sv,
                              "KEY ONE "sv, "nr"sv, ";a"sv, ""sv,     "\"a\""sv};
constexpr std::string_view longNumber = "00000000000000000000000000000000000000009";
constexpr std::array values = {
    "1"sv,      " two words "sv, "\"quoted\""sv,   "'q'"sv,           "\"half"sv, "\"mixed'"sv,
    "\""sv,     "\"\""sv,        "\" in \""sv,     "\"\"twice\"\""sv, ""sv,       "  "sv,
    "-12abc"sv, "0x1F"sv,        "4294967297"sv,   "+ 5"sv,           "a=b;c"sv,  "[x]"sv,
    "\t7\t"sv,  "5\x1A"sv,       "\xC8\x9A\xFD"sv, longNumber};
constexpr std::array lineEnds = {"\r\n"sv, "\n"sv, "\r"sv, "\r\n\r\n"sv};

struct Generator {
    std::mt19937 random;

    template <class List>
    std::string one(const List& list) {
        return std::string(list[random() % list.size()]);
    }
    bool chance(unsigned percent) { return random() % 100 < percent; }
    std::string value() { return chance(5) ? std::string(random() % 3000, 'v') : one(values); }
    std::string file() {
        std::string text;
        const bool mixed = chance(25);
        const std::string usual(lineEnds[random() % 2]);
        for (unsigned left = random() % 30; left > 0; --left) {
            text += chance(45) ? one(lines) : one(names) + (chance(30) ? " = " : "=") + value();
            if (left > 1 || chance(70)) text += mixed ? one(lineEnds) : usual;
        }
        return text;
    }
};

std::string asUtf16(std::string_view text) {
    std::string result = "\xFF\xFE";
    for (const char c : text) result.append(1, c).push_back('\0');
    return result;
}

struct ProfileAgainstPlatform : ::testing::Test {
    std::vector<Path> made;

    void TearDown() override {
        for (const Path& path : made) systemFiles().remove(path);
    }
    // The platform keeps the last files it has read: every file gets a name of its own.
    Path put(std::string_view bytes) {
        made.push_back(systemFiles().temporaryFolder() + "lx_profile_" +
                       std::to_string(GetCurrentProcessId()) + "_" + std::to_string(made.size()) +
                       ".dat");
        EXPECT_TRUE(systemFiles().replace(made.back(), bytes));
        return made.back();
    }
    // What the platform answers to every question about that file; Profile gives the same answers.
    static std::string answers(const Path& path, const std::string& what) {
        const Profile profile(systemFiles(), path);
        std::string all;
        for (const std::string_view section : sections) {
            for (const std::string_view key : keys) {
                SCOPED_TRACE("[" + std::string(section) + "] " + std::string(key) + "\n" + what);
                for (const DWORD size : {1U, 5U, 1024U, 4000U}) {
                    std::string expected(size + 1, '\0');
                    expected.resize(GetPrivateProfileStringA(section.data(), key.data(), "default ",
                                                             expected.data(), size, path.c_str()));
                    const std::string ours = profile.read(section, key, "default ", size);
                    // Where the closing quote alone would not fit, the platform cuts a byte too
                    // many.
                    if (expected.size() + 2 != size || ours.size() + 1 != size) {
                        EXPECT_EQ(ours, expected) << size;
                    }
                    all += expected + "\n";
                }
                EXPECT_EQ(profile.readInt(section, key, 77),
                          static_cast<int>(
                              GetPrivateProfileIntA(section.data(), key.data(), 77, path.c_str())));
            }
        }
        return all;
    }
};

TEST_F(ProfileAgainstPlatform, ReadsTheSameFromEveryFile) {
    for (unsigned seed = 0; seed < 80 && !HasFailure(); ++seed) {
        const std::string text = Generator{std::mt19937(seed)}.file();
        answers(put(text), text);
        // Characters beyond ASCII depend on the system's code page there.
        if (seed % 10 != 0 || text.find_first_of("\xC8\x9A\xFD"sv) != std::string::npos) continue;
        answers(put("\xEF\xBB\xBF" + text), "UTF-8 " + text);
        answers(put(asUtf16(text)), "UTF-16 " + text);
    }
}

TEST_F(ProfileAgainstPlatform, WritesWhatBothReadTheSame) {
    for (unsigned seed = 1000; seed < 1080 && !HasFailure(); ++seed) {
        Generator generator{std::mt19937(seed)};
        const std::string text = generator.file();
        const Path ours = put(text);
        const Path platforms = put(text);
        for (int change = 0; change < 3; ++change) {
            const std::string section = generator.one(sections);
            const std::string key = generator.one(keys);
            // Blanks around a value are gone only when the platform has read the file anew.
            std::string value = generator.value();
            value.erase(0, value.find_first_not_of(" \t"));
            value.erase(value.find_last_not_of(" \t\x1A") + 1);
            const bool erase = generator.chance(30);
            Profile profile(systemFiles(), ours);
            ProfileChange one{section, key, value};
            if (erase) one.value.reset();
            ASSERT_TRUE(profile.apply({&one, 1}));
            ASSERT_TRUE(WritePrivateProfileStringA(
                section.c_str(), key.c_str(), erase ? nullptr : value.c_str(), platforms.c_str()));
            for (const Path& cached : {platforms, ours}) {
                WritePrivateProfileStringA(nullptr, nullptr, nullptr, cached.c_str());
            }
        }
        const std::string what = text + "\n--- became\n" + systemFiles().read(ours).bytes;
        EXPECT_EQ(answers(ours, what), answers(platforms, what)) << seed << "\n" << what;
    }
}

}  // namespace
}  // namespace lx
