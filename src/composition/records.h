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

// A step of the lintel head across the wall. Owns the bends behind it; destroyed without recursion.
class CZalom {
public:
    CZalom(std::int32_t runMm, std::int32_t stepMm, bool isFlagged)
        : run(runMm), step(stepMm), flag(isFlagged) {}
    CZalom(const CZalom& other) : run(other.run), step(other.step), flag(other.flag) {}
    CZalom& operator=(const CZalom&) = delete;
    virtual ~CZalom();

    std::int32_t run = 0;   // mm from the previous bend, or from the first wall face
    std::int32_t step = 0;  // mm, signed: change of the head's level here
    bool flag = false;      // a sloping last bend
    std::unique_ptr<CZalom> next;
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

    std::int32_t bearing = 0;  // mm; not 0: the length follows the opening by this much at each end
    std::int32_t typeIndex = 0;   // catalogue type, from 0
    std::int32_t itemIndex = 0;   // item within its type, from 0; head: the label
    std::int32_t width = 0;       // mm across the wall; head: wall thickness
    std::int32_t height = 0;      // mm; head: level of the lintel
    std::int32_t length = 0;      // mm; head: opening width
    std::int32_t weight = 0;      // catalogue weight x 1000
    std::int32_t maxOpening = 0;  // mm; head: its bearing
    std::int32_t offset = 0;      // mm from the first wall face, by layOut
    std::int32_t level = 0;       // mm, by layOut; head: the project
    Kind kind = Kind::precast;
    std::optional<Text> name;       // layers; none where a catalogue item has no designation
    std::unique_ptr<CZalom> bends;  // head
    char letter = ' ';              // composition letter
    CRez* next = nullptr;           // not owned
};

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
