#pragma once

#include <memory>

#include "platform/headless/headless_control.h"
#include "platform/recording_canvas.h"

namespace lx {

class HeadlessPicture final : public HeadlessBase<Picture> {
public:
    using HeadlessBase::HeadlessBase;
    Size size() const override;
    void setCursor(CursorShape shape) override { m_cursor = shape; }
    CursorShape cursor() const override { return m_cursor; }
    void redraw() override { m_dirty = true; }

    // The picture as last painted; null before.
    const RecordingCanvas* drawing() const { return m_drawing.get(); }
    // Points are pixels of the picture; under a control that stands in the picture there is none.
    void userMouseMove(Point p, bool leftDown);
    void userLeftDown(Point p);
    void userLeftUp(Point p);
    void userRightDown(Point p);

    // Paints when a paint is due and the picture is to be seen.
    void paintIfDue();

    void draw(SvgArea& area) const override;

protected:
    bool keyDown(const KeyEvent& event) override;
    void areaChanged() override { m_dirty = true; }

private:
    void checkPoint(const char* act, Point p) const;
    void checkPress(Point p) const;
    // By a control that was moved into the picture.
    bool covered(Point p) const;

    CursorShape m_cursor = CursorShape::arrow;
    bool m_dirty = true;
    std::unique_ptr<RecordingCanvas> m_drawing;
};

}  // namespace lx
