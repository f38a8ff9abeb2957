// A recorded drawing as text.
#include "platform/numbers.h"
#include "platform/recording_canvas.h"

namespace lx {

namespace {

std::string pair(int x, int y) {
    return formatInt(x) + "," + formatInt(y);
}
std::string point(Point p) {
    return "(" + pair(p.x, p.y) + ")";
}
std::string rgb(Color c) {
    return pair(c.red, c.green) + "," + formatInt(c.blue);
}
std::string span(const Rect& area) {
    return point({area.left, area.top}) + "-" + point({area.right, area.bottom});
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

std::string fontText(const Font& font) {
    if (font.dialogFont) return "dialog";
    std::string result = toUtf8(font.face) + " " + formatInt(font.height);
    if (font.width) result += " width " + formatInt(font.width);
    if (font.escapement) result += " turned " + formatInt(font.escapement);
    return result;
}

}  // namespace

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
                    result += "pen " + rgb(line.pen.color) + " width " + formatInt(line.pen.width) +
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
                result += "icon " + formatInt(icon.number) + " " + point(icon.at) + " " +
                          formatInt(icon.size.width) + "x" + formatInt(icon.size.height);
                break;
            }
        }
        result += "\n";
    }
    return result;
}

}  // namespace lx
