#include "host/driver/control_look.h"

#include <algorithm>
#include <array>

#include "platform/text.h"

namespace lx::host {

namespace {

std::string withoutColon(std::string text) {
    while (!text.empty() && (text.back() == ':' || text.back() == ' ')) text.pop_back();
    return text;
}

bool isNamedByLabel(Kind kind) {
    return kind == Kind::edit || kind == Kind::listBox || kind == Kind::comboBox ||
           kind == Kind::listView || kind == Kind::picture;
}

bool isNamedByItsText(Kind kind) {
    return kind == Kind::pushButton || kind == Kind::checkBox || kind == Kind::radioButton ||
           kind == Kind::picture || kind == Kind::listBox || kind == Kind::listView;
}

std::string plain(const ControlLook& control) {
    return withoutMnemonic(control.text());
}

std::string labelOf(const ControlLook& control) {
    return withoutColon(withoutMnemonic(control.textBefore()));
}

// Ways to name a control, the surest first.
using Match = bool (*)(const ControlLook&, std::string_view);
constexpr std::array<Match, 5> matches = {
    [](const ControlLook& c, std::string_view name) {
        return name == "#" + std::to_string(c.id());
    },
    [](const ControlLook& c, std::string_view name) {
        return isNamedByItsText(c.kind()) && plain(c) == name;
    },
    [](const ControlLook& c, std::string_view name) {
        const std::string label = isNamedByLabel(c.kind()) ? labelOf(c) : std::string();
        return !label.empty() && label == withoutColon(std::string(name));
    },
    [](const ControlLook& c, std::string_view name) {
        return !name.empty() && c.tooltip() == name;
    },
    [](const ControlLook& c, std::string_view name) {
        return c.kind() == Kind::groupBox && plain(c) == name;
    },
};

std::string stateOf(const ControlLook& control) {
    std::string state;
    if (!control.shown()) state += " hidden";
    if (!control.enabled()) state += " disabled";
    if (control.checked()) state += " checked";
    if (control.focused()) state += " focused";
    return state;
}

std::string numbers(const ScreenArea& area) {
    return "(" + std::to_string(area.left) + " " + std::to_string(area.top) + " " +
           std::to_string(area.right) + " " + std::to_string(area.bottom) + ")";
}

std::string named(const ControlPlace& place) {
    return kindName(place.kind) + " " + place.name + " " + numbers(place.area);
}

bool inside(const ScreenArea& inner, const ScreenArea& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

bool overlap(const ScreenArea& a, const ScreenArea& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

// Only their frame is theirs; others stand inside.
bool isFrame(const ControlPlace& place) {
    return place.kind == Kind::groupBox || place.kind == Kind::tabControl;
}

}  // namespace

std::string kindName(Kind kind) {
    static constexpr std::array<const char*, 13> names = {
        "label",    "icon",      "group box", "button",      "check box", "radio button", "edit",
        "list box", "combo box", "list view", "tab control", "dialog",    "picture"};
    return names[static_cast<std::size_t>(kind)];
}

std::size_t findNamed(const ControlLooks& controls, ControlName name) {
    for (const bool shown : {true, false}) {
        for (const Match match : matches) {
            const auto found = std::find_if(controls.begin(), controls.end(), [&](const auto& c) {
                return c->shown() == shown && match(*c, name);
            });
            if (found != controls.end()) return static_cast<std::size_t>(found - controls.begin());
        }
    }
    return controls.size();
}

std::string describeControl(const ControlLook& control) {
    const Kind kind = control.kind();
    std::string name;
    if (isNamedByItsText(kind) || kind == Kind::groupBox || kind == Kind::label) {
        name = plain(control);
    }
    if (name.empty() && isNamedByLabel(kind)) name = labelOf(control);
    if (name.empty()) name = control.tooltip();
    const std::string number = "#" + std::to_string(control.id());
    return name.empty() ? number : number + " " + name;
}

std::string dumpControls(const std::string& title, const ControlLooks& controls) {
    std::string result = "\"" + title + "\"";
    for (const auto& control : controls) {
        const Kind kind = control->kind();
        result += "\n" + kindName(kind) + " " + describeControl(*control);
        if (kind == Kind::edit || kind == Kind::comboBox) result += " = " + control->text();
        result += stateOf(*control);
    }
    return result;
}

int besideText(Kind kind) {
    constexpr int buttonEdges = 6;
    constexpr int boxMark = 17;
    if (kind == Kind::checkBox || kind == Kind::radioButton) return boxMark;
    return kind == Kind::pushButton || kind == Kind::comboBox ? buttonEdges : 0;
}

std::vector<std::string> findLayoutFaults(const std::vector<ControlPlace>& shown) {
    std::vector<std::string> faults;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const ControlPlace& one = shown[i];
        if (!inside(one.area, one.room)) {
            faults.push_back(named(one) + " sticks out of " + numbers(one.room));
        }
        if (!one.cut.empty()) {
            faults.push_back(named(one) + " cuts its text \"" + one.cut + "\"");
        }
        if (one.low) faults.push_back(named(one) + " is too low for its font");
        for (std::size_t k = i + 1; k < shown.size(); ++k) {
            const ControlPlace& other = shown[k];
            // A guest lies on its picture.
            const bool together = one.host == static_cast<int>(k) ||
                                  other.host == static_cast<int>(i) || isFrame(one) ||
                                  isFrame(other);
            if (!together && overlap(one.area, other.area)) {
                faults.push_back(named(one) + " overlaps " + named(other));
            }
        }
    }
    return faults;
}

}  // namespace lx::host
