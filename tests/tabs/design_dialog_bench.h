// A design dialog with small catalogues of its own, opened for a user who acts through the driver.
#pragma once

#include <gtest/gtest.h>

#include <span>

#include "catalogue/catalogue_file.h"
#include "composition/hand_over.h"
#include "composition/layout.h"
#include "composition/library.h"
#include "composition/projects.h"
#include "design/CObr1.h"
#include "resources/icons.h"
#include "settings/profile.h"
#include "tabs/page_factory.h"
#include "tests/support/bench.h"
#include "tests/support/catalogues.h"
#include "tests/support/designs.h"

namespace lx {

struct DesignDialog : testing::Test {
    Bench bench;
    ModuleValues values;
    int resultA = 0;
    int resultB = 0;
    Text resultText;

    void SetUp() override {
        bench.platform().paintIcon = paintIcon;
        values.openingWidth = 1200;
        values.wallThickness = 300;
        values.block.headShape = -1;
        writeCatalogue(CatalogueKind::precast, {{-1, "Tenké"},
                                                {1, "KP 7/1000", 1500, 70, 1200},
                                                {1, "KP 7/750", 1500, 70, 1220},
                                                {1, "KP 7/500", 1500, 70, 1100},
                                                {1, "KP 36/1000", 1500, 365, 1200},
                                                {-2, "Na míru"},
                                                {2, "KV 14/?", -125, 140, 3000}});
        writeCatalogue(
            CatalogueKind::steel,
            {{-1, "IPE", 1}, {1, "IPE 100", 1500, 55}, {-2, "UPN", 3}, {2, "UPN 80", 1500, 45}});
    }

    void writeCatalogue(CatalogueKind kind, const std::vector<CatalogueLine>& lines) {
        const Catalogue head = catalogueOf(lines);
        for (CPreklItem* item = head.get(); item; item = item->next.get()) item->height = 238;
        ASSERT_EQ(saveCatalogueAs(head.get(), cataloguePath(kind, bench.host()), bench.files()), 0);
    }

    // Lays out the design and hands it over, as a host does.
    void give(const RezChain& design) {
        layOut(*design.head());
        WriteHandOver(handOver(), design.head(), 1200, bench.files());
    }
    // The message that comes next; the user answers it.
    void told(const char* text, const char* icon = "stop", const char* caption = "Upozornění") {
        bench.user().then([=](Driver& d) {
            EXPECT_EQ(d.messageBox().text, text);
            EXPECT_EQ(d.messageBox().caption, caption);
            EXPECT_EQ(d.messageBox().icon, icon);
            d.answer("OK");
        });
    }
    // Runs the dialog against the steps that bench.user() has been given.
    int run() {
        TabFactory factory;
        const Context context{bench.platform(), bench.files(), bench.host(), values};
        int answer = 0;
        {
            CObr1 dialog(context, Owner{}, factory);
            dialog.resultA = resultA;
            dialog.resultB = resultB;
            answer = dialog.DoModal();
            resultA = dialog.resultA;
            resultB = dialog.resultB;
            resultText = dialog.resultText;
        }
        EXPECT_EQ(bench.user().failure(), "");
        EXPECT_EQ(values.precast, nullptr);
        return answer;
    }
    int run(std::function<void(Driver&)> steps) {
        bench.user().inDialog("Návrh překladu", std::move(steps));
        return run();
    }

    Path path(std::string_view name) const { return bench.dataFolder() + Path(name); }
    void set(std::string_view file, std::string_view section, std::string_view key,
             std::string_view value) {
        ASSERT_TRUE(Profile(bench.files(), path(file)).write(section, key, value));
    }
    Text get(std::string_view file, std::string_view section, std::string_view key) {
        return Profile(bench.files(), path(file)).read(section, key, "none");
    }
    Path handOver() const { return bench.temporaryFolder() + Path(handOverFileName); }
    // Removes it, as a host that picks it up.
    RezChain takeHandOver() {
        HandOverRead read = ReadHandOver(handOver(), bench.files());
        bench.files().remove(handOver());
        return std::move(read.design);
    }
    Path libraryFile() const { return bench.libraryFolder() + Path(libraryFileName); }
    std::vector<LibraryEntry> stored(std::int32_t project = 0) {
        return loadLibrary(libraryFile(), project, bench.files()).entries;
    }
};

// Whether the design that is shown has the line, one of `describe("design")`.
inline bool has(Driver& d, std::string_view line) {
    return d.describe("design").find(std::string(line) + "\n") != std::string::npos;
}

inline bool drawn(Driver& d, const char* picture, std::string_view what) {
    return d.drawing(picture).find(what) != std::string::npos;
}

// The picture's regions without their places, "layer 1;overhang;".
inline std::string regionNames(Driver& d, const char* picture) {
    std::string names;
    for (const std::string& region : d.regions(picture)) {
        std::size_t end = region.size();
        for (int number = 0; number < 4; ++number) end = region.rfind(' ', end - 1);
        names += region.substr(0, end) + ";";
    }
    return names;
}

inline void clickRegion(Driver& d, const char* picture, std::string_view region) {
    d.mouseDown(picture, d.regionPoint(picture, region));
}

// '1' for each control that is enabled, else '0'.
inline std::string enabledAmong(Driver& d, std::span<const char* const> controls) {
    std::string text;
    for (const char* control : controls) text += d.enabled(control) ? '1' : '0';
    return text;
}

// Controls that have no label or text of their own.
inline constexpr const char* offerList = "#1203";
inline constexpr const char* propertiesBox = "#1024";
inline constexpr const char* bubbleField = "#1110";
inline constexpr const char* descriptionField = "#1108";
inline constexpr const char* inPlaceBox = "#1022";

}  // namespace lx
