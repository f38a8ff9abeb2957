// Records as no user makes them: texts of all bytes and of the longest lengths, numbers at the ends
// of their ranges. The same for a seed on every machine.
#pragma once

#include <bit>
#include <limits>
#include <random>

#include "catalogue/catalogue_file.h"
#include "composition/CRez.h"
#include "composition/stored_form.h"
#include "tests/support/catalogues.h"

namespace lx {

class RandomRecords {
public:
    explicit RandomRecords(unsigned seed) : m_random(seed) {}

    // 0 to count - 1
    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    bool oneIn(int count) { return below(count) == 0; }

    std::int32_t number() {
        constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
        constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
        constexpr std::int32_t odd[] = {lowest, lowest + 1, -1, 0, 1, 255, highest - 1, highest};
        if (oneIn(2)) return odd[below(std::size(odd))];
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(m_random()));
    }
    double real() {
        using Limits = std::numeric_limits<double>;
        const double odd[] = {0.0,
                              -0.0,
                              Limits::max(),
                              Limits::lowest(),
                              Limits::denorm_min(),
                              0.1,
                              Limits::infinity(),
                              -Limits::infinity(),
                              Limits::quiet_NaN()};
        if (oneIn(2)) return odd[below(std::size(odd))];
        const std::uint64_t high = m_random();
        return std::bit_cast<double>(high << 32U | m_random());
    }
    // Up to that many bytes, none of them zero.
    Text text(std::size_t longest) {
        const std::size_t sizes[] = {0, 1, longest - 1, longest, m_random() % (longest + 1)};
        Text made(sizes[below(std::size(sizes))], '\0');
        for (char& c : made) c = static_cast<char>(1 + below(255));
        return made;
    }
    char letter() { return static_cast<char>(below(256)); }

    Catalogue catalogue() {
        Catalogue head;
        Catalogue* end = &head;
        for (int left = below(8); left > 0; --left) {
            CPreklItem& record = appended(end);
            CPreklItem::eachField(*this, record);
        }
        return head;
    }
    // Few names, so that catalogues meet each other. Types in order, as the module numbers them, or
    // any numbers.
    Catalogue colliding(bool anyNumbers) {
        constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
        constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
        Catalogue head;
        Catalogue* end = &head;
        std::int32_t types = 0;
        for (int left = below(25); left > 0; --left) {
            CPreklItem& record = appended(end);
            CPreklItem::eachField(*this, record);
            record.group = oneIn(3) ? -++types : below(6);
            if (anyNumbers) record.group = oneIn(8) ? (oneIn(2) ? lowest : highest) : below(8) - 4;
            record.length = below(4);
            record.designation.reset();
            if (!oneIn(5)) record.designation = Text(1, "aAbB"[below(4)]);
        }
        return head;
    }

    // A head with bends and layers of any kind but a head's.
    RezChain design() {
        RezChain made;
        for (int left = 1 + below(5); left > 0; --left) {
            auto record = std::make_unique<CRez>();
            CRez::eachField(*this, *record);
            if (made.empty()) {
                record->kind = Kind::head;
                record->name.reset();
                record->setLabel(text(3));
                for (int bends = below(4); bends > 0; --bends) {
                    record->addBend(number(), number(), oneIn(2));
                }
            } else {
                if (record->kind == Kind::head) record->kind = Kind::space;
            }
            made.append(std::move(record));
        }
        return made;
    }

    // The fields of records.
    void operator()(const RezField&, std::int32_t& value) { value = number(); }
    void operator()(const RezField&, Kind& kind) { kind = Kind{number()}; }
    void operator()(const RezField&, char& value) { value = letter(); }
    void operator()(const RezField&, std::optional<Text>& name) {
        if (!oneIn(4)) name = text(storedNameLimit);
    }
    void operator()(const RezField&, const std::unique_ptr<CZalom>&) {}

    void operator()(const char*, std::int32_t& value) { value = number(); }
    void operator()(const char*, double& value) { value = real(); }
    void operator()(const char*, char& value) { value = letter(); }
    // An empty text is stored as none.
    void operator()(const char*, std::optional<Text>& value) {
        value = text(catalogueTextLimit);
        if (value->empty()) value.reset();
    }

private:
    std::mt19937 m_random;
};

}  // namespace lx
