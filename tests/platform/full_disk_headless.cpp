// Writing when there is no more room: a limit on the size of files stands for the full disk.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>

#include "platform/files.h"

namespace lx {
namespace {

class FullDisk {
public:
    explicit FullDisk(rlim_t room) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{room, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

TEST(FilesWithoutRoom, KeepTheOldFileAndNothingElse) {
    Files& files = systemFiles();
    const Path folder = files.temporaryFolder() + "lx_full_disk";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    const Path file = folder + "/library";
    const Bytes old(1000, 'o');
    const Bytes large(100000, 'n');
    ASSERT_TRUE(files.replace(file, old));
    {
        const FullDisk disk(5000);
        EXPECT_FALSE(files.replace(file, large));
        EXPECT_FALSE(files.append(file, large)) << "part of it fits";
        EXPECT_FALSE(files.append(folder + "/fresh", large));
    }
    EXPECT_EQ(files.read(file).bytes, old);
    int count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder)) ++count;
    EXPECT_EQ(count, 1);
    EXPECT_TRUE(files.append(file, large)) << "all is well again";
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace lx
