// Labels, group boxes, buttons, boxes to tick and icons.
#pragma once

#include "platform/windows/control_core.h"

namespace lx {

class WindowsLabel final : public WindowsControl<Label> {
public:
    using WindowsControl::WindowsControl;

protected:
    WindowClass windowClass() const override;
};

class WindowsGroupBox final : public WindowsControl<GroupBox> {
public:
    using WindowsControl::WindowsControl;

protected:
    WindowClass windowClass() const override;
};

// Push buttons with a text or an icon.
class WindowsButton final : public WindowsControl<Button> {
public:
    using WindowsControl::WindowsControl;
    void setIcon(int number) override;
    int icon() const override { return m_icon; }

    // Draws the button as the one that Enter presses.
    void showAsDefault(bool on);

protected:
    WindowClass windowClass() const override;
    void attached() override { applyIcon(); }
    void areaChanged() override { applyIcon(); }
    void command(WORD code) override;
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override;
    Text describe(DescribeQuestion question, const DescribeRequest& request) override;

private:
    DWORD buttonStyle(bool asDefault) const;
    void applyIcon();

    int m_icon = 0;
};

// Shows an icon; takes no input.
class WindowsIcon final : public WindowsControl<Button> {
public:
    using WindowsControl::WindowsControl;
    void setIcon(int number) override;
    int icon() const override { return m_icon; }
    void drawItem(const DRAWITEMSTRUCT& item) override;

protected:
    WindowClass windowClass() const override;
    Text describe(DescribeQuestion question, const DescribeRequest& request) override;

private:
    int m_icon = 0;
};

class WindowsCheckBox final : public WindowsControl<CheckBox> {
public:
    using WindowsControl::WindowsControl;
    void check(bool on) override;
    bool checked() const override;

protected:
    WindowClass windowClass() const override;
    void attached() override { check(m_checked); }
    void keepState() override { m_checked = checked(); }
    void command(WORD code) override;

private:
    bool m_checked = false;
};

// Not one of the system's automatic buttons, which also report a click when they only get the
// focus.
class WindowsRadioButton final : public WindowsControl<RadioButton> {
public:
    using WindowsControl::WindowsControl;
    void check(bool on) override;
    bool checked() const override { return m_checked; }

    // The button alone, whatever its group shows.
    void mark(bool on);
    // The user chose the button.
    void choose();

protected:
    WindowClass windowClass() const override;
    void attached() override;
    void command(WORD code) override;

private:
    bool m_checked = false;
};

}  // namespace lx
