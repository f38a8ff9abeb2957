// The platform object that the windows share: instance, window classes, message numbers, fonts.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "platform/windows/gdi_canvas.h"

namespace lx {

class WindowsDialog;

class WindowsPlatform final : public Platform {
public:
    explicit WindowsPlatform(HINSTANCE instance);
    ~WindowsPlatform() override;

    std::unique_ptr<Dialog> createDialog(const DialogTemplate& layout, Owner owner) override;
    MessageAnswer messageBox(Owner owner, std::string_view message, std::string_view caption,
                             MessageIcon icon, MessageButtons buttons) override;
    bool setClipboardText(std::string_view text) override;
    Screen screen() override;
    void beep() override;

    HINSTANCE instance() const { return m_instance; }
    FontCache& fonts() { return m_fonts; }
    HCURSOR cursor(CursorShape shape) const;
    // Registers what the windows need, at the first dialog.
    void prepareWindows();
    // The class of pictures; null before prepareWindows or when the system refused it.
    const wchar_t* pictureClass() const { return m_pictureClass.c_str(); }
    // Number of the message by which windows are asked to describe themselves.
    UINT describeMessage() const { return m_describeMessage; }

    // Top-level dialogs with a window, in the order of their making.
    void enlist(WindowsDialog& dialog) { m_dialogs.push_back(&dialog); }
    void strike(WindowsDialog& dialog);

private:
    HINSTANCE m_instance;
    FontCache m_fonts;
    std::wstring m_pictureClass;
    HCURSOR m_hand = nullptr;
    UINT m_describeMessage = 0;
    bool m_prepared = false;
    std::vector<WindowsDialog*> m_dialogs;
};

// The window that a dialog or message box with that owner stands in front of; null when there is
// none.
HWND ownerWindow(const Owner& owner);

}  // namespace lx
