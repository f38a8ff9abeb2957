// Drawing on a GDI device context, and the fonts that drawing keeps.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <tuple>

#include "platform/canvas.h"

namespace lx {

// Draws the icon of a resource number into (0, 0, size); see Platform::paintIcon.
using IconPainter = std::function<bool(Canvas&, int number, Size size)>;

COLORREF nativeColor(Color color);
RECT nativeRect(const Rect& area);
Rect portableRect(const RECT& area);

// Fonts stay made until the cache goes: pictures ask for the same few at every paint.
class FontCache {
public:
    FontCache() = default;
    FontCache(const FontCache&) = delete;
    FontCache& operator=(const FontCache&) = delete;
    ~FontCache();

    // upright: without the font's escapement, for measuring. Null when the system makes none.
    HFONT get(const Font& font, bool upright);

private:
    using Key = std::tuple<Text, int, int, int, int>;
    std::map<Key, HFONT> m_fonts;
};

// What a canvas draws with beside its device context. All must outlive the canvas.
struct DrawingTools {
    FontCache& fonts;
    const IconPainter& paintIcon;
    HFONT dialogFont = nullptr;
};

// Leaves the device context as it found it.
class GdiCanvas final : public Canvas {
public:
    GdiCanvas(HDC dc, const DrawingTools& tools);
    ~GdiCanvas() override;

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

private:
    HFONT native(bool upright) const;

    HDC m_dc;
    DrawingTools m_tools;
    int m_saved = 0;
    HRGN m_outerClip = nullptr;
    HPEN m_pen = nullptr;
    Font m_font;
};

// Ends the paint also when the painter throws; else the system would ask for it forever.
class PaintScope {
public:
    explicit PaintScope(HWND window) : m_window(window) { BeginPaint(window, &m_paint); }
    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;
    ~PaintScope() { EndPaint(m_window, &m_paint); }
    HDC dc() const { return m_paint.hdc; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint = {};
};

// A bitmap in memory that is painted on and then copied, so that nothing flickers.
class OffScreen {
public:
    OffScreen(HDC like, Size size);
    OffScreen(const OffScreen&) = delete;
    OffScreen& operator=(const OffScreen&) = delete;
    ~OffScreen();

    // Null when the system could not make it.
    HDC dc() const { return m_dc; }
    void copyTo(HDC target) const;

private:
    Size m_size;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr;
};

}  // namespace lx
