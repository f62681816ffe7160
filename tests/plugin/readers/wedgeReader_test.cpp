#include "plugin/readers/readerCommon.h"
#include "sectionFeed.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

_wedgeParams param(const char* name, double start, double end, int steps)
{
    _wedgeParams p;
    p.name = qs(name);
    p.rangeStart = start;
    p.rangeEnd = end;
    p.steps = steps;
    return p;
}

_wedgeNode scaleSeedWedge()
{
    _wedgeNode wedge;
    wedge.prefix = QStringLiteral("wedge");
    wedge.params = { param("scale", 0.0, 1.0, 3), param("seed", 1.0, 2.0, 2) };
    return wedge;
}

struct FileNameRow
{
    int index;
    const char* fileName;
};

class WedgeFileName : public ::testing::TestWithParam<FileNameRow>
{ };

// The first parameter varies fastest.
TEST_P(WedgeFileName, MixedRadixIndex)
{
    _wedgeNode wedge = scaleSeedWedge();
    EXPECT_EQ(wedge.getWedgeFileName(GetParam().index), qs(GetParam().fileName));
}

INSTANTIATE_TEST_SUITE_P(ScaleSeed, WedgeFileName,
    ::testing::Values(FileNameRow { 0, "wedge_scale_0.000000_seed_1.000000" },
        FileNameRow { 1, "wedge_scale_0.500000_seed_1.000000" },
        FileNameRow { 2, "wedge_scale_1.000000_seed_1.000000" },
        FileNameRow { 3, "wedge_scale_0.000000_seed_2.000000" },
        FileNameRow { 4, "wedge_scale_0.500000_seed_2.000000" },
        FileNameRow { 5, "wedge_scale_1.000000_seed_2.000000" }));

TEST(WedgeParams, ValueSpreadsOverSteps)
{
    const _wedgeParams p = param("x", -1.0, 1.0, 5);
    EXPECT_DOUBLE_EQ(p.valueIdx(0), -1.0);
    EXPECT_DOUBLE_EQ(p.valueIdx(1), -0.5);
    EXPECT_DOUBLE_EQ(p.valueIdx(4), 1.0);
}

TEST(WedgeNode, OneStepIsNotANumber)
{
    _wedgeNode wedge;
    wedge.prefix = QStringLiteral("w");
    wedge.params = { param("seed", 3.0, 3.0, 1), param("scale", 0.0, 2.0, 1) };

    EXPECT_EQ(wedge.totalWedges(), 1);
    EXPECT_EQ(wedge.getWedgeFileName(0), QStringLiteral("w_seed_nan_scale_nan"));
}

struct TotalRow
{
    const char* shape;
    std::initializer_list<int> steps;
    int total;
};

class WedgeTotal : public ::testing::TestWithParam<TotalRow>
{ };

TEST_P(WedgeTotal, ProductOfSteps)
{
    _wedgeNode wedge;
    for (int steps : GetParam().steps)
        wedge.params.append(param("p", 0.0, 1.0, steps));
    EXPECT_EQ(wedge.totalWedges(), GetParam().total);
}

const TotalRow TotalRows[] = {
    { "NoParameters", {}, 0 },
    { "One", { 7 }, 7 },
    { "Three", { 2, 3, 4 }, 24 },
    { "ZeroStepsAnywhere", { 2, 0, 4 }, 0 },
    { "LargestInt", { INT_MAX }, INT_MAX },
    { "JustAboveInt", { 65536, 32768 }, 0 },
    { "FarAboveInt", { 2000, 2000, 2000 }, 0 },
    { "BeyondSixtyFourBits", { INT_MAX, INT_MAX, INT_MAX, 2 }, 0 },
    { "OverflowThenZero", { INT_MAX, INT_MAX, 0 }, 0 },
    { "NegativeFactor", { -2, 3 }, -6 },
    { "TwoNegativeFactors", { -2, -3 }, 6 },
    { "BelowIntMin", { INT_MIN, 2 }, 0 },
};

INSTANTIATE_TEST_SUITE_P(Steps, WedgeTotal, ::testing::ValuesIn(TotalRows),
    [](const ::testing::TestParamInfo<TotalRow>& info) { return std::string(info.param.shape); });

