#include "settings/ini_store.h"
#include "settings/profile.h"

namespace lx {

namespace {

constexpr std::string_view missingMark = "$EMPTY$";
constexpr std::string_view upperDigits = "0123456789ABCDEF";
constexpr std::size_t lengthDigits = 8;
constexpr std::size_t blockLimit = 32768;

// -1 for anything but a hexadecimal digit.
int hexDigit(char c) {
    if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
    const std::size_t digit = upperDigits.find(c);
    return digit == std::string_view::npos ? -1 : static_cast<int>(digit);
}

}  // namespace

bool prf_store::open(std::optional<std::string_view> fileName,
                     std::optional<std::string_view> sectionName) {
    close();
    if (!fileName || !sectionName) return false;
    m_binding = Binding{Path(*fileName), Text(*sectionName)};
    return true;
}

void prf_store::close() {
    m_binding.reset();
}

bool prf_store::read_string(std::string_view key, Text& value) {
    value.clear();
    if (!m_binding) return false;
    std::optional<Text> found = Profile(m_files, m_binding->file).find(m_binding->section, key);
    if (!found || *found == missingMark) return false;
    value = *std::move(found);
    return true;
}

bool prf_store::write_string(std::string_view key, std::string_view value) {
    return m_binding && Profile(m_files, m_binding->file).write(m_binding->section, key, value);
}

bool prf_store::read_binary(std::string_view key, Bytes& block) {
    block.clear();
    if (!m_binding) return false;
    const std::optional<Text> value =
        Profile(m_files, m_binding->file).find(m_binding->section, key);
    if (!value || value->size() < lengthDigits) return false;
    std::size_t count = 0;
    for (const char c : value->substr(0, lengthDigits)) {
        const std::size_t digit = upperDigits.find(c);
        if (digit == std::string_view::npos) return false;
        count = count << 4U | digit;
    }
    if (count >= blockLimit || value->size() != lengthDigits + 2 * count) return false;
    Bytes decoded;
    decoded.reserve(count);
    for (std::size_t at = lengthDigits; at < value->size(); at += 2) {
        const int high = hexDigit((*value)[at]);
        const int low = hexDigit((*value)[at + 1]);
        if (high < 0 || low < 0) return false;
        decoded.push_back(static_cast<char>(high << 4 | low));
    }
    block = std::move(decoded);
    return true;
}

bool prf_store::write_binary(std::string_view key, std::string_view block) {
    if (!m_binding) return false;
    Text value(lengthDigits, '0');
    for (std::size_t i = 0; i < lengthDigits; ++i) {
        value[i] = upperDigits[block.size() >> 4U * (lengthDigits - 1 - i) & 0xFU];
    }
    value.reserve(lengthDigits + 2 * block.size());
    for (const char c : block) {
        const auto byte = static_cast<unsigned char>(c);
        value.push_back(upperDigits[byte >> 4U]);
        value.push_back(upperDigits[byte & 0xFU]);
    }
    return write_string(key, value);
}

}  // namespace lx
