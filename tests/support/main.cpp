// Runs the tests of one folder. Death tests and threads are not used, so the plain main is enough.
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
