// What a click presses, ticks or chooses.
#pragma once

#include "platform/headless/headless_control.h"

namespace lx {

// Buttons, icon buttons and icons (which cannot be pressed).
class HeadlessButton final : public HeadlessBase<Button> {
public:
    using HeadlessBase::HeadlessBase;
    void setIcon(int number) override { m_icon = number; }
    int icon() const override { return m_icon; }
    void userClick();
    void draw(SvgArea& area) const override;

protected:
    void press() override;

private:
    int m_icon = 0;
};

class HeadlessCheckBox final : public HeadlessBase<CheckBox> {
public:
    using HeadlessBase::HeadlessBase;
    void check(bool on) override { m_checked = on; }
    bool checked() const override { return m_checked; }
    void userClick();
    void draw(SvgArea& area) const override;

protected:
    void press() override;

private:
    bool m_checked = false;
};

class HeadlessRadioButton final : public HeadlessBase<RadioButton> {
public:
    using HeadlessBase::HeadlessBase;
    void check(bool on) override;
    bool checked() const override { return m_checked; }
    void userClick();
    void draw(SvgArea& area) const override;

protected:
    void press() override;

private:
    bool m_checked = false;
};

}  // namespace lx
