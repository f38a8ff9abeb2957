#include "platform/headless/svg_area.h"

#include <algorithm>

#include "platform/font_metrics.h"
#include "platform/headless/headless_platform.h"
#include "platform/numbers.h"

namespace lx {

namespace {

Font dialogFont() {
    Font font;
    font.dialogFont = true;
    return font;
}

}  // namespace

int SvgArea::textWidth(std::string_view text) {
    return measuredText(dialogFont(), text).width;
}

SvgArea::SvgArea(std::string& document, const Rect& area, const HeadlessPlatform& platform)
    : m_document(document), m_size(area.size()), m_canvas(platform.paintIcon) {
    m_document += "<svg x=\"" + formatInt(area.left) + "\" y=\"" + formatInt(area.top) +
                  "\" width=\"" + formatInt(std::max(0, area.width())) + "\" height=\"" +
                  formatInt(std::max(0, area.height())) + "\">\n";
    m_canvas.setFont(dialogFont());
}

SvgArea::~SvgArea() {
    m_document += m_canvas.svgElements() + "</svg>\n";
}

void SvgArea::frame(const Rect& area, Color color) {
    m_canvas.setPen({color});
    m_canvas.moveTo({area.left, area.top});
    m_canvas.lineTo({area.right, area.top});
    m_canvas.lineTo({area.right, area.bottom});
    m_canvas.lineTo({area.left, area.bottom});
    m_canvas.lineTo({area.left, area.top});
}

void SvgArea::line(Point from, Point to, Color color) {
    m_canvas.setPen({color});
    m_canvas.moveTo(from);
    m_canvas.lineTo(to);
}

void SvgArea::text(Point at, std::string_view words, Color color) {
    m_canvas.setTextColor(color);
    m_canvas.drawText(at, words);
}

void SvgArea::lines(Point at, std::string_view words, Color color) {
    for (std::size_t begin = 0; begin <= words.size();) {
        const std::size_t end = std::min(words.find("\r\n", begin), words.size());
        text(at, words.substr(begin, end - begin), color);
        at.y += lineHeight;
        begin = end + 2;
    }
}

void SvgArea::centred(std::string_view words, Color color) {
    text({(m_size.width - textWidth(words)) / 2, middleLine()}, words, color);
}

void SvgArea::behind(int inset, const RecordingCanvas* drawing) {
    const std::string edge = formatInt(inset);
    m_document += "<svg x=\"" + edge + "\" y=\"" + edge + "\">\n";
    if (drawing) m_document += drawing->svgElements();
    m_document += "</svg>\n";
}

}  // namespace lx
