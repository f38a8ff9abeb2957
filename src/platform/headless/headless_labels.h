// What stands in a dialog to be read.
#pragma once

#include "platform/headless/headless_control.h"

namespace lx {

class HeadlessLabel final : public HeadlessBase<Label> {
public:
    using HeadlessBase::HeadlessBase;
    void draw(SvgArea& area) const override;
};

class HeadlessGroupBox final : public HeadlessBase<GroupBox> {
public:
    using HeadlessBase::HeadlessBase;
    void draw(SvgArea& area) const override;
};

}  // namespace lx
