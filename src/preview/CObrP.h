// The plan preview on the geometry page. For now a black picture: nothing of the design is drawn.
#pragma once

#include "platform/controls.h"

namespace lx {

class CObrP {
public:
    // Takes the picture's events; it must outlive the preview.
    explicit CObrP(Picture& picture);

    void redraw() { m_picture.redraw(); }

private:
    Picture& m_picture;
};

}  // namespace lx
