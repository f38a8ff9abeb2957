// Private-profile (INI) files with the rules of the Windows functions of that name, in one
// implementation for all platforms. Section and key names are matched without regard to case.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace lx {

class Profile {
public:
    Profile(Files& files, Path path);

    const Path& path() const { return m_path; }
    // The value as GetPrivateProfileString delivers it: blanks around it and one pair of quotes
    // removed, cut to bufferSize - 1 bytes. fallback (its trailing blanks removed) when file,
    // section or key is missing.
    Text read(std::string_view section, std::string_view key, std::string_view fallback,
              std::size_t bufferSize = 1024) const;
    // The leading decimal number of the value, fallback when the key is missing.
    std::int32_t readInt(std::string_view section, std::string_view key,
                         std::int32_t fallback) const;
    // none when the key is missing.
    std::optional<Text> find(std::string_view section, std::string_view key) const;
    // Keys of a section in file order, doubled ones too.
    std::vector<Text> keys(std::string_view section) const;
    // Creates file, section and key as needed; the rest of the file keeps its bytes. Writes nothing
    // when the value is there already. False when the file could not be written.
    bool write(std::string_view section, std::string_view key, std::string_view value);
    bool writeInt(std::string_view section, std::string_view key, std::int32_t value);
    bool erase(std::string_view section, std::string_view key);

private:
    Files& m_files;
    Path m_path;
};

// Whole-file forms, for tests and tools: the bytes after writing a value (none = deleting the key).
Bytes profileWritten(std::string_view file, std::string_view section, std::string_view key,
                     std::optional<std::string_view> value);

}  // namespace lx
