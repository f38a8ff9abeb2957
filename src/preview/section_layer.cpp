#include "platform/numbers.h"
#include "preview/section_sheet.h"
#include "resources/icons.h"
#include "resources/strings.h"

namespace lx {

namespace {

constexpr int wide = 4;
constexpr int fine = 1;
constexpr int inset = 2;     // from the layer's edges to the lines of its symbol
constexpr int halfMark = 2;  // of the square in the middle of a layer

constexpr Point firstValue{10, 80};
constexpr int leaderStart = 60;  // px from the left
constexpr int mirrorAbove = 55;  // px from the layer's top up to the button's

void drawMark(SectionSheet& sheet, Point middle) {
    const auto& [x, y] = middle;
    sheet.line({{x - halfMark, y - halfMark},
                {x + halfMark, y - halfMark},
                {x + halfMark, y + halfMark},
                {x - halfMark, y + halfMark},
                {x - halfMark, y - halfMark}});
}

// One layer: its place on the picture, and its colour.
class LayerDrawing {
public:
    LayerDrawing(SectionSheet& sheet, const CRez& layer, bool current);
    void drawSymbol();
    void drawMirrorButton(Size size);
    void drawValues();

private:
    void drawProfile();
    void drawBlock();
    void drawInsulation();
    int drawValue(int y, std::string_view word, std::int32_t value, int kind, EditField field);

    SectionSheet& m_sheet;
    const CRez& m_layer;
    const KindTraits& m_traits;
    Color m_color;
    Rect m_area;    // the layer's four edges; a negative size turns them about
    Rect m_inside;  // the lines of profiles and blocks lie a little inside
    Point m_middle;
};

LayerDrawing::LayerDrawing(SectionSheet& sheet, const CRez& layer, bool current)
    : m_sheet(sheet),
      m_layer(layer),
      m_traits(traits(layer.kind)),
      m_color(current ? currentColor : layerColor) {
    const std::int64_t left = layer.offset;
    const std::int64_t bottom = layer.level;
    m_area = {sheet.x(left), sheet.y(bottom + layer.height), sheet.x(left + layer.width),
              sheet.y(bottom)};
    m_inside = {m_area.left + inset, m_area.top + inset, m_area.right - inset,
                m_area.bottom - inset};
    m_middle = sheet.at(left + layer.width / 2, bottom + layer.height / 2);
}

void LayerDrawing::drawSymbol() {
    const auto& [left, top, right, bottom] = m_area;
    m_sheet.canvas.setPen({m_color, hasFinePen(m_traits.symbol) ? fine : wide});
    switch (m_traits.symbol) {
        case Symbol::profile:
            return drawProfile();
        case Symbol::insulation:
            return drawInsulation();
        case Symbol::space:
            return drawMark(m_sheet, m_middle);
        case Symbol::cast:
            m_sheet.line({{right, top}, {left, top}});
            return drawMark(m_sheet, m_middle);
        case Symbol::block:
            return drawBlock();
    }
}

void LayerDrawing::drawProfile() {
    const auto& [left, top, right, bottom] = m_inside;
    m_sheet.line({{left, bottom}, {right, bottom}});
    if (m_traits.topFlange) m_sheet.line({{left, top}, {right, top}});
    const int edge = m_traits.web == Web::nearEdge ? left : right;
    const int web = m_traits.web == Web::middle ? m_middle.x : edge;
    m_sheet.line({{web, top}, {web, bottom}});
}

void LayerDrawing::drawBlock() {
    const auto& [left, top, right, bottom] = m_inside;
    m_sheet.line({{left, bottom}, {right, bottom}, {right, top}, {left, top}, {left, bottom}});
}

void LayerDrawing::drawInsulation() {
    const auto& [left, top, right, bottom] = m_area;
    m_sheet.line({{left, bottom}, {right, bottom}, {right, top}, {left, top}, {left, bottom}});
    const int step = truncatedPixel(m_layer.width * m_sheet.scale.scale / 2.0);
    m_sheet.zigzag({left, bottom}, top, step, m_sheet.height, true);
}

void LayerDrawing::drawMirrorButton(Size size) {
    const std::int64_t middle = std::int64_t{m_layer.offset} + m_layer.width / 2;
    const int half = size.width / 2;
    const int x = truncatedPixel(m_sheet.scale.origin.x +
                                 static_cast<double>(middle) * m_sheet.scale.scale - half);
    const int y = m_area.top - mirrorAbove;
    m_sheet.canvas.drawIcon(icon::mirror, {x, y}, size);
    m_sheet.addRegion(false, region::mirror, {&m_layer, EditField::kind}, {x, y}, size);
}

// Answers the height of the line.
int LayerDrawing::drawValue(int y, std::string_view word, std::int32_t value, int kind,
                            EditField field) {
    Canvas& canvas = m_sheet.canvas;
    canvas.drawText({firstValue.x, y}, word);
    const int x = firstValue.x + canvas.measure(word).width;
    const Text number = formatInt(value);
    const Size size = canvas.measure(number);
    canvas.drawText({x, y}, number);
    m_sheet.addRegion(true, kind, {&m_layer, field}, {x, y}, size);
    return size.height;
}

void LayerDrawing::drawValues() {
    m_sheet.canvas.setFont(labelFont());
    int y = firstValue.y;
    y += drawValue(y, m_traits.widthWord, m_layer.width, region::specialWidth, EditField::width);
    if (m_traits.beside == Beside::widthAndHeight) {
        y += drawValue(y, text::height, m_layer.height, region::number, EditField::height);
    }
    m_sheet.canvas.setPen({m_color, fine});
    m_sheet.line({{leaderStart, y}, m_middle});
}

}  // namespace

void drawLayer(SectionSheet& sheet, const CRez& layer, bool current, Size mirrorButton) {
    LayerDrawing drawing(sheet, layer, current);
    drawing.drawSymbol();
    if (!current) return;
    switch (traits(layer.kind).beside) {
        case Beside::nothing:
            return;
        case Beside::mirrorButton:
            return drawing.drawMirrorButton(mirrorButton);
        case Beside::width:
        case Beside::widthAndHeight:
            return drawing.drawValues();
    }
}

}  // namespace lx
