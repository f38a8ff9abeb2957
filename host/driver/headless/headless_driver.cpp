#include "host/driver/headless/headless_driver.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "host/driver/headless/headless_names.h"
#include "host/driver/headless/key_names.h"
#include "platform/headless/headless_buttons.h"
#include "platform/headless/headless_combo_box.h"
#include "platform/headless/headless_list_box.h"
#include "platform/headless/headless_list_view.h"
#include "platform/headless/headless_picture.h"
#include "platform/headless/headless_tab_control.h"

namespace lx::host {

namespace {

// Longest wait of a user for something to appear, virtual milliseconds, and how often he looks.
constexpr int longestWait = 10000;
constexpr int lookEvery = 50;

Text czech(std::string_view utf8) {
    const std::optional<Text> text = fromUtf8(utf8);
    if (!text) throw DriverError("\"" + std::string(utf8) + "\" is not in code page 1250");
    return *text;
}

// Tells what the platform says of an act that a user could not do; name is what was acted on.
template <class F>
void attempt(ControlName name, F act) {
    try {
        act();
    } catch (const std::logic_error& error) {
        throw DriverError((name.empty() ? "" : "\"" + std::string(name) + "\": ") + error.what());
    }
}

std::optional<MessageAnswer> answerNamed(std::string_view button) {
    if (button == "OK") return MessageAnswer::ok;
    if (button == "Cancel") return MessageAnswer::cancel;
    if (button == "Yes") return MessageAnswer::yes;
    if (button == "No") return MessageAnswer::no;
    return std::nullopt;
}

constexpr std::pair<MessageAnswer, const char*> answerNames[] = {{MessageAnswer::ok, "OK"},
                                                                 {MessageAnswer::cancel, "Cancel"},
                                                                 {MessageAnswer::yes, "Yes"},
                                                                 {MessageAnswer::no, "No"}};

std::string iconName(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::none:
            return "none";
        case MessageIcon::stop:
            return "stop";
        case MessageIcon::question:
            return "question";
        case MessageIcon::warning:
            return "warning";
        case MessageIcon::information:
            return "information";
    }
    return {};
}

char32_t takeCodePoint(std::string_view& utf8) {
    const auto lead = static_cast<unsigned char>(utf8[0]);
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t point = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length && i < utf8.size(); ++i) {
        point = point << 6U | (static_cast<unsigned char>(utf8[i]) & 0x3FU);
    }
    utf8.remove_prefix(std::min(length, utf8.size()));
    return point;
}

}  // namespace

HeadlessDriver::HeadlessDriver(HeadlessPlatform& platform) : m_platform(platform) {
    m_platform.onIdle = [this] { return step(); };
}

HeadlessDriver::~HeadlessDriver() {
    m_platform.onIdle = nullptr;
}

// ---- finding

std::string HeadlessDriver::situation() {
    if (const HeadlessMessageBox* box = m_platform.openMessageBox()) {
        return "the message \"" + toUtf8(box->message) + "\" is open";
    }
    const HeadlessDialog* top = m_platform.topDialog();
    return top == nullptr ? "no dialog is open" : "the dialog open is " + dumpControls(*top);
}

HeadlessDialog& HeadlessDriver::dialog() {
    HeadlessDialog* top = m_platform.topDialog();
    if (top == nullptr || m_platform.openMessageBox() != nullptr) throw DriverError(situation());
    return *top;
}

HeadlessControl& HeadlessDriver::control(ControlName name) {
    const HeadlessDialog* top = m_platform.topDialog();
    const bool reachable = top != nullptr && m_platform.openMessageBox() == nullptr;
    HeadlessControl* found = reachable ? findControl(*top, name) : nullptr;
    if (found == nullptr) {
        throw DriverError("there is no control \"" + std::string(name) + "\"; " + situation());
    }
    return *found;
}

HeadlessListView& HeadlessDriver::listView(ControlName name) {
    return controlOf<HeadlessListView>(name, "list with headings");
}

HeadlessPicture& HeadlessDriver::picture(ControlName name) {
    return controlOf<HeadlessPicture>(name, "picture");
}

