#include "tests/faults/system_calls.h"

#include <set>

namespace lx::faults {

namespace {

bool watching = false;
Trouble trouble;
Course course;
std::set<FileId> waiting;  // with bytes that were written and not flushed

std::optional<Refusal> refuse(bool refused, Refusal with) {
    if (!refused) return std::nullopt;
    course.struck = true;
    return with;
}

}  // namespace

void begin(const Trouble& wanted) {
    trouble = wanted;
    course = {};
    waiting.clear();
    watching = true;
}

Course end() {
    watching = false;
    return course;
}

std::optional<Refusal> refusal(Call kind) {
    if (!watching) return std::nullopt;
    const int call = ++course.calls;
    if (kind != Call::reading) course.changes.push_back(call);
    const bool from = trouble.call != 0 && call >= trouble.call;
    switch (trouble.fault) {
        case Fault::noSpace:
            return refuse(kind == Call::writing && from, Refusal::noSpace);
        case Fault::denied:
            return refuse(call == trouble.call, Refusal::denied);
        case Fault::deniedTwice:
            return refuse(call == trouble.call || call == trouble.second, Refusal::denied);
        case Fault::shortWrite:
            return refuse(kind == Call::writing && course.struck, Refusal::noSpace);
        case Fault::gone:
            return refuse(from, Refusal::broken);
        case Fault::killed:
            if (call == trouble.call) endProcess();
            break;
        case Fault::killedInWrite:
            break;
    }
    return std::nullopt;
}

bool fails(Call call) {
    const auto refused = refusal(call);
    if (refused) refuseWith(*refused);
    return refused.has_value();
}

void flushed(FileId file) {
    waiting.erase(file);
}

void leaving(FileId file) {
    if (waiting.erase(file) > 0) course.unflushed = true;
}

WritePlan planWrite(FileId file, std::size_t size) {
    waiting.insert(file);
    const bool cutting = trouble.fault == Fault::shortWrite || trouble.fault == Fault::gone ||
                         trouble.fault == Fault::killedInWrite;
    if (watching) course.writes.push_back(course.calls + 1);
    if (!watching || !cutting || course.calls + 1 != trouble.call) {
        const auto refused = refusal(Call::writing);
        return {refused, refused ? 0 : size, false};
    }
    course.changes.push_back(++course.calls);
    course.struck = true;
    const std::size_t part = size * trouble.cut / 100;
    if (trouble.fault == Fault::shortWrite && part > 0) return {std::nullopt, part, true};
    return {Refusal::noSpace, part, true};
}

void cutWriteDone() {
    if (trouble.fault == Fault::killedInWrite) endProcess();
}

}  // namespace lx::faults
