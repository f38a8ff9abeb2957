#include "catalogue/catalogue_edit.h"

#include <cstddef>
#include <limits>
#include <utility>

#include "platform/numbers.h"
#include "resources/strings.h"

namespace lx {

namespace {

bool hasType(const CPreklItem* chain, std::string_view name) {
    for (const CPreklItem* record = chain; record; record = record->next.get()) {
        if (record->isType() && equalIgnoringCase(record->nameOrEmpty(), name)) return true;
    }
    return false;
}

CPreklItem& append(Catalogue& chain, std::int32_t group) {
    Catalogue* end = &chain;
    while (*end) end = &(*end)->next;
    *end = std::make_unique<CPreklItem>();
    (*end)->group = group;
    return **end;
}

std::unique_ptr<CPreklItem> takeOut(Catalogue& link) {
    std::unique_ptr<CPreklItem> record = std::move(link);
    link = std::move(record->next);
    return record;
}

// The group of the type's items. A damaged file may hold the one number that has no opposite.
std::int32_t itemGroup(const CPreklItem& type) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    return type.group == lowest ? std::numeric_limits<std::int32_t>::max() : -type.group;
}

// After the type of that number is gone.
void closeUp(CPreklItem* chain, std::int32_t number) {
    for (CPreklItem* record = chain; record; record = record->next.get()) {
        if (record->group > number) --record->group;
        if (record->group < -number) ++record->group;
    }
}

// visit(text, value of the item, its decimals)
template <class Texts, class Item, class Visit>
void eachValue(Texts& texts, Item& item, const Visit& visit) {
#define LX_VISIT(type, name, initial, decimals) visit(texts.name, item.name, decimals)
    LX_ITEM_VALUES(LX_VISIT)
#undef LX_VISIT
}

struct Shown {
    void operator()(Text& text, std::int32_t value, int) const { text = formatInt(value); }
    void operator()(Text& text, double value, int decimals) const {
        text = formatFixed(value, decimals);
    }
    void operator()(Text& text, const std::optional<Text>& value, int) const {
        text = value.value_or(Text());
    }
    void operator()(Text& text, char mark, int) const {
        text.clear();
        if (static_cast<unsigned char>(mark) >= '0') text = Text(1, mark);
    }
};

struct Typed {
    void operator()(const Text& text, std::int32_t& value, int) const { value = leadingInt(text); }
    void operator()(const Text& text, double& value, int) const { value = leadingDouble(text); }
    void operator()(const Text& text, std::optional<Text>& value, int) const { value = text; }
    void operator()(const Text& text, char& mark, int) const {
        if (!text.empty()) mark = text.front();
    }
};

void fill(EditorTexts& texts, const CPreklItem& item) {
    eachValue(texts, item, Shown());
}

}  // namespace

EditorTexts::EditorTexts() {
    fill(*this, CPreklItem());
    maxOpening.clear();
}

EditorTexts editorTexts(const CPreklItem& item) {
    EditorTexts texts;
    fill(texts, item);
    return texts;
}

std::vector<CPreklItem*> typeRecords(CPreklItem* chain) {
    std::vector<CPreklItem*> types;
    for (CPreklItem* record = chain; record; record = record->next.get()) {
        if (record->isType()) types.push_back(record);
    }
    return types;
}

CPreklItem* typeAt(CPreklItem* chain, int position) {
    const std::vector<CPreklItem*> types = typeRecords(chain);
    if (position < 0 || static_cast<std::size_t>(position) >= types.size()) return nullptr;
    return types[static_cast<std::size_t>(position)];
}

std::string_view newTypeRefusal(const CPreklItem* chain, std::string_view name) {
    if (name.empty()) return text::designationMissing;
    return hasType(chain, name) ? text::nameTaken : std::string_view();
}

std::string_view renameRefusal(const CPreklItem* chain, const CPreklItem& type,
                               std::string_view name) {
    if (name.empty()) return text::nameMissing;
    return name != type.nameOrEmpty() && hasType(chain, name) ? text::nameTaken
                                                              : std::string_view();
}

CPreklItem& appendType(Catalogue& chain, std::string_view name, CatalogueKind kind, int shape) {
    const std::size_t types = typeRecords(chain.get()).size();
    CPreklItem& type = append(chain, -static_cast<std::int32_t>(types) - 1);
    type.designation = Text(name);
    if (kind == CatalogueKind::steel) type.length = shape;
    return type;
}

bool deleteType(Catalogue& chain, int position) {
    const CPreklItem* type = typeAt(chain.get(), position);
    if (type == nullptr || typeRecords(chain.get()).size() < 2) return false;
    const bool stays = position == 0;
    const std::int32_t number = itemGroup(*type);
    for (Catalogue* link = &chain->next; *link;) {
        const CPreklItem& record = **link;
        if (record.group == number || (&record == type && !stays)) {
            takeOut(*link);
        } else {
            link = &(*link)->next;
        }
    }
    if (!stays) closeUp(chain.get(), number);
    return true;
}

CPreklItem& appendItem(Catalogue& chain, const CPreklItem& type, const EditorTexts& texts) {
    CPreklItem& item = append(chain, itemGroup(type));
    changeItem(item, texts);
    return item;
}

void changeItem(CPreklItem& item, const EditorTexts& texts) {
    eachValue(texts, item, Typed());
}

std::unique_ptr<CPreklItem> unlinkItem(Catalogue& chain, const CPreklItem& item) {
    Catalogue* link = &chain;
    while (*link && link->get() != &item) link = &(*link)->next;
    return *link ? takeOut(*link) : nullptr;
}

}  // namespace lx
