// Modules that are registered instead of loaded: a host and its libraries inside the own program.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/modules.h"

namespace lx {

struct HeadlessModule {
    Text name;      // such as "VORDANLT.EXE"; found without regard to case
    Path fileName;  // full
    std::map<std::string, void*> symbols;
    bool loaded = true;    // false: only load() brings it in
    bool loadable = true;  // false: load() cannot find it
};

class HeadlessModules final : public Modules {
public:
    // A module of the same name is replaced; handles given out for the old one stay valid.
    ModuleHandle add(HeadlessModule module);
    // What a null handle stands for.
    void setProgram(HeadlessModule program) { m_program = std::move(program); }
    void clear();

    ModuleHandle loaded(const char* name) override;
    Path fileName(ModuleHandle module) override;
    void* symbol(ModuleHandle module, const char* name) override;
    ModuleHandle load(const char* name, const Path& folder) override;

private:
    HeadlessModule* find(std::string_view name);
    HeadlessModule& at(ModuleHandle module);

    HeadlessModule m_program{"lxhost", "/lxhost", {}, true, true};
    std::vector<std::unique_ptr<HeadlessModule>> m_modules;
};

}  // namespace lx
