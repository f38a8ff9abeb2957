#include "preview/CObr.h"

#include <utility>

#include "design/design_services.h"
#include "preview/section_drawing.h"

namespace lx {

CObr::CObr(DesignServices& services, Picture& picture)
    : m_services(services), m_picture(picture), m_mouse(services, picture, m_regions) {
    picture.onPaint = [this](Canvas& canvas) { paint(canvas); };
    picture.regions = [this] { return regions(); };
}

std::vector<PictureRegion> CObr::regions() const {
    std::vector<PictureRegion> all = pictureRegions(m_regions);
    const CRez* head = m_services.model().head();
    if (head == nullptr) return all;
    for (PictureRegion& body : layerBodies(head, sectionScale(head->width, m_picture.size()))) {
        all.push_back(std::move(body));
    }
    return all;
}

// The old picture can be clicked until the new one stands, but nothing of it whose record is gone.
void CObr::redraw() {
    forgetRemoved(m_regions, m_services.model().chain());
    m_picture.redraw();
}

void CObr::paint(Canvas& canvas) {
    const DesignModel& model = m_services.model();
    SectionInput input;
    input.head = model.head();
    input.current = model.current();
    input.client = m_picture.size();
    input.openingWidth = model.values().openingWidth;
    input.exteriorLeft = m_exteriorLeft;
    input.dropMarker = m_mouse.dropMarker();
    input.iconSize = m_services.context().platform.screen().iconSize;
    m_regions = drawSection(canvas, input);
}

}  // namespace lx
