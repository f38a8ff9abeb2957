#include "platform/recording_canvas.h"

#include "platform/font_metrics.h"

namespace lx {

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

Size RecordingCanvas::measure(std::string_view text) {
    return measuredText(m_font, text);
}

}  // namespace lx
