#include <windows.h>
// Needs the types of windows.h.
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>

#include "lxtool/console.h"
#include "lxtool/streams.h"

namespace lx::lxtool {

namespace {

std::string converted(UINT codePage, DWORD flags, std::wstring_view text, BOOL* lossy) {
    const auto length = static_cast<int>(text.size());
    const auto convert = [&](char* out, int room) {
        return WideCharToMultiByte(codePage, flags, text.data(), length, out, room, nullptr, lossy);
    };
    std::string result(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(result.data(), static_cast<int>(result.size()));
    return result;
}

}  // namespace

void makeStreamsBinary() {
    for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
}

bool errorIsTerminal() {
    return _isatty(_fileno(stderr)) != 0;
}

// Not those of main, which have lost what the system's code page lacks.
std::vector<std::string> programArguments(int, char**) {
    int count = 0;
    wchar_t** const all = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> result;
    for (int i = 1; i < count; ++i) result.push_back(converted(CP_UTF8, 0, all[i], nullptr));
    LocalFree(all);
    return result;
}

std::optional<Path> systemPath(std::string_view utf8) {
    const auto length = static_cast<int>(utf8.size());
    std::wstring wide(utf8.size(), L'\0');
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), length)));
    if (GetACP() == CP_UTF8) return Path(utf8);
    BOOL lossy = FALSE;
    Path path = converted(CP_ACP, WC_NO_BEST_FIT_CHARS, wide, &lossy);
    if (lossy) return std::nullopt;
    return path;
}

}  // namespace lx::lxtool
