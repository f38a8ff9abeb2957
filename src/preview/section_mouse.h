// The user's hand in the section preview: hovering, selecting, dragging layers, clicking values.
#pragma once

#include "composition/section_scale.h"
#include "design/design_services.h"
#include "preview/hit_regions.h"

namespace lx {

// The first layer, in the order of the chain, whose rectangle holds the point, edges included; the
// head is never hit.
CRez* layerAt(const CRez* head, const SectionScale& scale, Point p);
// Where the layers stand, "body N" from 1, for programs that act as the user.
std::vector<PictureRegion> layerBodies(const CRez* head, const SectionScale& scale);

class SectionMouse {
public:
    // Takes the picture's mouse and key events. regions: of the picture on the screen. All must
    // outlive it.
    SectionMouse(DesignServices& services, Picture& picture, const HitRegions& regions);

    // mm from the first wall face; -1 = none.
    int dropMarker() const { return m_dropMarker; }

private:
    void move(Point p, bool leftDown);
    void press(Point p);
    void release();
    void selectAt(Point p);
    KeyAnswer key(const KeyEvent& event);
    // The record before or behind the current one, if there is one.
    void step(bool back);

    void clickRegion(const HitRegion& region, const Text& family, Point p);
    void editNext(bool back);
    Text familyOf(const HitRegion& region);
    void mirror(CRez& layer);
    CRez* layerUnder(Point p);
    bool known(const CRez* record);
    void mark(int offset);
    void forgetDrag();

    DesignServices& m_services;
    Picture& m_picture;
    const HitRegions& m_regions;
    // Compared with the records of the design before they are followed.
    CRez* m_pressed = nullptr;  // under the mouse at the last press
    CRez* m_target = nullptr;   // where a dragged layer would go; the head: behind the last layer
    int m_dropMarker = -1;
};

}  // namespace lx
