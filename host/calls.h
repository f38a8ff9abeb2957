// The module's four functions as a host calls them, one call with everything that goes in, and what
// came out.
#pragma once

#include <lxdata6dlg.h>

#include <optional>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace lx::host {

// As found in the loaded module; a host program fills them by name.
struct ModuleCalls {
    int(LX_STDCALL* CallLXdata6)(void* parent, int32_t unread1, int32_t unread2, int32_t unread3,
                                 double opening, double wall, double level, char* text, int32_t* a,
                                 int32_t* b, OpeningBlock block, int32_t exterior) = nullptr;
    int(LX_STDCALL* CallLXdata6Base)(void* parent) = nullptr;
    int(LX_STDCALL* LintelErase)(void* parent) = nullptr;
    int(LX_CDECL* mergeLibraryFiles)(void* reserved, const char* source, const char* folder,
                                     int32_t mode) = nullptr;
};

// The arguments of a design call, by the same names on the command line ("--wall 300") and in
// scenarios ("opening wall 300"). The block's fields have the names of OpeningBlock.
struct Opening {
    double width = 1200;   // mm; set by "width"
    double wall = 300;     // mm
    double level = 0;      // m
    int32_t exterior = 0;  // the whole slot; the flag is its lowest byte
    int32_t a = 0;
    int32_t b = 0;
    OpeningBlock block = emptyBlock();

    // As the module makes an empty one: all zero but the two codes of -1.
    static OpeningBlock emptyBlock();
    // Names: width, wall, level, exterior, A, B, block.FIELD (triples: "block.triple1 1,2,3").
    // Empty when it was set, else what is wrong.
    std::string set(std::string_view name, std::string_view value);
    static bool known(std::string_view name);
    static std::string help();
};

enum class Function { design, base, erase, merge };
// "CallLXdata6", "CallLXdata6Base", "LintelErase", "mergeLibraryFiles"; none for another name.
std::optional<Function> functionNamed(std::string_view name);

struct CallRequest {
    Function function = Function::design;
    Opening opening;                    // design
    std::string source;                 // merge: UTF-8
    std::optional<std::string> folder;  // merge: UTF-8; none = the null pointer
    int mode = 3;                       // merge
};

struct CallOutcome {
    Function function = Function::design;
    int result = 0;
    std::optional<Text> text;  // design; none when the buffer was left untouched
    bool overran = false;      // wrote behind 1024 bytes of the buffer
    int32_t a = 0;
    int32_t b = 0;
};

CallOutcome run(const ModuleCalls& calls, const CallRequest& request, void* parentWindow);
// In UTF-8, one value a line: result, and of a design call text, A and B. Line breaks of the text
// are shown as "\r\n".
std::string report(const CallOutcome& outcome);

}  // namespace lx::host
