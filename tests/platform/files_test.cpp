#include "platform/files.h"

#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#endif

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>

namespace lx {
namespace {

namespace fs = std::filesystem;

class FilesTest : public testing::Test {
protected:
    FilesTest() {
        const auto* info = testing::UnitTest::GetInstance()->current_test_info();
        m_folder = files.temporaryFolder() + "lx_files_" + info->name();
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }
    ~FilesTest() override {
        for (const auto& entry : fs::directory_iterator(m_folder)) {
            fs::permissions(entry.path(), fs::perms::owner_write, fs::perm_options::add);
        }
        fs::remove_all(m_folder);
    }

    Path in(const char* name) const { return m_folder + "/" + name; }
    void put(const char* name, std::string_view bytes) const {
        std::ofstream(in(name), std::ios::binary) << bytes;
    }
    Bytes bytesOf(const char* name) {
        const FileRead read = files.read(in(name));
        return read.status == ReadStatus::ok ? read.bytes : "not readable";
    }
    std::vector<std::string> names() const {
        std::vector<std::string> result;
        for (const auto& entry : fs::directory_iterator(m_folder)) {
            result.push_back(entry.path().filename().string());
        }
        std::sort(result.begin(), result.end());
        return result;
    }
    // Nobody may change the file while the result lives: without write permission, and on Windows,
    // where an administrator may write all the same, open in another hand that shares reading
    // alone.
    std::shared_ptr<void> keepFromWriters(const char* name) const {
#ifdef _WIN32
        HANDLE held = CreateFileA(in(name).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        return {held, CloseHandle};
#else
        const auto write =
            fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
        fs::permissions(in(name), write, fs::perm_options::remove);
        return nullptr;
#endif
    }

    Files& files = systemFiles();
    Path m_folder;
};

using Names = std::vector<std::string>;

TEST_F(FilesTest, TellsMissingFromUnreadable) {
    EXPECT_EQ(files.read(in("none")).status, ReadStatus::missing);
    EXPECT_EQ(files.read(in("no/folder/file")).status, ReadStatus::missing);
    EXPECT_EQ(files.read(m_folder).status, ReadStatus::failed);
    put("empty", "");
    EXPECT_EQ(files.read(in("empty")).status, ReadStatus::ok);
    EXPECT_TRUE(files.same(in("empty"), in("./empty")));
    EXPECT_FALSE(files.same(in("empty"), m_folder));
}

TEST_F(FilesTest, ReplacesWholeFilesAndLeavesNothingBeside) {
    const Bytes bytes("a\0\r\n\x1A\xFF", 6);
    EXPECT_TRUE(files.replace(in("f"), bytes));
    EXPECT_EQ(bytesOf("f"), bytes);
    EXPECT_TRUE(files.replace(in("f"), "short"));
    EXPECT_EQ(bytesOf("f"), "short");
    EXPECT_FALSE(files.replace(in("none/f"), "x"));
    EXPECT_FALSE(files.replace(m_folder, "x")) << "a folder cannot be replaced";
    std::vector<std::string_view> pieces = {"", "three", "two", "one"};
    const auto next = [&pieces] {
        const std::string_view piece = pieces.back();
        pieces.pop_back();
        return piece;
    };
    EXPECT_TRUE(files.replaceByPieces(in("f"), next));
    EXPECT_EQ(bytesOf("f"), "onetwothree");
    pieces = {"some"};
    const auto runOut = [&] { return pieces.empty() ? throw std::bad_alloc() : next(); };
    EXPECT_THROW(files.replaceByPieces(in("f"), runOut), std::bad_alloc);
    pieces = {"some"};
    const auto giveUp = [&] { return pieces.empty() ? std::nullopt : std::optional(next()); };
    EXPECT_FALSE(files.replaceByPieces(in("f"), giveUp));
    EXPECT_EQ(bytesOf("f"), "onetwothree");
    EXPECT_EQ(names(), Names{"f"});
    EXPECT_FALSE(fs::exists(m_folder + ".new0"));
}

TEST_F(FilesTest, AppendsAndOverwritesInsideTheFileOnly) {
    EXPECT_TRUE(files.append(in("f"), "abc"));
    EXPECT_TRUE(files.append(in("f"), "def"));
    EXPECT_EQ(bytesOf("f"), "abcdef");
    EXPECT_FALSE(files.append(m_folder, "x"));
    EXPECT_TRUE(files.overwrite(in("f"), 4, "XY"));
    EXPECT_FALSE(files.overwrite(in("f"), 5, "XY")) << "would grow the file";
    EXPECT_FALSE(files.overwrite(in("f"), ~std::uint64_t{0}, "XY"));
    EXPECT_FALSE(files.overwrite(in("none"), 0, ""));
    EXPECT_EQ(bytesOf("f"), "abcdXY");
    EXPECT_EQ(names(), Names{"f"});
}

TEST_F(FilesTest, CreatesOnlyWhatIsNotThere) {
    EXPECT_TRUE(files.createEmpty(in("f")));
    EXPECT_EQ(bytesOf("f"), "");
    put("f", "kept");
    EXPECT_FALSE(files.createEmpty(in("f")));
    EXPECT_EQ(bytesOf("f"), "kept");
    EXPECT_FALSE(files.createEmpty(in("none/f")));
}

TEST_F(FilesTest, RemovesAndKeepsBackups) {
    EXPECT_TRUE(files.remove(in("none"))) << "it is gone";
    EXPECT_TRUE(files.keepAsBackup(in("none"))) << "nothing to keep";
    put("f", "new");
    put("f.bak", "older");
    EXPECT_TRUE(files.keepAsBackup(in("f")));
    EXPECT_EQ(bytesOf("f.bak"), "new");
    EXPECT_EQ(bytesOf("f"), "new") << "the name never lacks its file";
    EXPECT_TRUE(files.remove(in("f")));
    EXPECT_EQ(names(), Names{"f.bak"});
}

TEST_F(FilesTest, LeavesFilesAloneThatItMayNotWrite) {
    put("f", "old");
    EXPECT_TRUE(files.writable(in("f")));
    EXPECT_FALSE(files.writable(in("none")));
    const auto kept = keepFromWriters("f");
    EXPECT_FALSE(files.writable(in("f")));
    EXPECT_FALSE(files.replace(in("f"), "new"));
    EXPECT_FALSE(files.append(in("f"), "new"));
    EXPECT_FALSE(files.overwrite(in("f"), 0, "new"));
    EXPECT_FALSE(files.remove(in("f")));
    EXPECT_EQ(bytesOf("f"), "old");
    EXPECT_EQ(names(), Names{"f"});
}

}  // namespace
}  // namespace lx
