#include "platform/windows/gdi_canvas.h"

#include <algorithm>
#include <utility>

#include "platform/windows/wide_text.h"

namespace lx {
namespace {

// GDI computes with 28 bits; what lies beyond is far outside any screen.
int bounded(int coordinate) {
    return std::clamp(coordinate, -0x3FFFFFF, 0x3FFFFFF);
}

int nativeStyle(PenStyle style) {
    switch (style) {
        case PenStyle::dash:
            return PS_DASH;
        case PenStyle::dot:
            return PS_DOT;
        case PenStyle::dashDot:
            return PS_DASHDOT;
        case PenStyle::dashDotDot:
            return PS_DASHDOTDOT;
        case PenStyle::solid:
            break;
    }
    return PS_SOLID;
}

}  // namespace

COLORREF nativeColor(Color color) {
    return RGB(color.red, color.green, color.blue);
}

RECT nativeRect(const Rect& area) {
    return {area.left, area.top, area.right, area.bottom};
}

Rect portableRect(const RECT& area) {
    return {static_cast<int>(area.left), static_cast<int>(area.top), static_cast<int>(area.right),
            static_cast<int>(area.bottom)};
}

FontCache::~FontCache() {
    for (const auto& entry : m_fonts) {
        if (entry.second) DeleteObject(entry.second);
    }
}

namespace {

HFONT makeFont(const Font& font, int escapement, int pitchAndFamily) {
    return CreateFontW(font.height, font.width, escapement, escapement, FW_NORMAL, FALSE, FALSE,
                       FALSE, EASTEUROPE_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                       PROOF_QUALITY, static_cast<DWORD>(pitchAndFamily), wide(font.face).c_str());
}

bool isInstalled(HFONT font, const Text& face) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = SelectObject(dc, font);
    wchar_t found[LF_FACESIZE] = {};
    GetTextFaceW(dc, LF_FACESIZE, found);
    SelectObject(dc, before);
    DeleteDC(dc);
    return equalIgnoringCase(narrow(found), face);
}

}  // namespace

HFONT FontCache::get(const Font& font, bool upright) {
    const int escapement = upright ? 0 : font.escapement;
    const Key key(font.face, font.height, font.width, escapement, font.pitchAndFamily);
    // Kept from the first moment on: whatever is thrown below, it is not lost.
    HFONT& made = m_fonts[key];
    if (made) return made;
    made = makeFont(font, escapement, font.pitchAndFamily);
    if (made && !isInstalled(made, font.face)) {
        // The pitch and family asked for would bring a typewriter's face in place of a missing one.
        DeleteObject(std::exchange(made, nullptr));
        made = makeFont(font, escapement, VARIABLE_PITCH | FF_SWISS);
    }
    return made;
}

GdiCanvas::GdiCanvas(HDC dc, const DrawingTools& tools) : m_dc(dc), m_tools(tools) {
    // May throw: asked for before there is anything to give back.
    const HFONT font = native(false);
    m_saved = SaveDC(dc);
    m_outerClip = CreateRectRgn(0, 0, 0, 0);
    if (m_outerClip && GetClipRgn(dc, m_outerClip) != 1) {
        DeleteObject(m_outerClip);
        m_outerClip = nullptr;
    }
    SetBkMode(dc, TRANSPARENT);
    SetTextAlign(dc, TA_LEFT | TA_TOP | TA_NOUPDATECP);
    SelectObject(dc, font);
}

GdiCanvas::~GdiCanvas() {
    RestoreDC(m_dc, m_saved);
    if (m_pen) DeleteObject(m_pen);
    if (m_outerClip) DeleteObject(m_outerClip);
}

HFONT GdiCanvas::native(bool upright) const {
    const HFONT font = m_font.dialogFont ? m_tools.dialogFont : m_tools.fonts.get(m_font, upright);
    return font ? font : static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

void GdiCanvas::setClip(const Rect& area) {
    SelectClipRgn(m_dc, m_outerClip);
    IntersectClipRect(m_dc, bounded(area.left), bounded(area.top), bounded(area.right),
                      bounded(area.bottom));
}

void GdiCanvas::setPen(const Pen& pen) {
    const HPEN made = CreatePen(nativeStyle(pen.style), pen.width, nativeColor(pen.color));
    if (!made) return;
    SelectObject(m_dc, made);
    if (m_pen) DeleteObject(m_pen);
    m_pen = made;
}

void GdiCanvas::setFont(const Font& font) {
    m_font = font;
    SelectObject(m_dc, native(false));
}

void GdiCanvas::setTextColor(Color color) {
    SetTextColor(m_dc, nativeColor(color));
}

void GdiCanvas::moveTo(Point p) {
    MoveToEx(m_dc, bounded(p.x), bounded(p.y), nullptr);
}

void GdiCanvas::lineTo(Point p) {
    LineTo(m_dc, bounded(p.x), bounded(p.y));
}

void GdiCanvas::fillRect(const Rect& area, Color color) {
    const RECT native = {bounded(area.left), bounded(area.top), bounded(area.right),
                         bounded(area.bottom)};
    SetDCBrushColor(m_dc, nativeColor(color));
    FillRect(m_dc, &native, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void GdiCanvas::drawText(Point p, std::string_view text) {
    const std::wstring converted = wide(text);
    TextOutW(m_dc, bounded(p.x), bounded(p.y), converted.c_str(),
             static_cast<int>(converted.size()));
}

Size GdiCanvas::measure(std::string_view text) {
    const std::wstring converted = wide(text);
    const HGDIOBJ drawing = SelectObject(m_dc, native(true));
    SIZE size = {};
    GetTextExtentPoint32W(m_dc, converted.c_str(), static_cast<int>(converted.size()), &size);
    SelectObject(m_dc, drawing);
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

void GdiCanvas::drawIcon(int number, Point p, Size size) {
    if (!m_tools.paintIcon) return;
    const int saved = SaveDC(m_dc);
    OffsetViewportOrgEx(m_dc, bounded(p.x), bounded(p.y), nullptr);
    IntersectClipRect(m_dc, 0, 0, size.width, size.height);
    {
        GdiCanvas icon(m_dc, m_tools);
        m_tools.paintIcon(icon, number, size);
    }
    RestoreDC(m_dc, saved);
}

OffScreen::OffScreen(HDC like, Size size) : m_size(size) {
    m_bitmap = CreateCompatibleBitmap(like, size.width, size.height);
    m_dc = m_bitmap ? CreateCompatibleDC(like) : nullptr;
    if (m_dc) m_before = SelectObject(m_dc, m_bitmap);
}

OffScreen::~OffScreen() {
    if (m_dc) {
        SelectObject(m_dc, m_before);
        DeleteDC(m_dc);
    }
    if (m_bitmap) DeleteObject(m_bitmap);
}

void OffScreen::copyTo(HDC target) const {
    BitBlt(target, 0, 0, m_size.width, m_size.height, m_dc, 0, 0, SRCCOPY);
}

}  // namespace lx
