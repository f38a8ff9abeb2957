// Every file of the corpora is read by every reader; fuzz/corpus holds what the module writes and
// what once was a finding. LX_WRITE_SEEDS=1 writes the former anew.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "fuzz/targets.h"
#include "platform/files.h"

namespace lx::fuzz {
namespace {

namespace fs = std::filesystem;

const std::string corpus = LX_SOURCE_DIR "/fuzz/corpus/";

std::vector<Bytes> corpusFiles() {
    std::vector<Bytes> all;
    for (const auto& entry : fs::recursive_directory_iterator(corpus)) {
        if (!entry.is_regular_file()) continue;
        all.push_back(systemFiles().read(entry.path().string()).bytes);
    }
    return all;
}

// A format that changes would leave files of earlier versions behind.
TEST(Corpus, SeedsAreWhatTheModuleWrites) {
    for (const Seed& seed : seeds()) {
        const std::string path = corpus + std::string(seed.target) + "/" + std::string(seed.name);
        if (std::getenv("LX_WRITE_SEEDS") != nullptr) {
            fs::create_directories(fs::path(path).parent_path());
            std::ofstream(path, std::ios::binary) << seed.bytes;
        }
        EXPECT_EQ(systemFiles().read(path).bytes, seed.bytes) << path;
    }
}

TEST(Corpus, EveryFileIsReadByEveryReader) {
    const std::vector<Bytes> files = corpusFiles();
    ASSERT_GE(files.size(), std::size(targets));
    for (const Target& target : targets) {
        for (const Bytes& file : files) target.read(file);
    }
}

// A little of what the fuzzers do, in every run of the tests.
TEST(Corpus, DamagedSeedsAreReadByTheirReader) {
    std::mt19937 random(7);
    for (const Seed& seed : seeds()) {
        const auto target = std::find_if(
            std::begin(targets), std::end(targets),
            [&seed](const Target& candidate) { return candidate.name == seed.target; });
        ASSERT_NE(target, std::end(targets));
        for (std::size_t size = 0; size <= seed.bytes.size(); ++size) {
            target->read(seed.bytes.substr(0, size));
        }
        for (int round = 0; round < 200; ++round) {
            Bytes damaged = seed.bytes;
            for (int i = 0; i < 4; ++i) {
                damaged[random() % damaged.size()] = static_cast<char>(random());
            }
            target->read(damaged);
        }
    }
}

}  // namespace
}  // namespace lx::fuzz
