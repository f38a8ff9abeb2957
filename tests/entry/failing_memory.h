// Memory that runs out: the allocations of the test program by operator new, from the n-th on.
#pragma once

namespace lx {

// From now on allocations are counted; from the failFrom-th on (0 = never) each throws bad_alloc.
void beginMemory(long failFrom);
// Ends that. The number of allocations that were asked for.
long endMemory();
// How many are allocated now.
long liveAllocations();

// What a test itself does in between is neither counted nor refused.
class MemoryForTheTest {
public:
    MemoryForTheTest();
    ~MemoryForTheTest();
    MemoryForTheTest(const MemoryForTheTest&) = delete;
    MemoryForTheTest& operator=(const MemoryForTheTest&) = delete;

private:
    bool m_before;
};

}  // namespace lx
