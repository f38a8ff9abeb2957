#include "platform/binary.h"

#include <gtest/gtest.h>

#include <limits>

namespace lx {
namespace {

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
}

}  // namespace
}  // namespace lx
