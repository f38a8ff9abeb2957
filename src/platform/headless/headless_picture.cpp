#include "platform/headless/headless_picture.h"

#include <algorithm>

#include "platform/headless/headless_platform.h"
#include "platform/headless/svg_area.h"
#include "platform/numbers.h"

namespace lx {

Size HeadlessPicture::size() const {
    return {std::max(0, m_area.width() - 2 * sunkenEdge()),
            std::max(0, m_area.height() - 2 * sunkenEdge())};
}

void HeadlessPicture::checkPoint(const char* act, Point p) const {
    checkReachable(act);
    const Size inside = size();
    if (!Rect{0, 0, inside.width, inside.height}.contains(p)) {
        refuse("the point (" + formatInt(p.x) + "," + formatInt(p.y) + ") is outside, it is " +
               formatInt(inside.width) + " by " + formatInt(inside.height));
    }
}

bool HeadlessPicture::covered(Point p) const {
    const auto controls = m_dialog->root().allControls();
    return std::any_of(controls.begin(), controls.end(), [&](const HeadlessControl* other) {
        return other->container() == this && other->shown() && other->control().area().contains(p);
    });
}

void HeadlessPicture::checkPress(Point p) const {
    checkPoint("be clicked", p);
    if (covered(p)) refuse("a control stands at that point of it");
}

// Over a control that stands in the picture, moves and releases are that control's.
void HeadlessPicture::userMouseMove(Point p, bool leftDown) {
    checkPoint("be reached by the mouse", p);
    if (!covered(p)) callCopy(onMouseMove, p, leftDown);
    settle();
}

void HeadlessPicture::userLeftDown(Point p) {
    checkPress(p);
    clickFocus();
    if (m_dialog->root().running()) callCopy(onLeftDown, p);
    settle();
}

void HeadlessPicture::userLeftUp(Point p) {
    checkPoint("be reached by the mouse", p);
    if (!covered(p)) callCopy(onLeftUp, p);
    settle();
}

void HeadlessPicture::userRightDown(Point p) {
    checkPress(p);
    clickFocus();
    if (m_dialog->root().running()) callCopy(onRightDown, p);
    settle();
}

bool HeadlessPicture::keyDown(const KeyEvent& event) {
    if (!isContextKey(event) || !onContext) return false;
    callCopy(onContext);
    return true;
}

void HeadlessPicture::paintIfDue() {
    if (!m_dirty || !shown()) return;
    m_dirty = false;
    auto canvas = std::make_unique<RecordingCanvas>(platform().paintIcon);
    callCopy(onPaint, *canvas);
    m_drawing = std::move(canvas);
}

void HeadlessPicture::draw(SvgArea& area) const {
    area.behind(sunkenEdge(), m_drawing.get());
    if (sunkenEdge() > 0) area.frame(SvgArea::grey);
}

}  // namespace lx
