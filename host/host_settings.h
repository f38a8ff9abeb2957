// Everything that can be set about the stand-in host, by the same names on its command line
// ("--units 1000") and in scenarios ("host units 1000").
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lx::host {

// Texts are UTF-8; folders may end in a separator or not.
struct HostSettings {
    // What GetProfilePath gives; handed to the module exactly as it stands here.
    std::string profile;
    // The same of VORDAN2D.ARX, when that is loaded and has a folder of its own.
    std::optional<std::string> arxProfile;
    // Host folders 2 and 3; none: the lookup answers false.
    std::optional<std::string> library;
    std::optional<std::string> catalogue;

    bool services = true;     // false: GetExport2D gives no table
    bool folderEntry = true;  // entry 1 of the table
    bool arx = false;         // VORDAN2D.ARX is loaded beside the program itself
    bool host = true;         // false: no module of the host is loaded (headless only)
    bool helpLibrary = true;  // vdhelp.dll can be loaded
    // A library beside the program that the process has loaded before the module (Windows only).
    std::optional<std::string> otherLibrary;
    std::optional<std::string> drawing = "C:\\Stavba\\Dum.dwg";  // "DWGNAME"; none: no entry 29
    std::optional<int> units = 1000;                             // none: no entry 33
    bool lockEntry = true;                                       // entry 44
    int libraryLock = 1;                                         // answers of entry 44
    int catalogueLock = 1;
    bool sharedLocks = false;  // the locks are those of all programs that share the folders
    std::optional<std::vector<std::string>> styles =
        std::vector<std::string>{"Standard", "Popisy", "Kóty"};  // none: no entry 59
    std::optional<std::string> title = "Stand-in";               // none: no entry 94
    // What owns the module's dialogs: "normal", "minimized" or "none", or "modal", a dialog of the
    // host's own in front of its window. Without a screen there is never any.
    std::string window = "normal";

    // Empty when the setting was made, else what is wrong with it.
    std::string set(std::string_view name, std::string_view value);
    // Whether there is a setting of that name.
    static bool known(std::string_view name);
    // One setting a line: name, values, meaning.
    static std::string help();
};

}  // namespace lx::host