HeadlessTabControl& HeadlessDriver::tabs() {
    for (HeadlessControl* each : dialog().allControls()) {
        auto* tab = dynamic_cast<HeadlessTabControl*>(each);
        if (tab != nullptr && each->shown()) return *tab;
    }
    throw DriverError("there are no tabs; " + situation());
}

bool HeadlessDriver::waitUntil(const std::function<bool()>& done) {
    for (int waited = 0; !done(); waited += lookEvery) {
        if (waited >= longestWait) return false;
        m_platform.advanceClock(lookEvery);
    }
    return true;
}

// ---- the top dialog or message box

void HeadlessDriver::expectDialog(std::string_view wanted) {
    const Text text = czech(wanted);
    const bool there = waitUntil([&] {
        const HeadlessDialog* top = m_platform.activeDialog();
        return top != nullptr && top->title() == text;
    });
    if (!there) {
        throw DriverError("waited for the dialog \"" + std::string(wanted) + "\", but " +
                          situation());
    }
}

bool HeadlessDriver::anyDialogOpen() {
    return m_platform.topDialog() != nullptr || m_platform.openMessageBox() != nullptr;
}

std::string HeadlessDriver::title() {
    if (const HeadlessMessageBox* box = m_platform.openMessageBox()) return toUtf8(box->caption);
    return toUtf8(dialog().title());
}

MessageBoxLook HeadlessDriver::messageBox() {
    if (!waitUntil([this] { return m_platform.openMessageBox() != nullptr; })) {
        throw DriverError("waited for a message box, but " + situation());
    }
    const HeadlessMessageBox& box = *m_platform.openMessageBox();
    MessageBoxLook look{toUtf8(box.message), toUtf8(box.caption), iconName(box.icon), {}};
    for (const auto& [answer, name] : answerNames) {
        if (box.has(answer)) look.buttons.emplace_back(name);
    }
    return look;
}

bool HeadlessDriver::messageBoxOpen() {
    return m_platform.openMessageBox() != nullptr;
}

void HeadlessDriver::answer(std::string_view button) {
    const std::optional<MessageAnswer> wanted = answerNamed(button);
    if (!wanted) throw DriverError("no message box has a button \"" + std::string(button) + "\"");
    messageBox();
    attempt("", [&] { m_platform.answerMessageBox(*wanted); });
}

void HeadlessDriver::closeDialog() {
    if (messageBoxOpen()) return attempt("", [this] { m_platform.closeMessageBox(); });
    attempt("", [this] { dialog().userClose(); });
}

// ---- acts

void HeadlessDriver::press(ControlName name) {
    HeadlessControl& found = control(name);
    attempt(name, [&] {
        if (auto* button = dynamic_cast<HeadlessButton*>(&found)) return button->userClick();
        if (auto* box = dynamic_cast<HeadlessCheckBox*>(&found)) return box->userClick();
        if (auto* radio = dynamic_cast<HeadlessRadioButton*>(&found)) return radio->userClick();
        throw DriverError("\"" + std::string(name) + "\" is nothing to press");
    });
}

void HeadlessDriver::check(ControlName name, bool on) {
    HeadlessControl& found = control(name);
    attempt(name, [&] {
        if (auto* box = dynamic_cast<HeadlessCheckBox*>(&found)) {
            if (box->checked() != on) box->userClick();
            return;
        }
        auto* radio = dynamic_cast<HeadlessRadioButton*>(&found);
        if (radio == nullptr)
            throw DriverError("\"" + std::string(name) + "\" is nothing to check");
        if (!on) throw DriverError("a radio button is not cleared by hand");
        if (!radio->checked()) radio->userClick();
    });
}

void HeadlessDriver::selectRow(ControlName list, std::string_view wanted) {
    const int count = rowCount(list);
    for (int i = 0; i < count; ++i) {
        const std::string text = row(list, i).text;
        // Of a list with headings the first cell will do.
        if (text == wanted || text.substr(0, text.find(" | ")) == wanted) {
            return selectRowAt(list, i);
        }
    }
    throw DriverError("\"" + std::string(list) + "\" has no row \"" + std::string(wanted) + "\"");
}

