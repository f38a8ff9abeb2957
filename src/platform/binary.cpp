#include "platform/binary.h"

namespace lx {

namespace {

template <class T>
void appendNumber(Bytes& bytes, T value) {
    char buffer[sizeof value];
    std::memcpy(buffer, &value, sizeof value);
    bytes.append(buffer, sizeof value);
}

}  // namespace

// Not in the header: a record writes a dozen of them, and each would be a copy of what appends.
void BinaryWriter::int32(std::int32_t value) {
    appendNumber(m_bytes, value);
}

void BinaryWriter::float64(double value) {
    appendNumber(m_bytes, value);
}

}  // namespace lx
