// The stand-in host's command line, the same for VORDANLT.EXE and lxhost.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/calls.h"
#include "host/chance.h"
#include "host/host_settings.h"

namespace lx::host {

struct Options {
    bool help = false;
    std::string error;  // not empty: what is wrong with the command line
    HostSettings host;
    bool profileGiven = false;  // folders not named lie under out
    bool libraryGiven = false;
    bool catalogueGiven = false;
    std::string temporary;               // "" = the system's
    std::optional<CallRequest> call;     // a function to call
    Chance chance;                       // in the scenarios
    int firstPaint = 0;                  // times to call CallLXdata6 and measure; 0 = no measuring
    std::vector<std::string> scenarios;  // files to play, in order
    std::string out = "out";             // folder for everything that is made
    std::string data;  // folder of LXDATA6.DAT, LXDATA6S.DAT and VDLINTEL.TXT; "" = beside the
                       // program in "data"
};

// Arguments without the program's name, and the program's folder, in UTF-8.
Options parseOptions(const std::vector<std::string>& arguments, const std::string& programFolder);
std::string optionsHelp(const std::string& programName);

// Makes the folders of a call by hand under options.out, where none were named, puts the sample
// data there when they hold none, and names them in options.host. Empty, or what went wrong.
std::string prepareFolders(Options& options);
// For this process and what it loads, from now on (UTF-8).
void useTemporaryFolder(const std::string& folder);

}  // namespace lx::host
