#include "resources/icons.h"

#include <initializer_list>

namespace lx {

namespace {

constexpr Color black{0, 0, 0};
constexpr Color steelBlue{58, 84, 128};
constexpr Color concrete{140, 140, 132};
constexpr Color brick{196, 96, 64};
constexpr Color insulationYellow{224, 168, 24};
constexpr Color red{200, 40, 32};
constexpr Color green{24, 136, 56};
constexpr Color faceGrey{224, 224, 224};
constexpr Color shadowGrey{120, 120, 120};
constexpr Color arrowGrey{80, 80, 80};

// Draws on a grid of 32 by 32, whatever size the icon has.
class Grid {
public:
    Grid(Canvas& canvas, Size size) : m_canvas(canvas), m_size(size) {}

    void fill(const Rect& r, Color color) {
        Rect area{x(r.left), y(r.top), x(r.right), y(r.bottom)};
        // What would vanish at 12 pixels keeps one.
        if (area.right == area.left) ++area.right;
        if (area.bottom == area.top) ++area.bottom;
        m_canvas.fillRect(area, color);
    }
    void frame(const Rect& r, int thickness, Color color) {
        fill({r.left, r.top, r.right, r.top + thickness}, color);
        fill({r.left, r.bottom - thickness, r.right, r.bottom}, color);
        fill({r.left, r.top, r.left + thickness, r.bottom}, color);
        fill({r.right - thickness, r.top, r.right, r.bottom}, color);
    }
    // thickness in units of the grid.
    void line(std::initializer_list<Point> points, int thickness, Color color) {
        const int width = thickness * m_size.width / 32;
        m_canvas.setPen({color, width < 1 ? 1 : width, PenStyle::solid});
        bool first = true;
        for (const Point& p : points) {
            const Point pixel{x(p.x), y(p.y)};
            if (first) {
                m_canvas.moveTo(pixel);
            } else {
                m_canvas.lineTo(pixel);
            }
            first = false;
        }
    }

private:
    int x(int units) const { return units * m_size.width / 32; }
    int y(int units) const { return units * m_size.height / 32; }