TEST(WedgeNode, TotalIsCachedOnce)
{
    _wedgeNode wedge = scaleSeedWedge();
    EXPECT_EQ(wedge.totalWedges(), 6);
    wedge.params.append(param("extra", 0.0, 1.0, 10));
    EXPECT_EQ(wedge.totalWedges(), 6);
    EXPECT_EQ(wedge.total, 6);
}

TEST(WedgeNode, NegativeStepsDivideTowardZero)
{
    _wedgeNode wedge;
    wedge.params = { param("a", 0.0, 1.0, -2), param("b", 0.0, 1.0, -3) };
    // 5 % -2 == 1 and 5 / -2 == -2; then -2 % -3 == -2.
    EXPECT_EQ(wedge.getWedgeFileName(5), QStringLiteral("_a_-0.333333_b_0.500000"));
}

TEST(WedgeNode, UnlistedParameterWithoutStepsDoesNotDivide)
{
    _wedgeNode wedge;
    wedge.params = { param("a", 0.0, 1.0, 0), param("b", 0.0, 1.0, 2) };
    EXPECT_EQ(wedge.getWedgeFileName(1), QStringLiteral("_a_0.000000_b_1.000000"));
}

// ---- the reader -----------------------------------------------------------

const char* const Method = "wedgemethod\t[ 0\tlocks=0 ]\t(\t\"channel\"\t)";
const char* const Driver = "driver\t[ 0\tlocks=0 ]\t(\t\"../mantra1\"\t)";
const char* const Prefix = "prefix\t[ 0\tlocks=0 ]\t(\t\"wedge\"\t)";
const char* const Name1 = "name1\t[ 0\tlocks=0 ]\t(\t\"scale\"\t)";
const char* const Range1 = "range1\t[ 0\tlocks=0 ]\t(\t0\t1\t)";
const char* const Steps1 = "steps1\t[ 0\tlocks=0 ]\t(\t3\t)";

struct WedgeRow
{
    const char* shape;
    const char* header;
    std::initializer_list<const char*> body;
    bool listed;
    const char* driver;
    int total;
    const char* firstFileName;
};

class WedgeReaderTable : public ReaderTest, public ::testing::WithParamInterface<WedgeRow>
{ };

TEST_P(WedgeReaderTable, SectionGivesWedge)
{
    const WedgeRow& row = GetParam();
    SectionFeed feed(qsl(row.body));
    QString line = qs(row.header);

    EXPECT_TRUE(loadWedgeNode(nullptr, feed.source, line));

    if (!row.listed) {
        EXPECT_TRUE(wedges.isEmpty());
        return;
    }
    ASSERT_EQ(wedges.size(), 1);
    _wedgeNode& wedge = wedges.first();
    EXPECT_EQ(wedge.driver, qs(row.driver));
    EXPECT_EQ(wedge.totalWedges(), row.total);
    EXPECT_EQ(wedge.getWedgeFileName(0), qs(row.firstFileName));
}

