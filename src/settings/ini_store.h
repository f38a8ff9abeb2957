// The typed settings store: integers, numbers, lists and texts under the keys of one section.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace lx {

// Operations answer false when the value is missing or malformed, or could not be written.
class ini_store {
public:
    ini_store() = default;
    ini_store(const ini_store&) = delete;
    ini_store& operator=(const ini_store&) = delete;
    virtual ~ini_store() = default;

    // Forgets the file and the section.
    virtual void close() = 0;

    // A text that only begins with a number stores that number in value, yet answers false; an
    // empty text is 0 and true.
    virtual bool get_int(std::string_view key, std::int32_t& value);
    virtual bool set_int(std::string_view key, std::int32_t value);
    // An empty text is an empty list and true. An empty list cannot be written as text.
    virtual bool get_int_array(std::string_view key, std::vector<std::int32_t>& values);
    virtual bool set_int_array(std::string_view key, std::span<const std::int32_t> values);
    virtual bool get_double(std::string_view key, double& value);
    virtual bool set_double(std::string_view key, double value);
    virtual bool get_double_array(std::string_view key, std::vector<double>& values);
    virtual bool set_double_array(std::string_view key, std::span<const double> values);
    virtual bool read_string(std::string_view key, Text& value) = 0;
    virtual bool write_string(std::string_view key, std::string_view value) = 0;
    // Always in binary form.
    virtual bool get_string_list(std::string_view key, std::vector<Text>& values);
    virtual bool set_string_list(std::string_view key, std::span<const Text> values);
    virtual bool read_binary(std::string_view key, Bytes& block) = 0;
    virtual bool write_binary(std::string_view key, std::string_view block) = 0;

    // True: values are written as text, lists joined by ";". False: as binary blocks of their bytes
    // in memory order.
    bool text_mode = true;
};

// A store in one section of a private-profile file. Unbound until open and after close; every
// operation then fails without touching a file.
class prf_store : public ini_store {
public:
    explicit prf_store(Files& files) : m_files(files) {}

    // False, and the store is unbound, when either name is missing.
    bool open(std::optional<std::string_view> fileName,
              std::optional<std::string_view> sectionName);
    void close() override;

    // A value "$EMPTY$" counts as missing.
    bool read_string(std::string_view key, Text& value) override;
    bool write_string(std::string_view key, std::string_view value) override;
    // 8 upper-case hexadecimal digits of the byte count, then two digits for each byte. A block of
    // 32768 bytes or more can be written but not read.
    bool read_binary(std::string_view key, Bytes& block) override;
    bool write_binary(std::string_view key, std::string_view block) override;

private:
    struct Binding {
        Path file;
        Text section;
    };

    Files& m_files;
    std::optional<Binding> m_binding;
};

}  // namespace lx
