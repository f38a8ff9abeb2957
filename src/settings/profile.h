// Private-profile (INI) files with the rules of the Windows functions of that name, in one
// implementation for all platforms. Section and key names are matched without regard to case.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string_view>

#include "platform/files.h"
#include "settings/setting_keys.h"

namespace lx {

// A value to write; none deletes the key.
struct ProfileChange {
    std::string_view section;
    std::string_view key;
    std::optional<std::string_view> value;
};

// What is done with a key and its value: without quotes around it, none without "=".
using ProfileEntryUse =
    std::function<void(std::string_view key, std::optional<std::string_view> value)>;

// The leading number of a value (its first 29 bytes; 0x, 0o and 0b as the platform's function takes
// them; 0 when there is none), fallback when the value is empty.
std::int32_t profileInt(std::string_view value, std::int32_t fallback);

class Profile {
public:
    Profile(Files& files, Path path);

    const Path& path() const { return m_path; }
    // The value as GetPrivateProfileString delivers it: blanks around it and one pair of quotes
    // removed, cut to bufferSize - 1 bytes. fallback, treated alike, when file, section or key is
    // missing. A line without "=" is a key without a value: it is there, but reads as missing.
    Text read(std::string_view section, std::string_view key, std::string_view fallback,
              std::size_t bufferSize = 1024) const;
    Text read(const settings::TextKey& key) const {
        return read(key.section, key.key, key.fallback, key.bufferSize);
    }
    // profileInt of the value, fallback when the key is missing.
    std::int32_t readInt(std::string_view section, std::string_view key,
                         std::int32_t fallback) const;
    std::int32_t readInt(const settings::IntKey& key) const {
        return readInt(key.section, key.key, key.fallback);
    }
    // none when the key is missing.
    std::optional<Text> find(std::string_view section, std::string_view key) const;
    // Calls use for the keys of a section in file order, doubled ones too: the first of them is the
    // one that is read. False when the file is there but cannot be read. Nothing is kept of a file
    // that may hold millions of them.
    bool eachEntry(std::string_view section, const ProfileEntryUse& use) const;
    // Creates file, section and key as needed; the rest of the file keeps its bytes. Blanks around
    // the value are not kept, nor is what follows a line break in it. Writes nothing when the value
    // is there already. False when the file could not be written, or exists but cannot be read, or
    // the key is no possible one (empty, with "=" or a line break, or beginning with "[").
    bool write(std::string_view section, std::string_view key, std::string_view value);
    bool write(const settings::TextKey& key, std::string_view value) {
        return write(key.section, key.key, value);
    }
    bool writeInt(const settings::IntKey& key, std::int32_t value);
    // Several values in one go: the file is replaced once, with all of them or none, and holds what
    // it would after one change after another (but for the line ends where a file mixes them).
    // Takes time in proportion to the file and the changes, as long as those of a section stand
    // together and each is of another key.
    bool apply(std::span<const ProfileChange> changes);

private:
    Files& m_files;
    Path m_path;
};

}  // namespace lx
