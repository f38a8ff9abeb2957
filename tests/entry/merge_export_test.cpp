// The merge as an installation calls it: which files it takes, what it asks of the host and when,
// what is left when something goes wrong.
#include <gtest/gtest.h>
#include <lxdata6dlg.h>

#include <functional>
#include <new>

#include "catalogue/catalogue_file.h"
#include "entry/merge_call.h"
#include "tests/support/bench.h"
#include "tests/support/catalogues.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

using Calls = std::vector<std::string>;

// Notes every call, and with a release what the installed file holds then.
class NotingHost : public FakeHost {
public:
    Calls calls;
    std::function<std::string()> installed = [] { return std::string(); };

    std::optional<Path> folderWithin(HostFolder id, int bufferSize) override {
        calls.push_back("folder " + number(id) + " " + std::to_string(bufferSize));
        return FakeHost::folderWithin(id, bufferSize);
    }
    int requestLock(HostResource resource, int mode) override {
        calls.push_back("request " + number(resource) + " " + std::to_string(mode));
        return FakeHost::requestLock(resource, mode);
    }
    void releaseLock(HostResource resource, int code) override {
        calls.push_back("release " + number(resource) + " " + std::to_string(code) + installed());
    }

private:
    template <class Number>
    static std::string number(Number value) {
        return std::to_string(static_cast<int>(value));
    }
};

Bytes fileOf(const char* type, std::int32_t shape, const char* item, std::int32_t length) {
    return catalogueBytes(catalogueOf({{-1, type, shape}, {1, item, length}}).get());
}

struct MergeCall : testing::Test {
    MemoryFiles files;
    NotingHost host;
    const Path precast = "K/LXDATA6.DAT";
    const Path steel = "K/LXDATA6S.DAT";
    const Path library = "K/preklady.bk6";
    const Bytes old = fileOf("T", 7, "i", 100);
    const Bytes brought = fileOf("T", 9, "i", 200);
    const Bytes updated = fileOf("T", 7, "i", 200);
    const Calls lockedCatalogue{"folder 3 1024", "request 3 9", "release 3 4"};
    const Calls lockedLibrary{"folder 3 1024", "request 2 9", "release 2 4"};

    MergeCall() {
        host.catalogue = "K/";
        host.library = "L/";
        for (const Path& path : {precast, steel}) files.content[path] = old;
        files.content["new/LXDATA6.DAT"] = files.content["new/LXDATA6S.DAT"] = brought;
        files.content["new/x.bk6"] = "supplied";
    }
    int call(const Path& source, const Path& folder, int mode) {
        host.calls.clear();
        return mergeCall(files, host, {source, folder, mode});
    }
};

TEST_F(MergeCall, TheEndOfTheNameChoosesTheCatalogue) {
    EXPECT_EQ(call("new/LXDATA6S.DAT", "", LX_MERGE_CATALOGUE), LX_MERGE_DONE);
    EXPECT_EQ(files.content[steel], updated);
    EXPECT_EQ(files.content[precast], old);
    EXPECT_EQ(files.content.size(), 5U) << "nothing is left beside";

    // Only a steel catalogue is read with its rule for a missing shape.
    const std::pair<const char*, std::int32_t> named[] = {
        {"xLXDATA6S.DAT", 1}, {"S.DAT", 0}, {"lxdata6s.dat", 0}};
    for (const auto& [source, shape] : named) {
        files.content[source] = fileOf("N", 0, "n", 5);
        files.content["P/LXDATA6S.DAT"] = files.content["P/LXDATA6.DAT"] = "";
        EXPECT_EQ(call(source, "P/", LX_MERGE_CATALOGUE), LX_MERGE_DONE);
        EXPECT_EQ(files.content[shape == 1 ? "P/LXDATA6S.DAT" : "P/LXDATA6.DAT"],
                  fileOf("N", shape, "n", 5))
            << source;
    }
}

