#include "preview/CObrP.h"

#include "preview/ground.h"

namespace lx {

CObrP::CObrP(Picture& picture) : m_picture(picture) {
    picture.onPaint = [&picture](Canvas& canvas) { fillGround(canvas, picture.size()); };
}

}  // namespace lx
