// What the benchmarks measure beside time.
#pragma once

#include <malloc.h>

#include <cstdio>
#include <fstream>
#include <string>

namespace lx::bench {

// Memory of the process in MB, from the system's account of it; 0 when it gives none.
inline double accountOf(const char* entry) {
    std::ifstream account("/proc/self/status");
    for (std::string line; std::getline(account, line);) {
        long kilobytes = 0;
        const std::string format = std::string(entry) + ": %ld";
        if (std::sscanf(line.c_str(), format.c_str(), &kilobytes) == 1) {
            return static_cast<double>(kilobytes) / 1000;
        }
    }
    return 0;
}

// How far the memory of the process rose above what it was, in MB, while the work was done.
template <class Work>
double peakOf(Work work) {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
    const double before = accountOf("VmRSS");
    work();
    return accountOf("VmHWM") - before;
}

}  // namespace lx::bench
