// File names between UTF-8, as options and scenarios write them, and what the system takes.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace lx::host {

std::filesystem::path pathFromUtf8(const std::string& utf8);
std::string utf8FromPath(const std::filesystem::path& path);
// The bytes that the system's byte-wise functions take for file names (the system's code page).
std::string systemPath(const std::string& utf8);
std::string utf8FromSystemPath(const std::string& path);
// With one separator at the end.
std::string asFolder(const std::string& utf8);

std::optional<std::string> readFile(const std::filesystem::path& file);
// Creates or replaces; throws std::runtime_error.
void writeFile(const std::filesystem::path& file, const std::string& bytes);

// Sets an environment variable of this process, UTF-8.
void setEnvironment(const std::string& name, const std::string& value);

}  // namespace lx::host
