// The section preview of the design dialog. For now a black picture: nothing of the design is
// drawn.
#pragma once

#include "design/pages.h"

namespace lx {

class CObr : public SectionPreview {
public:
    // Takes the picture's events; it must outlive the preview.
    explicit CObr(Picture& picture);

    Size size() const override { return m_picture.size(); }
    void redraw() override { m_picture.redraw(); }
    void setExteriorSide(bool left) override { m_exteriorLeft = left; }
    bool exteriorLeft() const { return m_exteriorLeft; }

private:
    Picture& m_picture;
    bool m_exteriorLeft = false;
};

}  // namespace lx
