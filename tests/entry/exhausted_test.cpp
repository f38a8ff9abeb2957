// Memory running out and files failing at any moment of a dialog call: the call comes back, nothing
// is left behind or damaged, and the next call works.
#include <gtest/gtest.h>

#include <cstring>

#include "catalogue/catalogue_file.h"
#include "resources/ids.h"
#include "tests/entry/failing_memory.h"
#include "tests/entry/fake_modules.h"
#include "tests/entry/plain_user.h"
#include "tests/support/catalogues.h"
#include "tests/support/failing_files.h"

namespace lx {
namespace {

using Acts = std::vector<PlainAct>;

const Acts designActs = {{id::tabs, 1},
                         {id::precastAdd},
                         {id::precastInsulation},
                         {id::tabs, 2},
                         {id::steelCompose},
                         {id::tabs, 3},
                         {id::monolithAdd},
                         {id::tabs, 4},
                         {id::newProject},
                         {id::cancel},
                         {id::tabs, 0},
                         {id::insertDescription},
                         {id::annotationSettings},
                         {id::ok},
                         {id::tabs, 1},
                         {id::precastCatalogue},
                         {id::cancel},
                         {id::ok}};
const Acts browserActs = {{id::choosePrecast}, {id::ok}};
const Acts eraseActs = {{id::eraseSection}, {id::ok}};

struct Call {
    const char* name;
    const Acts& acts;
    int done;
    int failed;  // what the host gets when memory runs out
    int (*make)();
};

char g_text[LX_RESULT_TEXT_SIZE];

const Call calls[] = {
    {"CallLXdata6", designActs, LX_DIALOG_OK, LX_DIALOG_FAILED,
     [] {
         std::int32_t a = 0;
         std::int32_t b = 0;
         return CallLXdata6(nullptr, 0, 0, 0, 1200, 300, 0.0, g_text, &a, &b, emptyBlock(), 1);
     }},
    {"CallLXdata6Base", browserActs, LX_DIALOG_OK, LX_DIALOG_FAILED,
     [] { return CallLXdata6Base(nullptr); }},
    {"LintelErase", eraseActs, 15, 0, [] { return LintelErase(nullptr); }},
};

struct Exhausted : testing::Test {
    LoadedModule module;
    PlainUser user{module.bench};
    const Bytes catalogue = catalogueBytes(madeCatalogue(3, 6).get());

    Bench& bench() { return module.bench; }
    Path precast() { return bench().catalogueFolder() + "LXDATA6.DAT"; }
    Path library() { return bench().libraryFolder() + "preklady.bk6"; }

    void prepare() {
        for (const char* name : {"LXDATA6.DAT", "LXDATA6S.DAT"}) {
            bench().write(bench().catalogueFolder() + name, catalogue);
        }
        bench().write(bench().dataFolder() + "VD_preklady.dat", "[KEPT]\r\nby=all\r\n");
        for (const char* name : {"preklady.bk6", "akce.bk6"}) {
            bench().files().remove(bench().libraryFolder() + name);
        }
        bench().files().remove(bench().temporaryFolder() + "LXDATA6I.tmp");
    }
    int make(const Call& call) {
        user.act(call.acts);
        return call.make();
    }
    // The call once more, with all that it needs.
    void expectWorks(const Call& call) {
        EXPECT_EQ(make(call), call.done);
        EXPECT_EQ(bench().read(precast()), catalogue);
        const auto settings = bench().read(bench().dataFolder() + "VD_preklady.dat");
        EXPECT_NE(settings.value_or("").find("[KEPT]\r\nby=all\r\n"), Bytes::npos);
    }
};

// So many different moments of each call: real windows take a second for one.
#if defined(_WIN32)
constexpr int moments = 16;
#else
constexpr int moments = 150;
#endif

TEST_F(Exhausted, EveryCallSurvivesMemoryRunningOut) {
    for (const Call& call : calls) {
        SCOPED_TRACE(call.name);
        prepare();
        expectWorks(call);
        prepare();
        beginMemory(0);
        make(call);
        const long all = endMemory();
        ASSERT_GT(all, 30);
        const long live = liveAllocations();
        for (long failFrom = 1; failFrom <= all; failFrom += 1 + all / moments) {
            prepare();
            user.act(call.acts);
            std::memset(g_text, 0, sizeof g_text);
            beginMemory(failFrom);
            const int result = call.make();
            const bool ranOut = endMemory() >= failFrom;
            // A call may have done its work before.
            if (ranOut) {
                EXPECT_TRUE(result == call.failed || result == call.done) << result;
            }
            EXPECT_EQ(liveAllocations(), live) << "from " << failFrom;
            EXPECT_EQ(bench().read(precast()), catalogue);
            expectWorks(call);
        }
    }
}

TEST_F(Exhausted, EveryCallSurvivesAFileThatFails) {
    for (const Call& call : calls) {
        SCOPED_TRACE(call.name);
        int all = 1;
        for (int failAt = 0; failAt <= all; failAt += failAt == 0 ? 1 : 1 + all / moments) {
            SCOPED_TRACE(failAt);
            prepare();
            {
                FailingFiles failing(bench().files(), failAt);
                CLXdata6dlgApp app(bench().platform(), failing, module.modules);
                app.InitInstance();
                setApplication(&app);
                const int result = make(call);
                setApplication(&module.app);
                EXPECT_TRUE(result == call.done || result == LX_DIALOG_CANCEL) << result;
                if (failAt == 0) all = failing.operations();
            }
            expectWorks(call);
        }
    }
}

}  // namespace
}  // namespace lx
