// Every section and key of the two settings files, with its default.
#pragma once

#include <string_view>

namespace lx::settings {

// In the data folder.
inline constexpr std::string_view userFile = "VD_preklady.dat";
inline constexpr std::string_view dialogFile = "LXDATA6DLG.dat";

struct TextKey {
    std::string_view section;
    std::string_view key;
    std::string_view fallback;
};
struct IntKey {
    std::string_view section;
    std::string_view key;
    int fallback;
};

// VD_preklady.dat
inline constexpr IntKey description{"SETTINGS", "DESCRIPTION", 0};
inline constexpr IntKey checkLength{"SETTINGS", "CHECK_LENGTH", 1};
inline constexpr IntKey lintelErase{"SETTINGS", "LINTEL_ERASE", 15};

// LXDATA6DLG.dat
inline constexpr TextKey tab{"DLG_SET", "tab", "0"};
inline constexpr TextKey bubbleName{"DLG_SET", "num_bub", "001"};
inline constexpr TextKey precastType{"COMBO_PREFA", "actual", "-1"};
inline constexpr TextKey steelType{"COMBO_OCEL", "actual", "-1"};

// Bits of description.
inline constexpr int descriptionFoldedSection = 1;
inline constexpr int descriptionText = 2;
inline constexpr int descriptionBubble = 4;
inline constexpr int descriptionDiagonals = 8;

}  // namespace lx::settings
