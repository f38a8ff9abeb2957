// What the headless driver reads; its acts are in headless_driver.cpp.
#include <fstream>

#include "host/driver/headless/headless_driver.h"
#include "host/driver/headless/headless_names.h"
#include "platform/headless/dialog_svg.h"
#include "platform/headless/headless_buttons.h"
#include "platform/headless/headless_combo_box.h"
#include "platform/headless/headless_edit.h"
#include "platform/headless/headless_list_box.h"
#include "platform/headless/headless_list_view.h"
#include "platform/headless/headless_picture.h"
#include "platform/headless/headless_tab_control.h"

namespace lx::host {

namespace {

std::string colorText(const std::optional<Color>& color) {
    if (!color) return {};
    return std::to_string(color->red) + "," + std::to_string(color->green) + "," +
           std::to_string(color->blue);
}

// The system's short-cut text behind a tab is no part of an entry's name.
std::string entryName(const HeadlessMenuEntry& entry) {
    const std::string name = toUtf8(withoutMnemonic(entry.text));
    return name.substr(0, name.find('\t'));
}

void addPaths(const std::vector<HeadlessMenuEntry>& entries, const std::string& before,
              std::vector<std::string>& paths) {
    for (const HeadlessMenuEntry& entry : entries) {
        if (entry.text.empty()) continue;
        const std::string path = before + entryName(entry);
        paths.push_back(path + (entry.enabled ? "" : " (grey)"));
        addPaths(entry.items, path + "/", paths);
    }
}

const HeadlessMenuEntry* entryAt(const std::vector<HeadlessMenuEntry>& entries,
                                 std::string_view path) {
    const std::size_t slash = path.find('/');
    for (const HeadlessMenuEntry& entry : entries) {
        if (entry.text.empty()) continue;
        if (entryName(entry) == path) return &entry;
        if (slash == std::string_view::npos || entryName(entry) != path.substr(0, slash)) continue;
        if (!entry.enabled) throw DriverError("\"" + entryName(entry) + "\" is greyed out");
        if (const HeadlessMenuEntry* found = entryAt(entry.items, path.substr(slash + 1))) {
            return found;
        }
    }
    return nullptr;
}

const HeadlessMenuEntry& commandAt(const std::vector<HeadlessMenuEntry>& entries,
                                   std::string_view path) {
    const HeadlessMenuEntry* entry = entryAt(entries, path);
    if (entry == nullptr) {
        std::string message = "the menu has no \"" + std::string(path) + "\"; there are:";
        std::vector<std::string> paths;
        addPaths(entries, "", paths);
        for (const std::string& each : paths) message += "\n" + each;
        throw DriverError(message);
    }
    if (!entry->enabled) throw DriverError("\"" + std::string(path) + "\" is greyed out");
    return *entry;
}

}  // namespace

// ---- menus

void HeadlessDriver::chooseMenu(std::string_view path) {
    HeadlessDialog& top = dialog();
    const int command = commandAt(top.menuBar(), path).command;
    try {
        top.userMenu(command);
    } catch (const std::logic_error& error) {
        throw DriverError(error.what());
    }
}

void HeadlessDriver::choosePopup(std::string_view path) {
    if (const HeadlessPopup* open = m_platform.openPopup()) {
        m_platform.choosePopup(commandAt(open->entries, path).command);
    } else {
        m_popupChoices.emplace_back(path);
    }
}

void HeadlessDriver::closePopup() {
    if (m_platform.openPopup() == nullptr) throw DriverError("no popup menu is open");
    m_platform.closePopup();
}

std::vector<std::string> HeadlessDriver::menu() {
    std::vector<std::string> paths;
    addPaths(dialog().menuBar(), "", paths);
    return paths;
}

std::vector<std::string> HeadlessDriver::popup() {
    const HeadlessPopup* open = m_platform.openPopup();
    if (open == nullptr) throw DriverError("no popup menu is open");
    std::vector<std::string> paths;
    addPaths(open->entries, "", paths);
    return paths;
}

// ---- controls

std::string HeadlessDriver::text(ControlName name) {
    HeadlessControl& found = control(name);
    if (auto* list = dynamic_cast<HeadlessListBox*>(&found)) {
        return list->selected() < 0 ? "" : toUtf8(list->row(list->selected()).text);
    }
    const bool hasMnemonic =
        found.kind() == ControlKind::button || found.kind() == ControlKind::checkBox ||
        found.kind() == ControlKind::radioButton || found.kind() == ControlKind::label ||
        found.kind() == ControlKind::groupBox;
    return toUtf8(hasMnemonic ? found.plainText() : found.control().text());
}

bool HeadlessDriver::exists(ControlName name) {
    return findControl(dialog(), name) != nullptr;
}

bool HeadlessDriver::enabled(ControlName name) {
    return control(name).usable();
}

bool HeadlessDriver::visible(ControlName name) {
    return control(name).shown();
}

ScreenArea HeadlessDriver::area(ControlName name) {
    const Rect area = control(name).areaInDialog();
    return {area.left, area.top, area.right, area.bottom};
}

bool HeadlessDriver::checked(ControlName name) {
    HeadlessControl& found = control(name);
    if (auto* box = dynamic_cast<HeadlessCheckBox*>(&found)) return box->checked();
    return controlOf<HeadlessRadioButton>(name, "check box or radio button").checked();
}

int HeadlessDriver::rowCount(ControlName name) {
    HeadlessControl& found = control(name);
    if (auto* list = dynamic_cast<HeadlessListBox*>(&found)) return list->count();
    if (auto* combo = dynamic_cast<HeadlessComboBox*>(&found)) return combo->count();
    if (auto* tab = dynamic_cast<HeadlessTabControl*>(&found)) return tab->count();
    return controlOf<HeadlessListView>(name, "list").rowCount();
}

RowLook HeadlessDriver::row(ControlName name, int index) {
    const int count = rowCount(name);
    if (index < 0 || index >= count) {
        throw DriverError("\"" + std::string(name) + "\" has no row " + std::to_string(index) +
                          ", but " + std::to_string(count));
    }
    HeadlessControl& found = control(name);
    RowLook look;
    if (auto* list = dynamic_cast<HeadlessListBox*>(&found)) {
        const ListRow& row = list->row(index);
        look = {toUtf8(row.text), colorText(row.textColor), colorText(row.selectedBackground),
                row.icon};
    } else if (auto* combo = dynamic_cast<HeadlessComboBox*>(&found)) {
        look.text = toUtf8(combo->item(index));
    } else if (auto* tab = dynamic_cast<HeadlessTabControl*>(&found)) {
        look.text = toUtf8(tab->tabTitle(index));
    } else if (auto* view = dynamic_cast<HeadlessListView*>(&found)) {
        for (int column = 0; column < view->columnCount(); ++column) {
            look.text += (column == 0 ? "" : " | ") + toUtf8(view->cellText(index, column));
        }
    }
    return look;
}

std::vector<int> HeadlessDriver::selectedRows(ControlName name) {
    HeadlessControl& found = control(name);
    if (auto* view = dynamic_cast<HeadlessListView*>(&found)) return view->selectedRows();
    int selected = -1;
    if (auto* list = dynamic_cast<HeadlessListBox*>(&found)) {
        selected = list->selected();
    } else if (auto* combo = dynamic_cast<HeadlessComboBox*>(&found)) {
        selected = combo->selected();
    } else {
        selected = controlOf<HeadlessTabControl>(name, "list").selected();
    }
    return selected < 0 ? std::vector<int>() : std::vector<int>{selected};
}

std::string HeadlessDriver::selectedTab() {
    HeadlessTabControl& tab = tabs();
    return tab.selected() < 0 ? "" : toUtf8(tab.tabTitle(tab.selected()));
}

std::string HeadlessDriver::focusedControl() {
    const HeadlessControl* focused = dialog().focusedItem();
    return focused == nullptr ? "" : describeControl(*focused);
}

std::string HeadlessDriver::defaultButton() {
    const HeadlessButton* button = dialog().defaultButton();
    return button == nullptr ? "" : toUtf8(button->plainText());
}

std::string HeadlessDriver::editSelection(ControlName name) {
    HeadlessControl& found = control(name);
    TextSelection selection;
    if (auto* combo = dynamic_cast<HeadlessComboBox*>(&found)) {
        selection = combo->textSelection();
    } else {
        selection = controlOf<HeadlessEdit>(name, "edit field").selection();
    }
    return std::to_string(selection.begin) + "-" + std::to_string(selection.end);
}

std::string HeadlessDriver::tooltip(ControlName name) {
    return toUtf8(control(name).tooltip());
}

std::string HeadlessDriver::cursor(ControlName name) {
    if (!name.empty()) return cursorName(picture(name).cursor());
    const HeadlessDialog& top = dialog();
    return cursorName(m_mouse ? top.cursorAt(*m_mouse) : CursorShape::arrow);
}

std::string HeadlessDriver::clipboard() {
    return toUtf8(m_platform.clipboard());
}

std::vector<std::string> HeadlessDriver::headings(ControlName name) {
    const HeadlessListView& view = listView(name);
    std::vector<std::string> texts;
    for (int column = 0; column < view.columnCount(); ++column) {
        const HeadingArrow arrow = view.headingArrow(column);
        texts.push_back(toUtf8(view.heading(column)) + (arrow == HeadingArrow::ascending    ? " ^"
                                                        : arrow == HeadingArrow::descending ? " v"
                                                                                            : ""));
    }
    return texts;
}

std::vector<int> HeadlessDriver::columnWidths(ControlName name) {
    const HeadlessListView& view = listView(name);
    std::vector<int> widths;
    for (int column = 0; column < view.columnCount(); ++column) {
        widths.push_back(view.columnWidth(column));
    }
    return widths;
}

std::vector<int> HeadlessDriver::columnOrder(ControlName name) {
    return listView(name).columnOrder();
}

// ---- the dialog

ScreenSize HeadlessDriver::dialogSize() {
    const Rect area = dialog().windowArea();
    return {area.width(), area.height()};
}

std::string HeadlessDriver::placement() {
    const WindowPlacement placement = dialog().placement();
    const Rect& area = placement.normal;
    std::string text;
    for (const int n : {area.left, area.top, area.width(), area.height()}) {
        text += std::to_string(n) + " ";
    }
    return text + (placement.state == ShowState::normal      ? "normal"
                   : placement.state == ShowState::maximized ? "maximized"
                                                             : "minimized");
}

std::string HeadlessDriver::describe(std::string_view topic) {
    // Under a nested dialog or a message box the design is still there to be read.
    const std::vector<HeadlessDialog*>& dialogs = m_platform.dialogs();
    for (auto each = dialogs.rbegin(); each != dialogs.rend(); ++each) {
        const std::string answer = toUtf8((*each)->describe(topic));
        if (!answer.empty()) return answer;
    }
    return {};
}

std::string HeadlessDriver::drawing(ControlName name) {
    const RecordingCanvas* drawing = picture(name).drawing();
    return drawing == nullptr ? "" : drawing->asText();
}

std::string HeadlessDriver::dump() {
    if (const HeadlessMessageBox* box = m_platform.openMessageBox()) {
        return "\"" + toUtf8(box->caption) + "\"\nmessage " + toUtf8(box->message);
    }
    const HeadlessDialog* top = m_platform.topDialog();
    return top == nullptr ? "" : dumpControls(*top);
}

std::string HeadlessDriver::screenshot(const std::string& fileWithoutExtension) {
    const std::string file = fileWithoutExtension + ".svg";
    const HeadlessDialog* top = m_platform.topDialog();
    if (top == nullptr) throw DriverError("no dialog is open that could be pictured");
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << dialogSvg(*top);
    stream.close();
    if (!stream) throw DriverError("cannot write " + file);
    return file;
}

std::vector<std::string> HeadlessDriver::layoutFaults() {
    return layoutFaultsOf(dialog());
}

}  // namespace lx::host
