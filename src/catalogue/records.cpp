#include "catalogue/records.h"

#include <utility>

namespace lx {

CPreklItem::CPreklItem(const CPreklItem& other, Alone)
    : rowNo(other.rowNo),
      group(other.group),
      length(other.length),
      width(other.width),
      height(other.height),
      maxOpening(other.maxOpening),
      weight(other.weight),
      qu(other.qu),
      designation(other.designation),
      description(other.description),
      compositionMark(other.compositionMark) {}

CPreklItem::CPreklItem(const CPreklItem& other) : CPreklItem(other, Alone{}) {
    CPreklItem* last = this;
    for (const CPreklItem* source = other.next.get(); source; source = source->next.get()) {
        last->next = source->copyAlone();
        last = last->next.get();
    }
}

CPreklItem::~CPreklItem() {
    for (std::unique_ptr<CPreklItem> rest = std::move(next); rest;) rest = std::move(rest->next);
}

std::unique_ptr<CPreklItem> CPreklItem::copyAlone() const {
    return std::unique_ptr<CPreklItem>(new CPreklItem(*this, Alone{}));
}

}  // namespace lx
