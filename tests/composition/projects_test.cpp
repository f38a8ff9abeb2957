#include "composition/projects.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/binary.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

Bytes header(std::int32_t selected, std::int32_t count) {
    BinaryWriter writer;
    writer.int32(selected);
    writer.int32(count);
    return writer.take();
}

Bytes sampleFile() {
    ProjectList list;
    list.projects = {{0, "DEFAULT"}, {7, Text("Škola"_cz)}, {3, Text(70, 'n')}};
    list.selected = 1;
    return projectBytes(list);
}

TEST(Projects, AListIsNeverWithoutASelectedProject) {
    for (const Bytes& none : {Bytes(), header(5, 0)}) {
        EXPECT_EQ(parseProjects(none).projects.at(0).name, "DEFAULT");
        EXPECT_EQ(parseProjects(none).currentId(), 0);
        EXPECT_FALSE(parseProjects(none).damaged);
    }
    EXPECT_EQ(parseProjects(sampleFile()).currentId(), 7);
    EXPECT_EQ(parseProjects(sampleFile()).projects[2].name, Text(63, 'n'));
    const Bytes entries = sampleFile().substr(8);
    EXPECT_EQ(parseProjects(header(-1, 3) + entries).selected, 0);
    EXPECT_EQ(parseProjects(header(3, 3) + entries).selected, 0);
    // A project with the id of deleted designs is left out without moving the selection.
    Bytes deleted = header(2, 3) + entries;
    deleted.replace(76, 4, Bytes(4, '\xFF'));
    EXPECT_TRUE(parseProjects(deleted).damaged);
    EXPECT_EQ(parseProjects(deleted).currentId(), 3);
}

TEST(Projects, DamageIsSeenAndWhatCanBeReadIsKept) {
    const Bytes bytes = sampleFile();
    for (std::size_t size = 1; size < bytes.size(); ++size) {
        const ProjectList read = parseProjects(bytes.substr(0, size));
        EXPECT_TRUE(read.damaged) << size;
        EXPECT_EQ(read.projects.size(), size < 12 ? 1 : (size - 8 + 64) / 68) << size;
    }
    const Bytes entries = bytes.substr(8);
    constexpr std::int32_t huge = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(parseProjects(header(0, huge) + entries).projects.size(), 3U);
    for (const int count : {2, -5, huge}) {
        EXPECT_TRUE(parseProjects(header(0, count) + entries).damaged);
    }
    EXPECT_TRUE(parseProjects(header(0, 1) + Bytes(68, 'n')).damaged);
}

TEST(Projects, NothingIsWrittenOverThatCouldNotBeRead) {
    MemoryFiles files;
    ProjectList fresh = loadProjects("p", files);
    EXPECT_TRUE(saveProjects("p", fresh, files));
    files.locked.insert("p");
    ProjectList unreadable = loadProjects("p", files);
    files.locked.clear();
    EXPECT_FALSE(saveProjects("p", unreadable, files));

    const Bytes damaged = sampleFile().substr(0, 100);
    files.content["p"] = damaged;
    ProjectList list = loadProjects("p", files);
    EXPECT_TRUE(saveProjects("p", list, files));
    EXPECT_TRUE(saveProjects("p", list, files));
    EXPECT_EQ(files.content.at("p.bak"), damaged);
}

}  // namespace
}  // namespace lx
