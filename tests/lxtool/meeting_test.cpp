// Two programs on one file.
#include <gtest/gtest.h>

#include "lxtool/command_line.h"
#include "lxtool/file_lock.h"
#include "tests/support/memory_files.h"

namespace lx::lxtool {
namespace {

const Bytes table =
    "záznam,označení,délka,šířka,výška,max_otvor,hmotnost,qu,písmeno,popis\r\nT,New,,,,,,,,\r\n";

struct Bench {
    std::string told;
    // Meanwhile standard input is read, at which the file is known already.
    std::function<void()> meanwhile = [] {};
    Console console{[this] {
                        meanwhile();
                        return std::optional<Bytes>(table);
                    },
                    [](std::string_view) { return true; },
                    [this](std::string_view text) { told += text; }};

    Result import(Files& files, const std::string& catalogue) {
        told.clear();
        return run({"catalogue", "import", "-", catalogue}, console, files);
    }
};

TEST(Meeting, WhatAnotherProgramWroteMeanwhileStays) {
    MemoryFiles files;
    Bench bench;
    for (const bool wasThere : {true, false}) {
        files.content.clear();
        if (wasThere) files.content["LXDATA6.DAT"] = "";
        bench.meanwhile = [&] { files.content["LXDATA6.DAT"] = "other"; };
        EXPECT_EQ(bench.import(files, "LXDATA6.DAT"), Result::failed);
        EXPECT_EQ(files.content.at("LXDATA6.DAT"), "other");
        EXPECT_EQ(files.content.size(), 1U);
        EXPECT_NE(bench.told.find("LXDATA6.DAT: another program has changed"), std::string::npos);
    }
    bench.meanwhile = [] {};
    EXPECT_EQ(bench.import(files, "LXDATA6.DAT"), Result::done) << bench.told;
    EXPECT_EQ(files.content.at("LXDATA6.DAT.bak"), "other");
}

TEST(Meeting, AFileThatAnotherRunHoldsIsLeftAlone) {
    Files& files = systemFiles();
    const Path path = files.temporaryFolder() + "lxtool-meeting-LXDATA6.DAT";
    ASSERT_TRUE(files.replace(path, ""));
    Bench bench;
    FileLock other;
    ASSERT_TRUE(other.take(path));
    EXPECT_EQ(bench.import(files, path), Result::failed);
    EXPECT_NE(bench.told.find("another program works with this file"), std::string::npos);
    EXPECT_EQ(files.read(path).bytes, "");
    other.release();
    // Held while the tool works, let go behind.
    bench.meanwhile = [&] { EXPECT_FALSE(FileLock().take(path)); };
    EXPECT_EQ(bench.import(files, path), Result::done) << bench.told;
    EXPECT_EQ(files.read(path).bytes.size(), 42U);
    EXPECT_TRUE(other.take(path));
    other.release();
    EXPECT_TRUE(files.remove(path));
}

}  // namespace
}  // namespace lx::lxtool
