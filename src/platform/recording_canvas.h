// A canvas that keeps what is drawn on it, with the text metrics of font_metrics.h, and can tell it
// as text (recording_text.cpp) or SVG (recording_svg.cpp).
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/canvas.h"

namespace lx {

// The text as UTF-8, safe inside an SVG element or attribute.
std::string svgEscaped(std::string_view text);

class RecordingCanvas final : public Canvas {
public:
    using IconPainter = std::function<bool(Canvas&, int number, Size size)>;

    // Without a painter every icon number exists, as a framed square.
    explicit RecordingCanvas(IconPainter paintIcon = {}) : m_paintIcon(std::move(paintIcon)) {}

    void setClip(const Rect& area) override;
    void setPen(const Pen& pen) override;
    void setFont(const Font& font) override;
    void setTextColor(Color color) override;
    void moveTo(Point p) override;
    void lineTo(Point p) override;
    void fillRect(const Rect& area, Color color) override;
    void drawText(Point p, std::string_view text) override;
    Size measure(std::string_view text) override;
    void drawIcon(int number, Point p, Size size) override;

    // UTF-8, one operation a line, such as
    //   pen 255,153,153 width 4 solid
    //   line (10,20)-(30,40)-(50,40)
    //   text (2,5) "Řez:" font Arial 12 color 255,255,255
    // A pen is told when lines are drawn with another one than before; lines that continue one
    // another are one.
    std::string asText() const;
    bool empty() const { return m_operations.empty(); }
    // The drawing as SVG elements, to stand inside a document.
    std::string svgElements() const;

private:
    struct Line {
        Pen pen;
        std::vector<Point> points;
    };
    struct Fill {
        Rect area;
        Color color;
    };
    struct Words {
        Point at;
        Text text;
        Font font;
        Color color;
    };
    struct Icon {
        int number = 0;
        Point at;
        Size size;
        std::unique_ptr<RecordingCanvas> drawing;  // null without a painter
    };
    enum class Kind { clip, line, fill, words, icon };
    // One operation, and where its data stand.
    struct Operation {
        Kind kind;
        std::size_t index;
    };

    std::string svgOf(const Line& line) const;
    std::string svgOf(const Words& words) const;
    std::string svgOf(const Icon& icon) const;

    IconPainter m_paintIcon;
    std::vector<Operation> m_operations;
    std::vector<Rect> m_clips;
    std::vector<Line> m_lines;
    std::vector<Fill> m_fills;
    std::vector<Words> m_words;
    std::vector<Icon> m_icons;

    Pen m_pen;
    Font m_font;
    Color m_textColor;
    Point m_current;
};

}  // namespace lx
