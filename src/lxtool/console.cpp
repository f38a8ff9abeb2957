#include "lxtool/console.h"

#include <cstdio>
#include <new>

#include "lxtool/streams.h"

namespace lx::lxtool {

namespace {

std::optional<Bytes> readAll(std::FILE* stream) {
    Bytes bytes;
    char buffer[65536];
    try {
        while (const std::size_t got = std::fread(buffer, 1, sizeof buffer, stream)) {
            bytes.append(buffer, got);
        }
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
    if (std::ferror(stream)) return std::nullopt;
    return bytes;
}

bool write(std::FILE* stream, std::string_view bytes) {
    return std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size() &&
           std::fflush(stream) == 0;
}

}  // namespace

Console systemConsole() {
    makeStreamsBinary();
    return {[] { return readAll(stdin); },
            [](std::string_view bytes) { return write(stdout, bytes); },
            [](std::string_view bytes) { write(stderr, bytes); }, errorIsTerminal()};
}

}  // namespace lx::lxtool
