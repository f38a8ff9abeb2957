// The user interface of a platform: makes dialogs, shows message boxes, owns clipboard and screen.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "platform/dialog.h"

namespace lx {

// Who a dialog or message box stands in front of: a dialog of the module, else a window of the
// host, else nobody. hostWindow is the host's window handle, opaque.
struct Owner {
    Dialog* dialog = nullptr;
    void* hostWindow = nullptr;
};

enum class MessageIcon { none, stop, question, warning, information };
enum class MessageButtons { ok, okCancel, yesNo };
enum class MessageAnswer { ok = 1, cancel = 2, yes = 6, no = 7 };

struct Screen {
    Size size;              // pixels
    int verticalDpi = 96;   // pixels per logical inch
    Size iconSize{32, 32};  // the system's standard icon
};

class Platform {
public:
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    virtual ~Platform() = default;

    // Never null; a dialog whose window could not be made answers -1 from runModal. A page's owner
    // is the dialog that shows it, which must outlive it.
    virtual std::unique_ptr<Dialog> createDialog(const DialogTemplate& layout, Owner owner) = 0;
    virtual MessageAnswer messageBox(Owner owner, std::string_view message,
                                     std::string_view caption, MessageIcon icon,
                                     MessageButtons buttons) = 0;
    // False when the clipboard could not take the text.
    virtual bool setClipboardText(std::string_view text) = 0;
    virtual Screen screen() = 0;
    // Whether the user holds Ctrl, Shift or Alt now is part of KeyEvent; this is the signal of a
    // refused key.
    virtual void beep() = 0;

    // Draws the icon of a resource number into (0, 0, size); false when there is none. Set once,
    // before the first dialog; the platform draws icons of buttons, rows, headings and captions by
    // it.
    std::function<bool(Canvas&, int number, Size size)> paintIcon;
};

}  // namespace lx
