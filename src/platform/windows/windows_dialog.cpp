#include "platform/windows/windows_dialog.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <stdexcept>

#include "platform/windows/simple_controls.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_combo_box.h"
#include "platform/windows/windows_edit.h"
#include "platform/windows/windows_list_box.h"
#include "platform/windows/windows_list_view.h"
#include "platform/windows/windows_picture.h"
#include "platform/windows/windows_platform.h"
#include "platform/windows/windows_tab_control.h"

namespace lx {
namespace {

constexpr wchar_t dialogFace[] = L"MS Shell Dlg";
constexpr WORD dialogPoints = 8;
// The rectangle whose pixels tell how large dialog units are.
constexpr int scaleWidth = 400;
constexpr int scaleHeight = 800;

DWORD windowStyle(DialogStyle style) {
    // The ground is never painted over the controls, which would flicker.
    constexpr DWORD all = DS_SETFONT | WS_CLIPCHILDREN;
    constexpr DWORD framed = all | WS_POPUP | WS_CAPTION | WS_SYSMENU;
    switch (style) {
        case DialogStyle::page:
            return all | WS_CHILD | DS_CONTROL;
        case DialogStyle::resizable:
            return framed | WS_THICKFRAME | WS_MAXIMIZEBOX;
        case DialogStyle::modal:
            break;
    }
    return framed | DS_MODALFRAME;
}

void appendText(std::vector<WORD>& words, std::wstring_view text) {
    words.insert(words.end(), text.begin(), text.end());
    words.push_back(0);
}

void appendLong(std::vector<WORD>& words, DWORD value) {
    words.push_back(LOWORD(value));
    words.push_back(HIWORD(value));
}

// An extended dialog template without controls, which are made one by one afterwards.
std::vector<WORD> nativeTemplate(const DialogTemplate& layout) {
    std::vector<WORD> words = {1, 0xFFFF};  // version, signature
    appendLong(words, 0);                   // help context
    appendLong(words, layout.style == DialogStyle::page ? WS_EX_CONTROLPARENT : 0);
    appendLong(words, windowStyle(layout.style));
    words.push_back(0);  // number of controls
    for (const int unit : {0, 0, layout.width, layout.height}) {
        words.push_back(static_cast<WORD>(unit));
    }
    words.push_back(0);  // no menu
    words.push_back(0);  // the system's dialog class
    appendText(words, wide(layout.title));
    words.push_back(dialogPoints);
    words.push_back(FW_NORMAL);
    words.push_back(static_cast<WORD>(DEFAULT_CHARSET << 8));  // upright
    appendText(words, dialogFace);
    return words;
}

std::unique_ptr<ControlCore> makeControl(WindowsDialog& dialog, const ControlTemplate& layout) {
    switch (layout.kind) {
        case ControlKind::groupBox:
            return std::make_unique<WindowsGroupBox>(dialog, layout);
        case ControlKind::button:
        case ControlKind::iconButton:
            return std::make_unique<WindowsButton>(dialog, layout);
        case ControlKind::checkBox:
            return std::make_unique<WindowsCheckBox>(dialog, layout);
        case ControlKind::radioButton:
            return std::make_unique<WindowsRadioButton>(dialog, layout);
        case ControlKind::edit:
        case ControlKind::multilineEdit:
            return std::make_unique<WindowsEdit>(dialog, layout);
        case ControlKind::listBox:
            return std::make_unique<WindowsListBox>(dialog, layout);
        case ControlKind::dropDownList:
        case ControlKind::editableCombo:
            return std::make_unique<WindowsComboBox>(dialog, layout);
        case ControlKind::listView:
            return std::make_unique<WindowsListView>(dialog, layout);
        case ControlKind::tabControl:
            return std::make_unique<WindowsTabControl>(dialog, layout);
        case ControlKind::picture:
            return std::make_unique<WindowsPicture>(dialog, layout);
        case ControlKind::icon:
            return std::make_unique<WindowsIcon>(dialog, layout);
        case ControlKind::label:
            break;
    }
    return std::make_unique<WindowsLabel>(dialog, layout);
}

}  // namespace

// ---- making

WindowsDialog::WindowsDialog(WindowsPlatform& platform, const DialogTemplate& layout, Owner owner)
    : m_platform(platform),
      m_name(layout.name),
      m_title(layout.title),
      m_style(layout.style),
      m_owner(owner),
      m_unitScale{0, 0, scaleWidth * 6 / 4, scaleHeight * 13 / 8} {
    try {
        make(layout, owner);
    } catch (...) {
        // No destructor will: the window must not outlive what its messages go to.
        takeBack();
        throw;
    }
}

void WindowsDialog::make(const DialogTemplate& layout, const Owner& owner) {
    if (isPage()) {
        m_parent = static_cast<WindowsDialog*>(owner.dialog);
        if (m_parent) m_parent->m_pages.push_back(this);
        createWindow(layout, m_parent ? m_parent->m_window : nullptr);
    } else {
        createWindow(layout, ownerWindow(owner));
        m_platform.enlist(*this);
    }
    createControls(layout.controls);
    m_clientSize = clientArea().size();
    m_ready = true;
}

WindowsDialog::~WindowsDialog() {
    onDestroy = nullptr;  // who set it may be gone already
    takeBack();
}

void WindowsDialog::takeBack() {
    closeWindow();
    if (m_parent) {
        auto& pages = m_parent->m_pages;
        pages.erase(std::remove(pages.begin(), pages.end(), this), pages.end());
    } else {
        m_platform.strike(*this);
    }
}

void WindowsDialog::createWindow(const DialogTemplate& layout, HWND parent) {
    if (isPage() && !parent) return;
    const std::vector<WORD> native = nativeTemplate(layout);
    m_window = CreateDialogIndirectParamW(m_platform.instance(),
                                          reinterpret_cast<const DLGTEMPLATE*>(native.data()),
                                          parent, &procedure, reinterpret_cast<LPARAM>(this));
    if (!m_window) return;
    m_font = reinterpret_cast<HFONT>(SendMessageW(m_window, WM_GETFONT, 0, 0));
    RECT scale = {0, 0, scaleWidth, scaleHeight};
    if (MapDialogRect(m_window, &scale)) m_unitScale = portableRect(scale);
    if (isPage()) blendIntoTabs();
}

// A page on a tab control that the host has the system's theme draw gets the ground of the tabs.
// Where there is such a tab control, the library of themes is loaded.
void WindowsDialog::blendIntoTabs() {
    const HMODULE themes = GetModuleHandleW(L"uxtheme.dll");
    const auto& around = m_parent->m_controls;
    const auto tabs = std::find_if(around.begin(), around.end(), [](const auto& control) {
        return control->kind() == ControlKind::tabControl;
    });
    if (!themes || tabs == around.end()) return;
    const auto find = [themes](const char* name) {
        return reinterpret_cast<void (*)()>(GetProcAddress(themes, name));
    };
    const auto themeOf = reinterpret_cast<HANDLE(WINAPI*)(HWND)>(find("GetWindowTheme"));
    const auto blend =
        reinterpret_cast<HRESULT(WINAPI*)(HWND, DWORD)>(find("EnableThemeDialogTexture"));
    constexpr DWORD groundOfTabs = 6;  // ETDT_ENABLETAB
    if (themeOf && blend && themeOf((*tabs)->window())) blend(m_window, groundOfTabs);
}

void WindowsDialog::createControls(std::span<const ControlTemplate> controls) {
    const ControlTemplate* before = nullptr;
    for (const ControlTemplate& layout : controls) {
        m_controls.push_back(makeControl(*this, layout));
        // The arrow keys go around among neighbours of one kind.
        m_controls.back()->create(!before || before->kind != layout.kind);
        before = &layout;
    }
    root().m_defaultShown = root().defaultButton();
}

WindowsDialog& WindowsDialog::root() {
    return m_parent ? m_parent->root() : *this;
}

bool WindowsDialog::reachable() const {
    return !isPage() || (m_pageVisible && m_parent && m_parent->reachable());
}

DrawingTools WindowsDialog::drawingTools() const {
    return {m_platform.fonts(), m_platform.paintIcon, m_font};
}

IconCache& WindowsDialog::icons() {
    WindowsDialog& owner = root();
    if (!owner.m_icons) owner.m_icons = std::make_unique<IconCache>(owner.drawingTools());
    return *owner.m_icons;
}

int WindowsDialog::textHeight() const {
    const HDC dc = GetDC(m_window);
    const HGDIOBJ before = SelectObject(dc, m_font);
    TEXTMETRICW metrics = {};
    GetTextMetricsW(dc, &metrics);
    SelectObject(dc, before);
    ReleaseDC(m_window, dc);
    return static_cast<int>(metrics.tmHeight);
}

Control& WindowsDialog::item(int controlId) {
    const auto found =
        std::find_if(m_controls.begin(), m_controls.end(),
                     [controlId](const auto& control) { return control->number() == controlId; });
    if (found == m_controls.end()) throw std::out_of_range("no control of that number");
    return (*found)->face();
}

std::vector<ControlCore*> WindowsDialog::allControls() const {
    std::vector<ControlCore*> result;
    addInTabOrder(*this, result);
    return result;
}

ControlCore* WindowsDialog::controlOf(HWND window) const {
    if (!window) return nullptr;
    for (const auto& control : m_controls) {
        if (control->window() == window) return control.get();
    }
    for (const WindowsDialog* page : m_pages) {
        if (ControlCore* control = page->controlOf(window)) return control;
    }
    return nullptr;
}

// ---- ending

void WindowsDialog::failed() {
    root().end(-1);
}

void WindowsDialog::end(int result) {
    if (isPage()) {
        root().end(result);
        return;
    }
    if (!m_running) return;
    m_result = result;
    m_running = false;
    m_posted.clear();
    captureMouse(false);
    // The loop may be waiting inside the call that brought us here. What is posted to a window that
    // is being destroyed goes with it.
    if (m_closed) {
        PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
    } else if (m_window) {
        PostMessageW(m_window, WM_NULL, 0, 0);
    }
}

int WindowsDialog::runModal() {
    if (!m_window || isPage() || m_running) return -1;
    m_running = true;
    m_result = -1;
    const HWND owner = ownerWindow(m_owner);
    const bool ownerDisabled = owner && IsWindowEnabled(owner);
    if (ownerDisabled) EnableWindow(owner, FALSE);
    runGuarded([this] { fire(onInit); });
    if (m_running) runGuarded([this] { firstShow(); });
    loop();
    m_running = false;
    // Before the dialog goes, or the system would activate some other program's window.
    if (ownerDisabled && IsWindow(owner)) {
        EnableWindow(owner, TRUE);
        if (m_window && GetActiveWindow() == m_window) SetActiveWindow(owner);
    }
    closeWindow();
    return m_result;
}

void WindowsDialog::firstShow() {
    if (!m_placed) centre();
    ++m_quietFocus;
    if (!m_focus) focusFirst();
    ControlCore* start = m_focus;
    m_shown = true;
    const int command = m_showState == ShowState::maximized   ? SW_SHOWMAXIMIZED
                        : m_showState == ShowState::minimized ? SW_SHOWMINIMIZED
                                                              : SW_SHOW;
    ShowWindow(m_window, command);
    moveFocusQuietly(start);
    UpdateWindow(m_window);
    --m_quietFocus;
}

void WindowsDialog::closeWindow() {
    if (!m_window) return;
    aboutToGo();
    if (m_tooltip) DestroyWindow(std::exchange(m_tooltip, nullptr));
    if (m_window) DestroyWindow(m_window);
}

// Also reached when somebody else destroys the window; then the dialog ends as cancelled.
void WindowsDialog::aboutToGo() {
    if (m_closed) return;
    m_closed = true;
    ++m_quietFocus;
    runGuarded([this] { fire(onDestroy); });
    for (WindowsDialog* page : m_pages) page->aboutToGo();
    if (m_running) end(id::cancel);
    // A page that goes with its dialog is released by it.
    if (!isPage() || !m_parent || !m_parent->m_closed) {
        runGuarded([this] {
            sendGuestsHome();
            release();
        });
        WindowsDialog& top = root();
        if (isPage() && top.m_focus && &top.m_focus->dialog() == this) top.m_focus = nullptr;
    }
    --m_quietFocus;
}

// Controls of other windows that were moved into one of this window's would go down with it.
void WindowsDialog::sendGuestsHome() {
    for (ControlCore* control : root().allControls()) {
        const ControlCore* host = control->host();
        if (host && (&host->dialog() == this || !isPage())) control->goHome();
    }
}

void WindowsDialog::release() {
    m_ready = false;
    m_clientSize = clientArea().size();
    m_windowArea = windowArea();
    m_placement = placement();
    for (WindowsDialog* page : m_pages) page->release();
    for (const auto& control : m_controls) control->release();
    // The window would destroy a menu that it still had.
    if (m_window && m_menu.get()) SetMenu(m_window, nullptr);
    if (isPage()) return;
    if (m_window) {
        SendMessageW(m_window, WM_SETICON, ICON_BIG, 0);
        SendMessageW(m_window, WM_SETICON, ICON_SMALL, 0);
    }
}

// ---- tooltips

void WindowsDialog::addTooltip(ControlCore& control) {
    if (!m_window) return;
    if (!m_tooltip) {
        m_tooltip = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                    WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT,
                                    CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, m_window, nullptr,
                                    m_platform.instance(), nullptr);
        if (!m_tooltip) return;
        // A width makes line breaks count.
        SendMessageW(m_tooltip, TTM_SETMAXTIPWIDTH, 0, 600);
    }
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = control.dialog().window();
    tool.uId = reinterpret_cast<UINT_PTR>(control.window());
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    SendMessageW(m_tooltip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace lx
