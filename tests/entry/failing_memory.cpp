#include "tests/entry/failing_memory.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace {

bool g_counting = false;
long g_count = 0;
long g_failFrom = 0;
long g_live = 0;

}  // namespace

void* operator new(std::size_t size) {
    if (g_counting && ++g_count >= g_failFrom && g_failFrom != 0) throw std::bad_alloc();
    void* block = std::malloc(size == 0 ? 1 : size);
    if (!block) throw std::bad_alloc();
    ++g_live;
    return block;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* block) noexcept {
    if (block) --g_live;
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    operator delete(block);
}

namespace lx {

void beginMemory(long failFrom) {
    g_count = 0;
    g_failFrom = failFrom;
    g_counting = true;
}

long endMemory() {
    g_counting = false;
    return g_count;
}

long liveAllocations() {
    return g_live;
}

MemoryForTheTest::MemoryForTheTest() : m_before(std::exchange(g_counting, false)) {}

MemoryForTheTest::~MemoryForTheTest() {
    g_counting = m_before;
}

}  // namespace lx
