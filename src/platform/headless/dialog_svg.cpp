#include "platform/headless/dialog_svg.h"

#include <algorithm>

#include "platform/font_metrics.h"
#include "platform/headless/headless_buttons.h"
#include "platform/headless/headless_combo_box.h"
#include "platform/headless/headless_edit.h"
#include "platform/headless/headless_list_box.h"
#include "platform/headless/headless_list_view.h"
#include "platform/headless/headless_picture.h"
#include "platform/headless/headless_platform.h"
#include "platform/headless/headless_tab_control.h"
#include "platform/numbers.h"

namespace lx {

namespace {

constexpr Color face{240, 240, 240};
constexpr Color paper{255, 255, 255};
constexpr Color ink{0, 0, 0};
constexpr Color grey{150, 150, 150};
constexpr Color caption{60, 90, 140};
constexpr Color highlight{0, 120, 215};
constexpr int lineHeight = 13;

Font dialogFont() {
    Font font;
    font.dialogFont = true;
    return font;
}

int textWidth(std::string_view text) {
    return measuredText(dialogFont(), text).width;
}

// Draws in the coordinates of the area that it was made for; what sticks out is cut off.
class Area {
public:
    Area(std::string& out, const Rect& area, const HeadlessPlatform& platform)
        : m_out(out), m_size(area.size()), m_canvas(platform.paintIcon) {
        m_out += "<svg x=\"" + formatInt(area.left) + "\" y=\"" + formatInt(area.top) +
                 "\" width=\"" + formatInt(std::max(0, area.width())) + "\" height=\"" +
                 formatInt(std::max(0, area.height())) + "\">\n";
        m_canvas.setFont(dialogFont());
    }
    ~Area() { m_out += m_canvas.svgElements() + "</svg>\n"; }
    Area(const Area&) = delete;
    Area& operator=(const Area&) = delete;

