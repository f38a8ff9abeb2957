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
    void drawProfile();
    void drawFlange(std::int64_t level);
    double web() const;
    void drawBlock();
    void drawInsulation();
    Point lower(std::int64_t level, double across) const;

    PlanSheet& m_sheet;
    const CRez& m_layer;
    const KindTraits& m_traits;
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
      m_traits(traits(layer.kind)),
      m_color(current ? currentColor : layerColor),
      m_half(layer.length / 2.0),
      m_near(layer.offset),
      m_middle(layer.offset + layer.width / 2.0),
      m_far(static_cast<double>(layer.offset) + layer.width),
      m_bottom(layer.level),
      m_top(std::int64_t{layer.level} + layer.height) {}

void PlanLayer::drawAlong() {
    switch (m_traits.symbol) {
        case Symbol::profile:
            return drawAxis(web());
        case Symbol::insulation:
        case Symbol::space:
            return;
        case Symbol::cast:
            return drawStrip(PenStyle::dash);
        case Symbol::block:
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
    m_sheet.canvas.setPen({m_color, hasFinePen(m_traits.symbol) ? fine : wide});
    switch (m_traits.symbol) {
        case Symbol::profile:
            return drawProfile();
        case Symbol::insulation:
            return drawInsulation();
        case Symbol::space:
            return;
        case Symbol::cast:
            return m_sheet.line({lower(m_top, m_far), m_sheet.folded(m_top, m_near)});
        case Symbol::block:
            return drawBlock();
    }
}

// Levels point to the left, so flanges stand upright on the screen and webs lie.
void PlanLayer::drawProfile() {
    drawFlange(m_bottom);
    if (m_traits.topFlange) drawFlange(m_top);
    m_sheet.line({m_sheet.folded(m_top, web()), m_sheet.folded(m_bottom, web())});
}

void PlanLayer::drawFlange(std::int64_t level) {
    m_sheet.line({m_sheet.folded(level, m_near), m_sheet.folded(level, m_far)});
}

// Where it stands across the wall, mm.
double PlanLayer::web() const {
    if (m_traits.web == Web::middle) return m_middle;
    return m_traits.web == Web::nearEdge ? m_near : m_far;
}

void PlanLayer::drawBlock() {
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
