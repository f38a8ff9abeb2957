// A user of few words, who needs no memory while acting: clicks buttons and tabs by number in
// whichever dialog is in front, and agrees to every message.
#pragma once

#include <memory>
#include <vector>

#include "tests/support/bench.h"

namespace lx {

struct PlainAct {
    int control;   // its number
    int tab = -1;  // of a tab control: which one
};

class PlainUser {
public:
    explicit PlainUser(Bench& bench);
    ~PlainUser();
    PlainUser(const PlainUser&) = delete;
    PlainUser& operator=(const PlainUser&) = delete;

    // From now on, in the dialogs that open; what cannot be done is left out. With nothing left to
    // do the dialog in front is cancelled.
    void act(const std::vector<PlainAct>& acts);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

}  // namespace lx
