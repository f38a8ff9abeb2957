#include "platform/headless/headless_combo_box.h"

#include <algorithm>

#include "platform/headless/headless_platform.h"
#include "platform/headless/svg_area.h"
#include "platform/numbers.h"

namespace lx {

namespace {
// The closed box; a template's height may mean the open list.
constexpr int closedComboHeight = 21;
}  // namespace

HeadlessComboBox::HeadlessComboBox(HeadlessDialog& dialog, const ControlTemplate& layout)
    : HeadlessBase(dialog, layout) {
    m_field.setText(layout.text);
    HeadlessComboBox::areaChanged();
}

void HeadlessComboBox::areaChanged() {
    m_area.bottom = std::min(m_area.bottom, m_area.top + closedComboHeight);
}

void HeadlessComboBox::setText(std::string_view text) {
    if (editable()) m_field.setText(text);
}

Text HeadlessComboBox::text() const {
    return editable() ? m_field.text() : item(m_selected);
}

void HeadlessComboBox::clear() {
    m_items.clear();
    m_selected = -1;
    m_field.setText({});
}

// An item of an editable combo is selected only while the field shows it.
int HeadlessComboBox::selected() const {
    const bool shown = m_selected >= 0 && (!editable() || m_field.text() == item(m_selected));
    return shown ? m_selected : -1;
}

int HeadlessComboBox::add(std::string_view item) {
    auto place = m_items.end();
    if (style() & style::sorted) {
        const auto before = [](unsigned char a, unsigned char b) {
            return lowerCase(a) < lowerCase(b);
        };
        place = std::find_if(m_items.begin(), m_items.end(), [&](const Text& other) {
            return std::lexicographical_compare(item.begin(), item.end(), other.begin(),
                                                other.end(), before);
        });
    }
    const int index = static_cast<int>(place - m_items.begin());
    m_items.insert(place, Text(item));
    if (m_selected >= index) ++m_selected;
    return index;
}

void HeadlessComboBox::remove(int index) {
    if (index < 0 || index >= count()) return;
    m_items.erase(m_items.begin() + index);
    if (m_selected == index) {
        m_selected = -1;
    } else if (m_selected > index) {
        --m_selected;
    }
}

Text HeadlessComboBox::item(int index) const {
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)] : Text();
}

void HeadlessComboBox::select(int index) {
    m_selected = index >= 0 && index < count() ? index : -1;
    if (editable()) m_field.setText(item(m_selected));
}

// The list opens on the item that the field shows, however it came there.
void HeadlessComboBox::dropDown(bool open) {
    if (open && !m_open) {
        if (editable() && selected() < 0) {
            const auto shown = std::find(m_items.begin(), m_items.end(), m_field.text());
            m_selected = shown == m_items.end() ? -1 : static_cast<int>(shown - m_items.begin());
        }
        m_selectedAtOpening = selected();
    }
    m_open = open;
}

// Shows the item as the user's choice, selected as a whole, without an event.
void HeadlessComboBox::pick(int index) {
    select(index);
    m_field.selectAll();
}

void HeadlessComboBox::choose(int index) {
    if (index == selected() || index < 0 || index >= count()) return;
    pick(index);
    callCopy(onSelect);
}

bool HeadlessComboBox::report(EditResult result) {
    if (result == EditResult::refused) platform().beep();
    if (result == EditResult::changed) callCopy(onChange);
    return result != EditResult::ignored;
}

bool HeadlessComboBox::openOrClose(const KeyEvent& event) {
    const bool arrow = event.key == key::down || event.key == key::up;
    const bool toggles = (arrow && event.alt) || (event.key == key::f4 && !event.alt);
    const bool closes = m_open && (event.key == key::enter || event.key == key::escape);
    if (!toggles && !closes) return false;
    const bool back = m_open && event.key == key::escape;
    dropDown(toggles && !m_open);
    if (back && selected() != m_selectedAtOpening) {
        pick(m_selectedAtOpening);
        callCopy(onSelect);
    }
    return true;
}

bool HeadlessComboBox::keyDown(const KeyEvent& event) {
    if (openOrClose(event)) return true;
    if (!event.ctrl && !event.alt) {
        const bool list = !editable();
        const int last = count() - 1;
        switch (event.key) {
            case key::up:
                choose(std::max(0, selected() - 1));
                return true;
            case key::down:
                choose(std::min(last, selected() + 1));
                return true;
            case key::home:
                if (list) choose(0);
                if (list) return true;
                break;
            case key::end:
                if (list) choose(last);
                if (list) return true;
                break;
            default:
                break;
        }
    }
    if (!editable()) return false;
    if (event.ctrl && event.key == 'A') {
        m_field.selectAll();
        return true;
    }
    if (event.ctrl && event.key == 'C') {
        platform().setClipboardText(m_field.selectedText());
        return true;
    }
    if (event.ctrl && event.key == 'V') return report(m_field.paste(platform().clipboard()));
    return report(m_field.press(event));
}

bool HeadlessComboBox::character(char32_t character) {
    if (editable()) return report(m_field.type(character));
    const int byte = cp1250FromUnicode(character);
    if (byte <= ' ') return false;
    const unsigned char wanted = lowerCase(static_cast<unsigned char>(byte));
    for (int step = 1; step <= count(); ++step) {
        const int index = (std::max(m_selected, 0) + (m_selected < 0 ? step - 1 : step)) % count();
        const Text candidate = item(index);
        if (!candidate.empty() &&
            lowerCase(static_cast<unsigned char>(candidate.front())) == wanted) {
            choose(index);
            break;
        }
    }
    return true;
}

bool HeadlessComboBox::wantsKey(const KeyEvent& event) const {
    return m_open && (event.key == key::enter || event.key == key::escape);
}

void HeadlessComboBox::userSelect(int index) {
    checkReachable("be chosen from");
    if (index < 0 || index >= count()) refuse("there is no item " + formatInt(index));
    clickFocus();
    if (m_dialog->root().running() && shown() && usable()) {
        m_open = false;
        choose(index);
    }
    settle();
}

void HeadlessComboBox::userDropDown(bool open) {
    checkReachable("be opened");
    clickFocus();
    dropDown(open);
    settle();
}

void HeadlessComboBox::userType(char32_t character) {
    checkReachable("be typed into");
    clickFocus();
    m_dialog->root().userType(character);
}

void HeadlessComboBox::draw(SvgArea& area) const {
    area.fill(editable() ? SvgArea::paper : SvgArea::pressable);
    area.text({4, area.middleLine()}, text(), ink());
    const int x = area.width() - 12;
    const int y = area.height() / 2;
    area.line({x - 4, y - 2}, {x, y + 2}, ink());
    area.line({x, y + 2}, {x + 4, y - 2}, ink());
    area.frameOfField(focused());
}

// Hangs below the box.
void HeadlessComboBox::drawOpenList(std::string& out) const {
    if (!m_open) return;
    constexpr int itemHeight = 14;
    const Rect closed = areaInDialog();
    const int height = std::clamp(count(), 1, 8) * itemHeight + 2;
    SvgArea area(out, {closed.left, closed.bottom, closed.right, closed.bottom + height},
                 platform());
    area.fill(SvgArea::paper);
    for (int i = 0; i < count(); ++i) {
        const int top = 1 + i * itemHeight;
        const bool marked = i == selected();
        if (marked) area.fill({1, top, area.width() - 1, top + itemHeight}, SvgArea::highlight);
        area.text({4, top}, item(i), marked ? SvgArea::paper : SvgArea::ink);
    }
    area.frame(SvgArea::grey);
}

}  // namespace lx
