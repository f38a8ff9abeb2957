#include "preview/CObr.h"

#include "preview/ground.h"

namespace lx {

CObr::CObr(Picture& picture) : m_picture(picture) {
    picture.onPaint = [&picture](Canvas& canvas) { fillGround(canvas, picture.size()); };
}

}  // namespace lx
