// The readers' effects show in the jobs of the scene cases (reader_*); the
// wedge arithmetic is pinned here where a scene cannot reach it: products past
// the int range and negative step counts.
#include "plugin/elements/wedgeList.h"

#include <gtest/gtest.h>

#include <climits>
#include <initializer_list>

namespace {

/// Parameters named a, b, c, ..., the k-th ranging from k to k + 1.
WedgeNode wedgeOf(std::initializer_list<int> steps)
{
    WedgeNode wedge;
    for (int s : steps) {
        const int k = int(wedge.params.size());
        wedge.params.append(WedgeParameter { QString(QChar(u'a' + k)), k + 0.0, k + 1.0, s });
    }
    return wedge;
}

TEST(WedgeArithmetic, TotalIsTheProductOfStepsWithinInt)
{
    const struct
    {
        std::initializer_list<int> steps;
        int total;
    } rows[] = {
        { {}, 0 },
        { { 2, 3, 4 }, 24 },
        { { INT_MAX }, INT_MAX },
        { { 65536, 32768 }, 0 },
        { { 2000, 2000, 2000 }, 0 },
        { { INT_MAX, INT_MAX, 0 }, 0 },
        { { -2, 3 }, -6 },
        { { -2, -3 }, 6 },
        { { INT_MIN, 2 }, 0 },
    };
    for (const auto& row : rows)
        EXPECT_EQ(wedgeOf(row.steps).totalWedges(), row.total) << row.steps.size();
    // The total is computed once.
    WedgeNode wedge = wedgeOf({ 3, 2 });
    EXPECT_EQ(wedge.totalWedges(), 6);
    wedge.params.append(wedge.params.first());
    EXPECT_EQ(wedge.totalWedges(), 6);
}

TEST(WedgeArithmetic, NegativeStepsSplitTheIndexAsCppDivides)
{
    // 5 % -2 == 1 and 5 / -2 == -2; then -2 % -3 == -2: 1 + -2 * 1 / (-3 - 1) = 1.5.
    EXPECT_EQ(wedgeOf({ -2, -3 }).fileName(5), QStringLiteral("_a_-0.333333_b_1.500000"));
}

} // namespace
