// Every section and key of the two settings files, with its default.
#pragma once

#include <cstddef>
#include <string_view>

namespace lx::settings {

// In the data folder.
inline constexpr std::string_view userFile = "VD_preklady.dat";
inline constexpr std::string_view dialogFile = "LXDATA6DLG.dat";

struct TextKey {
    std::string_view section;
    std::string_view key;
    std::string_view fallback;
    std::size_t bufferSize = 1024;  // a longer value is cut to one byte less
};
struct IntKey {
    std::string_view section;
    std::string_view key;
    int fallback;
};

// ---- VD_preklady.dat

inline constexpr IntKey description{"SETTINGS", "DESCRIPTION", 0};
inline constexpr IntKey checkLength{"SETTINGS", "CHECK_LENGTH", 1};
inline constexpr IntKey lintelErase{"SETTINGS", "LINTEL_ERASE", 15};

// Bits of description.
inline constexpr int descriptionFoldedSection = 1;
inline constexpr int descriptionText = 2;
inline constexpr int descriptionBubble = 4;
inline constexpr int descriptionDiagonals = 8;

// Annotation style, for the host to draw by: the module edits it and uses none of it. Numbers are
// kept as the user typed them. 1 is the bubble's, 2 the description's.
inline constexpr TextKey textStyle{"SETTINGS", "STYLE", "Standard"};
inline constexpr TextKey bubbleColor{"SETTINGS", "COLOR1", "0", 50};  // index of the eight colours
inline constexpr TextKey descriptionColor{"SETTINGS", "COLOR2", "0", 50};
inline constexpr TextKey turnedByAngle{"SETTINGS", "IF_ANGLE1", "1", 30};  // 0 = as the opening
inline constexpr TextKey auxiliaryLine{"SETTINGS", "IF_POMLINE1", "1", 30};
inline constexpr TextKey bubbleAngle{"SETTINGS", "ANGLE1", "0.0", 30};
inline constexpr TextKey bubbleTextHeight{"SETTINGS", "HEIGHT1", "2.5", 30};
inline constexpr TextKey descriptionTextHeight{"SETTINGS", "HEIGHT2", "2.5", 30};
inline constexpr TextKey auxiliaryLineLength{"SETTINGS", "LENGTH1", "10.0", 30};
inline constexpr TextKey outlineHasEdges{"SETTINGS", "IF_EDGES", "0", 30};
inline constexpr TextKey bubbleWidthFactor{"SETTINGS", "WIDTH1", "0.8", 30};
inline constexpr TextKey descriptionWidthFactor{"SETTINGS", "WIDTH2", "0.8", 30};
inline constexpr TextKey bubbleDiameter{"SETTINGS", "DIAMETER", "10", 30};
inline constexpr TextKey outlineEdges{"SETTINGS", "EDGES", "4", 30};

// The catalogue browser's window: a list of integers of the typed store, none at first.
inline constexpr std::string_view windowPositionSection = "SETTINGS";
inline constexpr std::string_view windowPositionKey = "windowPosition";

// The catalogue browser's columns, a section for each catalogue. The keys of the order and of the
// widths end in the display position and in the column's number.
inline constexpr std::string_view precastColumns = "TAB_PREFA";
inline constexpr std::string_view steelColumns = "TAB_OCEL";
inline constexpr std::string_view columnOrderKey = "ORD";      // default 0
inline constexpr std::string_view columnWidthKey = "WIDTH";    // pixels, defaults below
inline constexpr std::string_view typeSelectionKey = "LIST1";  // default 0
inline constexpr std::string_view itemSelectionKey = "LIST2";  // default 0
inline constexpr int precastColumnWidths[] = {76, 68, 68, 68, 88, 80, 64, 128, 16};
inline constexpr int steelColumnWidths[] = {76, 68, 68, 100, 64, 128};

// ---- LXDATA6DLG.dat

inline constexpr TextKey tab{"DLG_SET", "tab", "0"};
inline constexpr TextKey bubbleName{"DLG_SET", "num_bub", "001"};
inline constexpr TextKey precastType{"COMBO_PREFA", "actual", "-1"};
inline constexpr TextKey steelType{"COMBO_OCEL", "actual", "-1"};

// Sections of the remembered values of the in-place drop-down; ValueHistory knows their keys.
inline constexpr std::string_view insulationThickness = "COMBO_TLOUSTKA";
inline constexpr std::string_view insulationHeight = "COMBO_VYSKA3";
inline constexpr std::string_view monolithWidth = "COMBO_SIRKA";
inline constexpr std::string_view monolithHeight = "COMBO_VYSKA2";
inline constexpr std::string_view lintelLevel = "COMBO_VYSKA";
inline constexpr std::string_view lintelOverhang = "COMBO_PRESAH";
inline constexpr std::string_view singleBendStep = "COMBO_NADPR1_1";
inline constexpr std::string_view singleBendRun = "COMBO_NADPR2_1";
// Other heads: followed by a count, "_" and 2 or 3.
inline constexpr std::string_view otherBends = "COMBO_NADPR";

}  // namespace lx::settings
