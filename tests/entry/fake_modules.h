// Programs and libraries that a test says are loaded, and a host program's functions behind them.
#pragma once

#include <lxdata6dlg.h>

#include <array>
#include <map>
#include <string>
#include <vector>

#include "entry/exports.h"
#include "tests/support/bench.h"

namespace lx {

class FakeModules : public Modules {
public:
    struct Module {
        Path fileName;
        std::map<std::string, void*> symbols;
    };
    std::map<std::string, Module> loadedModules;
    std::map<std::string, Module> libraries;  // that load() finds, by full name
    Module program;

    ModuleHandle loaded(const char* name) override { return find(loadedModules, name); }
    Path fileName(ModuleHandle module) override {
        return (module ? static_cast<Module*>(module) : &program)->fileName;
    }
    void* symbol(ModuleHandle module, const char* name) override {
        const auto& symbols = static_cast<Module*>(module)->symbols;
        const auto found = symbols.find(name);
        return found == symbols.end() ? nullptr : found->second;
    }
    ModuleHandle load(const char* name, const Path& folder) override {
        return find(libraries, (folder + name).c_str());
    }

private:
    static ModuleHandle find(std::map<std::string, Module>& modules, const char* name) {
        const auto found = modules.find(name);
        return found == modules.end() ? nullptr : &found->second;
    }
};

template <class Function>
void* address(Function* function) {
    return reinterpret_cast<void*>(function);
}

// What the functions of the fake host answer and were asked. They are plain C functions, so there
// is one of it; a test begins with a fresh one.
struct HostSide {
    std::array<void*, LX_SERVICE_COUNT> table{};
    bool noTable = false;
    Path profile;
    Path libraryFolder;
    Path catalogueFolder;
    int folderAnswer = 1;
    std::vector<int> sizesGiven;  // to GetProfilePath and the folder service for their buffers
    std::string helpRequest;      // "owner file command topic"
};
HostSide& hostSide();

// Fresh answers, the services that are needed, and the program loaded from that folder.
void installHost(FakeModules& modules, const char* name, const Path& folder);

// The module as loaded into a host whose folders are those of a bench; the exported functions work
// on it.
class LoadedModule {
public:
    LoadedModule();
    ~LoadedModule() { setApplication(nullptr); }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    Bench bench;
    FakeModules modules;
    CLXdata6dlgApp app;
};

}  // namespace lx
