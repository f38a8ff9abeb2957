#include <cstdlib>

#include "host/paths.h"

namespace lx::host {

std::string systemPath(const std::string& utf8) {
    return utf8;
}

std::string utf8FromSystemPath(const std::string& path) {
    return path;
}

void setEnvironment(const std::string& name, const std::string& value) {
    setenv(name.c_str(), value.c_str(), 1);
}

}  // namespace lx::host
