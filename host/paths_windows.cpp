#include <windows.h>

#include "host/paths.h"

namespace lx::host {

namespace {

std::wstring wide(unsigned codePage, const std::string& text) {
    const int length = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(codePage, 0, text.data(), length, nullptr, 0);
    std::wstring result(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), length, result.data(), size);
    return result;
}

std::string narrow(unsigned codePage, const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    const int size =
        WideCharToMultiByte(codePage, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(codePage, 0, text.data(), length, result.data(), size, nullptr, nullptr);
    return result;
}

}  // namespace

std::string systemPath(const std::string& utf8) {
    return narrow(CP_ACP, wide(CP_UTF8, utf8));
}

std::string utf8FromSystemPath(const std::string& path) {
    return narrow(CP_UTF8, wide(CP_ACP, path));
}

void setEnvironment(const std::string& name, const std::string& value) {
    SetEnvironmentVariableW(wide(CP_UTF8, name).c_str(), wide(CP_UTF8, value).c_str());
}

}  // namespace lx::host
