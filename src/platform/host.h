// What a host program offers the module. The entry folder implements it over the host's service
// table; tests implement it as they like.
#pragma once

#include <optional>
#include <vector>

#include "platform/text.h"

namespace lx {

enum class HostFolder { library = 2, catalogue = 3 };
enum class HostResource { library = 2, catalogue = 3 };

class Host {
public:
    Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    virtual ~Host() = default;

    // The host's folder with its trailing separator, or none when the host does not tell.
    std::optional<Path> getHostFolder(HostFolder id) { return folderWithin(id, 260); }
    // The same, with the number of bytes that the host is told its answer may take.
    virtual std::optional<Path> folderWithin(HostFolder id, int bufferSize) = 0;
    // The module's own data folder, ending in "DAT" and a separator; known from start-up on.
    virtual const Path& dataFolder() const = 0;
    // True when the host has a service table at all.
    virtual bool present() = 0;
    // Asks for the access lock on shared data. 1 = granted, any other number not; -1 when the table
    // has no such entry.
    virtual int requestLock(HostResource resource, int mode) = 0;
    // Gives a lock back with the release code; does nothing when the host has no such entry.
    virtual void releaseLock(HostResource resource, int code) = 0;
    // The host's product title, "ERROR" when there is none.
    virtual Text hostTitle() = 0;
    // A named variable of the host such as "DWGNAME"; empty when unknown.
    virtual Text variable(const char* name) = 0;
    // Drawing units per metre; 0 when the host does not tell.
    virtual int unitsPerMetre() = 0;
    // Names of the drawing's text styles; empty when the host gives none.
    virtual std::vector<Text> textStyles() = 0;
    // Shows a help topic; returns what the help library returned, 0 without one.
    virtual int showHelp(int topic) = 0;
};

}  // namespace lx
