#include "host/paths.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace lx::host {

namespace fs = std::filesystem;

fs::path pathFromUtf8(const std::string& utf8) {
    fs::path path(std::u8string(utf8.begin(), utf8.end()));
    path.make_preferred();
    return path;
}

std::string utf8FromPath(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string asFolder(const std::string& utf8) {
    if (!utf8.empty() && (utf8.back() == '/' || utf8.back() == '\\')) return utf8;
    return utf8 + static_cast<char>(fs::path::preferred_separator);
}

std::optional<std::string> readFile(const fs::path& file) {
    if (!fs::is_regular_file(file)) return std::nullopt;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

void writeFile(const fs::path& file, const std::string& bytes) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) throw std::runtime_error("cannot write " + utf8FromPath(file));
}

}  // namespace lx::host
