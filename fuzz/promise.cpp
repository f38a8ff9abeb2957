#include <cstdio>
#include <cstdlib>

#include "fuzz/targets.h"

namespace lx::fuzz {

void promise(bool kept, const char* file, int line) {
    if (kept) return;
    std::fprintf(stderr, "%s:%d: promise not kept\n", file, line);
    std::abort();
}

}  // namespace lx::fuzz
