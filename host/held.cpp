#include "host/held.h"

namespace lx::host {

namespace {

std::string compared(const Held& before, const Held& now) {
    std::string line = now.name + ": " + std::to_string(before.count) + " before, " +
                       std::to_string(now.count) + " now";
    if (now.noise > 0) line += " (" + std::to_string(now.noise) + " more are noise)";
    return line;
}

}  // namespace

std::vector<std::string> comparedHeld(const std::vector<Held>& before,
                                      const std::vector<Held>& now) {
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < before.size(); ++i) lines.push_back(compared(before[i], now[i]));
    return lines;
}

std::vector<std::string> leftBehind(const std::vector<Held>& before, const std::vector<Held>& now) {
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (now[i].count <= before[i].count + now[i].noise) continue;
        lines.push_back(compared(before[i], now[i]));
    }
    return lines;
}

}  // namespace lx::host
