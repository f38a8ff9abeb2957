// A design dialog over empty catalogues, opened for a user who acts through the driver.
#pragma once

#include <gtest/gtest.h>

#include "composition/hand_over.h"
#include "composition/layout.h"
#include "dialog/CObr1.h"
#include "resources/icons.h"
#include "settings/profile.h"
#include "tests/support/bench.h"
#include "tests/support/designs.h"

namespace lx {

struct DesignDialog : testing::Test {
    Bench bench;
    ModuleValues values;

    void SetUp() override {
        bench.platform().paintIcon = paintIcon;
        values.openingWidth = 1200;
        values.wallThickness = 300;
    }

    // Lays out the design and hands it over, as a host does.
    void give(const RezChain& design) {
        layOut(*design.head());
        WriteHandOver(handOver(), design.head(), 1200, bench.files());
    }
    // Runs the dialog against the steps that bench.user() has been given.
    int run() {
        const Context context{bench.platform(), bench.files(), bench.host(), values};
        const int answer = CObr1(context, Owner{}).doModal();
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
};

// Whether the design that is shown has the line, one of `describe("design")`.
inline bool has(Driver& d, std::string_view line) {
    return d.describe("design").find(std::string(line) + "\n") != std::string::npos;
}

}  // namespace lx
