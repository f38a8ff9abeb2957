#include "lxtool/catalogue_index.h"

#include "lxtool/catalogue_records.h"

namespace lx::lxtool {

namespace {

constexpr std::size_t nameOffset = 36;  // of a record's designation

}  // namespace

std::optional<CatalogueIndex> indexOf(Session& session, std::string_view name,
                                      std::string_view bytes) {
    CatalogueIndex index;
    bool whole = true;
    CatalogueRecords records(bytes);
    for (bool more = true; more;) {
        more = records.next();
        if (!records.damage().empty()) {
            session.messages.tell(name, records.line(),
                                  records.damage() + "; wanted is a whole catalogue");
            whole = false;
        }
        if (!more) break;
        const CPreklItem& record = records.record();
        IndexedRecord indexed;
        indexed.name = bytes.substr(records.position() + nameOffset, record.nameOrEmpty().size());
        indexed.position = records.position();
        indexed.line = records.line();
        indexed.group = record.group;
        (record.isType() ? index.types : index.items).push_back(indexed);
    }
    if (!whole) return std::nullopt;
    for (IndexedRecord& item : index.items) {
        const auto number = static_cast<std::size_t>(item.group);
        item.type =
            number >= 1 && number <= index.types.size() ? number - 1 : CatalogueIndex::noType;
    }
    return index;
}

}  // namespace lx::lxtool
