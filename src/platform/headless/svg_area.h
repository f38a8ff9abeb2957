// A part of the dialog's picture in which one control draws what it looks like.
#pragma once

#include <string>
#include <string_view>

#include "platform/recording_canvas.h"

namespace lx {

class HeadlessPlatform;

// Draws in the coordinates of the area that it was made for; what sticks out is cut off.
class SvgArea {
public:
    static constexpr Color face{240, 240, 240};
    static constexpr Color paper{255, 255, 255};
    static constexpr Color ink{0, 0, 0};
    static constexpr Color grey{150, 150, 150};
    static constexpr Color pressable{225, 225, 225};
    static constexpr Color highlight{0, 120, 215};
    static constexpr int lineHeight = 13;
    // Of a line in the dialog's font.
    static int textWidth(std::string_view text);

    // Appends to the document when it goes.
    SvgArea(std::string& document, const Rect& area, const HeadlessPlatform& platform);
    ~SvgArea();
    SvgArea(const SvgArea&) = delete;
    SvgArea& operator=(const SvgArea&) = delete;

    int width() const { return m_size.width; }
    int height() const { return m_size.height; }
    // Where a line of text stands in the middle of the height.
    int middleLine() const { return (m_size.height - lineHeight) / 2; }
    void fill(Color color) { fill({0, 0, m_size.width, m_size.height}, color); }
    void fill(const Rect& area, Color color) { m_canvas.fillRect(area, color); }
    void frame(Color color) { frame({0, 0, m_size.width - 1, m_size.height - 1}, color); }
    void frame(const Rect& area, Color color);
    // The frame of what can have the focus.
    void frameOfField(bool focused) { frame(focused ? highlight : grey); }
    void line(Point from, Point to, Color color);
    void text(Point at, std::string_view words, Color color);
    // Several lines, CR LF between them.
    void lines(Point at, std::string_view words, Color color);
    void centred(std::string_view words, Color color);
    void icon(int number, Point at, Size size) { m_canvas.drawIcon(number, at, size); }
    // A drawing behind everything that is drawn here, moved right and down by the inset.
    void behind(int inset, const RecordingCanvas* drawing);

private:
    std::string& m_document;
    Size m_size;
    RecordingCanvas m_canvas;
};

}  // namespace lx
