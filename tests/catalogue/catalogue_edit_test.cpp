#include "catalogue/catalogue_edit.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/numbers.h"

namespace lx {
namespace {

constexpr CatalogueKind precast = CatalogueKind::precast;
constexpr CatalogueKind steel = CatalogueKind::steel;

struct Entry {
    std::int32_t group;
    const char* designation;
};

Catalogue chainOf(std::initializer_list<Entry> entries) {
    Catalogue chain;
    Catalogue* end = &chain;
    for (const Entry& entry : entries) {
        *end = std::make_unique<CPreklItem>();
        (*end)->group = entry.group;
        (*end)->designation = entry.designation;
        end = &(*end)->next;
    }
    return chain;
}

// Types A, B, C, their items in lower case, not all behind their own type.
Catalogue threeTypes() {
    return chainOf({{-1, "A"},
                    {1, "a"},
                    {-2, "B"},
                    {2, "b"},
                    {3, "c"},
                    {-3, "C"},
                    {1, "aa"},
                    {3, "cc"},
                    {2, "bb"}});
}

Text shown(const Catalogue& chain) {
    Text text;
    for (const CPreklItem* record = chain.get(); record; record = record->next.get()) {
        text += (text.empty() ? "" : " ") + record->designation.value_or("?") +
                formatInt(record->group);
    }
    return text;
}

TEST(CatalogueEdit, AppendsTypesUnderTheNextNumber) {
    Catalogue chain;
    appendType(chain, "A", precast, 3);
    EXPECT_EQ(chain->length, 0);
    EditorTexts texts;
    texts.designation = "a";
    appendItem(chain, *chain, texts);
    EXPECT_EQ(appendType(chain, "B", steel, 3).length, 3);
    EXPECT_EQ(shown(chain), "A-1 a1 B-2");
    EXPECT_EQ(typeRecords(chain.get()).size(), 2U);
    EXPECT_EQ(typeRecords(chain.get())[1]->designation, "B");
    EXPECT_TRUE(typeRecords(nullptr).empty());
}

TEST(CatalogueEdit, RefusesNamesThatAreTaken) {
    const Catalogue chain = chainOf({{-1, "Čedič"}, {1, "item"}, {-2, "B"}});
    chain->designation = "Čedič"_cz;
    EXPECT_EQ(newTypeRefusal(chain.get(), ""), 20);
    EXPECT_EQ(newTypeRefusal(chain.get(), "čEDIČ"_cz), 19);
    EXPECT_EQ(newTypeRefusal(chain.get(), "b"), 19);
    EXPECT_EQ(newTypeRefusal(chain.get(), "item"), 0);
    EXPECT_EQ(newTypeRefusal(nullptr, "B"), 0);

    EXPECT_EQ(renameRefusal(chain.get(), *chain, ""), 27);
    EXPECT_EQ(renameRefusal(chain.get(), *chain, "Čedič"_cz), 0);
    EXPECT_EQ(renameRefusal(chain.get(), *chain, "čedič"_cz), 19);
    EXPECT_EQ(renameRefusal(chain.get(), *chain, "b"), 19);
    EXPECT_EQ(renameRefusal(chain.get(), *chain, "ITEM"), 0);
}

TEST(CatalogueEdit, DeletesATypeAndClosesUpTheOthers) {
    Catalogue chain = threeTypes();
    ASSERT_TRUE(deleteType(chain, 1));
    EXPECT_EQ(shown(chain), "A-1 a1 c2 C-2 aa1 cc2");
    ASSERT_TRUE(deleteType(chain, 1));
    EXPECT_EQ(shown(chain), "A-1 a1 aa1");
    EXPECT_FALSE(deleteType(chain, 0));
    EXPECT_FALSE(deleteType(chain, 1));
    EXPECT_EQ(shown(chain), "A-1 a1 aa1");

    chain = threeTypes();
    ASSERT_TRUE(deleteType(chain, 0));
    EXPECT_EQ(shown(chain), "A-1 B-2 b2 c3 C-3 cc3 bb2");
    EXPECT_FALSE(deleteType(chain, 3));
    EXPECT_FALSE(deleteType(chain, -1));
    Catalogue none;
    EXPECT_FALSE(deleteType(none, 0));

    // An item is closed up also where it stands before its type.
    chain = chainOf({{-1, "A"}, {3, "c"}, {-2, "B"}, {-3, "C"}});
    ASSERT_TRUE(deleteType(chain, 1));
    EXPECT_EQ(shown(chain), "A-1 c2 C-2");
}

TEST(CatalogueEdit, TakesAChainThatADamagedFileMade) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
    Catalogue chain = chainOf({{2, "head"}, {-1, "A"}, {lowest, "Z"}, {highest, "z"}, {0, "n"}});
    EditorTexts texts;
    texts.designation = "y";
    appendItem(chain, *typeRecords(chain.get())[1], texts);
    ASSERT_TRUE(deleteType(chain, 1));
    EXPECT_EQ(shown(chain), "head2 A-1 n0");

