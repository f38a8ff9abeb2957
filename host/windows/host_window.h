// The stand-in host's own window, and a modal dialog of its own in front of it: what a call may
// find as owner.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "host/host_settings.h"

namespace lx::host {

class HostWindow {
public:
    HostWindow();
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    // Brings the window into the state of the settings, makes the call from it, and brings it back.
    void call(const HostSettings& settings, const std::function<void(void* owner)>& make);
    // "window disabled minimized", and while it is open "dialog enabled active".
    std::vector<std::string> look() const;

private:
    struct ModalCall;

    void callFromDialog(const std::function<void(void* owner)>& make);
    static INT_PTR CALLBACK dialogProcedure(HWND dialog, UINT message, WPARAM wParam,
                                            LPARAM lParam);

    HWND m_window;
    HWND m_dialog = nullptr;
};

}  // namespace lx::host