TEST_F(MergeCall, WithoutAFolderTheHostTellsItAndLocks) {
    host.installed = [this] { return files.content[precast] == updated ? "" : " too early"; };
    EXPECT_EQ(call("new/LXDATA6.DAT", "", LX_MERGE_CATALOGUE), LX_MERGE_DONE);
    EXPECT_EQ(host.calls, lockedCatalogue) << "released after the catalogue is saved";
    host.installed = [this] { return files.content[library] == "supplied" ? "" : " too early"; };
    EXPECT_EQ(call("new/x.bk6", "", LX_MERGE_LIBRARY), LX_MERGE_DONE);
    EXPECT_EQ(host.calls, lockedLibrary);
}

TEST_F(MergeCall, WithAFolderTheEndAloneIsTold) {
    for (const Path& folder : {"Q" + std::string(separator), Path("P\\"), Path("K/")}) {
        files.content[folder + "LXDATA6.DAT"] = old;
        const Path given = folder[0] == 'Q' ? "Q" : folder;
        EXPECT_EQ(call("new/LXDATA6.DAT", given, LX_MERGE_CATALOGUE), LX_MERGE_DONE);
        EXPECT_EQ(files.content[folder + "LXDATA6.DAT"], updated);
        EXPECT_EQ(host.calls, Calls{"release 3 4"});
    }
    EXPECT_EQ(call("new/x.bk6", "K/", LX_MERGE_LIBRARY), LX_MERGE_DONE);
    EXPECT_EQ(host.calls, Calls{"release 2 4"});
    EXPECT_EQ(files.content["K/PREKLADY.BK6"], "supplied");
    host.hasServices = false;
    EXPECT_EQ(call("new/LXDATA6.DAT", "K/", LX_MERGE_CATALOGUE), LX_MERGE_DONE);
    EXPECT_EQ(host.calls, Calls{});
}

TEST_F(MergeCall, WhatIsRefusedTouchesNothing) {
    const auto before = files.content;
    EXPECT_EQ(call("", "", 1), LX_MERGE_NO_SOURCE) << "the name is looked at before the mode";
    for (const int mode : {1, 4, 0, -3}) {
        EXPECT_EQ(call("new/LXDATA6.DAT", "", mode), LX_MERGE_UNKNOWN_MODE);
    }
    EXPECT_EQ(host.calls, Calls{});
    for (const int mode : {LX_MERGE_LIBRARY, LX_MERGE_CATALOGUE}) {
        const std::string resource = std::to_string(mode);
        for (const int answer : {2, 0, 3, -1}) {
            host.lockAnswer = {{HostResource::library, answer}, {HostResource::catalogue, answer}};
            EXPECT_EQ(call("new/x.bk6", "", mode), LX_MERGE_NO_TARGET);
            Calls asked{"folder 3 1024", "request " + resource + " 9"};
            if (answer == 2) asked.push_back("release " + resource + " 2");
            EXPECT_EQ(host.calls, asked);
        }
    }
    host.catalogue.reset();
    EXPECT_EQ(call("new/LXDATA6.DAT", "", LX_MERGE_CATALOGUE), LX_MERGE_NO_TARGET);
    EXPECT_EQ(host.calls, Calls{"folder 3 1024"});
    host.hasServices = false;
    EXPECT_EQ(call("new/LXDATA6.DAT", "", LX_MERGE_CATALOGUE), LX_MERGE_NO_TARGET);
    EXPECT_EQ(host.calls, Calls{});
    EXPECT_EQ(files.content, before);
}

TEST_F(MergeCall, FilesThatCannotBeReadOrWrittenStayAndEndIt) {
    files.content[library] = "installed";
    const auto before = files.content;
    const auto ends = [&](const Path& source, const Path& folder, int answer, const Calls& calls) {
        const int mode = source.ends_with("bk6") ? LX_MERGE_LIBRARY : LX_MERGE_CATALOGUE;
        EXPECT_EQ(call(source, folder, mode), answer) << source;
        EXPECT_EQ(host.calls, calls) << source << folder;
        EXPECT_EQ(files.content, before);
    };
    ends("new/none.bk6", "", LX_MERGE_NO_SOURCE, lockedLibrary);
    ends("new/none.bk6", "K/", LX_MERGE_NO_SOURCE, {"release 2 4"});
    ends("new/none.DAT", "", LX_MERGE_NO_SOURCE, lockedCatalogue);
    ends("new/none.DAT", "K/", LX_MERGE_NO_SOURCE, {});
    ends("new/LXDATA6.DAT", "nowhere", LX_MERGE_NO_TARGET, {});
    files.locked = {precast};
    ends("new/none.DAT", "", LX_MERGE_NO_TARGET, lockedCatalogue);
    ends("new/LXDATA6.DAT", "K/", LX_MERGE_NO_TARGET, {});
    files.locked.clear();
    files.readOnly = true;
    ends("new/LXDATA6.DAT", "", LX_MERGE_NO_TARGET, lockedCatalogue);
    ends("new/x.bk6", "", LX_MERGE_NO_TARGET, lockedLibrary);
}

