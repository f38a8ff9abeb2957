// The keys that open a control's popup menu.
#pragma once

#include "platform/keys.h"

namespace lx {

inline bool opensPopup(const KeyEvent& event) {
    return event.key == key::apps || (event.key == key::f10 && event.shift);
}

}  // namespace lx
