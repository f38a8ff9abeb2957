#include "platform/headless/dialog_svg.h"

#include "platform/headless/headless_platform.h"
#include "platform/headless/svg_area.h"
#include "platform/numbers.h"

namespace lx {

namespace {

constexpr Color caption{60, 90, 140};
constexpr int captionHeight = 24;
constexpr int menuHeight = 20;

// Height of the caption and the menu bar.
int barHeight(const HeadlessDialog& dialog) {
    if (dialog.isPage()) return 0;
    return captionHeight + (dialog.menuBar().empty() ? 0 : menuHeight);
}

void drawFrame(SvgArea& window, const HeadlessDialog& dialog) {
    window.fill(SvgArea::face);
    if (!dialog.isPage()) window.fill({0, 0, window.width(), captionHeight}, caption);
    window.text({8, 6}, dialog.title(), SvgArea::paper);
    int x = 8;
    for (const HeadlessMenuEntry& entry : dialog.menuBar()) {
        const Text text = withoutMnemonic(entry.text);
        window.text({x, 28}, text, entry.enabled ? SvgArea::ink : SvgArea::grey);
        x += SvgArea::textWidth(text) + 14;
    }
    window.frame(SvgArea::grey);
}

// Guests of a picture stand on top of it, whatever their place in the Tab order, and open lists
// above everything.
void drawControls(std::string& out, const HeadlessDialog& dialog) {
    const std::vector<HeadlessControl*> controls = dialog.allControls();
    for (const bool guests : {false, true}) {
        for (const HeadlessControl* control : controls) {
            const bool guest = control->container() != nullptr;
            if (!control->shown() || guest != guests) continue;
            SvgArea area(out, control->areaInDialog(), dialog.platform());
            control->draw(area);
        }
    }
    for (const HeadlessControl* control : controls) {
        if (control->shown()) control->drawOpenList(out);
    }
}

}  // namespace

std::string dialogSvg(const HeadlessDialog& dialog) {
    const Size client = dialog.clientArea().size();
    const int bar = barHeight(dialog);
    const Size outer{client.width + 2, client.height + bar + 2};
    std::string out = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
                      formatInt(outer.width) + "\" height=\"" + formatInt(outer.height) + "\">\n";
    {
        SvgArea window(out, {0, 0, outer.width, outer.height}, dialog.platform());
        drawFrame(window, dialog);
    }
    out += "<svg x=\"1\" y=\"" + formatInt(bar + 1) + "\" width=\"" + formatInt(client.width) +
           "\" height=\"" + formatInt(client.height) + "\">\n";
    drawControls(out, dialog);
    return out + "</svg>\n</svg>\n";
}

}  // namespace lx
