#include <windows.h>

#include <commctrl.h>

#include "tests/entry/plain_user.h"

namespace lx {

namespace {

constexpr UINT tickMilliseconds = 10;
constexpr ULONG_PTR dialogClass = 0x8002;

BOOL CALLBACK takeFirst(HWND window, LPARAM found) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) ||
        GetClassLongPtrW(window, GCW_ATOM) != dialogClass) {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

HWND topDialog() {
    HWND top = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), takeFirst, reinterpret_cast<LPARAM>(&top));
    return top;
}

struct Search {
    int number;
    HWND found;
};

BOOL CALLBACK takeNumber(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (GetDlgCtrlID(window) != search.number) return TRUE;
    search.found = window;
    return FALSE;
}

void perform(HWND dialog, const PlainAct& act) {
    Search search{act.control, nullptr};
    EnumChildWindows(dialog, takeNumber, reinterpret_cast<LPARAM>(&search));
    if (!search.found || !IsWindowEnabled(search.found) || !IsWindowVisible(search.found)) return;
    if (act.tab < 0) {
        PostMessageW(search.found, BM_CLICK, 0, 0);
        return;
    }
    RECT area = {};
    SendMessageW(search.found, TCM_GETITEMRECT, static_cast<WPARAM>(act.tab),
                 reinterpret_cast<LPARAM>(&area));
    const LPARAM at = MAKELPARAM(area.left + 3, area.top + 3);
    PostMessageW(search.found, WM_LBUTTONDOWN, MK_LBUTTON, at);
    PostMessageW(search.found, WM_LBUTTONUP, 0, at);
}

}  // namespace

struct PlainUser::State {
    std::vector<PlainAct> acts;
    std::size_t next = 0;
    UINT_PTR timer = 0;

    static State* active;

    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
        if (active && HIWORD(GetQueueStatus(QS_POSTMESSAGE | QS_INPUT | QS_PAINT)) == 0) {
            active->step();
        }
    }

    void step() {
        const HWND dialog = topDialog();
        if (!dialog) return;
        // A message box has its text in a control without a number.
        if (GetDlgItem(dialog, 0xFFFF)) {
            for (const int button : {IDOK, IDYES}) {
                if (GetDlgItem(dialog, button)) PostMessageW(dialog, WM_COMMAND, WPARAM(button), 0);
            }
        } else if (next == acts.size()) {
            PostMessageW(dialog, WM_CLOSE, 0, 0);
        } else {
            perform(dialog, acts[next++]);
        }
    }
};

PlainUser::State* PlainUser::State::active = nullptr;

PlainUser::PlainUser(Bench& bench) : m_state(new State) {
    bench.driver().drive(nullptr);
    State::active = m_state.get();
    m_state->timer = SetTimer(nullptr, 0, tickMilliseconds, &State::tick);
}

PlainUser::~PlainUser() {
    KillTimer(nullptr, m_state->timer);
    State::active = nullptr;
}

void PlainUser::act(const std::vector<PlainAct>& acts) {
    m_state->acts = acts;
    m_state->next = 0;
}

}  // namespace lx