    chain = chainOf({{2, "head"}, {-1, "A"}, {-2, "B"}, {2, "b"}, {highest, "z"}, {lowest, "Z"}});
    ASSERT_TRUE(deleteType(chain, 1));
    EXPECT_EQ(shown(chain), "head2 A-1 z2147483646 Z-2147483647");
}

TEST(CatalogueEdit, FillsTheEditorFromARecordAndBack) {
    CPreklItem item;
    EditorTexts texts = editorTexts(item);
    EXPECT_EQ(texts.designation + texts.description + texts.mark, "");
    EXPECT_EQ(texts.maxOpening + texts.weight + texts.qu, "00.00.000");

    item.length = -125;
    item.width = 1;
    item.height = 2;
    item.maxOpening = 3;
    item.weight = 12.25;
    item.qu = -1.5;
    item.designation = "KPM";
    item.description = "x";
    item.compositionMark = 'X';
    texts = editorTexts(item);
    EXPECT_EQ(texts.weight, "12.3");
    EXPECT_EQ(texts.qu, "-1.500");
    CPreklItem copy;
    changeItem(copy, texts);
    EXPECT_EQ(copy.length, -125);
    EXPECT_EQ(copy.width, 1);
    EXPECT_EQ(copy.height, 2);
    EXPECT_EQ(copy.maxOpening, 3);
    EXPECT_EQ(copy.weight, 12.3);
    EXPECT_EQ(copy.qu, -1.5);
    EXPECT_EQ(copy.designation, "KPM");
    EXPECT_EQ(copy.description, "x");
    EXPECT_EQ(copy.compositionMark, 'X');

    // Marks below "0" are not shown, those of the upper half of the code page are.
    const struct {
        char mark;
        std::string_view text;
    } marks[] = {{' ', ""}, {'/', ""}, {'0', "0"}, {'Z', "Z"}, {'\xC8', "Č"_cz}, {'\0', ""}};
    for (const auto& expected : marks) {
        item.compositionMark = expected.mark;
        EXPECT_EQ(editorTexts(item).mark, expected.text) << int{expected.mark};
    }
}

TEST(CatalogueEdit, ReadsLeadingNumbersAndKeepsAnEmptyMarkAndDescription) {
    Catalogue chain = chainOf({{-1, "A"}, {-2, "B"}});
    EditorTexts texts;
    texts.designation = "b";
    texts.length = "12,5";
    texts.width = "-";
    texts.height = "99999999999";
    texts.weight = "1.5kg";
    texts.qu = "";
    texts.mark = "XY";
    CPreklItem& item = appendItem(chain, *chain->next, texts);
    EXPECT_EQ(shown(chain), "A-1 B-2 b2");
    EXPECT_EQ(item.length, 12);
    EXPECT_EQ(item.width, 0);
    EXPECT_EQ(item.height, std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(item.maxOpening, 0);
    EXPECT_EQ(item.weight, 1.5);
    EXPECT_EQ(item.qu, 0.0);
    EXPECT_EQ(item.description, Text());
    EXPECT_EQ(item.compositionMark, 'X');

    texts.mark.clear();
    changeItem(item, texts);
    EXPECT_EQ(item.compositionMark, 'X');
    EXPECT_EQ(appendItem(chain, *chain, texts).compositionMark, ' ');
}

TEST(CatalogueEdit, UnlinksAnItemAnywhere) {
    Catalogue chain = chainOf({{1, "head"}, {-1, "A"}, {1, "a"}});
    const CPreklItem stranger;
    EXPECT_EQ(unlinkItem(chain, stranger), nullptr);
    const std::unique_ptr<CPreklItem> last = unlinkItem(chain, *chain->next->next);
    EXPECT_EQ(last->designation, "a");
    EXPECT_EQ(shown(chain), "head1 A-1");
    const std::unique_ptr<CPreklItem> head = unlinkItem(chain, *chain);
    EXPECT_EQ(head->next, nullptr);
    EXPECT_EQ(shown(chain), "A-1");
    EXPECT_TRUE(unlinkItem(chain, *chain));
    EXPECT_EQ(chain, nullptr);
}

}  // namespace
}  // namespace lx
