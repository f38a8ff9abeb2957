// How far a long work is, on the terminal of somebody who waits: nothing in its first second.
#pragma once

#include <chrono>
#include <cstddef>

#include "lxtool/console.h"

namespace lx::lxtool {

class Progress {
public:
    Progress(const Console& console, std::string_view work, std::size_t total);
    // Takes the line away.
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // Told often: looks at the clock now and then alone.
    void at(std::size_t done) {
        if (m_terminal && ++m_calls % 1024 == 0) show(done);
    }

private:
    void show(std::size_t done);

    const Console& m_console;
    std::string m_work;
    std::size_t m_total;
    bool m_terminal;
    bool m_shown = false;
    unsigned m_calls = 0;
    std::chrono::steady_clock::time_point m_next;
};

}  // namespace lx::lxtool
