#include "platform/windows/icon_cache.h"

#include <cstdint>
#include <vector>

namespace lx {
namespace {

// A 32-bit bitmap whose pixels can be read and written directly.
class PixelBitmap {
public:
    explicit PixelBitmap(Size size) : m_count(static_cast<std::size_t>(size.width * size.height)) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = size.width;
        info.bmiHeader.biHeight = -size.height;  // rows from the top
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_pixels = static_cast<std::uint32_t*>(bits);
    }
    PixelBitmap(const PixelBitmap&) = delete;
    PixelBitmap& operator=(const PixelBitmap&) = delete;
    ~PixelBitmap() {
        if (m_bitmap) DeleteObject(m_bitmap);
    }

    HBITMAP handle() const { return m_bitmap; }
    std::uint32_t& operator[](std::size_t i) { return m_pixels[i]; }
    void fill(std::uint32_t color) {
        for (std::size_t i = 0; i < m_count; ++i) m_pixels[i] = color;
    }

private:
    std::size_t m_count;
    HBITMAP m_bitmap = nullptr;
    std::uint32_t* m_pixels = nullptr;
};

// A context that draws on a bitmap, and lets go of it however the drawing ends.
class BitmapContext {
public:
    explicit BitmapContext(const PixelBitmap& bitmap) : m_dc(CreateCompatibleDC(nullptr)) {
        if (m_dc) m_before = SelectObject(m_dc, bitmap.handle());
    }
    BitmapContext(const BitmapContext&) = delete;
    BitmapContext& operator=(const BitmapContext&) = delete;
    ~BitmapContext() {
        if (!m_dc) return;
        GdiFlush();
        SelectObject(m_dc, m_before);
        DeleteDC(m_dc);
    }
    HDC get() const { return m_dc; }

private:
    HDC m_dc;
    HGDIOBJ m_before = nullptr;
};

bool paintOn(const PixelBitmap& bitmap, const DrawingTools& tools, int number, Size size) {
    const BitmapContext dc(bitmap);
    if (!dc.get()) return false;
    GdiCanvas canvas(dc.get(), tools);
    return tools.paintIcon(canvas, number, size);
}

HICON assemble(PixelBitmap& color, const std::vector<std::uint8_t>& mask, Size size) {
    ICONINFO info = {};
    info.fIcon = TRUE;
    info.hbmColor = color.handle();
    info.hbmMask = CreateBitmap(size.width, size.height, 1, 1, mask.data());
    if (!info.hbmMask) return nullptr;
    const HICON icon = CreateIconIndirect(&info);
    DeleteObject(info.hbmMask);
    return icon;
}

}  // namespace

IconCache::~IconCache() {
    for (const auto& entry : m_icons) {
        if (entry.second) DestroyIcon(entry.second);
    }
}

HICON IconCache::get(int number, Size size) {
    if (number == 0 || size.width <= 0 || size.height <= 0 || !m_tools.paintIcon) return nullptr;
    const auto key = std::make_tuple(number, size.width, size.height);
    const auto found = m_icons.find(key);
    if (found != m_icons.end()) return found->second;
    // The place first: an icon for which there is none would be lost.
    HICON& icon = m_icons[key];
    icon = make(number, size);
    return icon;
}

// Painted on black and on white: a pixel that comes out the same on both was painted, the others
// show the ground and become transparent.
HICON IconCache::make(int number, Size size) const {
    PixelBitmap onBlack(size);
    PixelBitmap onWhite(size);
    if (!onBlack.handle() || !onWhite.handle()) return nullptr;
    onBlack.fill(0);
    onWhite.fill(0xFFFFFF);
    if (!paintOn(onBlack, m_tools, number, size) || !paintOn(onWhite, m_tools, number, size)) {
        return nullptr;
    }
    const std::size_t maskRow = static_cast<std::size_t>((size.width + 15) / 16) * 2;
    std::vector<std::uint8_t> mask(maskRow * static_cast<std::size_t>(size.height));
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const auto i = static_cast<std::size_t>(y * size.width + x);
            const std::uint32_t color = onBlack[i] & 0xFFFFFFU;
            if (color == (onWhite[i] & 0xFFFFFFU)) {
                onBlack[i] = color | 0xFF000000U;
            } else {
                onBlack[i] = 0;
                const std::size_t byte =
                    maskRow * static_cast<std::size_t>(y) + static_cast<std::size_t>(x / 8);
                mask[byte] = static_cast<std::uint8_t>(mask[byte] | 0x80U >> (x % 8));
            }
        }
    }
    return assemble(onBlack, mask, size);
}

}  // namespace lx
