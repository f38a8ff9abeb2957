// The dialog that asks for a new steel type: its name and the shape of its sections. Whoever asks
// checks the name and may run the dialog again; it then shows the name as it was left and keeps the
// shape.
#pragma once

#include "catalogue/my_edit.h"
#include "platform/host.h"

namespace lx {

class CTypPrurez {
public:
    // All must outlive the dialog.
    CTypPrurez(Platform& platform, Host& host, Owner parent);

    Text name;      // proposed; after OK what the user typed
    int shape = 0;  // of the button clicked last, from 1; 0 = none was

    // True after OK.
    bool DoModal();
    // No caption, the stop icon.
    void showMessage(std::string_view text);

private:
    void onInit(Dialog& window);

    Platform& m_platform;
    Host& m_host;
    Owner m_parent;
};

}  // namespace lx