void HeadlessDriver::selectRowAt(ControlName list, int row) {
    HeadlessControl& found = control(list);
    attempt(list, [&] {
        if (auto* box = dynamic_cast<HeadlessListBox*>(&found)) return box->userSelect(row);
        if (auto* combo = dynamic_cast<HeadlessComboBox*>(&found)) return combo->userSelect(row);
        if (auto* view = dynamic_cast<HeadlessListView*>(&found)) return view->userSelect(row);
        if (auto* tab = dynamic_cast<HeadlessTabControl*>(&found)) return tab->userSelect(row);
        throw DriverError("\"" + std::string(list) + "\" is no list");
    });
}

void HeadlessDriver::addRowAt(ControlName list, int row) {
    HeadlessListView& view = listView(list);
    attempt(list, [&] { view.userSelect(row, true); });
}

void HeadlessDriver::doubleClickRow(ControlName list, int row) {
    HeadlessControl& found = control(list);
    attempt(list, [&] {
        if (auto* box = dynamic_cast<HeadlessListBox*>(&found)) return box->userDoubleClick(row);
        listView(list).userDoubleClick(row);
    });
}

void HeadlessDriver::doubleClickGround(ControlName list) {
    HeadlessListView& view = listView(list);
    attempt(list, [&] { view.userDoubleClick(-1); });
}

void HeadlessDriver::rightClickRow(ControlName list, int row) {
    HeadlessControl& found = control(list);
    attempt(list, [&] {
        if (auto* box = dynamic_cast<HeadlessListBox*>(&found)) return box->userRightClick(row);
        listView(list).userRightClick(row);
    });
}

void HeadlessDriver::scrollToRow(ControlName list, int row) {
    HeadlessControl& found = control(list);
    attempt(list, [&] {
        if (auto* box = dynamic_cast<HeadlessListBox*>(&found)) return box->userScroll(row);
        listView(list).userScroll(row);
    });
}

void HeadlessDriver::clickHeading(ControlName list, std::string_view heading) {
    HeadlessListView& view = listView(list);
    const Text wanted = czech(heading);
    for (int column = 0; column < view.columnCount(); ++column) {
        if (view.heading(column) == wanted) return attempt("", [&] { view.userHeading(column); });
    }
    throw DriverError("there is no heading \"" + std::string(heading) + "\"");
}

void HeadlessDriver::setColumnWidth(ControlName list, int column, int pixels) {
    HeadlessListView& view = listView(list);
    attempt(list, [&] { view.userSetColumnWidth(column, pixels); });
}

void HeadlessDriver::setColumnOrder(ControlName list, const std::vector<int>& order) {
    HeadlessListView& view = listView(list);
    attempt(list, [&] { view.userSetColumnOrder(order); });
}

void HeadlessDriver::selectTab(std::string_view wanted) {
    HeadlessTabControl& tab = tabs();
    const Text text = czech(wanted);
    for (int i = 0; i < tab.count(); ++i) {
        if (tab.tabTitle(i) == text) return attempt("", [&] { tab.userSelect(i); });
    }
    throw DriverError("there is no tab \"" + std::string(wanted) + "\"");
}

void HeadlessDriver::focus(ControlName name) {
    HeadlessControl& found = control(name);
    attempt(name, [&] { found.userFocus(); });
}

void HeadlessDriver::type(std::string_view text) {
    while (!text.empty()) {
        const char32_t character = takeCodePoint(text);
        if (character == U'\r' && text.starts_with('\n')) text.remove_prefix(1);
        attempt("", [&] { dialog().userType(character); });
    }
}

void HeadlessDriver::key(std::string_view name) {
    const NamedKey named = keyNamed(name);
    attempt("", [&] {
        const bool escape = named.event.key == key::escape;
        if (m_platform.openPopup() != nullptr && escape) return m_platform.closePopup();
        if (messageBoxOpen() && escape) return m_platform.closeMessageBox();
        if (messageBoxOpen() && named.event.key == key::enter) {
            const bool isOk = m_platform.openMessageBox()->has(MessageAnswer::ok);
            return m_platform.answerMessageBox(isOk ? MessageAnswer::ok : MessageAnswer::yes);
        }
        dialog().userKey(named.event, named.character);
    });
}

// ---- mouse

void HeadlessDriver::mouseMove(ControlName name, ScreenPoint p, bool leftDown) {
    attempt(name, [&] {
        if (name.empty()) {
            m_mouse = Point{p.x, p.y};
            return dialog().userMouseMove({p.x, p.y}, leftDown);
        }
        picture(name).userMouseMove({p.x, p.y}, leftDown);
    });
}

