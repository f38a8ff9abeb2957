#include "platform/recording_canvas.h"

#include <array>

#include "platform/numbers.h"

namespace lx {

namespace {

constexpr int dialogFontHeight = 13;
// Shares of the cell height in thousandths. The average is what a font's own width stands for.
constexpr int narrowShare = 260;
constexpr int slimShare = 320;
constexpr int normalShare = 480;
constexpr int capitalShare = 620;
constexpr int wideShare = 780;
constexpr int averageShare = 450;

constexpr void giveShare(std::array<int, 256>& shares, std::string_view bytes, int share) {
    for (const char c : bytes) shares[static_cast<unsigned char>(c)] = share;
}

constexpr std::array<int, 256> makeShares() {
    std::array<int, 256> shares{};
    for (int& share : shares) share = normalShare;
    giveShare(shares, "ABCDEFGHJKLNOPQRSTUVXYZÁČĎÉĚŇÓŘŠŤÚŮÝŽ<>=+&"_cz, capitalShare);
    giveShare(shares, "ijlíI|!.,:;'` Í"_cz, narrowShare);
    giveShare(shares, "ftrřť()[]{}/\\-\""_cz, slimShare);
    giveShare(shares, "mwMW@%"_cz, wideShare);
    return shares;
}
constexpr std::array<int, 256> shareOfHeight = makeShares();

std::string number(int value) {
    return formatInt(value);
}
std::string pair(int x, int y) {
    return number(x) + "," + number(y);
}
std::string point(Point p) {
    return "(" + pair(p.x, p.y) + ")";
}
std::string rgb(Color c) {
    return pair(c.red, c.green) + "," + number(c.blue);
}
std::string svgColor(Color c) {
    return "rgb(" + rgb(c) + ")";
}
std::string span(const Rect& area) {
    return point({area.left, area.top}) + "-" + point({area.right, area.bottom});
}
std::string sides(int width, int height) {
    return " width=\"" + number(width) + "\" height=\"" + number(height) + "\"";
}
std::string corner(int x, int y) {
    return " x=\"" + number(x) + "\" y=\"" + number(y) + "\"";
}

const char* styleName(PenStyle style) {
    switch (style) {
        case PenStyle::dash:
            return "dash";
        case PenStyle::dot:
            return "dot";
        case PenStyle::dashDot:
            return "dashDot";
        case PenStyle::dashDotDot:
            return "dashDotDot";
        case PenStyle::solid:
            break;
    }
    return "solid";
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

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char c : toUtf8(text)) {
        if (c == '"' || c == '\\') result.push_back('\\');
        if (c == '\r') {
            result += "\\r";
        } else if (c == '\n') {
            result += "\\n";
        } else {
            result.push_back(c);
        }
    }
    return result + "\"";
}

int heightOf(const Font& font) {
    return font.dialogFont ? dialogFontHeight : font.height;
}

std::string fontText(const Font& font) {
    if (font.dialogFont) return "dialog";
    std::string result = toUtf8(font.face) + " " + number(font.height);
    if (font.width) result += " width " + number(font.width);
    if (font.escapement) result += " turned " + number(font.escapement);
    return result;
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

void RecordingCanvas::setClip(const Rect& area) {
    m_operations.push_back({Kind::clip, m_clips.size()});
    m_clips.push_back(area);
}

void RecordingCanvas::setPen(const Pen& pen) {
    m_pen = pen;
}
void RecordingCanvas::setFont(const Font& font) {
    m_font = font;
}
void RecordingCanvas::setTextColor(Color color) {
    m_textColor = color;
}
void RecordingCanvas::moveTo(Point p) {
    m_current = p;
}

void RecordingCanvas::lineTo(Point p) {
    const bool goesOn = !m_operations.empty() && m_operations.back().kind == Kind::line &&
                        m_lines.back().pen == m_pen && m_lines.back().points.back() == m_current;
    if (!goesOn) {
        m_operations.push_back({Kind::line, m_lines.size()});
        m_lines.push_back({m_pen, {m_current}});
    }
    m_lines.back().points.push_back(p);
    m_current = p;
}

void RecordingCanvas::fillRect(const Rect& area, Color color) {
    m_operations.push_back({Kind::fill, m_fills.size()});
    m_fills.push_back({area, color});
}

void RecordingCanvas::drawText(Point p, std::string_view text) {
    m_operations.push_back({Kind::words, m_words.size()});
    m_words.push_back({p, Text(text), m_font, m_textColor});
}

void RecordingCanvas::drawIcon(int number, Point p, Size size) {
    std::unique_ptr<RecordingCanvas> drawing;
    if (m_paintIcon) {
        drawing = std::make_unique<RecordingCanvas>(m_paintIcon);
        if (!m_paintIcon(*drawing, number, size)) return;
    }
    m_operations.push_back({Kind::icon, m_icons.size()});
    m_icons.push_back({number, p, size, std::move(drawing)});
}

Size RecordingCanvas::measure(const Font& font, std::string_view text) {
    long long shares = 0;
    for (const char c : text) shares += shareOfHeight[static_cast<unsigned char>(c)];
    const int height = heightOf(font);
    const bool ownWidth = font.width > 0 && !font.dialogFont;
    const long long scaled = ownWidth ? shares * font.width / averageShare : shares * height / 1000;
    return {static_cast<int>(scaled), height};
}

std::string RecordingCanvas::asText() const {
    std::string result;
    const Pen* told = nullptr;
    for (const Operation& operation : m_operations) {
        switch (operation.kind) {
            case Kind::clip:
                result += "clip " + span(m_clips[operation.index]);
                break;
            case Kind::line: {
                const Line& line = m_lines[operation.index];
                if (!told || !(*told == line.pen)) {
                    result += "pen " + rgb(line.pen.color) + " width " + number(line.pen.width) +
                              " " + styleName(line.pen.style) + "\n";
                }
                told = &line.pen;
                result += "line ";
                for (std::size_t i = 0; i < line.points.size(); ++i) {
                    result += (i > 0 ? "-" : "") + point(line.points[i]);
                }
                break;
            }
            case Kind::fill: {
                const Fill& fill = m_fills[operation.index];
                result += "fill " + span(fill.area) + " " + rgb(fill.color);
                break;
            }
            case Kind::words: {
                const Words& words = m_words[operation.index];
                result += "text " + point(words.at) + " " + quoted(words.text) + " font " +
                          fontText(words.font) + " color " + rgb(words.color);
                break;
            }
            case Kind::icon: {
                const Icon& icon = m_icons[operation.index];
                result += "icon " + number(icon.number) + " " + point(icon.at) + " " +
                          number(icon.size.width) + "x" + number(icon.size.height);
                break;
            }
        }
        result += "\n";
    }
    return result;
}

std::string RecordingCanvas::svgOf(const Line& line) const {
    std::string result = "<polyline fill=\"none\" stroke=\"" + svgColor(line.pen.color) +
                         "\" stroke-width=\"" + number(line.pen.width) + "\"";
    if (line.pen.style != PenStyle::solid) {
        result += std::string(" stroke-dasharray=\"") + dashes(line.pen.style) + "\"";
    }
    result += " points=\"";
    for (const Point& p : line.points) result += pair(p.x, p.y) + " ";
    result.back() = '"';
    return result + "/>\n";
}

std::string RecordingCanvas::svgOf(const Words& words) const {
    const int height = heightOf(words.font);
    const int baseline = words.at.y + height * 4 / 5;
    std::string result = "<text" + corner(words.at.x, baseline) + " font-family=\"" +
                         (words.font.dialogFont ? "sans-serif" : svgEscaped(words.font.face)) +
                         "\" font-size=\"" + formatFixed(height * 0.85, 1) + "\" fill=\"" +
                         svgColor(words.color) + "\" xml:space=\"preserve\"";
    // The picture was laid out by these metrics; another font is pressed into them.
    if (const int width = measure(words.font, words.text).width; width > 0) {
        result += " textLength=\"" + number(width) + "\" lengthAdjust=\"spacingAndGlyphs\"";
    }
    if (words.font.escapement && !words.font.dialogFont) {
        result += " transform=\"rotate(" + formatFixed(-words.font.escapement / 10.0, 1) + " " +
                  number(words.at.x) + " " + number(words.at.y) + ")\"";
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
                          sides(area.width(), area.height()) + " viewBox=\"" + number(area.left) +
                          " " + number(area.top) + " " + number(area.width()) + " " +
                          number(area.height()) + "\">\n";
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
