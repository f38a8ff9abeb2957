// Designs as bytes: the record form that the library, project and hand-over files share.
#pragma once

#include "composition/CRez.h"
#include "platform/binary.h"

namespace lx {

inline constexpr std::int32_t headTag = 14300;
inline constexpr std::int32_t layerTag = 14301;
inline constexpr std::int32_t bendTag = 14302;
// Longest stored name in bytes, without its zero; a longer one is cut and the reader moves on
// behind it.
inline constexpr std::size_t storedNameLimit = 249;

// Tag included. A name is cut to storedNameLimit, so that what is written can be read whole.
void writeRecord(const CRez& record, BinaryWriter& writer, bool isHead);
void writeDesign(const CRez* head, BinaryWriter& writer);

struct DesignRead {
    RezChain design;         // empty when the bytes hold no head record
    bool headWhole = false;  // the head itself is not cut short
    bool damaged =
        false;  // cut short, records before the first head, a second head, a layer of kind -1
};
// Reads records until the bytes end or until a second head. Records before the first head are
// dropped; a record cut short keeps what was read of it; a layer stored with kind -1 ends the
// design.
DesignRead readDesign(BinaryReader& reader);

}  // namespace lx