void HeadlessDriver::mouseDown(ControlName name, ScreenPoint p) {
    attempt(name, [&] {
        if (name.empty()) return dialog().userLeftDown({p.x, p.y});
        picture(name).userLeftDown({p.x, p.y});
    });
}

void HeadlessDriver::mouseUp(ControlName name, ScreenPoint p) {
    attempt(name, [&] {
        if (name.empty()) return dialog().userLeftUp({p.x, p.y});
        picture(name).userLeftUp({p.x, p.y});
    });
}

void HeadlessDriver::rightClick(ControlName name, ScreenPoint p) {
    attempt(name, [&] { picture(name).userRightDown({p.x, p.y}); });
}

ScreenPoint HeadlessDriver::regionPoint(ControlName name, std::string_view region) {
    const HeadlessPicture& found = picture(name);
    if (found.regions) {
        for (const PictureRegion& each : found.regions()) {
            const Rect& area = each.area;
            if (toUtf8(each.name) == region) {
                return {std::midpoint(area.left, area.right), std::midpoint(area.top, area.bottom)};
            }
        }
    }
    std::string known;
    for (const std::string& each : regions(name)) known += "\n" + each;
    throw DriverError("\"" + std::string(name) + "\" has no region \"" + std::string(region) +
                      "\"; there are:" + known);
}

std::vector<std::string> HeadlessDriver::regions(ControlName name) {
    std::vector<std::string> lines;
    const HeadlessPicture& found = picture(name);
    if (!found.regions) return lines;
    for (const PictureRegion& each : found.regions()) {
        std::string line = toUtf8(each.name);
        for (const int n : {each.area.left, each.area.top, each.area.right, each.area.bottom}) {
            line += " " + std::to_string(n);
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

// ---- window

void HeadlessDriver::resizeDialog(ScreenSize outer) {
    attempt("", [&] { dialog().userResize({outer.width, outer.height}); });
}

void HeadlessDriver::moveDialog(ScreenPoint topLeft) {
    attempt("", [&] { dialog().userMove({topLeft.x, topLeft.y}); });
}

void HeadlessDriver::setDialogState(std::string_view state) {
    const bool known = state == "normal" || state == "maximized" || state == "minimized";
    if (!known) throw DriverError("a dialog is normal, maximized or minimized");
    attempt("", [&] {
        dialog().userShowState(state == "normal"      ? ShowState::normal
                               : state == "maximized" ? ShowState::maximized
                                                      : ShowState::minimized);
    });
}

void HeadlessDriver::wait(int milliseconds) {
    m_platform.advanceClock(milliseconds);
}

// ---- running

void HeadlessDriver::drive(std::function<bool(Driver&)> next) {
    m_next = std::move(next);
    m_strandedBefore = m_platform.stranded().size();
}

bool HeadlessDriver::step() {
    if (m_platform.openPopup() != nullptr && !m_popupChoices.empty()) {
        const std::string path = std::move(m_popupChoices.front());
        m_popupChoices.pop_front();
        choosePopup(path);
        return true;
    }
    // A copy: the step may end the driving.
    const std::function<bool(Driver&)> next = m_next;
    return next && next(*this);
}

void HeadlessDriver::cancelTop() {
    if (m_platform.openPopup() != nullptr) return m_platform.closePopup();
    if (const HeadlessMessageBox* box = m_platform.openMessageBox()) {
        for (const MessageAnswer answer :
             {MessageAnswer::cancel, MessageAnswer::no, MessageAnswer::ok}) {
            if (box->has(answer)) return m_platform.answerMessageBox(answer);
        }
    }
    if (HeadlessDialog* top = m_platform.topDialog()) top->end(id::cancel);
}

std::string HeadlessDriver::abandoned() {
    std::string text;
    const std::vector<std::string>& stranded = m_platform.stranded();
    for (std::size_t i = m_strandedBefore; i < stranded.size(); ++i) {
        text += (text.empty() ? "" : "\n") + stranded[i];
    }
    return text;
}

int HeadlessDriver::limit() const {
    return longestWait;
}

}  // namespace lx::host
