#include <new>
#include <stdexcept>

#include "platform/headless/headless_buttons.h"
#include "platform/headless/headless_dialog.h"
#include "platform/headless/headless_platform.h"
#include "platform/headless/headless_tab_control.h"
#include "tests/entry/failing_memory.h"
#include "tests/entry/plain_user.h"

namespace lx {

struct PlainUser::State {
    HeadlessPlatform& platform;
    std::vector<PlainAct> acts;
    std::size_t next = 0;

    static HeadlessControl* find(const HeadlessDialog& dialog, int number) {
        const MemoryForTheTest own;
        for (HeadlessControl* control : dialog.allControls()) {
            if (control->controlId() == number) return control;
        }
        return nullptr;
    }

    bool step() {
        if (platform.openMessageBox()) {
            platform.answerMessageBox(platform.openMessageBox()->has(MessageAnswer::ok)
                                          ? MessageAnswer::ok
                                          : MessageAnswer::yes);
            return true;
        }
        HeadlessDialog* dialog = platform.activeDialog();
        if (!dialog || next == acts.size()) {
            platform.cancelTop();
            return true;
        }
        const PlainAct act = acts[next++];
        try {
            HeadlessControl* control = find(*dialog, act.control);
            if (auto* tabs = dynamic_cast<HeadlessTabControl*>(control)) tabs->userSelect(act.tab);
            if (auto* button = dynamic_cast<HeadlessButton*>(control)) button->userClick();
            if (auto* box = dynamic_cast<HeadlessCheckBox*>(control)) box->userClick();
        } catch (const std::logic_error&) {
            // Disabled, hidden.
        }
        return true;
    }
};

PlainUser::PlainUser(Bench& bench)
    : m_state(new State{dynamic_cast<HeadlessPlatform&>(bench.platform()), {}, 0}) {
    bench.driver().drive(nullptr);
    m_state->platform.onIdle = [state = m_state.get()] { return state->step(); };
}

PlainUser::~PlainUser() {
    m_state->platform.onIdle = nullptr;
}

void PlainUser::act(const std::vector<PlainAct>& acts) {
    m_state->acts = acts;
    m_state->next = 0;
}

}  // namespace lx
