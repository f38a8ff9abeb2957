#include "settings/ini_store.h"

#include <cstring>

#include "platform/numbers.h"

namespace lx {

namespace {

// More numbers than any list holds; a text of nothing but separators would make as many as it has
// bytes.
constexpr std::size_t mostListed = 1000000;

// One number from the front of a text, as strtol and strtod read it: leading whitespace belongs to
// it, a text that starts with none is 0 and takes nothing.
void takeNumber(std::string_view& text, std::int32_t& value) {
    value = 0;
    const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
    if (first == std::string_view::npos) return;
    std::size_t end = first;
    if (text[end] == '-' || text[end] == '+') ++end;
    const std::size_t digits = end;
    while (end < text.size() && isDigit(text[end])) ++end;
    if (end == digits) return;
    value = leadingInt(text);
    text.remove_prefix(end);
}

void takeNumber(std::string_view& text, double& value) {
    std::size_t consumed = 0;
    value = leadingDouble(text, &consumed);
    text.remove_prefix(consumed);
}

Text formatted(std::int32_t value) {
    return formatInt(value);
}
Text formatted(double value) {
    return formatGeneral(value);
}

template <class T>
std::string_view bytesOf(std::span<const T> values) {
    return {reinterpret_cast<const char*>(values.data()), values.size_bytes()};
}

// Nothing may stand behind the number.
template <class T>
bool valueOfText(std::string_view text, T& value) {
    takeNumber(text, value);
    return text.empty();
}

template <class T>
bool valueOfBlock(const Bytes& block, T& value) {
    if (block.size() != sizeof value) return false;
    std::memcpy(&value, block.data(), sizeof value);
    return true;
}

// The form that the store writes is looked for first, then the other: the mode may have changed.
template <class T>
bool getValue(ini_store& store, std::string_view key, T& value) {
    Text text;
    Bytes block;
    if (store.text_mode && store.read_string(key, text)) return valueOfText(text, value);
    if (store.read_binary(key, block)) return valueOfBlock(block, value);
    return !store.text_mode && store.read_string(key, text) && valueOfText(text, value);
}

template <class T>
bool setValue(ini_store& store, std::string_view key, T value) {
    if (store.text_mode) return store.write_string(key, formatted(value));
    return store.write_binary(key, bytesOf(std::span<const T>(&value, 1)));
}

template <class T>
bool parseList(std::string_view text, std::vector<T>& values) {
    std::vector<T> parsed;
    while (!text.empty()) {
        if (parsed.size() == mostListed) return false;
        takeNumber(text, parsed.emplace_back());
        if (text.empty()) break;
        if (text.front() != ';') return false;
        text.remove_prefix(1);
    }
    values = std::move(parsed);
    return true;
}

template <class T>
bool getList(ini_store& store, std::string_view key, std::vector<T>& values) {
    Bytes block;
    if (store.read_binary(key, block) && block.size() % sizeof(T) == 0) {
        values.assign(block.size() / sizeof(T), T{});
        if (!block.empty()) std::memcpy(values.data(), block.data(), block.size());
        return true;
    }
    Text text;
    return store.read_string(key, text) && parseList(text, values);
}

template <class T>
bool setList(ini_store& store, std::string_view key, std::span<const T> values) {
    if (!store.text_mode) return store.write_binary(key, bytesOf(values));
    if (values.empty()) return false;
    Text text;
    for (const T value : values) {
        if (!text.empty()) text += ';';
        text += formatted(value);
    }
    return store.write_string(key, text);
}

}  // namespace

bool ini_store::get_int(std::string_view key, std::int32_t& value) {
    return getValue(*this, key, value);
}

bool ini_store::set_int(std::string_view key, std::int32_t value) {
    return setValue(*this, key, value);
}

bool ini_store::get_int_array(std::string_view key, std::vector<std::int32_t>& values) {
    return getList(*this, key, values);
}

bool ini_store::set_int_array(std::string_view key, std::span<const std::int32_t> values) {
    return setList(*this, key, values);
}

bool ini_store::get_double(std::string_view key, double& value) {
    return getValue(*this, key, value);
}

bool ini_store::set_double(std::string_view key, double value) {
    return setValue(*this, key, value);
}

bool ini_store::get_double_array(std::string_view key, std::vector<double>& values) {
    return getList(*this, key, values);
}

bool ini_store::set_double_array(std::string_view key, std::span<const double> values) {
    return setList(*this, key, values);
}

bool ini_store::get_string_list(std::string_view key, std::vector<Text>& values) {
    Bytes block;
    if (!read_binary(key, block)) return false;
    values.clear();
    std::string_view rest = block;
    for (std::size_t zero = 0; (zero = rest.find('\0')) != std::string_view::npos;) {
        values.emplace_back(rest.substr(0, zero));
        rest.remove_prefix(zero + 1);
    }
    return true;
}

bool ini_store::set_string_list(std::string_view key, std::span<const Text> values) {
    Bytes block;
    for (const Text& value : values) block.append(value).push_back('\0');
    return write_binary(key, block);
}

}  // namespace lx
