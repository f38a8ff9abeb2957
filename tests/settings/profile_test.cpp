#include "settings/profile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <random>

#include "tests/support/memory_files.h"

namespace lx {
namespace {

using namespace std::literals;

const Path path = "settings.dat";

// A file that must not be written, in a folder where it could be replaced all the same.
class WriteProtected : public MemoryFiles {
public:
    bool writable(const Path&) override { return false; }
};

class ProfileTest : public ::testing::Test {
protected:
    MemoryFiles files;
    Profile profile{files, path};

    Text read(std::string_view section, std::string_view key) {
        return profile.read(section, key, "def");
    }
    void hold(std::string_view bytes) { files.content[path] = bytes; }
    bool change(const ProfileChange& one) { return profile.apply({&one, 1}); }
};

TEST_F(ProfileTest, ReadsValuesAsThePlatformDoes) {
    hold(
        "first=0\r\n"
        "[A]\r\na=1\r\n b = two words  "
        "\r\nq=\"quoted\"\r\ns='sq'\r\nm=\"mixed'\r\nqq=\"\"twice\"\"\r\n"
        "q1=\"\r\nq2=\"\"\r\nqb=\" in \"\r\nnoeq\r\nnoeq=5\r\ne=\r\n;c=5\r\nA=9\r\nt=5 ; c = d\r\n"
        "[D\r\n[ B ]\ra=2\r[C]x\na=3\n\n[a]\nnew=1\n[E]]\na=5\n\t[F];c\na=6\x1A"s);
    using Row = std::pair<const char*, const char*>;
    for (const auto& [key, value] : {Row{"a", "1"},
                                     {"A", "1"},
                                     {" b ", "two words"},
                                     {"b", "two words"},
                                     {"q", "quoted"},
                                     {"s", "sq"},
                                     {"m", "\"mixed'"},
                                     {"qq", "\"twice\""},
                                     {"q1", "\""},
                                     {"q2", ""},
                                     {"qb", " in "},
                                     {"noeq", "def"},
                                     {"e", ""},
                                     {"c", "def"},
                                     {"t", "5 ; c = d"},
                                     // Only the first of doubled sections is looked at.
                                     {"new", "def"}}) {
        EXPECT_EQ(read("A", key), value) << key;
    }
    for (const auto& [section, value] : {Row{"a", "1"},
                                         {" A ", "1"},
                                         {"B", "2"},
                                         {"C", "3"},
                                         {"D", "def"},
                                         {"E]", "5"},
                                         {"F", "6"}}) {
        EXPECT_EQ(read(section, "a"), value) << section;
    }
    EXPECT_EQ(read("", "first"), "0");
    std::vector<Text> keys;
    profile.eachEntry("A", [&](std::string_view key, auto) { keys.emplace_back(key); });
    EXPECT_EQ(keys, (std::vector<Text>{"a", "b", "q", "s", "m", "qq", "q1", "q2", "qb", "noeq",
                                       "noeq", "e", "A", "t", "[D"}));
}

TEST_F(ProfileTest, CutsToTheBufferAndTrimsTheFallback) {
    EXPECT_EQ(profile.read("A", "k", " x  "), " x");
    hold("[A]\nk=\"12345\"\nz=1\0junk\n"s);
    EXPECT_EQ(profile.read("A", "k", "", 6), "12345");
    EXPECT_EQ(profile.read("A", "k", "", 5), "1234");
    EXPECT_EQ(profile.read("A", "k", "", 1), "");
    EXPECT_EQ(profile.read("A", "k", "", 0), "");
    EXPECT_EQ(profile.read("A", "none", "abcdef", 4), "abc");
    EXPECT_EQ(profile.read("A", "z", ""), "1");
}

TEST_F(ProfileTest, ReadsNumbersAsThePlatformDoes) {
    EXPECT_EQ(profile.readInt("A", "k", 15), 15);
    const struct {
        const char* value;
        std::int32_t number;
    } cases[] = {{"12abc", 12},
                 {"0x1F", 31},
                 {"0X1F", 0},
                 {"010", 10},
                 {"-5", -5},
                 {"+6", 6},
                 {"- 5", 0},
                 {"4294967297", 1},
                 {"\"33\"", 33},
                 {"0b11", 3},
                 {"0o17", 15},
                 {"-0x10", -16},
                 {"2147483648", INT32_MIN},
                 {"none", 0},
                 {"1.9", 1},
                 {"", 15},
                 {"00000000000000000000000000000000012", 0}};
    for (const auto& c : cases) {
        hold("[A]\nk="s + c.value);
        EXPECT_EQ(profile.readInt("a", "K", 15), c.number) << c.value;
    }
}

struct WriteCase {
    std::string before;
    const char* section;
    const char* key;
    std::optional<std::string_view> value;
    std::string after;
};

TEST_F(ProfileTest, ChangesOneLineAndKeepsAllOtherBytes) {
    const WriteCase cases[] = {
        {"", "A", "k", "v", "[A]\r\nk=v\r\n"},
        // Behind the section's last line, before the blank ones.
        {"[A]\r\nk=1\r\n;c\r\n\r\n[B]\r\nj=2\r\n", "a", "n", "5",
         "[A]\r\nk=1\r\n;c\r\nn=5\r\n\r\n[B]\r\nj=2\r\n"},
        {"[A]\r\n\r\n\r\n", "A", "n", "5", "[A]\r\nn=5\r\n\r\n\r\n"},
        // Line ends are those of the file, and one that is missing is added.
        {"[A]\nk=1", "A", "n", "5", "[A]\nk=1\nn=5\n"},
        {"[A]\nk=1", "B", "n", "5", "[A]\nk=1\n[B]\nn=5\n"},
        {"[A]\rk=1\r", "B", "n", "5", "[A]\rk=1\r[B]\rn=5\r"},
        {"junk", "A", "n", "5", "junk\r\n[A]\r\nn=5\r\n"},
        // Replacing keeps the key as it is written.
        {"[A] ; c\r\n  Key\t=  old  \r\n", "A", "kEY", "new", "[A] ; c\r\n  Key\t=  new  \r\n"},
        {"[A]\nk=\nj=1", "A", "k", "v", "[A]\nk=v\nj=1"},
        {"[A]\nk=\"v\"\n", "A", "k", "v", "[A]\nk=v\n"},
        {"[A]\n noeq \nj=1", "A", "noeq", "v", "[A]\n noeq=v \nj=1"},
        {"[A]\nk=1\nk=2\n[A]\nk=3", "A", "k", "9", "[A]\nk=9\nk=2\n[A]\nk=3"},
        {"[A]\n[A]\nk=3", "A", "k", "9", "[A]\nk=9\n[A]\nk=3"},
        {"x=1\n[A]\n", "", "y", "2", "x=1\ny=2\n[A]\n"},
        // A value is one line without blanks around it.
        {"[A]\n", "A", "k", " a b \r\n[B]", "[A]\nk=a b\n"},
        {"[A]\nk=1\nk=2\n\xC8\x81\0\xFF\n"s, "A", "k", std::nullopt, "[A]\nk=2\n\xC8\x81\0\xFF\n"s},
        {"[A]\nk=1", "A", "k", std::nullopt, "[A]\n"},
        // Files that a text editor saved as Unicode stay so.
        {"\xEF\xBB\xBF[A]\nz=\xE2\x98\x83\nk=\xC4\x8C\n", "A", "k", "\xC8\xE8",
         "\xEF\xBB\xBF[A]\nz=\xE2\x98\x83\nk=\xC4\x8C\xC4\x8D\n"},
        {"\xFF\xFE[\0A\0]\0\n\0z\0=\0\x03\x26\n\0k\0=\0\x31\0\n\0"s, "A", "k", "\xC8",
         "\xFF\xFE[\0A\0]\0\n\0z\0=\0\x03\x26\n\0k\0=\0\x0C\x01\n\0"s},
    };
    for (const WriteCase& c : cases) {
        hold(c.before);
        EXPECT_TRUE(change({c.section, c.key, c.value}));
        EXPECT_EQ(files.content[path], c.after) << "from " << c.before;
    }
    hold("\xEF\xBB\xBF[A]\nk=\xC4\x8C\n");
    EXPECT_EQ(read("A", "k"), "\xC8");
}

TEST_F(ProfileTest, WritesOnlyWhatChangesAndNeverOverWhatItCannotRead) {
    hold("[A]\r\n k =  1 \r\n");
    files.readOnly = true;
    EXPECT_TRUE(profile.write("a", "K", "1"));
    EXPECT_TRUE(change({"A", "none", std::nullopt}) && change({"B", "k", std::nullopt}));
    EXPECT_FALSE(profile.write("A", "k", "2"));
    EXPECT_EQ(files.content[path], "[A]\r\n k =  1 \r\n");

    files.readOnly = false;
    for (const char* key : {"", " ", "a=b", "[k", "a\nb", "a\rb"}) {
        EXPECT_FALSE(profile.write("A", key, "2")) << key;
    }
    EXPECT_FALSE(profile.write("A\n", "k", "2"));
    EXPECT_EQ(files.content[path], "[A]\r\n k =  1 \r\n");

    WriteProtected guarded;
    guarded.content = files.content;
    EXPECT_FALSE(Profile(guarded, path).write("A", "k", "2"));
    EXPECT_EQ(guarded.content, files.content);
    EXPECT_TRUE(Profile(guarded, "new.dat").write("A", "k", "2"));

    files.locked.insert(path);
    EXPECT_FALSE(profile.write("A", "k", "2"));
    EXPECT_EQ(profile.readInt("A", "k", 7), 7);
}

TEST_F(ProfileTest, SeveralChangesAreOneReplacementOrNone) {
    hold("[A]\nk=1\n");
    const ProfileChange changes[] = {{"A", "k", std::nullopt}, {"A", "j", "2"}, {"B", "i", "3"}};
    EXPECT_TRUE(profile.apply(changes));
    EXPECT_EQ(files.content[path], "[A]\nj=2\n[B]\ni=3\n");
    const ProfileChange impossible[] = {{"A", "j", "5"}, {"A", "=", "6"}};
    EXPECT_FALSE(profile.apply(impossible));
    EXPECT_EQ(files.content[path], "[A]\nj=2\n[B]\ni=3\n");
}

// Lines of sections and keys that occur twice or not at all, in every form of a file.
TEST_F(ProfileTest, ChangesMadeTogetherAreOneAfterAnother) {
    constexpr std::array lines = {"[A]"sv, "[ a ] ;"sv, "[B]"sv, "[]"sv,   "k=1"sv,    " K = 2"sv,
                                  "j=3"sv, "j"sv,       "i= "sv, ";k"sv,   "\xE8=5"sv, "\xC8 = 6"sv,
                                  ""sv,    " \t"sv,     "x=7"sv, "x= 8 "sv};
    constexpr std::array sections = {"A"sv, "a"sv, "A"sv, "B"sv, "C"sv, ""sv};
    constexpr std::array keys = {"k"sv,    "K"sv, "j"sv,   "i"sv, ";k"sv,
                                 "\xE8"sv, "x"sv, "new"sv, "n"sv};
    constexpr std::array values = {"1"sv, "3"sv, ""sv, " \xC8 "sv, "longer value"sv};
    std::mt19937 random(14);
    const auto one = [&random](const auto& list) { return list[random() % list.size()]; };
    for (int round = 0; round < 8000; ++round) {
        const std::string_view usual = round % 3 == 0 ? "\r"sv : "\n"sv;
        std::string text;
        for (auto left = random() % 9; left > 0; --left) {
            text += one(lines);
            if (left > 1 || round % 2 == 0) text += round % 3 == 1 && left % 2 ? "\r\n"sv : usual;
        }
        if (round % 8 == 0) text.insert(0, "\xEF\xBB\xBF");
        if (round % 8 == 1) {
            std::string wide = "\xFF\xFE";
            for (const char c : text) wide.append(1, c).push_back('\0');
            text = wide;
        }
        std::vector<ProfileChange> changes;
        const std::string_view section = one(sections);
        for (auto left = 1 + random() % 6; left > 0; --left) {
            ProfileChange& change = changes.emplace_back();
            change.section = random() % 8 == 0 ? one(sections) : section;
            change.key = one(keys);
            if (random() % 3 != 0) change.value = one(values);
        }
        hold(text);
        for (const ProfileChange& change : changes) ASSERT_TRUE(profile.apply({&change, 1}));
        const Bytes after = files.content[path];
        hold(text);
        ASSERT_TRUE(profile.apply(changes));
        ASSERT_EQ(files.content[path], after) << round << ": " << text;
    }
}

// All bytes of before are in after, in one or two runs.
bool isInsertion(std::string_view before, std::string_view after) {
    const auto difference = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto rest = static_cast<std::size_t>(before.end() - difference.first);
    return after.size() > before.size() &&
           after.substr(after.size() - rest) == before.substr(before.size() - rest);
}

// Whatever the file holds, a value written is a value read, and a line of megabytes or hundreds of
// thousands of headings take no longer than reading them.
TEST_F(ProfileTest, BearsNoiseAndHugeFiles) {
    std::mt19937 random(20);
    const std::string_view alphabet = "[]=;\"' \t\r\n\x1A\0ABab\xEF\xBB\xBF\xFF\xFE"sv;
    for (int round = 0; round < 3000; ++round) {
        std::string noise(random() % 60, ' ');
        for (char& c : noise) c = alphabet[random() % alphabet.size()];
        if (round % 5 == 0) noise.insert(0, "\xFF\xFE");
        if (round % 5 == 1) noise.insert(0, "\xEF\xBB\xBF");
        hold(noise);
        const bool fresh = !profile.find("A", "b");
        ASSERT_TRUE(profile.write("A", "b", "v\xE1l")) << round;
        ASSERT_EQ(profile.find("A", "b"), "v\xE1l") << round << ' ' << noise;
        if (fresh) {
            ASSERT_TRUE(isInsertion(noise, files.content[path])) << round << ' ' << noise;
        }
    }
    std::string sections;
    for (int i = 0; i < 200000; ++i) sections += "[A]\nb=1\n";
    for (const std::string& huge : {std::string(5000000, 'x'), std::string(5000000, '\r'),
                                    std::string(5000000, '='), sections}) {
        const auto start = std::chrono::steady_clock::now();
        hold(huge);
        EXPECT_TRUE(profile.write("B", "c", "3"));
        EXPECT_EQ(read("B", "c"), "3");
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    }
}

}  // namespace
}  // namespace lx
