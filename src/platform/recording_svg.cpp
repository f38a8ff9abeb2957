// A recorded drawing as SVG.
#include "platform/font_metrics.h"
#include "platform/numbers.h"
#include "platform/recording_canvas.h"

namespace lx {

namespace {

std::string pair(int x, int y) {
    return formatInt(x) + "," + formatInt(y);
}
std::string svgColor(Color c) {
    return "rgb(" + pair(c.red, c.green) + "," + formatInt(c.blue) + ")";
}
std::string sides(int width, int height) {
    return " width=\"" + formatInt(width) + "\" height=\"" + formatInt(height) + "\"";
}
std::string corner(int x, int y) {
    return " x=\"" + formatInt(x) + "\" y=\"" + formatInt(y) + "\"";
}

const char* dashes(PenStyle style) {
    switch (style) {
        case PenStyle::dash:
            return "9 4";
        case PenStyle::dot:
            return "2 3";
        case PenStyle::dashDot:
            return "9 4 2 4";
        case PenStyle::dashDotDot:
            return "9 4 2 4 2 4";
        case PenStyle::solid:
            break;
    }
    return "";
}

}  // namespace

std::string svgEscaped(std::string_view text) {
    std::string result;
    for (const char c : toUtf8(text)) {
        switch (c) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '>':
                result += "&gt;";
                break;
            case '"':
                result += "&quot;";
                break;
            default:
                // The other control characters may not stand in a document at all.
                result.push_back(static_cast<unsigned char>(c) < 0x20 ? ' ' : c);
        }
    }
    return result;
}

std::string RecordingCanvas::svgOf(const Line& line) const {
    std::string result = "<polyline fill=\"none\" stroke=\"" + svgColor(line.pen.color) +
                         "\" stroke-width=\"" + formatInt(line.pen.width) + "\"";
    if (line.pen.style != PenStyle::solid) {
        result += std::string(" stroke-dasharray=\"") + dashes(line.pen.style) + "\"";
    }
    result += " points=\"";
    for (const Point& p : line.points) result += pair(p.x, p.y) + " ";
    result.back() = '"';
    return result + "/>\n";
}

std::string RecordingCanvas::svgOf(const Words& words) const {
    const int height = fontHeight(words.font);
    const int baseline = words.at.y + height * 4 / 5;
    std::string result = "<text" + corner(words.at.x, baseline) + " font-family=\"" +
                         (words.font.dialogFont ? "sans-serif" : svgEscaped(words.font.face)) +
                         "\" font-size=\"" + formatFixed(height * 0.85, 1) + "\" fill=\"" +
                         svgColor(words.color) + "\" xml:space=\"preserve\"";
    // The picture was laid out by these metrics; another font is pressed into them.
    if (const int width = measuredText(words.font, words.text).width; width > 0) {
        result += " textLength=\"" + formatInt(width) + "\" lengthAdjust=\"spacingAndGlyphs\"";
    }
    if (words.font.escapement && !words.font.dialogFont) {
        result += " transform=\"rotate(" + formatFixed(-words.font.escapement / 10.0, 1) + " " +
                  formatInt(words.at.x) + " " + formatInt(words.at.y) + ")\"";
    }
    return result + ">" + svgEscaped(words.text) + "</text>\n";
}

std::string RecordingCanvas::svgOf(const Icon& icon) const {
    const auto& [width, height] = icon.size;
    if (!icon.drawing) {
        return "<rect" + corner(icon.at.x, icon.at.y) + sides(width, height) +
               " fill=\"none\" stroke=\"gray\"/>\n";
    }
    return "<svg" + corner(icon.at.x, icon.at.y) + sides(width, height) + ">\n" +
           icon.drawing->svgElements() + "</svg>\n";
}

std::string RecordingCanvas::svgElements() const {
    std::string result;
    bool clipped = false;
    for (const Operation& operation : m_operations) {
        switch (operation.kind) {
            case Kind::clip: {
                const Rect& area = m_clips[operation.index];
                if (clipped) result += "</svg>\n";
                clipped = true;
                result += "<svg" + corner(area.left, area.top) +
                          sides(area.width(), area.height()) + " viewBox=\"" +
                          formatInt(area.left) + " " + formatInt(area.top) + " " +
                          formatInt(area.width()) + " " + formatInt(area.height()) + "\">\n";
                break;
            }
            case Kind::line:
                result += svgOf(m_lines[operation.index]);
                break;
            case Kind::fill: {
                const Fill& fill = m_fills[operation.index];
                result += "<rect" + corner(fill.area.left, fill.area.top) +
                          sides(fill.area.width(), fill.area.height()) + " fill=\"" +
                          svgColor(fill.color) + "\"/>\n";
                break;
            }
            case Kind::words:
                result += svgOf(m_words[operation.index]);
                break;
            case Kind::icon:
                result += svgOf(m_icons[operation.index]);
                break;
        }
    }
    if (clipped) result += "</svg>\n";
    return result;
}

}  // namespace lx
