// What a value typed over a number of the previews does to the design: its checks, and what follows
// from it. Lays nothing out.
#pragma once

#include <optional>

#include "design/edit_target.h"
#include "design/layer_commands.h"

namespace lx {

// Kinds of an edit, beside the one of the clicked value.
namespace edit_kind {
inline constexpr int none = -999;
inline constexpr int specialWidth = -1;  // width of a special layer, tested against the wall
inline constexpr int number = 0;
}  // namespace edit_kind

// An edit under way.
struct ValueEdit {
    int kind = edit_kind::none;
    bool absoluteOnly = false;  // a typed negative number is stored as its absolute value
    EditTarget target;
    Text shown;  // the text the edit began with; typed again it changes nothing
};

// An edit to be begun, and the section of the dialog's settings that remembers its values.
struct EditRequest {
    ValueEdit edit;
    Text historySection;
};

struct CommitAnswer {
    bool changed = false;
    std::string_view message;  // the text that refuses; the value then stands as it was
    Text kept;                 // the old value, to be shown again after a refusal
    // The offers that the value bears on.
    bool precastOffer = false;
    bool steelOffer = false;
};

// openingWidth: of the call, mm. Nothing happens when the value's record is gone.
CommitAnswer commitValue(DesignEdit design, const ValueEdit& edit, std::string_view typed,
                         double openingWidth);

// The level in mm that a text in metres stands for, in steps of 5 mm; a comma is taken as the
// decimal point. None outside -150 m to 150 m.
std::optional<std::int32_t> levelFromText(std::string_view metres);

// Metres with three decimals.
Text levelText(std::int32_t millimetres);

}  // namespace lx
