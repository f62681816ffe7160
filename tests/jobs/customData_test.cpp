#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "jobs/ZK_DataTypes_jobs_defines.h"

#include <gtest/gtest.h>

#include <memory>

using namespace zkJ;

namespace {

/// The block's entries as "name=value", in block order.
QString entries(const _JobBasics& job)
{
    QStringList out;
    for (int i = 0; i < job.customData_maxIDs(); ++i)
        out << job.customData_NameByID(i) + u'=' + job.customData_StrByID(i);
    return out.join(u' ');
}

} // namespace

TEST(CustomData, ReplaceIgnoresCaseEmptyValueDeletes)
{
    auto job = std::make_unique<_JobBasics>();
    job->customDataSet_Str(QStringLiteral("a"), QStringLiteral("x"));
    job->customDataSet_Str(QStringLiteral("A"), QStringLiteral("y"));
    job->customDataAppend_Str(QStringLiteral("a"), QStringLiteral("z"));
    EXPECT_EQ(entries(*job), QStringLiteral("a=yz")); // the first spelling stays

    job->customDataSet_All(
        QStringList { QStringLiteral("k1"), QStringLiteral("k2"), QStringLiteral("k3") },
        QStringList { QStringLiteral("v1"), QStringLiteral("v2"), QStringLiteral("v3") });
    job->customDataSet_Str(QStringLiteral("K2"), QString());
    EXPECT_EQ(entries(*job), QStringLiteral("k1=v1 k3=v3"));
    EXPECT_FALSE(job->customData_Contains(QStringLiteral("k2")));

    // Deleting an absent key changes nothing.
    auto before = std::make_unique<_JobBasics>();
    *before = *job;
    job->customDataSet_Str(QStringLiteral("absent"), QString());
    EXPECT_TRUE(job->customData_isEqual(before.get()));
    EXPECT_EQ(job->customDataUsed, before->customDataUsed);

    job->customDataSet_StrByID(0, QString());
    job->customDataSet_StrByID(5, QStringLiteral("ignored"));
    EXPECT_EQ(entries(*job), QStringLiteral("k3=v3"));
    EXPECT_TRUE(job->customData_NameByID(-1).isEmpty() && job->customData_StrByID(1).isEmpty());
}

TEST(CustomData, AdmissionDropsTheEntryThatOverflowsAndAllAfter)
{
    auto job = std::make_unique<_JobBasics>();
    // name 2 + value 1000 + 5 = 1007 per entry: three fit in 3990, the fourth does not.
    QStringList names, values;
    for (int i = 0; i < 5; ++i) {
        names << QStringLiteral("n%1").arg(i);
        values << QString(i == 4 ? 1 : 1000, u'v');
    }
    job->customDataSet_All(names, values);
    EXPECT_EQ(job->customData_maxIDs(), 3);
    EXPECT_FALSE(job->customData_Contains(QStringLiteral("n4")));
    EXPECT_EQ(job->customDataUsed, 3 * (6 + 2) + 3 * 1000);
}

TEST(CustomData, SixteenBitValuesNeverPassTheBlock)
{
    auto job = std::make_unique<_JobBasics>();
    // Each entry is admitted at 2 + 300 + 5 characters but takes 8 + 600 bytes.
    QStringList names, values;
    for (int i = 0; i < 12; ++i) {
        names << QStringLiteral("w%1").arg(i % 10);
        values << QString(300, QChar(0x4e00 + i));
    }
    job->customDataSet_All(names, values);
    EXPECT_EQ(job->customData_maxIDs(), 6);
    EXPECT_EQ(job->customDataUsed, 6 * 8 + 6 * 600); // of the 4000
    EXPECT_EQ(job->customData_StrByID(5), QString(300, QChar(0x4e05)));
    // The settings texts behind the block are untouched.
    EXPECT_EQ(job->settingText2.toQString(), QStringLiteral("<auto>"));
}

TEST(CustomData, AllAsStringSkipsUserInfoAndComment)
{
    auto job = std::make_unique<_JobBasics>();
    job->customDataSet_UserInfo(QStringLiteral("me"));
    job->customDataSet_CommentInfo(QStringLiteral("hello"));
    EXPECT_TRUE(job->customData_AllAsString().isEmpty());
    EXPECT_TRUE(job->customData_ContainCommentInfo());
    EXPECT_EQ(job->customData_UserInfo(), QStringLiteral("me"));

    job->customDataSet_Str(QStringLiteral("AddCmdFlags"), QStringLiteral("-v"));
    job->customDataSet_Str(QStringLiteral("SubmitClientGroup"), QStringLiteral("gpu"));
    job->customDataSet_Str(QStringLiteral("comment"), QStringLiteral("still the Comment key"));
    EXPECT_EQ(job->customData_AllAsString(),
        QStringLiteral("|AddCmdFlags: '-v' |SubmitClientGroup: 'gpu' "));
}

TEST(CustomData, ListsBlockComparisonUppercaseAndClear)
{
    auto a = std::make_unique<_JobBasics>();
    auto b = std::make_unique<_JobBasics>();
    const QStringList names { QStringLiteral("one"), QStringLiteral("two") };
    const QStringList values { QStringLiteral("abc"), QStringLiteral("\u0100") };
    a->customDataSet_All(names, values);
    _varValList list;
    list.add(names[0], values[0]);
    list.add(names[1], values[1]);
    b->customDataSet_All(list);
    EXPECT_TRUE(a->customData_isEqual(b.get()));
    QStringList outNames { QStringLiteral("stale") }, outValues;
    a->customData_All(outNames, outValues);
    EXPECT_EQ(outNames, names);
    EXPECT_EQ(outValues, values);
    // Raw bytes: a 16-bit value shows its high byte first.
    EXPECT_EQ(a->customData_allValuesAsBlock_Uppercase().toQString(),
        QStringLiteral("ABC") + QChar(1) + QChar(0));

    b->customDataSet_Str(QStringLiteral("two"), QStringLiteral("2"));
    EXPECT_FALSE(a->customData_isEqual(b.get()) || a->customData_isEqual(nullptr));
    a->customData_ClearAll();
    EXPECT_EQ(a->customData_maxIDs(), 0);
    EXPECT_TRUE(a->customData_Str(QStringLiteral("one")).isEmpty());
    EXPECT_TRUE(a->customData_allValuesAsBlock_Uppercase().isEmpty());
}

TEST(CustomData, CorruptCountersStayInsideTheBlock)
{
    auto job = std::make_unique<_JobBasics>();
    std::memset(job->customData, 'c', sizeof(job->customData));
    job->customDataCount = 1000000;
    job->customDataValuesStart = 1000000;
    job->customDataUsed = -5;
    // Whatever comes out, it is read from inside the 4000 bytes.
    (void)job->customData_Str(QStringLiteral("x"));
    QStringList n, v;
    job->customData_All(n, v);
    EXPECT_EQ(n.size(), 1);
    EXPECT_TRUE(job->customData_allValuesAsBlock_Uppercase().isEmpty());
    EXPECT_TRUE(job->customData_sub(3999, 10, CUSTOMData_Mode16bit).isEmpty());
    EXPECT_EQ(job->customData_sub(3998, 10, CUSTOMData_Mode8bit).size(), 2);
}
