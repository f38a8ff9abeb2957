#include <utility>

#include "composition/CRez.h"

namespace lx {

RezChain::RezChain(RezChain&& other) noexcept
    : m_head(std::exchange(other.m_head, nullptr)), m_last(std::exchange(other.m_last, nullptr)) {}

RezChain& RezChain::operator=(RezChain&& other) noexcept {
    if (this == &other) return *this;
    clear();
    m_head = std::exchange(other.m_head, nullptr);
    m_last = std::exchange(other.m_last, nullptr);
    return *this;
}

bool RezChain::contains(const CRez* record) const {
    const CRez* walker = m_head;
    while (walker && walker != record) walker = walker->next;
    return walker != nullptr;
}

CRez* RezChain::before(const CRez* record) const {
    for (CRez* walker = m_head; walker; walker = walker->next) {
        if (walker->next && walker->next == record) return walker;
    }
    return nullptr;
}

void RezChain::clear() {
    for (CRez* record = release(); record;) delete std::exchange(record, record->next);
}

CRez* RezChain::append(std::unique_ptr<CRez> record) {
    if (m_last) return insertAfter(m_last, std::move(record));
    m_head = m_last = record.release();
    m_head->next = nullptr;
    return m_head;
}

CRez* RezChain::insertAfter(CRez* after, std::unique_ptr<CRez> record) {
    CRez* inserted = record.release();
    inserted->next = std::exchange(after->next, inserted);
    if (m_last == after) m_last = inserted;
    return inserted;
}

std::unique_ptr<CRez> RezChain::unlink(CRez* record) {
    if (!record || !contains(record)) return nullptr;
    CRez* previous = before(record);
    (previous ? previous->next : m_head) = record->next;
    if (m_last == record) m_last = previous;
    record->next = nullptr;
    return std::unique_ptr<CRez>(record);
}

CRez* RezChain::release() {
    m_last = nullptr;
    return std::exchange(m_head, nullptr);
}

}  // namespace lx
