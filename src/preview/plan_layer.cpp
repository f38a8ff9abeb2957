#include "preview/plan_sheet.h"

namespace lx {

namespace {

constexpr int fine = 1;
constexpr int wide = 3;  // of the folded section's elements

// One layer: its place on the plan and in the folded section, and its colour.
class PlanLayer {
public:
    PlanLayer(PlanSheet& sheet, const CRez& layer, bool current);
    void drawAlong();
    void drawFolded();

private:
    void drawStrip(PenStyle style);
    void drawAxis(double across);
    void drawShape();
    void drawFlange(std::int64_t level);
    void drawWeb(double across);
    void drawElement();
    void drawInsulation();
    Point lower(std::int64_t level, double across) const;

    PlanSheet& m_sheet;
    const CRez& m_layer;
    Color m_color;
    double m_half;  // of the length; all in mm
    double m_near;  // edges across the wall
    double m_middle;
    double m_far;
    std::int64_t m_bottom;
    std::int64_t m_top;
};

PlanLayer::PlanLayer(PlanSheet& sheet, const CRez& layer, bool current)
    : m_sheet(sheet),
      m_layer(layer),
      m_color(current ? currentColor : layerColor),
      m_half(layer.length / 2.0),
      m_near(layer.offset),
      m_middle(layer.offset + layer.width / 2.0),
      m_far(static_cast<double>(layer.offset) + layer.width),
      m_bottom(layer.level),
      m_top(std::int64_t{layer.level} + layer.height) {}

void PlanLayer::drawAlong() {
    switch (m_layer.kind) {
        case kind::beam:
            return drawAxis(m_middle);
        case kind::angle:
        case kind::channel:
            return drawAxis(m_near);
        case kind::angleMirrored:
        case kind::channelMirrored:
            return drawAxis(m_far);
        case kind::insulation:
        case kind::space:
            return;
        case kind::monolith:
            return drawStrip(PenStyle::dash);
        default:
            return drawStrip(PenStyle::dashDotDot);
    }
}

void PlanLayer::drawStrip(PenStyle style) {
    m_sheet.canvas.setPen({m_color, fine, style});
    m_sheet.line({m_sheet.strip(-m_half, m_far), m_sheet.strip(m_half, m_far),
                  m_sheet.strip(m_half, m_near), m_sheet.strip(-m_half, m_near),
                  m_sheet.strip(-m_half, m_far)});
}

void PlanLayer::drawAxis(double across) {
    m_sheet.canvas.setPen({m_color, fine, PenStyle::dashDot});
    m_sheet.line({m_sheet.strip(-m_half, across), m_sheet.strip(m_half, across)});
}

void PlanLayer::drawFolded() {
    const bool thin = m_layer.kind == kind::insulation || m_layer.kind == kind::monolith;
    m_sheet.canvas.setPen({m_color, thin ? fine : wide});
    switch (m_layer.kind) {
        case kind::insulation:
            return drawInsulation();
        case kind::space:
            return;
        case kind::monolith:
            return m_sheet.line({lower(m_top, m_far), m_sheet.folded(m_top, m_near)});
        default:
            return drawShape();
    }
}

// Levels point to the left, so flanges stand upright on the screen and webs lie.
void PlanLayer::drawShape() {
    switch (m_layer.kind) {
        case kind::beam:
            drawFlange(m_bottom);
            drawFlange(m_top);
            return drawWeb(m_middle);
        case kind::angle:
        case kind::angleMirrored:
            drawFlange(m_bottom);
            return drawWeb(m_layer.kind == kind::angle ? m_near : m_far);
        case kind::channel:
        case kind::channelMirrored:
            drawFlange(m_bottom);
            drawFlange(m_top);
            return drawWeb(m_layer.kind == kind::channel ? m_near : m_far);
        default:
            return drawElement();
    }
}

void PlanLayer::drawFlange(std::int64_t level) {
    m_sheet.line({m_sheet.folded(level, m_near), m_sheet.folded(level, m_far)});
}

void PlanLayer::drawWeb(double across) {
    m_sheet.line({m_sheet.folded(m_top, across), m_sheet.folded(m_bottom, across)});
}

void PlanLayer::drawElement() {
    m_sheet.line({m_sheet.folded(m_bottom, m_near), lower(m_bottom, m_far), lower(m_top, m_far),
                  m_sheet.folded(m_top, m_near), m_sheet.folded(m_bottom, m_near)});
}

void PlanLayer::drawInsulation() {
    const Point start = m_sheet.folded(m_bottom, m_near);
    const Point end = m_sheet.folded(m_top, m_near);
    m_sheet.line(
        {start, m_sheet.folded(m_bottom, m_far), m_sheet.folded(m_top, m_far), end, start});
    const int step = truncatedPixel(m_layer.width * m_sheet.scale / 2.0);
    m_sheet.zigzag(start, end.x, step, m_sheet.client.width, false);
}

// Edges along the upper wall face stay a pixel clear of it.
Point PlanLayer::lower(std::int64_t level, double across) const {
    const Point p = m_sheet.folded(level, across);
    return {p.x, p.y + 1};
}

}  // namespace

void drawPlanLayer(PlanSheet& sheet, const CRez& layer, bool current) {
    PlanLayer drawing(sheet, layer, current);
    drawing.drawAlong();
    if (sheet.foldedSection) drawing.drawFolded();
}

}  // namespace lx
