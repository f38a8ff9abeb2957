#include "platform/windows/windows_picture.h"

#include "platform/recording_canvas.h"
#include "platform/windows/gdi_canvas.h"
#include "platform/windows/windows_dialog.h"
#include "platform/windows/windows_platform.h"

namespace lx {
namespace {

// Draws on one canvas and has another one keep what was drawn; sizes are those of the first.
class RecordingTwin final : public Canvas {
public:
    RecordingTwin(Canvas& shown, Canvas& kept) : m_shown(shown), m_kept(kept) {}
    void setClip(const Rect& area) override { m_shown.setClip(area), m_kept.setClip(area); }
    void setPen(const Pen& pen) override { m_shown.setPen(pen), m_kept.setPen(pen); }
    void setFont(const Font& font) override { m_shown.setFont(font), m_kept.setFont(font); }
    void setTextColor(Color color) override {
        m_shown.setTextColor(color), m_kept.setTextColor(color);
    }
    void moveTo(Point p) override { m_shown.moveTo(p), m_kept.moveTo(p); }
    void lineTo(Point p) override { m_shown.lineTo(p), m_kept.lineTo(p); }
    void fillRect(const Rect& area, Color color) override {
        m_shown.fillRect(area, color), m_kept.fillRect(area, color);
    }
    void drawText(Point p, std::string_view text) override {
        m_shown.drawText(p, text), m_kept.drawText(p, text);
    }
    Size measure(std::string_view text) override { return m_shown.measure(text); }
    void drawIcon(int number, Point p, Size size) override {
        m_shown.drawIcon(number, p, size), m_kept.drawIcon(number, p, size);
    }

private:
    Canvas& m_shown;
    Canvas& m_kept;
};

Point pointOf(LPARAM lParam) {
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

}  // namespace

WindowClass WindowsPicture::windowClass() const {
    return {platform().pictureClass(), WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
            static_cast<DWORD>(hasStyle(style::border) ? WS_EX_CLIENTEDGE : 0)};
}

Size WindowsPicture::size() const {
    if (!window()) return m_size;
    RECT client = {};
    GetClientRect(window(), &client);
    return portableRect(client).size();
}

void WindowsPicture::redraw() {
    if (window()) InvalidateRect(window(), nullptr, FALSE);
}

void WindowsPicture::setCursor(CursorShape shape) {
    m_cursor = shape;
    POINT at = {};
    if (window() && GetCursorPos(&at) && WindowFromPoint(at) == window()) {
        SetCursor(platform().cursor(shape));
    }
}

void WindowsPicture::paintOn(HDC dc) {
    const Size whole = size();
    const auto painter = onPaint;
    if (!painter) {
        const RECT area = {0, 0, whole.width, whole.height};
        FillRect(dc, &area, GetSysColorBrush(COLOR_BTNFACE));
        return;
    }
    GdiCanvas canvas(dc, dialog().drawingTools());
    painter(canvas);
}

void WindowsPicture::paint() {
    const PaintScope scope(window());
    const Size whole = size();
    if (whole.width <= 0 || whole.height <= 0) return;
    const OffScreen bitmap(scope.dc(), whole);
    if (!bitmap.dc()) return;
    paintOn(bitmap.dc());
    bitmap.copyTo(scope.dc());
}

bool WindowsPicture::mouse(UINT message, WPARAM wParam, LPARAM lParam) {
    const Point p = pointOf(lParam);
    switch (message) {
        case WM_MOUSEMOVE:
            fire(onMouseMove, p, (wParam & MK_LBUTTON) != 0);
            return true;
        case WM_LBUTTONDOWN:
            if (wantsTabStop() && isEnabled()) SetFocus(window());
            fire(onLeftDown, p);
            return true;
        case WM_LBUTTONUP:
            fire(onLeftUp, p);
            return true;
        case WM_RBUTTONDOWN:
            if (wantsTabStop() && isEnabled()) SetFocus(window());
            fire(onRightDown, p);
            return true;
        default:
            return false;
    }
}

LRESULT WindowsPicture::message(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            paint();
            return 0;
        case WM_PRINTCLIENT:
            paintOn(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_SIZE:
            redraw();
            break;
        case WM_SETCURSOR:
            if (reinterpret_cast<HWND>(wParam) == window() && LOWORD(lParam) == HTCLIENT) {
                SetCursor(platform().cursor(m_cursor));
                return TRUE;
            }
            break;
        case WM_CONTEXTMENU:
            if (lParam == -1 && onContext) {
                fire(onContext);
                return 0;
            }
            break;
        case WM_GETDLGCODE:
            return wantsTabStop() ? DLGC_WANTARROWS : DLGC_STATIC;
        default:
            if (mouse(message, wParam, lParam)) return 0;
            // A control that was moved into the picture reports to it.
            if (dialog().root().reflect(message, wParam, lParam, result)) return result;
            break;
    }
    return ControlCore::message(message, wParam, lParam);
}

Text WindowsPicture::describe(DescribeQuestion question, const DescribeRequest&) {
    if (question == DescribeQuestion::cursor) return cursorName(m_cursor);
    if (question == DescribeQuestion::regions && regions) {
        // A picture that is about to change has none yet.
        if (window()) UpdateWindow(window());
        Text lines;
        const auto ask = regions;
        for (const PictureRegion& region : ask()) {
            for (const int edge :
                 {region.area.left, region.area.top, region.area.right, region.area.bottom}) {
                lines += std::to_string(edge) + " ";
            }
            lines += region.name + "\n";
        }
        return lines;
    }
    if (question == DescribeQuestion::drawing && onPaint && window()) {
        const HDC dc = GetDC(window());
        const OffScreen bitmap(dc, size());
        ReleaseDC(window(), dc);
        if (!bitmap.dc()) return {};
        RecordingCanvas kept;
        GdiCanvas shown(bitmap.dc(), dialog().drawingTools());
        RecordingTwin both(shown, kept);
        fire(onPaint, both);
        // The recording is UTF-8, the answer code page 1250.
        return fromUtf8(kept.asText()).value_or(Text());
    }
    return {};
}

}  // namespace lx
