// Every reader of the module as a function of bytes, for libFuzzer and for the replay of its
// corpus. A target ends the program when what it read does not keep the reader's promises.
#pragma once

#include <string_view>
#include <vector>

#include "platform/text.h"

namespace lx::fuzz {

void readCatalogue(std::string_view input);
void readLibrary(std::string_view input);
void readProjects(std::string_view input);
void readHandOver(std::string_view input);
void readProfile(std::string_view input);
void readValueHistory(std::string_view input);
void readRules(std::string_view input);
void readBlocks(std::string_view input);

// Ends the program when the promise is not kept, telling where.
void promise(bool kept, const char* file = __builtin_FILE(), int line = __builtin_LINE());

struct Target {
    std::string_view name;  // of its folder in corpus/
    void (*read)(std::string_view input);
};

inline constexpr Target targets[] = {
    {"catalogue", readCatalogue}, {"library", readLibrary}, {"projects", readProjects},
    {"hand_over", readHandOver},  {"profile", readProfile}, {"value_history", readValueHistory},
    {"rules", readRules},         {"blocks", readBlocks},
};

struct Seed {
    std::string_view target;
    std::string_view name;
    Bytes bytes;
};

// Small files as the module writes them, one and more for each target.
std::vector<Seed> seeds();

}  // namespace lx::fuzz
