#include "preview/CObrP.h"

#include "design/opening.h"
#include "platform/numbers.h"
#include "preview/plan_drawing.h"
#include "settings/setting_keys.h"

namespace lx {

CObrP::CObrP(DesignServices& services, const Dialog& page, Picture& picture, const CheckBox& folded)
    : m_services(services), m_page(page), m_picture(picture), m_folded(folded) {
    picture.onPaint = [this](Canvas& canvas) { paint(canvas); };
    picture.regions = [this] { return pictureRegions(m_regions); };
    picture.onMouseMove = [this](Point p, bool) { move(p); };
    picture.onLeftDown = [this](Point p) { press(p); };
    picture.onKey = [this](const KeyEvent& event) { return key(event); };
}

void CObrP::redraw() {
    CRez* head = m_services.model().head();
    if (head != nullptr && m_page.visible()) {
        settleOverhang(*head, m_services.model().values().openingWidth);
    }
    forgetRemoved(m_regions, m_services.model().chain());
    m_picture.redraw();
}

void CObrP::paint(Canvas& canvas) {
    const DesignModel& model = m_services.model();
    PlanInput input;
    input.head = model.head();
    input.current = model.current();
    input.client = m_picture.size();
    input.openingWidth = model.values().openingWidth;
    input.foldedSection = m_folded.checked();
    m_regions = drawPlan(canvas, input);
}

void CObrP::move(Point p) {
    const bool over = regionAt(m_regions, p) != nullptr;
    m_picture.setCursor(over ? CursorShape::hand : CursorShape::arrow);
}

// A refused value brings up a message, during which the button can go down once more. The press
// itself has moved the focus here.
void CObrP::press(Point p) {
    if (m_pressed) return;
    m_pressed = true;
    if (m_services.editVisible()) {
        m_services.endEdit();
    } else if (const HitRegion* hit = regionAt(m_regions, p)) {
        edit(*hit, p);
    }
    m_pressed = false;
    move(p);
}

KeyAnswer CObrP::key(const KeyEvent& event) {
    if (event.key != key::f2 || event.ctrl || event.alt) return KeyAnswer::pass;
    if (const HitRegion* next = nextNumber(m_regions, m_services.lastEdited(), event.shift)) {
        const HitRegion region = *next;
        edit(region, region.middle());
    }
    return KeyAnswer::swallow;
}

void CObrP::edit(const HitRegion& region, Point p) {
    const std::int32_t* value = valueOf(m_services.model().chain(), region.target);
    if (value == nullptr) return;
    const bool level = region.kind == region::planLevel;
    const Text shown = level ? levelText(*value) : formatInt(*value);
    const Text history(level ? settings::lintelLevel : settings::lintelOverhang);
    m_services.openEdit({{region.kind, region.absoluteOnly, region.target, shown}, history},
                        m_picture, p);
}

}  // namespace lx
