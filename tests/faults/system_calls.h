// The system calls on files that the module makes, counted, and one of them going wrong. The
// program is linked so that the module's own file layer calls them here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
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
    bool unflushed = false;    // a file was left, or written elsewhere, before a flush
};

// Exit status of a process that the trouble ended.
inline constexpr int killedStatus = 77;

void begin(const Trouble& trouble);
Course end();

// Does the act in a process of its own and answers its exit status, 0 when the act came to its end;
// -1 for any other end. Where processes cannot be copied a new one of this program is started with
// the arguments, which must make it do the same.
int inOwnProcess(const std::function<void()>& act, const std::vector<std::string>& arguments);

// ---- for the calls of each platform

enum class Refusal { noSpace, denied, broken };

// Counts the call; how it is to fail, none when it is to be made. changing: it changes files, and
// ends the process before it when that is the trouble; writing: it needs room on the disk.
enum class Call { reading, changing, writing };
std::optional<Refusal> refusal(Call call);
// The same, with the platform's code of the refusal set.
bool fails(Call call);
void refuseWith(Refusal refused);
// The same for a write of that many bytes, of which a part may be stored all the same.
struct WritePlan {
    std::optional<Refusal> refusal;  // told when the part is stored
    std::size_t part = 0;            // bytes to be stored
    bool cut = false;
};
// Files by their handles.
using FileId = std::uintptr_t;
WritePlan planWrite(FileId file, std::size_t size);
// Told of a flush that was made, and before a file is closed or its place for writing moved.
void flushed(FileId file);
void leaving(FileId file);
// Told when the part of a cut write is stored; ends the process when that is the trouble.
void cutWriteDone();

// Without cleaning up, with killedStatus.
[[noreturn]] void endProcess();

}  // namespace lx::faults
