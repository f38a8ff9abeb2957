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
constexpr std::array headings = {"[A]"sv,       "[a]"sv,    " [ A ] "sv,
                                 "[b b] ; c"sv, "[B B]x"sv, "\t[DATA] = 1"sv,
                                 "[Data"sv,     "[[A]"sv,   "[A]]"sv};
constexpr std::array names = {"a"sv,        " A"sv, "b"sv,  "B \t"sv, "key one"sv,
                              "KEY ONE "sv, "nr"sv, ";a"sv, ""sv,     "\"a\""sv};
constexpr std::string_view longNumber = "00000000000000000000000000000000000000009";
constexpr std::array values = {
    "1"sv,      " two words "sv, "\"quoted\""sv,   "'q'"sv,           "\"half"sv, "\"mixed'"sv,
    "\""sv,     "\"\""sv,        "\" in \""sv,     "\"\"twice\"\""sv, ""sv,       "  "sv,
    "-12abc"sv, "0x1F"sv,        "4294967297"sv,   "+ 5"sv,           "a=b;c"sv,  "[x]"sv,
    "\t7\t"sv,  "5\x1A"sv,       "\xC8\x9A\xFD"sv, longNumber};
constexpr std::array others = {"; comment"sv, " ;c=1"sv, ""sv, "  \t"sv, "noeq"sv, "a"sv, "\x1A"sv};

class Generator {
public:
    explicit Generator(unsigned seed) : m_random(seed) {}

    template <class List>
    std::string_view one(const List& list) {
        return list[m_random() % list.size()];
    }
    bool chance(unsigned percent) { return m_random() % 100 < percent; }

    std::string file() {
        std::string text;
        const unsigned style = m_random() % 4;
        for (unsigned lines = m_random() % 30; lines > 0; --lines) {
            text += line();
            if (lines > 1 || chance(70)) text += lineEnd(style);
        }
        return text;
    }
    std::string value() {
        if (chance(5)) return std::string(m_random() % 3000, 'v');
        return std::string(one(values));
    }

private:
    std::string line() {
        if (chance(25)) return std::string(one(headings));
        if (chance(25)) return std::string(one(others));
        std::string text(one(names));
        text += chance(30) ? " = " : "=";
        return text + value();
    }
    std::string_view lineEnd(unsigned style) {
        if (style == 3) return one(std::array{"\r\n"sv, "\n"sv, "\r"sv, "\r\n\r\n"sv});
        return style == 2 ? "\n"sv : "\r\n"sv;
    }

    std::mt19937 m_random;
};

std::string asUtf16(std::string_view text) {
    std::string result = "\xFF\xFE";
    for (const char c : text) result.append(1, c).push_back('\0');
    return result;
}

std::string platformRead(const Path& path, std::string_view section, std::string_view key,
                         DWORD size) {
    std::string buffer(size + 1, '\0');
    buffer.resize(GetPrivateProfileStringA(section.data(), key.data(), "default ", buffer.data(),
                                           size, path.c_str()));
    return buffer;
}

int platformReadInt(const Path& path, std::string_view section, std::string_view key) {
    return static_cast<int>(GetPrivateProfileIntA(section.data(), key.data(), 77, path.c_str()));
}

void forgetCached(const Path& path) {
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, path.c_str());
}

class ProfileAgainstPlatform : public ::testing::Test {
protected:
    void TearDown() override {
        for (const Path& path : m_made) systemFiles().remove(path);
    }

    // The platform keeps the last files it has read: every file gets a name of its own.
    Path put(std::string_view bytes) {
        Path path = systemFiles().temporaryFolder() + "lx_profile_" +
                    std::to_string(GetCurrentProcessId()) + "_" + std::to_string(m_made.size()) +
                    ".dat";
        EXPECT_TRUE(systemFiles().replace(path, bytes));
        m_made.push_back(path);
        return path;
    }
    // The same answers to every question as the platform gives about that file.
    void compareReads(const Path& path, const std::string& what) {
        const Profile profile(systemFiles(), path);
        for (const std::string_view section : sections) {
            for (const std::string_view key : keys) {
                // Where the closing quote alone would not fit, the platform cuts a byte too many.
                for (const DWORD size : {1U, 5U, 1024U, 4000U}) {
                    const std::string expected = platformRead(path, section, key, size);
                    const std::string ours = profile.read(section, key, "default ", size);
                    const bool cutQuote = expected.size() + 2 == size && ours.size() + 1 == size;
                    if (!cutQuote) {
                        ASSERT_EQ(ours, expected)
                            << '[' << section << "] " << key << ' ' << size << "\n"
                            << what;
                    }
                }
                ASSERT_EQ(profile.readInt(section, key, 77), platformReadInt(path, section, key))
                    << '[' << section << "] " << key << "\n"
                    << what;
            }
        }
    }

private:
    std::vector<Path> m_made;
};

TEST_F(ProfileAgainstPlatform, ReadsTheSameFromEveryFile) {
    for (unsigned seed = 0; seed < 80; ++seed) {
        Generator generator(seed);
        const std::string text = generator.file();
        ASSERT_NO_FATAL_FAILURE(compareReads(put(text), text));
        // Characters beyond ASCII depend on the system's code page there.
        if (seed % 10 != 0 || text.find_first_of("\xC8\x9A\xFD"sv) != std::string::npos) continue;
        ASSERT_NO_FATAL_FAILURE(compareReads(put("\xEF\xBB\xBF" + text), "UTF-8 " + text));
        ASSERT_NO_FATAL_FAILURE(compareReads(put(asUtf16(text)), "UTF-16 " + text));
    }
}

TEST_F(ProfileAgainstPlatform, WritesWhatBothReadTheSame) {
    for (unsigned seed = 1000; seed < 1080; ++seed) {
        Generator generator(seed);
        const std::string text = generator.file();
        const Path ours = put(text);
        const Path platforms = put(text);
        for (int change = 0; change < 3; ++change) {
            const std::string section(generator.one(sections));
            const std::string key(generator.one(keys));
            // Blanks around a value are gone only when the platform has read the file anew.
            std::string value(generator.value());
            value.erase(0, value.find_first_not_of(" \t"));
            value.erase(value.find_last_not_of(" \t\x1A") + 1);
            const bool erase = generator.chance(30);
            Profile profile(systemFiles(), ours);
            ASSERT_TRUE(erase ? profile.erase(section, key) : profile.write(section, key, value));
            ASSERT_TRUE(WritePrivateProfileStringA(
                section.c_str(), key.c_str(), erase ? nullptr : value.c_str(), platforms.c_str()));
            forgetCached(platforms);
            forgetCached(ours);
        }
        const Bytes written = systemFiles().read(ours).bytes;
        const std::string what = text + "\n--- became\n" + written;
        ASSERT_NO_FATAL_FAILURE(compareReads(ours, what));
        ASSERT_NO_FATAL_FAILURE(compareReads(platforms, what));
        for (const std::string_view section : sections) {
            for (const std::string_view key : keys) {
                ASSERT_EQ(platformRead(ours, section, key, 4000),
                          platformRead(platforms, section, key, 4000))
                    << seed << " [" << section << "] " << key << "\n"
                    << what;
            }
        }
    }
}

}  // namespace
}  // namespace lx
