// Decimal scene ranges and frame channels keyed to the scene, in the forms
// real scenes write them.
#include "plugin/frameChannels.h"

#include <gtest/gtest.h>

#include <limits>

TEST(FrameChannels, SceneRangeAndExpressions)
{
    constexpr int Max = std::numeric_limits<int>::max(), Min = std::numeric_limits<int>::min();
    const std::pair<const char*, int> rows[] = { { "1001.0000000000001", 1001 }, { "1120", 1120 },
        { "1.5", 2 }, { "-1.5", -2 }, { "2.4999", 2 }, { "-0.4", 0 }, { "1e3", 1000 }, { "abc", 0 },
        { "", 0 }, { "12abc", 0 }, { "nan", 0 }, { "1e300", Max }, { "-1e300", Min } };
    for (const auto& [text, frame] : rows)
        EXPECT_EQ(roundedFrameNumber(QString::fromUtf8(text)), frame) << text;
    const std::pair<const char*, std::optional<int>> expressions[]
        = { { "$FSTART", 1001 }, { "$RFSTART", 1001 }, { "$FEND", 1120 }, { " $RFEND ", 1120 },
              { "48", 48 }, { "$FEND-1", std::nullopt },
              { "ch(\\\"../CTRL/framerange1\\\")", std::nullopt }, { "", std::nullopt } };
    for (const auto& [expr, frame] : expressions)
        EXPECT_EQ(frameFromExpression(QString::fromUtf8(expr), 1001, 1120), frame) << expr;
}

TEST(FrameChannels, FirstSegmentOfEachChannel)
{
    FrameChannelReader r;
    for (const char16_t* line : { u"{", u"    channel f1 {", u"      lefttype = extend",
             u"      segment { options = {\t untie  iv ov is os ia oa }", u"",
             u"\t length = 0 expr = $FSTART }", u"      segment { length = 0 expr = 12 }", u"    }",
             u"    channel f2 {", u"      segment { length = 0 value = 240 240 expr = $FEND }",
             u"    }", u"    channel f3 {", u"      segment { length = 0 value = 1 1 }",
             u"      segment { length = 0 expr = 2 }", u"    }", u"    channel voxelsize {",
             u"      segment { length = 0 expr = 7 }", u"    }", u"  }" })
        r.readLine(line);
    EXPECT_EQ(r.expression(1), QStringLiteral("$FSTART"));
    EXPECT_EQ(r.expression(2), QStringLiteral("$FEND"));
    EXPECT_TRUE(r.expression(3).isEmpty()); // its first segment has no expression
}
