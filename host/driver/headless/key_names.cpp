#include "host/driver/headless/key_names.h"

#include <array>
#include <string>

#include "host/driver/driver.h"

namespace lx::host {

namespace {

struct Entry {
    std::string_view name;
    int key;
    char32_t character;
};

constexpr std::array entries = {
    Entry{"Enter", key::enter, U'\r'},
    Entry{"Tab", key::tab, U'\t'},
    Entry{"Esc", key::escape, U'\x1B'},
    Entry{"Space", key::space, U' '},
    Entry{"Backspace", key::backspace, U'\b'},
    Entry{"Delete", key::del, 0},
    Entry{"Insert", key::insert, 0},
    Entry{"Home", key::home, 0},
    Entry{"End", key::end, 0},
    Entry{"PgUp", key::pageUp, 0},
    Entry{"PgDn", key::pageDown, 0},
    Entry{"PageUp", key::pageUp, 0},
    Entry{"PageDown", key::pageDown, 0},
    Entry{"Left", key::left, 0},
    Entry{"Right", key::right, 0},
    Entry{"Up", key::up, 0},
    Entry{"Down", key::down, 0},
    Entry{"Menu", key::apps, 0},
};

constexpr int firstFunctionKey = 0x70;
constexpr int functionKeys = 12;

bool takePrefix(std::string_view& name, std::string_view prefix) {
    if (name.size() <= prefix.size() || !name.starts_with(prefix)) return false;
    name.remove_prefix(prefix.size());
    return true;
}

// Letters and digits: their key is the capital letter's code.
bool letterOrDigit(std::string_view name, NamedKey& result) {
    if (name.size() != 1) return false;
    const char c = name[0];
    const bool isSmall = c >= 'a' && c <= 'z';
    if (!isSmall && !(c >= 'A' && c <= 'Z') && !(c >= '0' && c <= '9')) return false;
    result.event.key = isSmall ? c - 'a' + 'A' : c;
    const bool small = isSmall || (c >= 'A' && c <= 'Z' && !result.event.shift);
    result.character = static_cast<char32_t>(small && !isSmall ? c - 'A' + 'a' : c);
    return true;
}

bool functionKey(std::string_view name, NamedKey& result) {
    for (int n = 1; n <= functionKeys; ++n) {
        if (name == "F" + std::to_string(n)) {
            result.event.key = firstFunctionKey + n - 1;
            return true;
        }
    }
    return false;
}

}  // namespace

NamedKey keyNamed(std::string_view name) {
    NamedKey result;
    std::string_view rest = name;
    for (bool more = true; more;) {
        more = false;
        if (takePrefix(rest, "Ctrl+")) more = result.event.ctrl = true;
        if (takePrefix(rest, "Shift+")) more = result.event.shift = true;
        if (takePrefix(rest, "Alt+")) more = result.event.alt = true;
    }
    bool found = letterOrDigit(rest, result) || functionKey(rest, result);
    for (const Entry& entry : entries) {
        if (entry.name != rest) continue;
        result.event.key = entry.key;
        result.character = entry.character;
        found = true;
    }
    if (!found) throw DriverError("there is no key \"" + std::string(name) + "\"");
    // With both it is AltGr, which types.
    if (result.event.ctrl && !result.event.alt) result.character = 0;
    return result;
}

}  // namespace lx::host
