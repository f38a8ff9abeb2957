#include "host/driver/headless/headless_names.h"

#include <array>

#include "platform/font_metrics.h"

namespace lx::host {

namespace {

std::string withoutColon(std::string text) {
    while (!text.empty() && (text.back() == ':' || text.back() == ' ')) text.pop_back();
    return text;
}

bool isNamedByLabel(ControlKind kind) {
    switch (kind) {
        case ControlKind::edit:
        case ControlKind::multilineEdit:
        case ControlKind::listBox:
        case ControlKind::dropDownList:
        case ControlKind::editableCombo:
        case ControlKind::listView:
        case ControlKind::picture:
            return true;
        default:
            return false;
    }
}

bool isNamedByItsText(ControlKind kind) {
    return kind == ControlKind::button || kind == ControlKind::iconButton ||
           kind == ControlKind::checkBox || kind == ControlKind::radioButton ||
           kind == ControlKind::picture || kind == ControlKind::listBox ||
           kind == ControlKind::listView;
}

std::string kindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::label:
            return "label";
        case ControlKind::groupBox:
            return "group box";
        case ControlKind::button:
        case ControlKind::iconButton:
            return "button";
        case ControlKind::checkBox:
            return "check box";
        case ControlKind::radioButton:
            return "radio button";
        case ControlKind::edit:
        case ControlKind::multilineEdit:
            return "edit";
        case ControlKind::listBox:
            return "list box";
        case ControlKind::dropDownList:
        case ControlKind::editableCombo:
            return "combo box";
        case ControlKind::listView:
            return "list view";
        case ControlKind::tabControl:
            return "tab control";
        case ControlKind::picture:
            return "picture";
        case ControlKind::icon:
            return "icon";
    }
    return {};
}

std::string plain(const HeadlessControl& control) {
    return toUtf8(control.plainText());
}

// Ways to name a control, the surest first.
using Match = bool (*)(const HeadlessControl&, std::string_view);
constexpr std::array<Match, 5> matches = {
    [](const HeadlessControl& c, std::string_view name) {
        return name == "#" + std::to_string(c.controlId());
    },
    [](const HeadlessControl& c, std::string_view name) {
        return isNamedByItsText(c.kind()) && plain(c) == name;
    },
    [](const HeadlessControl& c, std::string_view name) {
        const std::string label = isNamedByLabel(c.kind()) ? labelBefore(c) : std::string();
        return !label.empty() && label == withoutColon(std::string(name));
    },
    [](const HeadlessControl& c, std::string_view name) {
        return !name.empty() && toUtf8(c.tooltip()) == name;
    },
    [](const HeadlessControl& c, std::string_view name) {
        return c.kind() == ControlKind::groupBox && plain(c) == name;
    },
};

bool isChecked(const HeadlessControl& control) {
    if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return box->checked();
    const auto* radio = dynamic_cast<const RadioButton*>(&control);
    return radio != nullptr && radio->checked();
}

std::string stateOf(const HeadlessControl& control) {
    std::string state;
    if (!control.shown()) state += " hidden";
    if (!control.usable()) state += " disabled";
    if (isChecked(control)) state += " checked";
    if (control.control().focused()) state += " focused";
    return state;
}

bool overlap(const Rect& a, const Rect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

// Only their frame is theirs; others stand inside.
bool isFrame(const HeadlessControl& control) {
    return control.kind() == ControlKind::groupBox || control.kind() == ControlKind::tabControl;
}

// Width that the text needs, with what the control itself puts beside it.
int neededWidth(const HeadlessControl& control) {
    Font font;
    font.dialogFont = true;
    const int text = measuredText(font, control.plainText()).width;
    switch (control.kind()) {
        case ControlKind::label:
            return text;
        case ControlKind::button:
            return text + 6;
        case ControlKind::checkBox:
        case ControlKind::radioButton:
            return text + 16;
        default:
            return 0;
    }
}

}  // namespace

HeadlessControl* findControl(const HeadlessDialog& dialog, std::string_view name) {
    const std::vector<HeadlessControl*> all = dialog.allControls();
    for (const bool shown : {true, false}) {
        for (const Match match : matches) {
            for (HeadlessControl* control : all) {
                if (control->shown() == shown && match(*control, name)) return control;
            }
        }
    }
    return nullptr;
}

std::string labelBefore(const HeadlessControl& control) {
    const HeadlessControl* before = nullptr;
    for (const auto& each : control.dialog().controls()) {
        if (each.get() == &control) break;
        before = each.get();
    }
    if (before == nullptr || before->kind() != ControlKind::label) return {};
    return withoutColon(plain(*before));
}

std::string describeControl(const HeadlessControl& control) {
    const ControlKind kind = control.kind();
    std::string name;
    if (isNamedByItsText(kind) || kind == ControlKind::groupBox || kind == ControlKind::label) {
        name = plain(control);
    }
    if (name.empty() && isNamedByLabel(kind)) name = labelBefore(control);
    if (name.empty()) name = toUtf8(control.tooltip());
    const std::string number = "#" + std::to_string(control.controlId());
    return name.empty() ? number : number + " " + name;
}

std::string dumpControls(const HeadlessDialog& dialog) {
    std::string result = "\"" + toUtf8(dialog.title()) + "\"";
    for (const HeadlessControl* control : dialog.allControls()) {
        const std::string kind = kindName(control->kind());
        result += "\n" + kind + " " + describeControl(*control);
        if (kind == "edit" || kind == "combo box") {
            result += " = " + toUtf8(control->control().text());
        }
        result += stateOf(*control);
    }
    return result;
}

std::vector<std::string> findLayoutFaults(const HeadlessDialog& dialog) {
    std::vector<std::string> faults;
    const Rect client = dialog.clientArea();
    const std::vector<HeadlessControl*> all = dialog.allControls();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const HeadlessControl& control = *all[i];
        if (!control.shown()) continue;
        const Rect area = control.areaInDialog();
        const std::string name = describeControl(control);
        if (area.left < client.left || area.top < client.top || area.right > client.right ||
            area.bottom > client.bottom) {
            faults.push_back(name + " sticks out of the dialog");
        }
        if (neededWidth(control) > area.width()) faults.push_back(name + " cuts its text");
        for (std::size_t k = i + 1; k < all.size(); ++k) {
            const HeadlessControl& other = *all[k];
            const bool together = other.shown() && other.container() == control.container() &&
                                  !isFrame(control) && !isFrame(other);
            if (together && overlap(area, other.areaInDialog())) {
                faults.push_back(name + " overlaps " + describeControl(other));
            }
        }
    }
    return faults;
}

}  // namespace lx::host
