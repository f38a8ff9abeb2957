// The records of a lintel design: CRez, the head or one layer of the section, and CZalom, a bend of
// the head.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

#include "composition/kind.h"
#include "platform/text.h"

namespace lx {

// The stored fields of a bend and of a record, each told once and in the order in which files hold
// them: field(type, name, value at first). The lists make the members and eachField, by which
// records are read, written, copied, compared and printed. A CRez field has a FieldUse behind.
#define LX_BEND_FIELDS(field)                                                             \
    field(std::int32_t, run, 0);  /* mm from the previous bend, or from the first face */ \
    field(std::int32_t, step, 0); /* mm, signed: change of the head's level here */       \
    field(bool, flag, false);     /* a sloping last bend */
#define LX_REZ_FIELDS(field)                                                                      \
    field(std::int32_t, typeIndex, 0, carried);  /* catalogue type, from 0 */                     \
    field(std::int32_t, itemIndex, 0, compared); /* item within its type, from 0; head: label */  \
    field(std::int32_t, width, 0, compared);     /* mm across the wall; head: wall thickness */   \
    field(std::int32_t, height, 0, carried);     /* mm; head: level of the lintel */              \
    field(std::int32_t, length, 0, compared);    /* mm; head: opening width */                    \
    field(std::int32_t, weight, 0, carried);     /* catalogue weight x 1000 */                    \
    field(std::int32_t, maxOpening, 0, carried); /* mm; head: its bearing */                      \
    field(std::int32_t, offset, 0, placed);      /* mm from the first wall face, by layOut */     \
    field(std::int32_t, level, 0, placed);       /* mm, by layOut; head: its project */           \
    field(Kind, kind, Kind::precast, compared);                                                   \
    field(std::int32_t, bearing, 0, carried); /* mm; not 0: the length follows the opening */     \
    field(std::optional<Text>, name, {}, compared);      /* layers; none without a designation */ \
    field(std::unique_ptr<CZalom>, bends, {}, compared); /* head */                               \
    field(char, letter, ' ', carried);                   /* composition letter */

enum class FieldUse {
    carried,   // by a copy
    compared,  // the same, and by compare
    placed     // compared, but a copy has no place yet
};

struct RezField {
    const char* name;
    FieldUse use;
};

#define LX_MEMBER(type, name, initial, ...) type name = initial

// A step of the lintel head across the wall. Owns the bends behind it; destroyed without recursion.
class CZalom {
public:
    CZalom() = default;
    CZalom(std::int32_t runMm, std::int32_t stepMm, bool isFlagged)
        : run(runMm), step(stepMm), flag(isFlagged) {}
    // Stands alone.
    CZalom(const CZalom& other);
    CZalom& operator=(const CZalom&) = delete;
    virtual ~CZalom();

    LX_BEND_FIELDS(LX_MEMBER)
    std::unique_ptr<CZalom> next;

    // visit(name, the field of each bend)
    template <class Visit, class... Bends>
    static void eachField(Visit&& visit, Bends&... bends) {
#define LX_VISIT(type, name, ...) visit(#name, bends.name...)
        LX_BEND_FIELDS(LX_VISIT)
#undef LX_VISIT
    }
};

// Bubble label: up to 3 bytes and zeros behind them.
using BubbleLabel = std::array<char, 4>;

class CRez {
public:
    CRez() = default;
    CRez(std::int32_t type, std::int32_t item) : typeIndex(type), itemIndex(item) {}
    // Stands alone: offset and level 0, no next. Copies the name, or the bends of a head.
    CRez(const CRez& other);
    CRez& operator=(const CRez&) = delete;
    virtual ~CRez() = default;

    bool isHead() const { return kind == Kind::head; }
    // Appends a bend behind the last one.
    void addBend(std::int32_t run, std::int32_t step, bool flag);
    // The head's bubble label lies in the bytes of itemIndex. setLabel takes the first 3 bytes of
    // the text and fills the rest with zeros.
    Text label() const;
    void setLabel(std::string_view text);
    // The head's bearing length, mm, lies in maxOpening, and the index of its project in level. A
    // bearing of 0 stands for the default.
    std::int32_t headBearing() const { return maxOpening; }
    std::int32_t& headBearing() { return maxOpening; }
    std::int32_t project() const { return level; }
    void setProject(std::int32_t index) { level = index; }
    // name, or an empty text where there is none
    std::string_view nameOrEmpty() const {
        if (!name) return {};
        return *name;
    }

    LX_REZ_FIELDS(LX_MEMBER)
    CRez* next = nullptr;  // not owned

    // visit(RezField, the field of each record)
    template <class Visit, class... Records>
    static void eachField(Visit&& visit, Records&... records) {
#define LX_VISIT(type, name, initial, use)                     \
    {                                                          \
        static constexpr RezField field{#name, FieldUse::use}; \
        visit(field, records.name...);                         \
    }                                                          \
    static_cast<void>(0)
        LX_REZ_FIELDS(LX_VISIT)
#undef LX_VISIT
    }
};

#undef LX_MEMBER
#undef LX_REZ_FIELDS
#undef LX_BEND_FIELDS

// Owns a chain of records and destroys it record by record. The links of its records are changed
// through the chain alone.
class RezChain {
public:
    RezChain() = default;
    RezChain(RezChain&& other) noexcept;
    RezChain& operator=(RezChain&& other) noexcept;
    ~RezChain() { clear(); }

    CRez* head() const { return m_head; }
    bool empty() const { return m_head == nullptr; }
    // Null when the chain is empty.
    CRez* last() const { return m_last; }
    bool contains(const CRez* record) const;
    // The record whose next is that one; null for the head or a stranger.
    CRez* before(const CRez* record) const;
    void clear();
    CRez* append(std::unique_ptr<CRez> record);
    // after must be in the chain.
    CRez* insertAfter(CRez* after, std::unique_ptr<CRez> record);
    // Unlinks a record; null when it is not in the chain.
    std::unique_ptr<CRez> unlink(CRez* record);

private:
    // The chain, which is nobody's then.
    CRez* release();

    CRez* m_head = nullptr;
    CRez* m_last = nullptr;
};

// First difference of two designs, walked from their heads in step: 0 the same; 1 a compared field
// differs or the second ended first; 2 the first ended first; 11 / 12 the second head has fewer /
// more bends; 20 the names differ. A missing name equals an empty one.
int compare(const CRez* first, const CRez* second);

}  // namespace lx
