// Little-endian records in memory: a reader that never runs past the end and can say "cut short",
// and a writer that builds a file's bytes.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "platform/text.h"

namespace lx {

static_assert(std::endian::native == std::endian::little, "records are copied byte by byte");

class BinaryReader {
public:
    explicit BinaryReader(std::string_view bytes) : m_bytes(bytes) {}

    std::size_t remaining() const { return m_bytes.size() - m_position; }
    bool atEnd() const { return remaining() == 0; }
    // Set once a read asked for more than there was; every later read then answers 0 as well.
    bool cutShort() const { return m_cutShort; }

    std::int32_t int32() { return number<std::int32_t>(); }
    double float64() { return number<double>(); }
    unsigned char byte() { return number<unsigned char>(); }
    // The next count bytes, or none and cutShort when there are fewer.
    std::string_view raw(std::size_t count) {
        if (m_cutShort || count > remaining()) {
            m_cutShort = true;
            m_position = m_bytes.size();
            return {};
        }
        const std::string_view result = m_bytes.substr(m_position, count);
        m_position += count;
        return result;
    }
    // A text up to its zero byte, which is skipped. Without a zero: what is left, and cutShort.
    std::string_view zeroTerminated() {
        if (m_cutShort) return {};
        const std::string_view rest = m_bytes.substr(m_position);
        const std::size_t length = rest.find('\0');
        if (length == std::string_view::npos) {
            m_cutShort = true;
            m_position = m_bytes.size();
            return rest;
        }
        m_position += length + 1;
        return rest.substr(0, length);
    }

private:
    template <class T>
    T number() {
        T value{};
        const std::string_view bytes = raw(sizeof value);
        if (bytes.size() == sizeof value) std::memcpy(&value, bytes.data(), sizeof value);
        return value;
    }

    std::string_view m_bytes;
    std::size_t m_position = 0;
    bool m_cutShort = false;
};

class BinaryWriter {
public:
    void int32(std::int32_t value);
    void float64(double value);
    void byte(unsigned char value) { m_bytes.push_back(static_cast<char>(value)); }
    void raw(std::string_view bytes) { m_bytes.append(bytes); }
    void zeroTerminated(std::string_view text) {
        m_bytes.append(text);
        m_bytes.push_back('\0');
    }
    void reserve(std::size_t size) { m_bytes.reserve(size); }
    // Keeps the memory for what comes next.
    void clear() { m_bytes.clear(); }
    const Bytes& bytes() const { return m_bytes; }
    Bytes take() { return std::move(m_bytes); }

private:
    Bytes m_bytes;
};

}  // namespace lx
