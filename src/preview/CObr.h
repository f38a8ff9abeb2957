// The section preview of the design dialog.
#pragma once

#include "design/design_services.h"
#include "preview/hit_regions.h"
#include "preview/section_mouse.h"

namespace lx {

class CObr {
public:
    // Takes the picture's events; services and picture must outlive the preview.
    CObr(DesignServices& services, Picture& picture);

    Size size() const { return m_picture.size(); }  // px
    void redraw();
    // True: the left edge of the section is the exterior face of the wall.
    void setExteriorSide(bool left) { m_exteriorLeft = left; }

private:
    void paint(Canvas& canvas);
    // The regions of values and names, and the layers themselves.
    std::vector<PictureRegion> regions() const;

    DesignServices& m_services;
    Picture& m_picture;
    bool m_exteriorLeft = true;
    HitRegions m_regions;  // of the picture on the screen; their records are in the design
    SectionMouse m_mouse;
};

}  // namespace lx
