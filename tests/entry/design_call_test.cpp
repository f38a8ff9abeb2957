// The contract of the design call: what it refuses, what it hands back.
#include <gtest/gtest.h>

#include <limits>

#include "tests/entry/fake_modules.h"

namespace lx {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

struct DesignCall : testing::Test {
    LoadedModule module;
    std::string text = std::string(LX_RESULT_TEXT_SIZE, '#');
    std::int32_t a = 6;
    std::int32_t b = 1;

    int call(double opening, double wall, std::int32_t exterior = 0) {
        OpeningBlock block{};
        block.headShape = block.unread188 = -1;
        return CallLXdata6(nullptr, 0, 0, 0, opening, wall, 0.0, text.data(), &a, &b, block,
                           exterior);
    }
    Session& user() { return module.bench.user(); }
};

TEST_F(DesignCall, RefusesTheWallBeforeTheOpening) {
    const struct {
        double opening, wall;
        const char* refused;
    } cases[] = {{100, 2000.001, "Šířka stěny je větší než 2.0 m"},
                 {100, 69.9, "Šířka stěny je menší než 0.07 m"},
                 {299.999, 70, "Šířka otvoru je menší než 0.30 m"},
                 {1200, nan, "Šířka stěny je menší"},
                 {nan, 300, "Šířka otvoru je menší"},
                 {-1e300, 2000, "Šířka otvoru je menší"}};
    for (const auto& one : cases) {
        user().then([&one](Driver& d) {
            EXPECT_TRUE(d.messageBox().text.starts_with(one.refused)) << d.messageBox().text;
            d.answer("OK");
        });
        EXPECT_EQ(call(one.opening, one.wall), LX_DIALOG_CANCEL);
        EXPECT_EQ(user().failure(), "");
    }
    EXPECT_EQ(text, std::string(LX_RESULT_TEXT_SIZE, '#'));
    EXPECT_EQ(a, 6);
    EXPECT_EQ(module.app.context().values.wallThickness, 0.0);
}

TEST_F(DesignCall, TheBoundsPassAndCancelHandsBackWhatCameIn) {
    for (const auto& [opening, wall] : {std::pair{300.0, 2000.0}, {12000.0, 70.0}}) {
        user().inDialog("Návrh překladu", [](Driver& d) { d.press("Zrušit"); });
        EXPECT_EQ(call(opening, wall), LX_DIALOG_CANCEL);
        EXPECT_EQ(user().failure(), "");
        EXPECT_STREQ(text.c_str(), "nezad\xE1no");
        EXPECT_TRUE(a == 6 && b == 1);
        EXPECT_EQ(module.app.context().values.openingWidth, opening);
    }
}

TEST_F(DesignCall, NullPointersAreNotFollowed) {
    user().inDialog("Návrh překladu", [](Driver& d) { d.press("Zrušit"); });
    EXPECT_EQ(CallLXdata6(nullptr, 0, 0, 0, 1200, 300, nan, nullptr, nullptr, nullptr, {}, 0),
              LX_DIALOG_CANCEL);
    EXPECT_EQ(user().failure(), "");
    EXPECT_EQ(module.app.context().values.level, 0.0);
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
