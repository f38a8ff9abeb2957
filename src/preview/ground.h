// The black ground that both previews draw on.
#pragma once

#include "platform/canvas.h"

namespace lx {

inline constexpr Color previewGround{0, 0, 0};

inline void fillGround(Canvas& canvas, Size size) {
    canvas.fillRect({0, 0, size.width, size.height}, previewGround);
}

}  // namespace lx
