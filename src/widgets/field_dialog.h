// What the small dialogs of the catalogue share: fields that open with proposed texts and hand back
// what the user left. OK checks no text: whoever asks does, and may run the dialog again; it then
// shows the texts as they were left.
#pragma once

#include <functional>
#include <span>

#include "platform/host.h"
#include "widgets/CMyEdit.h"

namespace lx {

class FieldDialog {
protected:
    struct Field {
        int control = 0;
        Text* text = nullptr;  // proposed; after OK the field's
        int longest = 0;       // bytes that typing may produce
        int decimals = CMyEdit::freeText;
    };

    // All must outlive the dialog.
    FieldDialog(Platform& platform, Host& host, Owner parent)
        : m_platform(platform), m_host(host), m_parent(parent) {}

    // The first field takes the focus. dress: what else there is to set before the window is shown.
    // True after OK; otherwise the texts stay.
    bool run(const DialogTemplate& layout, std::span<const Field> fields,
             const std::function<void(Dialog&)>& dress);
    // In front of the dialog's parent, with the stop icon.
    void stop(std::string_view text, std::string_view caption);

private:
    Platform& m_platform;
    Host& m_host;
    Owner m_parent;
};

}  // namespace lx
