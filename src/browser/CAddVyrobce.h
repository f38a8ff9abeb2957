// The small dialog that asks for a name: of a catalogue type, of a project.
#pragma once

#include "widgets/field_dialog.h"

namespace lx {

class CAddVyrobce : private FieldDialog {
public:
    // All must outlive the dialog.
    CAddVyrobce(Platform& platform, Host& host, Owner parent)
        : FieldDialog(platform, host, parent) {}

    Text title;
    Text label;
    Text name;  // proposed; after OK what the user typed

    // True after OK.
    bool doModal();
    // The window's title as caption, the stop icon.
    void showMessage(std::string_view text) { stop(text, title); }
};

}  // namespace lx
