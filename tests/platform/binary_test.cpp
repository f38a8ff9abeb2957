#include "platform/binary.h"

#include <gtest/gtest.h>

#include <limits>

namespace lx {
namespace {

TEST(Binary, ReadsBackWhatItWrote) {
    BinaryWriter writer;
    writer.int32(-14300);
    writer.float64(1.5);
    writer.byte(0xC8);
    writer.zeroTerminated("KP 7/?");
    writer.raw("AB");
    ASSERT_EQ(writer.bytes().substr(0, 4), std::string("\x24\xC8\xFF\xFF", 4));

    BinaryReader reader(writer.bytes());
    EXPECT_EQ(reader.int32(), -14300);
    EXPECT_EQ(reader.float64(), 1.5);
    EXPECT_EQ(reader.byte(), 0xC8);
    EXPECT_EQ(reader.zeroTerminated(), "KP 7/?");
    EXPECT_EQ(reader.raw(2), "AB");
    EXPECT_TRUE(reader.atEnd());
    EXPECT_FALSE(reader.cutShort());
}

TEST(Binary, NeverRunsPastTheEnd) {
    BinaryReader number("\x01\x02\x03");
    EXPECT_EQ(number.int32(), 0);
    EXPECT_TRUE(number.cutShort());
    EXPECT_EQ(number.byte(), 0) << "nothing more is read once something was cut short";

    BinaryReader text("abc");
    EXPECT_EQ(text.zeroTerminated(), "abc");
    EXPECT_TRUE(text.cutShort());

    BinaryReader raw("abc");
    EXPECT_EQ(raw.raw(std::numeric_limits<std::size_t>::max()), "");
    EXPECT_TRUE(raw.cutShort());
    EXPECT_FALSE(raw.seek(4));
    EXPECT_TRUE(raw.seek(3));
}

}  // namespace
}  // namespace lx
