#include "host/driver/headless/headless_names.h"

#include <algorithm>

#include "host/driver/control_look.h"
#include "platform/font_metrics.h"

namespace lx::host {

namespace {

Kind kindOf(const HeadlessControl& control) {
    switch (control.kind()) {
        case ControlKind::label:
            return Kind::label;
        case ControlKind::groupBox:
            return Kind::groupBox;
        case ControlKind::button:
        case ControlKind::iconButton:
            return Kind::pushButton;
        case ControlKind::checkBox:
            return Kind::checkBox;
        case ControlKind::radioButton:
            return Kind::radioButton;
        case ControlKind::edit:
        case ControlKind::multilineEdit:
            return Kind::edit;
        case ControlKind::listBox:
            return Kind::listBox;
        case ControlKind::dropDownList:
        case ControlKind::editableCombo:
            return Kind::comboBox;
        case ControlKind::listView:
            return Kind::listView;
        case ControlKind::tabControl:
            return Kind::tabControl;
        case ControlKind::icon:
            return Kind::icon;
        case ControlKind::picture:
            break;
    }
    return Kind::picture;
}

class HeadlessLook final : public ControlLook {
public:
    explicit HeadlessLook(const HeadlessControl& control) : m_control(control) {}

    int id() const override { return m_control.controlId(); }
    Kind kind() const override { return kindOf(m_control); }
    bool shown() const override { return m_control.shown(); }
    bool enabled() const override { return m_control.usable(); }
    bool checked() const override {
        if (const auto* box = dynamic_cast<const CheckBox*>(&m_control)) return box->checked();
        const auto* radio = dynamic_cast<const RadioButton*>(&m_control);
        return radio != nullptr && radio->checked();
    }
    bool focused() const override { return m_control.control().focused(); }
    std::string text() const override { return toUtf8(m_control.control().text()); }
    std::string textBefore() const override {
        const HeadlessControl* before = nullptr;
        for (const auto& each : m_control.dialog().controls()) {
            if (each.get() == &m_control) break;
            before = each.get();
        }
        if (before == nullptr || before->kind() != ControlKind::label) return {};
        return toUtf8(before->control().text());
    }
    std::string tooltip() const override { return toUtf8(m_control.tooltip()); }

private:
    const HeadlessControl& m_control;
};

ControlLooks looksOf(const std::vector<HeadlessControl*>& controls) {
    ControlLooks looks;
    for (const HeadlessControl* control : controls) {
        looks.push_back(std::make_unique<HeadlessLook>(*control));
    }
    return looks;
}

ScreenArea screenArea(const Rect& area) {
    return {area.left, area.top, area.right, area.bottom};
}

// What it stands in, in the client coordinates of the top-level dialog.
Rect roomOf(const HeadlessControl& control) {
    if (const HeadlessControl* host = control.container()) {
        const Rect around = host->areaInDialog();
        const int edge = host->sunkenEdge();
        return {around.left + edge, around.top + edge, around.right - edge, around.bottom - edge};
    }
    const Point origin = control.dialog().originInRoot();
    const Size size = control.dialog().clientArea().size();
    return {origin.x, origin.y, origin.x + size.width, origin.y + size.height};
}

std::string cutText(const HeadlessControl& control) {
    switch (control.kind()) {
        case ControlKind::label:
        case ControlKind::groupBox:
        case ControlKind::button:
        case ControlKind::checkBox:
        case ControlKind::radioButton:
            break;
        default:
            return {};
    }
    Font font;
    font.dialogFont = true;
    const Text text = control.plainText();
    const int needed = measuredText(font, text).width + besideText(kindOf(control));
    return needed > control.areaInDialog().width() ? toUtf8(text) : std::string();
}

}  // namespace

HeadlessControl* findControl(const HeadlessDialog& dialog, std::string_view name) {
    const std::vector<HeadlessControl*> all = dialog.allControls();
    const std::size_t place = findNamed(looksOf(all), name);
    return place < all.size() ? all[place] : nullptr;
}

std::string describeControl(const HeadlessControl& control) {
    return describeControl(HeadlessLook(control));
}

std::string dumpControls(const HeadlessDialog& dialog) {
    return dumpControls(toUtf8(dialog.title()), looksOf(dialog.allControls()));
}

std::vector<std::string> layoutFaultsOf(const HeadlessDialog& dialog) {
    std::vector<HeadlessControl*> all = dialog.allControls();
    std::erase_if(all, [](const HeadlessControl* control) { return !control->shown(); });
    std::vector<ControlPlace> shown;
    for (const HeadlessControl* control : all) {
        ControlPlace place{describeControl(*control), kindOf(*control),
                           screenArea(control->areaInDialog()), screenArea(roomOf(*control)),
                           cutText(*control)};
        const auto host = std::find(all.begin(), all.end(), control->container());
        if (host != all.end()) place.host = static_cast<int>(host - all.begin());
        shown.push_back(std::move(place));
    }
    return findLayoutFaults(shown);
}

}  // namespace lx::host
