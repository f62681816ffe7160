#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "jobs/ZK_DataTypes_jobs_defines.h"

#include <gtest/gtest.h>

#include <memory>

using namespace zkJ;

namespace {

/// An identifier from its parts, laid out as the host stores it.
unsigned long long makeID(
    unsigned mainNumber, unsigned char pre, unsigned char extra1 = 0, unsigned char extra2 = 0)
{
    return (static_cast<unsigned long long>(mainNumber) << 24)
        | (static_cast<unsigned long long>(extra2) << 16)
        | (static_cast<unsigned long long>(extra1) << 8) | pre;
}

} // namespace

TEST(JobIdentifiers, ShortAndFullForms)
{
    // m = mainNumber / 10000 = 1296*1 + 36*2 + 3 gives the letters B, C, D.
    const unsigned main = (1296 + 72 + 3) * 10000 + 7 * (36 * 4 + 5);
    struct Case
    {
        unsigned char pre;
        const char* shortForm;
        const char* fullForm;
    };
    const Case cases[] = {
        { 0, "{BCD }", "BCD_EFHG" },
        { 1, "{BCDa}", "BCDa_EFHG" },
        { 24, "{BCDz}", "BCDz_EFHG" },
        { 25, "{BCDba}", "BCDba_EFHG" },
    };
    for (const Case& c : cases) {
        const unsigned long long id = makeID(main, c.pre, 6, 7);
        EXPECT_EQ(ID2str(id), QLatin1String(c.shortForm)) << int(c.pre);
        EXPECT_EQ(ID2strFull(id), QLatin1String(c.fullForm)) << int(c.pre);
    }
}

TEST(JobIdentifiers, MainNumberWrapsToThreeLetters)
{
    // 46656 = 36^3: the fourth letter would be needed, only three are printed.
    EXPECT_EQ(ID2str(makeID(46656u * 10000u, 0)), QStringLiteral("{AAA }"));
    EXPECT_EQ(ID2str(makeID(46657u * 10000u, 0)), QStringLiteral("{AAB }"));
}

TEST(JobIdentifiers, ShortPackingMatchesFullIdentifier)
{
    const unsigned mains[] = { 0u, 9999u, 123456789u, 655360000u, 4000000000u };
    for (const unsigned m : mains) {
        for (const unsigned char pre : { 0, 3, 200 }) {
            const unsigned long long id = makeID(m, pre, 9, 11);
            _IDShort s;
            s.fromID(id);
            EXPECT_EQ(s.str(), ID2str(id)) << m;
            _IDShort back;
            back.fromInt32(s.int32());
            EXPECT_EQ(back.int32(), s.int32());
            EXPECT_EQ(back.str(), s.str());
        }
    }
    // A job's identifier parts: the pre number is the low byte, the rest is main.
    auto job = std::make_unique<_JobBasics>();
    job->ID = makeID(5000000, 2, 1, 1);
    EXPECT_EQ(job->IDpre(), 2);
    EXPECT_EQ(job->IDmain(), makeID(5000000, 0, 1, 1));

    _IDShort s;
    s.fromInt32(0xAB12345Cu);
    EXPECT_EQ(int(s.preNumber), 0x5C);
    EXPECT_EQ(int(s.mainLow), 0x1234);
    EXPECT_EQ(int(s.mainHigh), 0xAB);
}
