#include "platform/windows/control_core.h"

#include <algorithm>
#include <cstring>

#include "platform/windows/wide_text.h"
#include "platform/windows/windows_dialog.h"
#include "platform/windows/windows_platform.h"

namespace lx {

LRESULT answerDescribe(const DescribeRequest& request, const Text& answer) {
    const std::size_t count = std::min(answer.size(), request.capacity);
    if (request.buffer && count > 0) std::memcpy(request.buffer, answer.data(), count);
    return static_cast<LRESULT>(answer.size());
}

ControlCore::ControlCore(WindowsDialog& dialog, const ControlTemplate& layout)
    : m_text(layout.text),
      m_dialog(dialog),
      m_kind(layout.kind),
      m_id(layout.id),
      m_style(layout.style),
      m_area(dialog.toPixels(layout.area)),
      m_enabled((layout.style & style::disabled) == 0),
      m_visible((layout.style & style::hidden) == 0) {}

ControlCore::~ControlCore() = default;

WindowsPlatform& ControlCore::platform() const {
    return m_dialog.platform();
}

bool ControlCore::setting() const {
    return m_settings > 0 || !m_dialog.stands();
}

bool ControlCore::refuses(UINT message) const {
    const bool input = (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
                       (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
                       message == BM_CLICK || message == WM_CONTEXTMENU;
    return input && !m_dialog.stands();
}

void ControlCore::create(bool startsGroup) {
    if (!m_dialog.window()) return;
    const WindowClass kindClass = windowClass();
    DWORD bits = WS_CHILD | kindClass.style;
    if (m_visible) bits |= WS_VISIBLE;
    if (!m_enabled) bits |= WS_DISABLED;
    if (wantsTabStop()) bits |= WS_TABSTOP;
    if (startsGroup) bits |= WS_GROUP;
    m_window = CreateWindowExW(
        kindClass.extendedStyle, kindClass.name, wide(m_text).c_str(), bits, m_area.left,
        m_area.top, m_area.width(), m_area.height(), m_dialog.window(),
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(m_id)), platform().instance(), nullptr);
    if (!m_window) return;
    SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    m_inherited = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure)));
    const Setting guard(*this);
    send(WM_SETFONT, reinterpret_cast<WPARAM>(m_dialog.font()), FALSE);
    attached();
}

LRESULT CALLBACK ControlCore::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<ControlCore*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self) return DefWindowProcW(window, message, wParam, lParam);
    try {
        if (message == WM_NCDESTROY) {
            SetWindowLongPtrW(window, GWLP_USERDATA, 0);
            self->m_window = nullptr;
        }
        // A released control only passes on what its window needs to go.
        if (!self->m_window) {
            return CallWindowProcW(self->m_inherited, window, message, wParam, lParam);
        }
        if (self->refuses(message)) return 0;
        return self->message(message, wParam, lParam);
    } catch (...) {
        self->m_dialog.failed();
    }
    return 0;
}

LRESULT ControlCore::inherited(UINT message, WPARAM wParam, LPARAM lParam) const {
    return CallWindowProcW(m_inherited, m_window, message, wParam, lParam);
}

LRESULT ControlCore::message(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == platform().describeMessage() && message != 0) {
        const auto* request = reinterpret_cast<const DescribeRequest*>(lParam);
        if (!request) return 0;
        const auto question = static_cast<DescribeQuestion>(wParam);
        return answerDescribe(*request, question == DescribeQuestion::tooltip
                                            ? tooltipText()
                                            : describe(question, *request));
    }
    if (message == WM_SETFOCUS) {
        LRESULT result = 0;
        {
            // Some kinds report a click when the focus arrives.
            const Setting guard(*this);
            result = inherited(message, wParam, lParam);
        }
        m_dialog.root().focusArrived(*this);
        return result;
    }
    return inherited(message, wParam, lParam);
}

void ControlCore::commandArrived(WORD code) {
    if (!setting()) command(code);
}

Text ControlCore::windowText() const {
    const int length = GetWindowTextLengthW(m_window);
    std::wstring buffer(static_cast<std::size_t>(std::max(length, 0)) + 1, L'\0');
    const int copied = GetWindowTextW(m_window, buffer.data(), static_cast<int>(buffer.size()));
    buffer.resize(static_cast<std::size_t>(std::max(copied, 0)));
    return narrow(buffer);
}

