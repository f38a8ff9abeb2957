// The dialog that asks for a new steel type: its name and the shape of its sections. Run again, it
// keeps the shape.
#pragma once

#include "widgets/field_dialog.h"

namespace lx {

class CTypPrurez : private FieldDialog {
public:
    // All must outlive the dialog.
    CTypPrurez(Platform& platform, Host& host, Owner parent)
        : FieldDialog(platform, host, parent) {}

    Text name;      // proposed; after OK what the user typed
    int shape = 0;  // of the button clicked last, from 1; 0 = none was

    // True after OK.
    bool doModal();
    // No caption, the stop icon.
    void showMessage(std::string_view text) { stop(text, {}); }

private:
    void dressShapes(Dialog& window);
};

}  // namespace lx