    int width() const { return m_size.width; }
    int height() const { return m_size.height; }
    void fill(Color color) { fill({0, 0, m_size.width, m_size.height}, color); }
    void fill(const Rect& area, Color color) { m_canvas.fillRect(area, color); }
    void frame(Color color) { frame({0, 0, m_size.width - 1, m_size.height - 1}, color); }
    void frame(const Rect& area, Color color) {
        m_canvas.setPen({color});
        m_canvas.moveTo({area.left, area.top});
        m_canvas.lineTo({area.right, area.top});
        m_canvas.lineTo({area.right, area.bottom});
        m_canvas.lineTo({area.left, area.bottom});
        m_canvas.lineTo({area.left, area.top});
    }
    void line(Point from, Point to, Color color) {
        m_canvas.setPen({color});
        m_canvas.moveTo(from);
        m_canvas.lineTo(to);
    }
    void text(Point at, std::string_view words, Color color) {
        m_canvas.setTextColor(color);
        m_canvas.drawText(at, words);
    }
    void centred(std::string_view words, Color color) {
        text({(m_size.width - textWidth(words)) / 2, (m_size.height - lineHeight) / 2}, words,
             color);
    }
    void icon(int number, Point at, Size size) { m_canvas.drawIcon(number, at, size); }
    // The field's lines, and the selected part of the first one marked.
    void lines(Point at, std::string_view words, Color color) {
        for (std::size_t begin = 0; begin <= words.size();) {
            const std::size_t end = std::min(words.find("\r\n", begin), words.size());
            text(at, words.substr(begin, end - begin), color);
            at.y += lineHeight;
            begin = end + 2;
        }
    }

private:
    std::string& m_out;
    Size m_size;
    RecordingCanvas m_canvas;
};

Color inkOf(const HeadlessControl& control) {
    return control.usable() ? ink : grey;
}

void draw(Area& area, const HeadlessButton& button) {
    if (button.kind() != ControlKind::icon) {
        area.fill({225, 225, 225});
        area.frame(button.focused() || button.dialog().defaultButton() == &button ? highlight
                                                                                  : grey);
    }
    if (button.kind() == ControlKind::button) {
        area.centred(button.plainText(), inkOf(button));
    } else if (button.icon()) {
        const int side = std::min({area.width() - 4, area.height() - 4, 32});
        area.icon(button.icon(), {(area.width() - side) / 2, (area.height() - side) / 2},
                  {side, side});
        if (!button.usable()) area.line({0, area.height()}, {area.width(), 0}, grey);
    }
}

void drawBox(Area& area, const HeadlessControl& control, bool checked, bool round) {
    const int top = (area.height() - 13) / 2;
    const Rect box{1, top, 13, top + 12};
    area.fill(box, paper);
    area.frame(box, inkOf(control));
    if (checked && round) area.fill({4, top + 3, 10, top + 9}, inkOf(control));
    if (checked && !round) {
        area.line({3, top + 6}, {6, top + 10}, inkOf(control));
        area.line({6, top + 10}, {11, top + 2}, inkOf(control));
    }
    area.text({17, (area.height() - lineHeight) / 2}, control.plainText(), inkOf(control));
}

void draw(Area& area, const HeadlessEdit& edit) {
    area.fill(edit.readOnly() || !edit.enabled() ? face : paper);
    const TextSelection selection = edit.selection();
    const Text text = edit.text();
    const Point at{
        4, edit.kind() == ControlKind::multilineEdit ? 3 : (area.height() - lineHeight) / 2};
    if (edit.focused() && edit.kind() == ControlKind::edit) {
        const auto placeOf = [&](int offset) {
            return at.x + textWidth(text.substr(0, static_cast<std::size_t>(offset)));
        };
        const int left = placeOf(selection.begin);
        const int right = placeOf(selection.end);
        area.fill({left, at.y, std::max(right, left + 1), at.y + lineHeight}, {170, 205, 240});
    }
    area.lines(at, text, inkOf(edit));
    area.frame(edit.focused() ? highlight : grey);
}

void draw(Area& area, const HeadlessListBox& list) {
    area.fill(paper);
    for (int row = list.firstShownRow(); row < list.count(); ++row) {
        const int top = 2 + (row - list.firstShownRow()) * list.rowHeight();
        if (top >= area.height()) break;
        const ListRow& look = list.row(row);
        const bool selected = row == list.selected();
        if (selected) {
            area.fill({2, top, area.width() - 2, top + list.rowHeight()},
                      look.selectedBackground.value_or(highlight));
        }
        if (look.icon) area.icon(look.icon, {4, top + 2}, {12, 12});
        const Color plain = selected && !look.selectedBackground ? paper : inkOf(list);
        area.text({2 + look.indent, top + (list.rowHeight() - lineHeight) / 2}, look.text,
                  look.textColor.value_or(plain));
    }
    area.frame(list.focused() ? highlight : grey);
}

void draw(Area& area, const HeadlessComboBox& combo) {
    area.fill(combo.editable() ? paper : Color{225, 225, 225});
    area.text({4, (area.height() - lineHeight) / 2}, combo.text(), inkOf(combo));
    const int x = area.width() - 12;
    const int y = area.height() / 2;
    area.line({x - 4, y - 2}, {x, y + 2}, inkOf(combo));
    area.line({x, y + 2}, {x + 4, y - 2}, inkOf(combo));
    area.frame(combo.focused() ? highlight : grey);
}

void draw(Area& area, const HeadlessListView& view) {
    area.fill(paper);
    const std::vector<int> selected = view.selectedRows();
    for (int row = view.firstShownRow(); row < view.rowCount(); ++row) {
        const int top = HeadlessListView::headerHeight +
                        (row - view.firstShownRow()) * HeadlessListView::rowHeight;
        if (top >= area.height()) break;
        const bool marked = std::binary_search(selected.begin(), selected.end(), row);
        if (marked) {
            area.fill({2, top, area.width() - 2, top + HeadlessListView::rowHeight}, highlight);
        }
    }
    area.fill({0, 0, area.width(), HeadlessListView::headerHeight}, face);
    int left = 2;
    for (const int column : view.columnOrder()) {
        const int right = left + view.columnWidth(column);
        Text heading = view.heading(column);
        const HeadingArrow arrow = view.headingArrow(column);
        if (arrow != HeadingArrow::none) heading += arrow == HeadingArrow::ascending ? " ^" : " v";
        area.text({left + 4, 3}, heading, ink);
        for (int row = view.firstShownRow(); row < view.rowCount(); ++row) {
            const int top = HeadlessListView::headerHeight +
                            (row - view.firstShownRow()) * HeadlessListView::rowHeight;
            if (top >= area.height()) break;
            const bool marked = std::binary_search(selected.begin(), selected.end(), row);
            area.text({left + 4, top + 2}, view.cellText(row, column), marked ? paper : ink);
        }
        area.line({right, 0}, {right, area.height()}, {215, 215, 215});
        left = right;
    }
    area.frame(view.focused() ? highlight : grey);
}

void draw(Area& area, const HeadlessTabControl& tabs) {
    area.frame({0, HeadlessTabControl::headerHeight, area.width() - 1, area.height() - 1}, grey);
    const auto widthOf = [&](int i) { return textWidth(tabs.tabTitle(i)) + 12; };
    // Tabs that do not fit are scrolled so that the selected one is seen.
    int end = 2;
    for (int i = 0; i <= tabs.selected(); ++i) end += widthOf(i);
    int left = 2 - std::max(0, end - area.width());
    for (int i = 0; i < tabs.count(); ++i) {
        const Text title = tabs.tabTitle(i);
        const int right = left + widthOf(i);
        const bool selected = i == tabs.selected();
        area.fill({left, selected ? 0 : 2, right, HeadlessTabControl::headerHeight},
                  selected ? paper : face);
        area.frame({left, selected ? 0 : 2, right, HeadlessTabControl::headerHeight},
                   selected && tabs.focused() ? highlight : grey);
        area.text({left + 6, 4}, title, ink);
        left = right;
    }
}

void drawGroup(Area& area, const HeadlessControl& group) {
    area.frame({0, 6, area.width() - 1, area.height() - 1}, {200, 200, 200});
    const Text text = group.plainText();
    area.fill({7, 0, 11 + textWidth(text), lineHeight}, face);
    area.text({9, 0}, text, inkOf(group));
}

void drawLabel(Area& area, const HeadlessControl& label) {
    area.lines({0, 0}, label.plainText(), inkOf(label));
}

void drawControl(std::string& out, const HeadlessControl& control) {
    Area area(out, control.areaInDialog(), control.dialog().platform());
    if (const auto* button = dynamic_cast<const HeadlessButton*>(&control))
        return draw(area, *button);
    if (const auto* box = dynamic_cast<const HeadlessCheckBox*>(&control)) {
        return drawBox(area, control, box->checked(), false);
    }
    if (const auto* radio = dynamic_cast<const HeadlessRadioButton*>(&control)) {
        return drawBox(area, control, radio->checked(), true);
    }
    if (const auto* edit = dynamic_cast<const HeadlessEdit*>(&control)) return draw(area, *edit);
    if (const auto* list = dynamic_cast<const HeadlessListBox*>(&control)) return draw(area, *list);
    if (const auto* combo = dynamic_cast<const HeadlessComboBox*>(&control)) {
        return draw(area, *combo);
    }
    if (const auto* view = dynamic_cast<const HeadlessListView*>(&control))
        return draw(area, *view);
    if (const auto* tabs = dynamic_cast<const HeadlessTabControl*>(&control)) {
        return draw(area, *tabs);
    }
    if (control.kind() == ControlKind::groupBox) return drawGroup(area, control);
    if (control.kind() == ControlKind::label) return drawLabel(area, control);
    // A picture's own drawing stands behind the frame, as elements of this area.
    if (const auto* picture = dynamic_cast<const HeadlessPicture*>(&control)) {
        const std::string edge = formatInt(picture->sunkenEdge());
        out += "<svg x=\"" + edge + "\" y=\"" + edge + "\">\n";
        if (picture->drawing()) out += picture->drawing()->svgElements();
        out += "</svg>\n";
        if (picture->sunkenEdge() > 0) area.frame(grey);
    }
}

// An open list hangs below its combo, over everything else.
void drawOpenList(std::string& out, const HeadlessComboBox& combo) {
    const Rect closed = combo.areaInDialog();
    const int rows = std::clamp(combo.count(), 1, 8);
    Area area(out, {closed.left, closed.bottom, closed.right, closed.bottom + rows * 14 + 2},
              combo.dialog().platform());
    area.fill(paper);
    for (int i = 0; i < combo.count(); ++i) {
        const int top = 1 + i * 14;
        const bool selected = i == combo.selected();
        if (selected) area.fill({1, top, area.width() - 1, top + 14}, highlight);
        area.text({4, top}, combo.item(i), selected ? paper : ink);
    }
    area.frame(grey);
}

}  // namespace

std::string dialogSvg(const HeadlessDialog& dialog) {
    const Size client = dialog.clientArea().size();
    const int bar = dialog.isPage() ? 0 : 24 + (dialog.menuBar().empty() ? 0 : 20);
    std::string out = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
                      formatInt(client.width + 2) + "\" height=\"" +
                      formatInt(client.height + bar + 2) + "\">\n";
    {
        Area window(out, {0, 0, client.width + 2, client.height + bar + 2}, dialog.platform());
        window.fill(face);
        if (bar > 0) window.fill({0, 0, client.width + 2, 24}, caption);
        window.text({8, 6}, dialog.title(), paper);
        int x = 8;
        for (const HeadlessMenuEntry& entry : dialog.menuBar()) {
            const Text text = withoutMnemonic(entry.text);
            window.text({x, 28}, text, entry.enabled ? ink : grey);
            x += textWidth(text) + 14;
        }
        window.frame(grey);
    }
    out += "<svg x=\"1\" y=\"" + formatInt(bar + 1) + "\" width=\"" + formatInt(client.width) +
           "\" height=\"" + formatInt(client.height) + "\">\n";
    // Guests of a picture stand on top of it, whatever their place in the Tab order.
    const std::vector<HeadlessControl*> controls = dialog.allControls();
    for (const bool guests : {false, true}) {
        for (const HeadlessControl* control : controls) {
            const bool guest = control->container() != nullptr;
            if (control->shown() && guest == guests) drawControl(out, *control);
        }
    }
    for (const HeadlessControl* control : controls) {
        const auto* combo = dynamic_cast<const HeadlessComboBox*>(control);
        if (combo && combo->shown() && combo->droppedDown()) drawOpenList(out, *combo);
    }
    return out + "</svg>\n</svg>\n";
}

}  // namespace lx
