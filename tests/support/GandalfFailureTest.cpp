#include "support/GandalfFailure.h"

#include "gandalf/Error.h"

#include <gtest/gtest.h>

TEST(GandalfFailure, LeavesExactlyOneEntryAndReturnsFalse)
{
    gan_err_register_fileline("earlier", 1, "e.cpp", 1, "stale", 0);
    EXPECT_FALSE(bGandalfFailure("vFill", GAN_ERROR_ILLEGAL_ARGUMENT, "lut.cpp", 31, "size 0", 5));
    ASSERT_EQ(gan_err_get_error_count(), 1);

    char const *function = nullptr, *file = nullptr, *message = nullptr;
    int code = 0, line = 0, number = 0;
    ASSERT_EQ(gan_err_get_error(0, &function, &code, &file, &line, &message, &number), 1);
    EXPECT_STREQ(function, "vFill");
    EXPECT_EQ(code, GAN_ERROR_ILLEGAL_ARGUMENT);
    EXPECT_STREQ(file, "lut.cpp");
    EXPECT_EQ(line, 31);
    EXPECT_STREQ(message, "size 0");
    EXPECT_EQ(number, 5);
}