const WedgeRow WedgeRows[] = {
    { "Channel", "out/wedge1.parm {", { Prefix, Driver, Method, Name1, Range1, Steps1, "}" }, true,
        "/out/mantra1", 3, "wedge_scale_0.000000" },
    { "MethodAnyCase", "out/wedge1.parm {",
        { "wedgemethod\t[ 0 ]\t(\t\"Channel\"\t)", Driver, Name1, Range1, Steps1, "}" }, true,
        "/out/mantra1", 3, "_scale_0.000000" },
    { "KeywordsAnyCase", "out/wedge1.parm {",
        { "WedgeMethod\t[ 0 ]\t(\tchannel\t)", "DRIVER\t[ 0 ]\t(\t/out/r1\t)",
            "Name1\t[ 0 ]\t(\tx\t)", "STEPS1\t[ 0 ]\t(\t2\t)", "}" },
        true, "/out/r1", 2, "_x_0.000000" },
    { "AbsoluteDriver", "out/wedge1.parm {",
        { Method, "driver\t[ 0 ]\t(\t\"/out/karma1\"\t)", Name1, Steps1, "}" }, true, "/out/karma1",
        3, "_scale_0.000000" },
    { "OneParentStepOnly", "obj/net/wedge1.parm {",
        { Method, "driver\t[ 0 ]\t(\t\"../../r1\"\t)", Name1, Steps1, "}" }, true, "/obj/net/../r1",
        3, "_scale_0.000000" },
    { "DecimalCommas", "out/wedge1.parm {",
        { Method, Driver, Name1, "range1\t[ 0 ]\t(\t0,5\t1,5\t)", Steps1, "}" }, true,
        "/out/mantra1", 3, "_scale_0.500000" },
    { "RangeWithoutTab", "out/wedge1.parm {",
        { Method, Driver, Name1, "range1\t[ 0 ]\t(\t0.25\t)", Steps1, "}" }, true, "/out/mantra1",
        3, "_scale_0.250000" },
    { "ParametersOutOfOrder", "out/wedge1.parm {",
        { Method, Driver, "steps2\t[ 0 ]\t(\t2\t)", "name2\t[ 0 ]\t(\tseed\t)", Steps1, Name1,
            "range2\t[ 0 ]\t(\t5\t6\t)", "}" },
        true, "/out/mantra1", 6, "_scale_0.000000_seed_5.000000" },
    { "ParameterZeroIgnored", "out/wedge1.parm {",
        { Method, Driver, "name0\t[ 0 ]\t(\tx\t)", "steps0\t[ 0 ]\t(\t9\t)", Name1, Steps1, "}" },
        true, "/out/mantra1", 3, "_scale_0.000000" },
    { "NegativeParameterIgnored", "out/wedge1.parm {",
        { Method, Driver, "range-1\t[ 0 ]\t(\t4\t5\t)", Name1, Steps1, "}" }, true, "/out/mantra1",
        3, "_scale_0.000000" },
    { "StepsWithoutNumberIgnored", "out/wedge1.parm {",
        { Method, Driver, Name1, Steps1, "stepsize\t[ 0 ]\t(\t0\t)", "}" }, true, "/out/mantra1", 3,
        "_scale_0.000000" },
    { "CommentsAndBlanks", "out/wedge1.parm {",
        { "", "# wedgemethod\t(\tother\t)", Method, Driver, Name1, Steps1, "}" }, true,
        "/out/mantra1", 3, "_scale_0.000000" },
    { "OtherMethod", "out/wedge1.parm {",
        { "wedgemethod\t[ 0 ]\t(\ttake\t)", Driver, Name1, Steps1, "}" }, false, "", 0, "" },
    { "NoMethod", "out/wedge1.parm {", { Driver, Name1, Steps1, "}" }, false, "", 0, "" },
    { "NoDriver", "out/wedge1.parm {", { Method, Name1, Steps1, "}" }, false, "", 0, "" },
    { "NoParameters", "out/wedge1.parm {", { Method, Driver, "}" }, false, "", 0, "" },
    { "GapWithoutSteps", "out/wedge1.parm {",
        { Method, Driver, "name3\t[ 0 ]\t(\tz\t)", "steps3\t[ 0 ]\t(\t2\t)", Name1, Steps1, "}" },
        false, "", 0, "" },
    { "ZeroSteps", "out/wedge1.parm {", { Method, Driver, Name1, "steps1\t[ 0 ]\t(\t0\t)", "}" },
        false, "", 0, "" },
    { "ProductOverflows", "out/wedge1.parm {",
        { Method, Driver, "steps1\t[ 0 ]\t(\t100000\t)", "steps2\t[ 0 ]\t(\t100000\t)", "}" },
        false, "", 0, "" },
    { "NumberAboveLimit", "out/wedge1.parm {",
        { Method, Driver, Name1, Steps1, "name1001\t[ 0 ]\t(\tfar\t)", "}" }, false, "", 0, "" },
    { "HugeNumber", "out/wedge1.parm {",
        { Method, Driver, Name1, Steps1, "steps2000000000\t[ 0 ]\t(\t2\t)", "}" }, false, "", 0,
        "" },
    { "NameWithoutNumberDrops", "out/wedge1.parm {",
        { Method, Driver, Name1, Steps1, "namespace\t[ 0 ]\t(\tx\t)", "}" }, false, "", 0, "" },
    { "RangeWithoutNumberDrops", "out/wedge1.parm {",
        { Method, Driver, Name1, Steps1, "rangex\t[ 0 ]\t(\t1\t2\t)", "}" }, false, "", 0, "" },
    { "CutOff", "out/wedge1.parm {", { Method, Driver, Name1, Steps1 }, false, "", 0, "" },
};