// Cut short, or with items that the user sees in another type or in none.
TEST_F(MergeCall, WhatAMergeLosesIsKeptAside) {
    const auto bytes = [](const std::vector<CatalogueLine>& lines) {
        return catalogueBytes(catalogueOf(lines).get());
    };
    const struct {
        Bytes installed;
        bool kept;
        Bytes merged;
    } cases[] = {{old + "cut", true, updated},
                 {bytes({{1, "i"}, {-1, "T", 7}}), false, updated},
                 {bytes({{-1, "T"}, {2, "x"}}), true, bytes({{-1, "T"}, {1, "i", 200}})},
                 {bytes({{-1, "T"}, {0, "x"}}), true, bytes({{-1, "T"}, {1, "i", 200}})},
                 {bytes({{5, "x"}}), true, bytes({{-1, "T", 9}, {1, "i", 200}})},
                 // Of types with one number, each has the items of its place.
                 {bytes({{-1, "T"}, {-1, "U"}, {1, "i"}, {2, "u"}}), true,
                  bytes({{-1, "T"}, {1, "i", 200}, {-2, "U"}, {2, "u"}})},
                 {bytes({{-7, "T"}, {1, "i"}, {7, "x"}}), true, bytes({{-1, "T"}, {1, "i", 200}})}};
    for (const auto& c : cases) {
        files.content.erase(precast + ".bak");
        files.content[precast] = c.installed;
        EXPECT_EQ(call("new/LXDATA6.DAT", "", LX_MERGE_CATALOGUE), LX_MERGE_DONE);
        const std::string at = shown(loadCatalogue(CatalogueKind::precast, c.installed).head);
        EXPECT_EQ(files.content[precast], c.merged) << at;
        EXPECT_EQ(files.content.contains(precast + ".bak"), c.kept) << at;
        EXPECT_TRUE(!c.kept || files.content[precast + ".bak"] == c.installed) << at;
    }
}

// Whatever was kept before is there again.
TEST_F(MergeCall, AMergeThatFailsLeavesNoBackup) {
    struct Refusing : MemoryFiles {
        Path refused;
        bool noMemory = false;
        bool replaceByPieces(const Path& path, const NextPiece& next) override {
            if (path != refused) return MemoryFiles::replaceByPieces(path, next);
            for (auto piece = next(); piece && !piece->empty();) piece = next();
            if (noMemory) throw std::bad_alloc();
            return false;
        }
    } refusing;
    refusing.content = {{precast, old + "cut"}, {"new/LXDATA6.DAT", brought}};
    const MergeArguments arguments{"new/LXDATA6.DAT", "", LX_MERGE_CATALOGUE};
    for (const Path& refused : {precast, precast + ".bak"}) {
        refusing.refused = refused;
        for (const bool earlier : {false, true}) {
            if (earlier) refusing.content[precast + ".bak"] = "kept before";
            const auto before = refusing.content;
            refusing.noMemory = false;
            EXPECT_EQ(mergeCall(refusing, host, arguments), LX_MERGE_NO_TARGET);
            EXPECT_EQ(refusing.content, before);
            refusing.noMemory = true;
            EXPECT_THROW(mergeCall(refusing, host, arguments), std::bad_alloc);
            EXPECT_EQ(refusing.content, before);
        }
        refusing.content.erase(precast + ".bak");
    }
}

}  // namespace
}  // namespace lx