void ControlCore::release() {
    if (!m_window) return;
    m_enabled = isEnabled();
    m_visible = isVisible();
    m_area = doArea();
    m_text = doText();
    keepState();
    m_window = nullptr;
}

bool ControlCore::isEnabled() const {
    return m_window ? (GetWindowLongPtrW(m_window, GWL_STYLE) & WS_DISABLED) == 0 : m_enabled;
}

bool ControlCore::isVisible() const {
    return m_window ? (GetWindowLongPtrW(m_window, GWL_STYLE) & WS_VISIBLE) != 0 : m_visible;
}

bool ControlCore::isReachable() const {
    return isVisible() && (m_host ? m_host->isReachable() : m_dialog.reachable());
}

ControlFacts ControlCore::facts() const {
    const bool usable = isEnabled() && (!m_host || m_host->isEnabled());
    const auto* radio = dynamic_cast<const RadioButton*>(this);
    return {m_kind, m_id, m_style, 0, isReachable(), usable, radio && radio->checked()};
}

void ControlCore::doSetText(std::string_view text) {
    m_text = text;
    if (!m_window) return;
    const Setting guard(*this);
    SetWindowTextW(m_window, wide(text).c_str());
}

Text ControlCore::doText() const {
    return m_window ? windowText() : m_text;
}

bool ControlCore::containsFocus() const {
    const ControlCore* focused = m_dialog.root().focusCore();
    return focused && (focused == this || focused->m_host == this);
}

void ControlCore::doEnable(bool on) {
    if (on == isEnabled()) return;
    ControlCore* next = nullptr;
    const bool focusLeaves = !on && containsFocus();
    if (focusLeaves) next = m_dialog.root().focusOrder().nextStop(this, false);
    m_enabled = on;
    if (m_window) {
        const Setting guard(*this);
        EnableWindow(m_window, on);
    }
    if (focusLeaves) m_dialog.root().moveFocusQuietly(next);
}

void ControlCore::doShow(bool on) {
    if (on == isVisible()) return;
    ControlCore* next = nullptr;
    const bool focusLeaves = !on && containsFocus();
    if (focusLeaves) next = m_dialog.root().focusOrder().nextStop(this, false);
    m_visible = on;
    if (m_window) {
        const Setting guard(*this);
        // The focus goes first: hiding a focused window would send it to the parent.
        if (focusLeaves) m_dialog.root().moveFocusQuietly(next);
        ShowWindow(m_window, on ? SW_SHOWNA : SW_HIDE);
    } else if (focusLeaves) {
        m_dialog.root().moveFocusQuietly(next);
    }
}

void ControlCore::doFocus() {
    if (isEnabled() && isReachable()) m_dialog.root().moveFocusQuietly(this);
}

bool ControlCore::doFocused() const {
    return m_dialog.root().focusCore() == this;
}

void ControlCore::doSetArea(const Rect& area) {
    m_area = area;
    if (!m_window) return;
    const Setting guard(*this);
    // Painted anew: what stands in the old place may be another control's, which came there first.
    SetWindowPos(m_window, nullptr, area.left, area.top, area.width(), area.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    areaChanged();
}

Rect ControlCore::doArea() const {
    if (!m_window) return m_area;
    RECT area = {};
    GetWindowRect(m_window, &area);
    MapWindowPoints(nullptr, GetParent(m_window), reinterpret_cast<POINT*>(&area), 2);
    return portableRect(area);
}

void ControlCore::doRedraw() const {
    if (m_window) InvalidateRect(m_window, nullptr, TRUE);
}

void ControlCore::attachTo(HWND parent) {
    if (!m_window || !parent || GetParent(m_window) == parent) return;
    const Setting guard(*this);
    SetParent(m_window, parent);
    SetWindowPos(m_window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void ControlCore::doMoveInto(Control* parent) {
    auto* host = dynamic_cast<ControlCore*>(parent);
    if (host == this) return;
    m_host = host;
    attachTo(host ? host->window() : m_dialog.window());
}

void ControlCore::goHome() {
    doMoveInto(nullptr);
}

void ControlCore::doSetTooltip(std::function<Text()> text) {
    m_tooltip = std::move(text);
    if (m_tooltip && m_window && !m_tooltipAdded) {
        m_tooltipAdded = true;
        m_dialog.root().addTooltip(*this);
    }
}

}  // namespace lx
