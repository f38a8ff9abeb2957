#include "platform/headless/headless_modules.h"

namespace lx {

namespace {
constexpr std::size_t longestFileName = 260;

template <class... Words>
int call(void* function, Words... words) {
    return reinterpret_cast<int (*)(Words...)>(function)(words...);
}
}  // namespace

ModuleHandle HeadlessModules::add(HeadlessModule module) {
    if (HeadlessModule* same = find(module.name)) {
        *same = std::move(module);
        return same;
    }
    m_modules.push_back(std::make_unique<HeadlessModule>(std::move(module)));
    return m_modules.back().get();
}

void HeadlessModules::clear() {
    m_modules.clear();
}

HeadlessModule* HeadlessModules::find(std::string_view name) {
    for (const auto& module : m_modules) {
        if (equalIgnoringCase(module->name, name)) return module.get();
    }
    return nullptr;
}

HeadlessModule& HeadlessModules::at(ModuleHandle module) {
    return module ? *static_cast<HeadlessModule*>(module) : m_program;
}

ModuleHandle HeadlessModules::loaded(const char* name) {
    HeadlessModule* module = find(name);
    return module && module->loaded ? module : nullptr;
}

Path HeadlessModules::fileName(ModuleHandle module) {
    return at(module).fileName.substr(0, longestFileName);
}

void* HeadlessModules::symbol(ModuleHandle module, const char* name) {
    const auto& symbols = at(module).symbols;
    const auto found = symbols.find(name);
    return found == symbols.end() ? nullptr : found->second;
}

ModuleHandle HeadlessModules::load(const char* name, const Path&) {
    HeadlessModule* module = find(name);
    if (!module || !(module->loaded || module->loadable)) return nullptr;
    module->loaded = true;
    return module;
}

int callAnyConvention(void* function, const std::uintptr_t* arguments, std::size_t count) {
    const auto a = [&](std::size_t i) { return arguments[i]; };
    switch (count) {
        case 0:
            return call(function);
        case 1:
            return call(function, a(0));
        case 2:
            return call(function, a(0), a(1));
        case 3:
            return call(function, a(0), a(1), a(2));
        case 4:
            return call(function, a(0), a(1), a(2), a(3));
        case 5:
            return call(function, a(0), a(1), a(2), a(3), a(4));
        case 6:
            return call(function, a(0), a(1), a(2), a(3), a(4), a(5));
        case 7:
            return call(function, a(0), a(1), a(2), a(3), a(4), a(5), a(6));
        case 8:
            return call(function, a(0), a(1), a(2), a(3), a(4), a(5), a(6), a(7));
        default:
            return 0;
    }
}

}  // namespace lx
