#include "entry/locations.h"

#include <array>
#include <bit>

#include "entry/host_links.h"
#include "platform/files.h"

namespace lx {

namespace {

constexpr char helpFileName[] = "VORDANLT.HLP";
// What GetProfilePath is told that its buffer holds, the zero included.
constexpr std::size_t profileBufferSize = 261;

// With its trailing separator; empty for a bare name.
Path folderOf(const Path& file) {
    const std::size_t separator = file.find_last_of("\\/");
    return separator == Path::npos ? Path() : file.substr(0, separator + 1);
}

// Empty when the host does not tell.
Path profileFolder(Modules& modules, ModuleHandle host) {
    void* const entry = modules.symbol(host, "GetProfilePath");
    if (!entry) return {};
    std::array<char, profileBufferSize + 1> buffer{};
    const std::array<std::uintptr_t, 3> arguments{0, std::bit_cast<std::uintptr_t>(buffer.data()),
                                                  profileBufferSize};
    callAnyConvention(entry, arguments.data(), arguments.size());
    buffer.back() = '\0';
    Path folder(buffer.data());
    if (!folder.empty() && folder.back() != '\\' && folder.back() != '/') {
        folder += folderSeparator;
    }
    return folder;
}

}  // namespace

Locations findLocations(Modules& modules) {
    Locations found;
    found.host = modules.loaded(host_module::extension);
    if (!found.host) found.host = modules.loaded(host_module::application);

    const Path programFolder = folderOf(modules.fileName(found.host));
    found.helpFile = programFolder + helpFileName;

    Path base;
    if (found.host) base = profileFolder(modules, found.host);
    if (base.empty()) base = programFolder;
    found.dataFolder = base + "DAT" + folderSeparator;
    return found;
}

}  // namespace lx