INSTANTIATE_TEST_SUITE_P(Sections, WedgeReaderTable, ::testing::ValuesIn(WedgeRows),
    [](const ::testing::TestParamInfo<WedgeRow>& info) { return std::string(info.param.shape); });

using WedgeReader = ReaderTest;

TEST_F(WedgeReader, KeepsPathPrefixAndMethod)
{
    SectionFeed feed(qsl({ Prefix, Method, Driver, Name1, Range1, Steps1, "}", "after" }));
    QString line = QStringLiteral("out/wedge1.parm {");

    loadWedgeNode(nullptr, feed.source, line);

    ASSERT_EQ(wedges.size(), 1);
    const _wedgeNode& wedge = wedges.first();
    EXPECT_EQ(wedge.nodePath, QStringLiteral("/out/wedge1"));
    EXPECT_EQ(wedge.prefix, QStringLiteral("wedge"));
    EXPECT_EQ(wedge.wedgeMethod, QStringLiteral("channel"));
    ASSERT_EQ(wedge.params.size(), 1);
    EXPECT_EQ(wedge.params.first().name, QStringLiteral("scale"));
    EXPECT_DOUBLE_EQ(wedge.params.first().rangeStart, 0.0);
    EXPECT_DOUBLE_EQ(wedge.params.first().rangeEnd, 1.0);
    EXPECT_EQ(wedge.params.first().steps, 3);
    EXPECT_EQ(line, QStringLiteral("}"));
    EXPECT_EQ(feed.nextUnread(), QStringLiteral("after"));
}

TEST_F(WedgeReader, UnnumberedNameEndsSectionAtOnce)
{
    SectionFeed feed(qsl({ Method, Driver, Name1, Steps1, "namex\t[ 0 ]\t(\tx\t)", "tail", "}" }));
    QString line = QStringLiteral("out/wedge1.parm {");

    EXPECT_TRUE(loadWedgeNode(nullptr, feed.source, line));

    EXPECT_TRUE(wedges.isEmpty());
    EXPECT_EQ(line, QStringLiteral("namex\t[ 0 ]\t(\tx\t)"));
    EXPECT_EQ(feed.nextUnread(), QStringLiteral("tail"));
}

TEST_F(WedgeReader, NumberAboveLimitGrowsNothing)
{
    SectionFeed feed(
        qsl({ Method, Driver, Name1, Steps1, "range999999\t[ 0 ]\t(\t1\t2\t)", "}", "after" }));
    QString line = QStringLiteral("out/wedge1.parm {");

    loadWedgeNode(nullptr, feed.source, line);

    EXPECT_TRUE(wedges.isEmpty());
    // The section is still read to its end.
    EXPECT_EQ(feed.nextUnread(), QStringLiteral("after"));
}

TEST_F(WedgeReader, SectionsAppendInOrder)
{
    SectionFeed feed(qsl({ Method, Driver, Name1, Steps1, "}" }));
    SectionFeed other(qsl({ Method, "driver\t[ 0 ]\t(\t../karma1\t)", Name1, Steps1, "}" }));
    QString line = QStringLiteral("out/wedge1.parm {");
    loadWedgeNode(nullptr, feed.source, line);
    line = QStringLiteral("out/wedge2.parm {");
    loadWedgeNode(nullptr, other.source, line);

    ASSERT_EQ(wedges.size(), 2);
    EXPECT_EQ(wedges.at(0).nodePath, QStringLiteral("/out/wedge1"));
    EXPECT_EQ(wedges.at(1).driver, QStringLiteral("/out/karma1"));
}

} // namespace
