// The small dialog that asks for a name: of a catalogue type, of a project. Whoever asks checks the
// name and may run the dialog again; it then shows the name as it was left.
#pragma once

#include <memory>

#include "catalogue/my_edit.h"
#include "platform/host.h"

namespace lx {

class CAddVyrobce {
public:
    // All must outlive the dialog.
    CAddVyrobce(Platform& platform, Host& host, Owner parent);

    Text title;
    Text label;
    Text name;  // proposed; after OK what the user typed

    // True after OK.
    bool DoModal();
    // The window's title as caption, the stop icon.
    void showMessage(std::string_view text);

private:
    void onInit(Dialog& window);

    Platform& m_platform;
    Host& m_host;
    Owner m_parent;
};

}  // namespace lx
