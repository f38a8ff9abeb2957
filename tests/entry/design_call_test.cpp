// The contract of the design call: what it refuses, what it hands back.
#include <gtest/gtest.h>

#include <limits>

#include "resources/strings.h"
#include "tests/entry/fake_modules.h"

namespace lx {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(DesignCall, NullPointersAreNotFollowed) {
    LoadedModule module;
    module.bench.user().inDialog("Návrh překladu", [](Driver& d) { d.press("Zrušit"); });
    EXPECT_EQ(CallLXdata6(nullptr, 0, 0, 0, 1200, 300, nan, nullptr, nullptr, nullptr, {}, 0),
              LX_DIALOG_CANCEL);
    EXPECT_EQ(module.bench.user().failure(), "");
    EXPECT_EQ(module.app.context().values.level, 0.0);
    EXPECT_EQ(mergeLibraryFiles(nullptr, nullptr, nullptr, 3), LX_MERGE_NO_SOURCE);
}

TEST(ResultText, IsCutToItsBuffer) {
    std::string buffer(LX_RESULT_TEXT_SIZE + 8, '#');
    copyResultText(std::string(LX_RESULT_TEXT_SIZE - 1, 'x'), buffer.data());
    EXPECT_EQ(buffer, std::string(1023, 'x') + '\0' + "########");
    copyResultText(std::string(5000, 'y'), buffer.data());
    EXPECT_EQ(buffer, std::string(1023, 'y') + '\0' + "########");
}

// A platform without memory left for a window.
struct ExhaustedPlatform : Platform {
    std::unique_ptr<Dialog> createDialog(const DialogTemplate&, Owner) override {
        throw std::bad_alloc();
    }
    MessageAnswer messageBox(Owner, std::string_view, std::string_view, MessageIcon,
                             MessageButtons) override {
        throw std::bad_alloc();
    }
    bool setClipboardText(std::string_view) override { return false; }
    Screen screen() override { return {}; }
    void beep() override {}
};

TEST(Exports, ExceptionsStopAndTheNextCallIsHeard) {
    ExhaustedPlatform platform;
    FakeModules modules;
    CLXdata6dlgApp app(platform, systemFiles(), modules);
    app.InitInstance();
    setApplication(&app);
    std::int32_t a = 3;
    std::string text(LX_RESULT_TEXT_SIZE, '#');
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(LintelErase(nullptr), 0);
        EXPECT_EQ(CallLXdata6Base(nullptr), LX_DIALOG_FAILED);
        EXPECT_EQ(CallLXdata6(nullptr, 0, 0, 0, 1200, 300, 0, text.data(), &a, nullptr, {}, 0),
                  LX_DIALOG_FAILED);
        EXPECT_EQ(CallLXdata6(nullptr, 0, 0, 0, 1200, 1, 0, nullptr, nullptr, nullptr, {}, 0),
                  LX_DIALOG_FAILED);
    }
    EXPECT_STREQ(text.c_str(), "nezad\xE1no");
    EXPECT_EQ(a, 3);
    setApplication(nullptr);
    EXPECT_EQ(LintelErase(nullptr), 0);
    EXPECT_EQ(CallLXdata6Base(nullptr), LX_DIALOG_FAILED);
    EXPECT_EQ(mergeLibraryFiles(nullptr, "x", nullptr, 3), LX_MERGE_NO_TARGET);
}

}  // namespace
}  // namespace lx
