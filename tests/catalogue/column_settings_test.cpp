#include "catalogue/column_settings.h"

#include <gtest/gtest.h>

#include "tests/support/memory_files.h"

namespace lx {
namespace {

using Numbers = std::vector<int>;

constexpr CatalogueKind precast = CatalogueKind::precast;
constexpr CatalogueKind steel = CatalogueKind::steel;
constexpr const char* file = "VD_preklady.dat";

TEST(ColumnSettings, HoldWhatIsReadToItsLimitsAndKeepTheWidths) {
    MemoryFiles files;
    files.content[file] =
        "[TAB_OCEL]\r\nWIDTH0=9\r\nWIDTH1=-2147483648\r\nWIDTH2=10\r\nWIDTH3=5000\r\n"
        "WIDTH4=wide\r\n"
        "ORD0=5\r\nORD1=4\r\nORD2=3\r\nORD3=2\r\nORD4=1\r\nORD5=0\r\nLIST1=-1\r\nLIST2=7\r\n"
        "[TAB_PREFA]\r\nWIDTH0=200\r\nORD0=1\r\nORD1=1\r\nLIST1=3\r\n";
    ColumnWidths widths;
    const Profile profile(files, file);
    const ColumnSettings read = loadColumnSettings(profile, steel, widths);
    EXPECT_EQ(read.widths, Numbers({10, 10, 10, 5000, 10, 128}));
    EXPECT_EQ(read.order, Numbers({5, 4, 3, 2, 1, 0}));
    EXPECT_EQ(read.type, 0);
    EXPECT_EQ(read.row, 7);

    const ColumnSettings other = loadColumnSettings(profile, precast, widths);
    EXPECT_EQ(other.order, Numbers({0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(other.widths, Numbers({200, 68, 68, 68, 88, 80, 64, 128, 16}));
    EXPECT_EQ(other.type, 3);

    // The widths outlive the file; an order does not.
    files.content.clear();
    const ColumnSettings none = loadColumnSettings(profile, steel, widths);
    EXPECT_EQ(none.widths, Numbers({10, 10, 10, 5000, 10, 128}));
    EXPECT_EQ(none.order, Numbers({0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(none.row, 0);

    for (const char* order : {"ORD5=6", "ORD5=-1", "ORD5=4"}) {
        files.content[file] =
            "[TAB_OCEL]\r\nORD0=1\r\nORD1=0\r\nORD2=3\r\nORD3=2\r\nORD4=4\r\n" + Bytes(order);
        EXPECT_EQ(loadColumnSettings(profile, steel, widths).order, Numbers({0, 1, 2, 3, 4, 5}))
            << order;
    }
}

TEST(ColumnSettings, TakeThePrecastWidthForOneThatIsTooWide) {
    MemoryFiles files;
    Profile profile(files, file);
    ColumnWidths widths;
    widths.precast[1] = 1001;
    widths.precast[2] = 1000;
    widths.precast[4] = 3;
    widths.steel[0] = 55;
    const ColumnSettings state{{1, 0, 2, 3, 5, 4}, {1001, 1200, 1200, 1200, 2000, 1000}, -1, -5};
    EXPECT_TRUE(saveColumnSettings(profile, steel, state, widths));
    EXPECT_EQ(files.content[file],
              "[TAB_OCEL]\r\nORD0=1\r\nWIDTH0=76\r\nORD1=0\r\nWIDTH1=100\r\nORD2=2\r\n"
              "WIDTH2=1000\r\nORD3=3\r\nWIDTH3=68\r\nORD4=5\r\nWIDTH4=10\r\nORD5=4\r\n"
              "WIDTH5=1000\r\nLIST1=0\r\nLIST2=0\r\n");
    EXPECT_EQ(widths.steel[0], 55);
}

}  // namespace
}  // namespace lx
