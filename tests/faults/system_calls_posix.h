// The system calls on files that the module makes, counted, and one of them going wrong. The
// program is linked so that the module's own file layer calls them here.
#pragma once

#include <cstddef>
#include <vector>

namespace lx::faults {

enum class Fault {
    noSpace,        // from that call on nothing can be written
    denied,         // that call alone fails
    deniedTwice,    // that call and one behind it
    shortWrite,     // that call, a write, stores a part of its bytes, later ones none
    gone,           // from that call on all fail; a write there stores a part of its bytes
    killed,         // the process ends before that call
    killedInWrite,  // the process ends when that call, a write, has stored a part of its bytes
};

struct Trouble {
    Fault fault = Fault::denied;
    int call = 0;          // from 1; 0 = no trouble
    int second = 0;        // the other call of deniedTwice
    std::size_t cut = 50;  // how much of its bytes a cut write stores, in hundredths
};

struct Course {
    int calls = 0;
    std::vector<int> writes;   // which calls were writes
    std::vector<int> changes;  // which calls changed files, writes among them
    bool struck = false;       // the trouble came
};

// Exit status of a process that the trouble ended.
inline constexpr int killedStatus = 77;

void begin(const Trouble& trouble);
Course end();

}  // namespace lx::faults
