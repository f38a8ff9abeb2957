// A control that the program paints: a window of a class of our own, painted off screen.
#pragma once

#include "platform/windows/control_core.h"

namespace lx {

class WindowsPicture final : public WindowsControl<Picture> {
public:
    using WindowsControl::WindowsControl;
    void redraw() override;
    Size size() const override;
    void setCursor(CursorShape shape) override;
    CursorShape cursor() const override { return m_cursor; }

protected:
    WindowClass windowClass() const override;
    void keepState() override { m_size = size(); }
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override;
    Text describe(DescribeQuestion question, const DescribeRequest& request) override;

private:
    void paint();
    void paintOn(HDC dc);
    bool mouse(UINT message, WPARAM wParam, LPARAM lParam);

    CursorShape m_cursor = CursorShape::arrow;
    Size m_size;  // kept when the window is gone
};

}  // namespace lx
