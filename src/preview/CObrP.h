// The plan preview on the geometry page: draws the plan, and lets the user type over its two
// numbers, the level and the overhang.
#pragma once

#include "design/design_services.h"
#include "preview/hit_regions.h"

namespace lx {

class CObrP {
public:
    // Takes the picture's events. page: that the picture stands on. folded: whether the folded
    // section is shown. All must outlive the preview.
    CObrP(DesignServices& services, const Dialog& page, Picture& picture, const CheckBox& folded);

    void redraw();

private:
    void paint(Canvas& canvas);
    void move(Point p);
    void press(Point p);
    void edit(const HitRegion& region, Point p);
    KeyAnswer key(const KeyEvent& event);

    DesignServices& m_services;
    const Dialog& m_page;
    Picture& m_picture;
    const CheckBox& m_folded;
    HitRegions m_regions;  // of the picture on the screen; their records are in the design
    bool m_pressed = false;
};

}  // namespace lx
