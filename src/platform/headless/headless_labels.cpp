#include "platform/headless/headless_labels.h"

#include "platform/headless/svg_area.h"

namespace lx {

void HeadlessLabel::draw(SvgArea& area) const {
    area.lines({0, 0}, plainText(), ink());
}

void HeadlessGroupBox::draw(SvgArea& area) const {
    area.frame({0, 6, area.width() - 1, area.height() - 1}, {200, 200, 200});
    const Text text = plainText();
    area.fill({7, 0, 11 + SvgArea::textWidth(text), SvgArea::lineHeight}, SvgArea::face);
    area.text({9, 0}, text, ink());
}

}  // namespace lx