    Canvas& m_canvas;
    Size m_size;
};

void paintShape(Grid& grid, int shape) {
    const auto bar = [&grid](const Rect& r) { grid.fill(r, steelBlue); };
    switch (shape) {
        case 1:  // I section
            bar({6, 3, 26, 7});
            bar({14, 7, 18, 25});
            bar({6, 25, 26, 29});
            break;
        case 2:  // angle
            bar({6, 3, 10, 25});
            bar({6, 25, 26, 29});
            break;
        case 3:  // channel
            bar({8, 3, 24, 7});
            bar({8, 7, 12, 25});
            bar({8, 25, 24, 29});
            break;
        case 4:  // tee
            bar({5, 3, 27, 7});
            bar({14, 7, 18, 29});
            break;
        case 5:  // hollow section
            grid.frame({6, 4, 26, 28}, 4, steelBlue);
            break;
        default:  // flat bar
            bar({12, 3, 20, 29});
            break;
    }
}

// The wall above the opening seen in section: both faces and, between them, the bent head.
void paintBends(Grid& grid, int preset) {
    constexpr int thickness = 2;
    switch (preset) {
        case 0:
            grid.line({{6, 4}, {6, 26}, {26, 26}, {26, 4}}, thickness, black);
            break;
        case 1:
            grid.line({{6, 4}, {6, 27}, {16, 27}, {16, 19}, {26, 19}, {26, 4}}, thickness, black);
            break;
        case 2:
            grid.line({{6, 4}, {6, 27}, {13, 27}, {13, 21}, {19, 21}, {19, 15}, {26, 15}, {26, 4}},
                      thickness, black);
            break;
        case 3:
            grid.line({{6, 4}, {6, 21}, {13, 21}, {13, 27}, {19, 27}, {19, 15}, {26, 15}, {26, 4}},
                      thickness, black);
            break;
        case 4:
            grid.line({{6, 4}, {6, 27}, {16, 27}, {16, 21}, {26, 13}, {26, 4}}, thickness, black);
            break;
        default:
            grid.line({{6, 4}, {6, 27}, {13, 27}, {13, 22}, {19, 22}, {19, 17}, {26, 10}, {26, 4}},
                      thickness, black);
            break;
    }
}

void paintAdd(Grid& grid, int) {
    grid.fill({4, 12, 18, 28}, concrete);
    grid.frame({4, 12, 18, 28}, 1, black);
    grid.fill({20, 9, 30, 12}, green);
    grid.fill({23, 5, 27, 16}, green);
}

void paintRemove(Grid& grid, int) {
    grid.line({{7, 7}, {25, 25}}, 4, red);
    grid.line({{25, 7}, {7, 25}}, 4, red);
}

void paintSpace(Grid& grid, int) {
    grid.fill({3, 6, 9, 26}, concrete);
    grid.fill({23, 6, 29, 26}, concrete);
    grid.line({{10, 16}, {22, 16}}, 2, black);
    grid.line({{13, 13}, {10, 16}, {13, 19}}, 2, black);
    grid.line({{19, 13}, {22, 16}, {19, 19}}, 2, black);
}

void paintInsulation(Grid& grid, int) {
    grid.line({{8, 28}, {24, 24}, {8, 20}, {24, 16}, {8, 12}, {24, 8}, {8, 4}}, 2,
              insulationYellow);
    grid.frame({7, 3, 25, 29}, 1, black);
}

void paintMonolith(Grid& grid, int) {
    grid.fill({5, 5, 27, 27}, concrete);
    grid.frame({5, 5, 27, 27}, 1, black);
    constexpr Rect stones[] = {
        {9, 9, 12, 11}, {18, 10, 21, 13}, {12, 16, 15, 19}, {21, 19, 24, 21}, {9, 22, 11, 24}};
    for (const Rect& stone : stones) grid.fill(stone, black);
}

void paintCatalogue(Grid& grid, int) {
    grid.fill({3, 4, 29, 9}, shadowGrey);
    grid.frame({3, 4, 29, 28}, 1, black);
    for (int row = 13; row <= 25; row += 5) {
        grid.fill({6, row - 1, 9, row + 2}, steelBlue);
        grid.fill({12, row, 26, row + 1}, black);
    }
}

void paintArrow(Grid& grid, int ascending) {
    for (int row = 0; row < 10; ++row) {
        const int half = ascending != 0 ? row : 9 - row;
        grid.fill({15 - half, 11 + row, 17 + half, 12 + row}, arrowGrey);
    }
}

void paintModule(Grid& grid, int) {
    grid.fill({2, 2, 30, 30}, brick);
    constexpr Color joint{240, 224, 208};
    for (int row = 8; row <= 26; row += 6) grid.fill({2, row, 30, row + 1}, joint);
    for (int row = 2; row <= 26; row += 6) {
        const int shift = row / 6 % 2 * 5;
        for (int x = 6 + shift; x < 30; x += 10) grid.fill({x, row, x + 1, row + 6}, joint);
    }
    grid.fill({9, 15, 23, 30}, {255, 255, 255});
    grid.fill({5, 9, 27, 15}, concrete);
    grid.frame({5, 9, 27, 15}, 1, black);
}

// A raised button with an angle section and its mirror image.
void paintMirror(Grid& grid, int) {
    grid.fill({1, 1, 31, 31}, faceGrey);
    grid.frame({0, 0, 32, 32}, 1, shadowGrey);
    grid.fill({6, 8, 8, 24}, steelBlue);
    grid.fill({6, 22, 14, 24}, steelBlue);
    grid.fill({24, 8, 26, 24}, red);
    grid.fill({18, 22, 26, 24}, red);
    for (int row = 5; row < 28; row += 4) grid.fill({15, row, 17, row + 2}, black);
}

struct Entry {
    int number;
    void (*paint)(Grid& grid, int variant);
    int variant;
};

constexpr Entry entries[] = {
    {icon::shapeBase + 1, paintShape, 1},
    {icon::shapeBase + 2, paintShape, 2},
    {icon::shapeBase + 3, paintShape, 3},
    {icon::shapeBase + 4, paintShape, 4},
    {icon::shapeBase + 5, paintShape, 5},
    {icon::shapeBase + 6, paintShape, 6},
    {icon::bends[0], paintBends, 0},
    {icon::bends[1], paintBends, 1},
    {icon::bends[2], paintBends, 2},
    {icon::bends[3], paintBends, 3},
    {icon::bends[4], paintBends, 4},
    {icon::bends[5], paintBends, 5},
    {icon::add, paintAdd, 0},
    {icon::remove, paintRemove, 0},
    {icon::space, paintSpace, 0},
    {icon::insulation, paintInsulation, 0},
    {icon::monolith, paintMonolith, 0},
    {icon::steel, paintCatalogue, 0},
    {icon::ascending, paintArrow, 1},
    {icon::descending, paintArrow, 0},
    {icon::module, paintModule, 0},
    {icon::mirror, paintMirror, 0},
};

const Entry* find(int number) {
    for (const Entry& entry : entries) {
        if (entry.number == number) return &entry;
    }
    return nullptr;
}

}  // namespace

bool iconExists(int number) {
    return find(number) != nullptr;
}

bool paintIcon(Canvas& canvas, int number, Size size) {
    const Entry* entry = find(number);
    if (entry == nullptr) return false;
    Grid grid(canvas, size);
    entry->paint(grid, entry->variant);
    return true;
}

}  // namespace lx
