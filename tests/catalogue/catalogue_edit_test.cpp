#include "catalogue/catalogue_edit.h"

#include <gtest/gtest.h>

#include <limits>

#include "catalogue/catalogue_file.h"
#include "resources/strings.h"
#include "tests/support/catalogues.h"
#include "tests/support/readable.h"

namespace lx {
namespace {

// Types A, B, C, their items in lower case, not all behind their own type.
Catalogue threeTypes() {
    return catalogueOf({{-1, "A"},
                        {1, "a"},
                        {-2, "B"},
                        {2, "b"},
                        {3, "c"},
                        {-3, "C"},
                        {1, "aa"},
                        {3, "cc"},
                        {2, "bb"}});
}

TEST(CatalogueEdit, RefusesNamesThatAreTaken) {
    const Catalogue chain = catalogueOf({{-1, "Čedič"}, {1, "item"}, {-2, "B"}});
    const struct {
        std::string_view name, added, renamed;  // the messages, for the first type renamed
    } cases[] = {{"", text::designationMissing, text::nameMissing},
                 {"Čedič"_cz, text::nameTaken, ""},
                 {"čEDIČ"_cz, text::nameTaken, text::nameTaken},
                 {"b", text::nameTaken, text::nameTaken},
                 {"ITEM", "", ""}};
    for (const auto& one : cases) {
        EXPECT_EQ(newTypeRefusal(chain.get(), one.name), one.added) << one.name;
        EXPECT_EQ(renameRefusal(chain.get(), *chain, one.name), one.renamed) << one.name;
    }
}

TEST(CatalogueEdit, DeletesATypeAndClosesUpTheOthers) {
    Catalogue chain = threeTypes();
    ASSERT_TRUE(deleteType(chain, 1));
    EXPECT_EQ(shown(chain), "-1:A 1:a 2:c -2:C 1:aa 2:cc");
    ASSERT_TRUE(deleteType(chain, 1));
    for (const int none : {0, 1, -1}) EXPECT_FALSE(deleteType(chain, none)) << none;
    EXPECT_EQ(shown(chain), "-1:A 1:a 1:aa");

    chain = threeTypes();
    ASSERT_TRUE(deleteType(chain, 0));
    EXPECT_EQ(shown(chain), "-1:A -2:B 2:b 3:c -3:C 3:cc 2:bb");

    // An item is closed up also where it stands before its type.
    chain = catalogueOf({{-1, "A"}, {3, "c"}, {-2, "B"}, {-3, "C"}});
    ASSERT_TRUE(deleteType(chain, 1));
    EXPECT_EQ(shown(chain), "-1:A 2:c -2:C");
}

TEST(CatalogueEdit, TakesAChainThatADamagedFileMade) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
    Catalogue chain =
        catalogueOf({{2, "head"}, {-1, "A"}, {lowest, "Z"}, {highest, "z"}, {0, "n"}});
    EditorTexts texts;
    texts.designation = "y";
    appendItem(chain, *typeRecords(chain.get())[1], texts);
    ASSERT_TRUE(deleteType(chain, 1));
    EXPECT_EQ(shown(chain), "2:head -1:A 0:n");

    chain =
        catalogueOf({{2, "head"}, {-1, "A"}, {-2, "B"}, {2, "b"}, {highest, "z"}, {lowest, "Z"}});
    ASSERT_TRUE(deleteType(chain, 1));
    EXPECT_EQ(shown(chain), "2:head -1:A 2147483646:z -2147483647:Z");
}

TEST(CatalogueEdit, FillsTheEditorFromARecordAndBack) {
    EditorTexts texts = editorTexts(CPreklItem());
    EXPECT_EQ(texts.designation + texts.description + texts.compositionMark, "");
    EXPECT_EQ(texts.maxOpening + texts.weight + texts.qu, "00.00.000");

    const Catalogue made = madeCatalogue(1, 1);
    CPreklItem& item = *made->next;
    item.group = CPreklItem().group;
    item.description = "x";
    item.weight = 12.25;
    item.qu = -1.5;
    item.compositionMark = 'X';
    texts = editorTexts(item);
    EXPECT_EQ(texts.weight + texts.qu, "12.3-1.500");
    CPreklItem copy;
    changeItem(copy, texts);
    item.weight = 12.3;
    EXPECT_EQ(catalogueBytes(&copy), catalogueBytes(&item));

    // Marks below "0" are not shown, those of the upper half of the code page are.
    const struct {
        char mark;
        std::string_view text;
    } marks[] = {{' ', ""}, {'/', ""}, {'0', "0"}, {'Z', "Z"}, {'\xC8', "Č"_cz}, {'\0', ""}};
    for (const auto& expected : marks) {
        item.compositionMark = expected.mark;
        EXPECT_EQ(editorTexts(item).compositionMark, expected.text) << int{expected.mark};
    }
}

TEST(CatalogueEdit, ReadsLeadingNumbersAndKeepsAnEmptyMarkAndDescription) {
    Catalogue chain = catalogueOf({{-1, "A"}, {-2, "B"}});
    EditorTexts texts;
    texts.designation = "b";
    texts.length = "12,5";
    texts.width = "-";
    texts.height = "99999999999";
    texts.weight = "1.5kg";
    texts.qu = "";
    texts.compositionMark = "XY";
    CPreklItem& item = appendItem(chain, *chain->next, texts);
    EXPECT_EQ(readable(&item),
              "group=2 length=12 width=0 height=2147483647 maxOpening=0 weight=1.5 qu=0 "
              "designation=\"b\" description=\"\" compositionMark=\"X\"\n");

    texts.compositionMark.clear();
    changeItem(item, texts);
    EXPECT_EQ(item.compositionMark, 'X');
    EXPECT_EQ(appendItem(chain, *chain, texts).compositionMark, ' ');
}

}  // namespace
}  // namespace lx
