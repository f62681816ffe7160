#include "shared/zkString.h"

#include <gtest/gtest.h>

TEST(ZkString, CutsAtCapacity)
{
    _zkString<10> s(QStringLiteral("0123456789abc"));
    EXPECT_EQ(s.length, 10);
    EXPECT_EQ(s.data[10], 0);
}
