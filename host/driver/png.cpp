#include "host/driver/png.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace lx::host {

namespace {

using Data = std::vector<std::uint8_t>;

// Bits of a compressed stream, the lowest of each byte first.
class BitWriter {
public:
    void number(unsigned value, unsigned count) {
        for (unsigned i = 0; i < count; ++i) bit((value >> i & 1U) != 0);
    }
    // Codes go out highest bit first.
    void code(unsigned value, unsigned count) {
        for (unsigned i = count; i-- > 0;) bit((value >> i & 1U) != 0);
    }
    std::string take() {
        if (m_used > 0) m_bytes += static_cast<char>(m_byte);
        return std::move(m_bytes);
    }

private:
    void bit(bool on) {
        if (on) m_byte |= 1U << m_used;
        if (++m_used < 8) return;
        m_bytes += static_cast<char>(m_byte);
        m_byte = 0;
        m_used = 0;
    }

    std::string m_bytes;
    unsigned m_byte = 0;
    unsigned m_used = 0;
};

// The fixed code of the format for bytes, lengths and the end mark (256).
void symbol(BitWriter& out, unsigned value) {
    if (value < 144) {
        out.code(0x30 + value, 8);
    } else if (value < 256) {
        out.code(0x190 + value - 144, 9);
    } else if (value < 280) {
        out.code(value - 256, 7);
    } else {
        out.code(0xC0 + value - 280, 8);
    }
}

// The greatest class whose base is not above the value; classes from 8 (lengths) or 4 (distances)
// on grow twofold every group.
struct Classified {
    unsigned index = 0;
    unsigned extraBits = 0;
    unsigned extra = 0;
};

Classified classify(unsigned value, unsigned group) {
    unsigned base = 0;
    for (Classified result;; ++result.index) {
        result.extraBits = result.index < 2 * group ? 0 : result.index / group - 1;
        const unsigned size = 1U << result.extraBits;
        if (value < base + size) {
            result.extra = value - base;
            return result;
        }
        base += size;
    }
}

constexpr std::size_t shortestMatch = 4;
constexpr std::size_t longestMatch = 258;
constexpr std::size_t window = 32768;

void match(BitWriter& out, std::size_t length, std::size_t distance) {
    if (length == longestMatch) {
        // Has a symbol of its own.
        symbol(out, 285);
    } else {
        const Classified of = classify(static_cast<unsigned>(length - 3), 4);
        symbol(out, 257 + of.index);
        out.number(of.extra, of.extraBits);
    }
    const Classified of = classify(static_cast<unsigned>(distance - 1), 2);
    out.code(of.index, 5);
    out.number(of.extra, of.extraBits);
}

// Screens are flat areas and repeated rows: the last place where the same four bytes began is good
// enough.
std::string compress(const Data& data) {
    constexpr unsigned hashBits = 15;
    std::vector<std::size_t> last(std::size_t{1} << hashBits, SIZE_MAX);
    BitWriter out;
    out.number(0x78, 8);
    out.number(0x01, 8);
    out.number(1, 1);
    out.number(1, 2);
    for (std::size_t at = 0; at < data.size();) {
        std::size_t length = 0;
        std::size_t from = SIZE_MAX;
        if (at + shortestMatch <= data.size()) {
            const std::uint32_t four = static_cast<std::uint32_t>(data[at]) |
                                       static_cast<std::uint32_t>(data[at + 1]) << 8U |
                                       static_cast<std::uint32_t>(data[at + 2]) << 16U |
                                       static_cast<std::uint32_t>(data[at + 3]) << 24U;
            std::size_t& place = last[four * 2654435761U >> (32 - hashBits)];
            from = std::exchange(place, at);
            const std::size_t most = std::min(longestMatch, data.size() - at);
            if (from != SIZE_MAX && at - from <= window) {
                while (length < most && data[from + length] == data[at + length]) ++length;
            }
        }
        if (length >= shortestMatch) {
            match(out, length, at - from);
            at += length;
        } else {
            symbol(out, data[at++]);
        }
    }
    symbol(out, 256);
    return out.take();
}

void bigEndian(std::string& out, std::uint32_t value) {
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        out += static_cast<char>(value >> shift & 0xFFU);
}

std::uint32_t adler(const Data& data) {
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const std::uint8_t byte : data) {
        a = (a + byte) % 65521;
        b = (b + a) % 65521;
    }
    return b << 16U | a;
}

std::uint32_t crc(std::string_view bytes) {
    std::uint32_t value = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        value ^= static_cast<std::uint8_t>(byte);
        for (int i = 0; i < 8; ++i) value = value >> 1U ^ ((value & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return ~value;
}

void chunk(std::string& file, const char* name, const std::string& content) {
    bigEndian(file, static_cast<std::uint32_t>(content.size()));
    const std::string checked = name + content;
    file += checked;
    bigEndian(file, crc(checked));
}

}  // namespace

std::string encodePng(int width, int height, const std::vector<std::uint8_t>& rgb) {
    const auto rowSize = static_cast<std::size_t>(width) * 3;
    Data rows;
    rows.reserve((rowSize + 1) * static_cast<std::size_t>(height));
    for (auto row = rgb.begin(); row != rgb.end(); row += static_cast<std::ptrdiff_t>(rowSize)) {
        rows.push_back(0);  // each row as it is
        rows.insert(rows.end(), row, row + static_cast<std::ptrdiff_t>(rowSize));
    }
    std::string header;
    bigEndian(header, static_cast<std::uint32_t>(width));
    bigEndian(header, static_cast<std::uint32_t>(height));
    header += {8, 2, 0, 0, 0};  // bits a sample, colour, and the only methods there are
    std::string content = compress(rows);
    bigEndian(content, adler(rows));
    std::string file = "\x89PNG\r\n\x1A\n";
    chunk(file, "IHDR", header);
    chunk(file, "IDAT", content);
    chunk(file, "IEND", {});
    return file;
}

}  // namespace lx::host
