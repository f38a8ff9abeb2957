// The host's services over its table of function addresses. The table is asked of the host afresh
// at every use, so nothing here goes stale when the host changes its mind or its modules.
#pragma once

#include "platform/host.h"
#include "platform/modules.h"

namespace lx {

// File names of the two programs that may be the host.
namespace host_module {
inline constexpr char application[] = "VORDANLT.EXE";
inline constexpr char extension[] = "VORDAN2D.ARX";
}  // namespace host_module

class HostLinks : public Host {
public:
    // dataFolder and helpFile belong to the application and may be settled later.
    HostLinks(Modules& modules, const Path& dataFolder, const Path& helpFile);

    std::optional<Path> folderWithin(HostFolder id, int bufferSize) override;
    const Path& dataFolder() const override { return m_dataFolder; }
    bool present() override { return getHostServices() != nullptr; }
    int requestLock(HostResource resource, int mode) override;
    void releaseLock(HostResource resource, int code) override;
    Text hostTitle() override;
    Text variable(const char* name) override;
    int unitsPerMetre() override;
    std::vector<Text> textStyles() override;
    int showHelp(int topic) override;

private:
    // A row of function addresses, or null.
    using Services = void* const*;
    Services getHostServices();
    template <class Function>
    Function service(int position);

    Modules& m_modules;
    const Path& m_dataFolder;
    const Path& m_helpFile;
};

}  // namespace lx
