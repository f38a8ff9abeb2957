// Keys by the names that tests and scenarios use: "Enter", "Shift+Tab", "Ctrl+A", "Alt+N", "F10".
#pragma once

#include <string_view>

#include "platform/keys.h"

namespace lx::host {

struct NamedKey {
    KeyEvent event;
    char32_t character = 0;  // what it types, 0 = nothing
};

// Throws DriverError for a name that means no key.
NamedKey keyNamed(std::string_view name);

}  // namespace lx::host
