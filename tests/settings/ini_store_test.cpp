#include "settings/ini_store.h"

#include <gtest/gtest.h>

#include "tests/support/memory_files.h"

namespace lx {
namespace {

using namespace std::literals;

const Path path = "settings.dat";

class StoreTest : public ::testing::Test {
protected:
    StoreTest() { store.open(path, "SETTINGS"); }

    MemoryFiles files;
    prf_store store{files};

    void hold(std::string_view value) {
        files.content[path] = "[SETTINGS]\r\nk=" + Text(value) + "\r\n";
    }
    Text held() {
        const Bytes& all = files.content[path];
        const std::size_t begin = all.find("k=") + 2;
        return all.substr(begin, all.find("\r\n", begin) - begin);
    }
};

TEST_F(StoreTest, IsUnboundWithoutBothNames) {
    hold("5");
    std::int32_t number = 0;
    EXPECT_FALSE(store.open(path, std::nullopt));
    EXPECT_FALSE(store.get_int("k", number));
    EXPECT_FALSE(store.open(std::nullopt, "SETTINGS"));
    EXPECT_FALSE(store.set_int("k", 6));
    EXPECT_TRUE(store.open(path, "settings"));
    EXPECT_TRUE(store.get_int("k", number));
    EXPECT_EQ(number, 5);
    store.close();
    std::vector<std::int32_t> list{1};
    EXPECT_FALSE(store.set_int_array("k", list));
    EXPECT_FALSE(store.write_binary("k", "x"));
    EXPECT_EQ(held(), "5");
}

TEST_F(StoreTest, ConvertsIntegersFromTextAndBinary) {
    const struct {
        bool textMode;
        const char* value;
        bool success;
        std::int32_t number;
    } cases[] = {
        {true, "12", true, 12},
        {true, "12abc", false, 12},
        {true, "", true, 0},
        {true, "-7", true, -7},
        {true, "99999999999", true, INT32_MAX},
        {true, "$EMPTY$", false, 77},
        {true, "x", false, 0},
        // Text comes first in text mode, also where the value looks like a block.
        {true, "0000000405000000", true, 405000000},
        {false, "0000000405000000", true, 5},
        {false, "12", true, 12},
        {false, "00000002ABCD", false, 77},
        {false, "000000050500000000", false, 77},
        {false, "0000000aAB", false, 0},
    };
    for (const auto& c : cases) {
        hold(c.value);
        store.text_mode = c.textMode;
        std::int32_t number = 77;
        EXPECT_EQ(store.get_int("k", number), c.success) << c.value;
        EXPECT_EQ(number, c.number) << c.value;
    }
    std::int32_t untouched = 77;
    EXPECT_FALSE(store.get_int("missing", untouched));
    EXPECT_EQ(untouched, 77);
}

TEST_F(StoreTest, WritesEachModeSoThatItReadsBack) {
    EXPECT_TRUE(store.set_int("k", -5));
    EXPECT_EQ(held(), "-5");
    EXPECT_TRUE(store.set_double("k", 0.1));
    EXPECT_EQ(held(), "0.1");
    EXPECT_TRUE(store.set_double("k", 1e20));
    EXPECT_EQ(held(), "1e+20");
    const std::vector<std::int32_t> integers{1, -2, 3};
    EXPECT_TRUE(store.set_int_array("k", integers));
    EXPECT_EQ(held(), "1;-2;3");
    EXPECT_FALSE(store.set_int_array("k", {}));
    const std::vector<double> numbers{0.5, -2e-7};
    EXPECT_TRUE(store.set_double_array("k", numbers));
    EXPECT_EQ(held(), "0.5;-2e-07");
    std::vector<double> numbersBack;
    EXPECT_TRUE(store.get_double_array("k", numbersBack));
    EXPECT_EQ(numbersBack, numbers);

    store.text_mode = false;
    EXPECT_TRUE(store.set_int("k", 0x12AB34CD));
    EXPECT_EQ(held(), "00000004CD34AB12");
    EXPECT_TRUE(store.set_double_array("k", numbers));
    EXPECT_TRUE(store.get_double_array("k", numbersBack));
    EXPECT_EQ(numbersBack, numbers);
    double number = 0;
    EXPECT_TRUE(store.set_double("k", 0.1));
    EXPECT_TRUE(store.get_double("k", number));
    EXPECT_EQ(number, 0.1);
    EXPECT_TRUE(store.set_int_array("k", integers));
    std::vector<std::int32_t> integersBack;
    EXPECT_TRUE(store.get_int_array("k", integersBack));
    EXPECT_EQ(integersBack, integers);

    files.readOnly = true;
    EXPECT_FALSE(store.set_int("k", 1));
}

TEST_F(StoreTest, ReadsIntegerListsFromTextAndBinary) {
    using List = std::vector<std::int32_t>;
    const struct {
        const char* value;
        List list;
    } cases[] = {
        {"1;2;3", {1, 2, 3}},
        {"1;2;", {1, 2}},
        {"1;;2", {1, 0, 2}},
        {"1; 2", {1, 2}},
        {"", {}},
        {"0000000801000000FFFFFFFF", {1, -1}},
        {"00000000", {}},
        // A block that is no whole number of elements is read as text.
        {"000000020100", {20100}},
    };
    for (const auto& c : cases) {
        hold(c.value);
        List list{9};
        EXPECT_TRUE(store.get_int_array("k", list)) << c.value;
        EXPECT_EQ(list, c.list) << c.value;
    }
    const std::string most(1000000, ';');
    hold(most);
    List zeros;
    EXPECT_TRUE(store.get_int_array("k", zeros));
    EXPECT_EQ(zeros.size(), most.size());
    for (const std::string& refused : {"1,2"s, "1;x"s, "1 ;2"s, "0000000201AB"s, most + ";"}) {
        hold(refused);
        List list{9};
        EXPECT_FALSE(store.get_int_array("k", list)) << refused.substr(0, 20);
        EXPECT_EQ(list, List{9}) << refused.substr(0, 20);
    }
}

TEST_F(StoreTest, BinaryBlocksAreCheckedAgainstTheirLength) {
    for (const char* value : {"00000002ABCD", "00000002abcd", "00000000"}) {
        hold(value);
        Bytes block = "old";
        EXPECT_TRUE(store.read_binary("k", block)) << value;
        EXPECT_EQ(block, value[7] == '2' ? "\xAB\xCD" : "") << value;
    }
    for (const char* value :
         {"0000000aAB", "00000003ABCD", "00000002ABCDE", "00000002ABCDEF",
          "0000000a00112233445566778899", "00000002ABCG", "00000002", "0000000", "FFFFFFFFAB"}) {
        hold(value);
        Bytes block = "old";
        EXPECT_FALSE(store.read_binary("k", block)) << value;
        EXPECT_EQ(block, "") << value;
    }
    for (const std::size_t size : {std::size_t{32767}, std::size_t{32768}}) {
        const Bytes block(size, '\xA5');
        Bytes back;
        EXPECT_TRUE(store.write_binary("k", block));
        EXPECT_EQ(store.read_binary("k", back), size < 32768);
        if (size < 32768) {
            EXPECT_EQ(back, block);
        }
    }
}

TEST_F(StoreTest, StringListsAreBlocksOfZeroEndedTexts) {
    const std::vector<Text> texts{"a", "", "\xC8tvrt\xFD"};
    EXPECT_TRUE(store.set_string_list("k", texts));
    EXPECT_EQ(held(), "0000000A610000C874767274FD00");
    std::vector<Text> back;
    EXPECT_TRUE(store.get_string_list("k", back));
    EXPECT_EQ(back, texts);
    hold("0000000361006");
    EXPECT_FALSE(store.get_string_list("k", back));
    hold("00000003610062");  // the second text has no end
    EXPECT_TRUE(store.get_string_list("k", back));
    EXPECT_EQ(back, std::vector<Text>{"a"});
}

}  // namespace
}  // namespace lx
