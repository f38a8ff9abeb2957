#include "preview/section_mouse.h"

#include <utility>

#include "composition/saturate.h"
#include "design/layer_commands.h"
#include "platform/numbers.h"
#include "preview/value_family.h"

namespace lx {

namespace {

// All four edges belong to the layer.
Rect bodyOf(const CRez& layer, const SectionScale& scale) {
    const auto pixels = [&scale](double millimetres, int origin) {
        return saturated(std::int64_t{truncateToInt(millimetres * scale.scale)} + origin);
    };
    const double left = layer.offset;
    const double bottom = layer.level;
    return {pixels(left, scale.origin.x), pixels(-(bottom + layer.height), scale.origin.y),
            pixels(left + layer.width, scale.origin.x), pixels(-bottom, scale.origin.y)};
}

}  // namespace

CRez* layerAt(const CRez* head, const SectionScale& scale, Point p) {
    if (head == nullptr) return nullptr;
    for (CRez* layer = head->next; layer != nullptr; layer = layer->next) {
        const Rect body = bodyOf(*layer, scale);
        if (p.x >= body.left && p.x <= body.right && p.y >= body.top && p.y <= body.bottom) {
            return layer;
        }
    }
    return nullptr;
}

std::vector<PictureRegion> layerBodies(const CRez* head, const SectionScale& scale) {
    std::vector<PictureRegion> bodies;
    int number = 0;
    for (const CRez* layer = head ? head->next : nullptr; layer; layer = layer->next) {
        bodies.push_back({"body " + formatInt(++number), bodyOf(*layer, scale)});
    }
    return bodies;
}

SectionMouse::SectionMouse(DesignServices& services, Picture& picture, const HitRegions& regions)
    : m_services(services), m_picture(picture), m_regions(regions) {
    picture.onMouseMove = [this](Point p, bool leftDown) { move(p, leftDown); };
    picture.onLeftDown = [this](Point p) { press(p); };
    picture.onLeftUp = [this](Point) { release(); };
    picture.onRightDown = [this](Point p) { selectAt(p); };
    picture.onKey = [this](const KeyEvent& event) { return key(event); };
}

CRez* SectionMouse::layerUnder(Point p) {
    const CRez* head = m_services.model().head();
    if (head == nullptr) return nullptr;
    return layerAt(head, sectionScale(head->width, m_picture.size()), p);
}

bool SectionMouse::known(const CRez* record) {
    return record != nullptr && m_services.model().chain().contains(record);
}

void SectionMouse::mark(int offset) {
    if (offset == m_dropMarker) return;
    m_dropMarker = offset;
    m_picture.redraw();
}

void SectionMouse::move(Point p, bool leftDown) {
    if (!leftDown) forgetDrag();
    if (regionAt(m_regions, p) != nullptr) {
        m_target = nullptr;
        m_picture.setCursor(CursorShape::hand);
        return;
    }
    m_target = layerUnder(p);
    CRez* head = m_services.model().head();
    const CRez* current = m_services.model().current();
    const bool drag = leftDown && m_pressed != nullptr && m_pressed == current;
    if (!drag) {
        m_picture.setCursor(m_target != nullptr ? CursorShape::hand : CursorShape::arrow);
        return;
    }
    if (m_target == nullptr) m_target = head;
    m_picture.setCursor(CursorShape::upArrow);
    mark(m_target == head ? head->width : m_target->offset);
}

// The region is what the user saw when the button went down: a pending edit that this click commits
// and the selection draw the picture anew.
void SectionMouse::press(Point p) {
    const HitRegion* hit = regionAt(m_regions, p);
    HitRegion region;
    Text family;
    if (hit != nullptr) {
        region = *hit;
        family = familyOf(*hit);
    }
    m_services.endEdit();
    m_target = nullptr;
    forgetDrag();
    m_pressed = layerUnder(p);
    if (m_pressed != nullptr) m_services.SelectRecord(m_pressed);
    if (hit != nullptr) clickRegion(region, family, p);
}

Text SectionMouse::familyOf(const HitRegion& region) {
    const auto index = static_cast<std::size_t>(&region - m_regions.data());
    return valueFamily(m_regions, index, m_services.model().chain());
}

void SectionMouse::editNext(bool back) {
    const HitRegion* next = nextNumber(m_regions, m_services.lastEdited(), back);
    if (next == nullptr) return;
    const HitRegion region = *next;
    clickRegion(region, familyOf(*next), region.middle());
}

void SectionMouse::clickRegion(const HitRegion& region, const Text& family, Point p) {
    RezChain& design = m_services.model().chain();
    CRez* record = recordOf(design, region.target);
    if (record == nullptr) return;
    if (region.kind == region::layerName) {
        m_services.SelectRecord(record);
    } else if (region.kind == region::mirror) {
        mirror(*record);
    } else if (const std::int32_t* value = valueOf(design, region.target)) {
        const ValueEdit edit{region.kind, region.absoluteOnly, region.target, formatInt(*value)};
        m_services.openEdit({edit, family}, m_picture, p);
    }
}

// The layers stay where they are until the design is laid out for another reason, and what the user
// has typed on the geometry page stays.
void SectionMouse::mirror(CRez& layer) {
    layer.kind = mirrored(layer.kind);
    m_services.refreshShown();
}

// Released over the picture, or elsewhere, which is noticed when the mouse comes back.
void SectionMouse::forgetDrag() {
    m_pressed = nullptr;
    mark(-1);
}

void SectionMouse::release() {
    CRez* target = std::exchange(m_target, nullptr);
    const bool dropped = m_pressed == m_services.model().current();
    m_picture.setCursor(CursorShape::arrow);
    forgetDrag();
    if (!dropped) return;
    const bool moved = moveCurrent(m_services.model().edit(), target) == CommandAnswer::done;
    if (moved) m_services.Relayout();
}

void SectionMouse::selectAt(Point p) {
    m_services.endEdit();
    if (CRez* layer = layerUnder(p)) m_services.SelectRecord(layer);
}

KeyAnswer SectionMouse::key(const KeyEvent& event) {
    if (event.ctrl || event.alt) return KeyAnswer::pass;
    if (event.key == key::f2) {
        editNext(event.shift);
        return KeyAnswer::swallow;
    }
    if (event.shift) return KeyAnswer::pass;
    switch (event.key) {
        case key::del:
            forgetDrag();
            m_services.removeCurrentLayer();
            return KeyAnswer::swallow;
        case key::left:
        case key::up:
            step(true);
            return KeyAnswer::swallow;
        case key::right:
        case key::down:
            step(false);
            return KeyAnswer::swallow;
        case key::home:
            m_services.SelectRecord(nullptr);
            return KeyAnswer::swallow;
        case key::end:
            m_services.SelectRecord(m_services.model().chain().last());
            return KeyAnswer::swallow;
        default:
            return KeyAnswer::pass;
    }
}

void SectionMouse::step(bool back) {
    DesignModel& model = m_services.model();
    CRez* current = model.current();
    if (!known(current)) return m_services.SelectRecord(nullptr);
    CRez* next = back ? model.chain().before(current) : current->next;
    if (next != nullptr) m_services.SelectRecord(next);
}

}  // namespace lx
