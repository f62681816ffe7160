// The exported variables of a real job, every name in order, are pinned by
// the scene case vars_render_job. Here: the fields no scene can fill (the
// middle stereo image, colour space, PNL, fractional and huge frames, a
// negative multi-image count, custom data) and the rows that empty fields drop.
#include "jobs/ZK_DataTypes_jobs0_Basics.h"

#include <gtest/gtest.h>

#include <memory>

using namespace zkJ;

TEST(JobVariables, FieldsNoSceneFills)
{
    auto job = std::make_unique<_JobBasics>();
    job->imageStereoM.set(QStringLiteral("M"));
    job->colorSpace.set(QStringLiteral("ACEScg"));
    job->PNL = 'x';
    job->imageMulti = -3;
    job->customDataSet_Str(QStringLiteral("AddCmdFlags"), QStringLiteral("-v 3"));
    const struct
    {
        double start, end;
        const char* minor;
        const char* values; // name=value pairs, "|" between them
    } rows[] = {
        { 1.5, -2.5, "50",
            "ImageStereoM=M|ColorSpace=ACEScg|PNL=x|TotalTiles=-3|ImageMulti=-3|"
            "AdditionalCommandlineParam=-v 3|TotalStart=1.5|TotalSeqStart=2|TotalEnd=-3|"
            "TotalSeqEnd=-3|AppVerMinor=5|zkJobVersionMinorTwoDigits=50" },
        { -0.5, 0.4, "00000",
            "TotalStart=-0.5|TotalSeqStart=-1|TotalEnd=0|AppVerMinor=0|"
            "AppVerMinorFull=0|zkJobVersionMinorTwoDigits=00" },
        { 1001.25, 1e300, "5.370", "TotalStart=1001.25|TotalSeqStart=1001|TotalEnd=0" },
    };
    for (const auto& row : rows) {
        job->seqStart = row.start;
        job->seqEnd = row.end;
        job->renderApp.versionMinor.setLatin1(row.minor);
        const _varValList list = job->exportJobVarList_Basic(false);
        for (const QString& pair : QString::fromUtf8(row.values).split(u'|')) {
            const QString name = pair.section(u'=', 0, 0);
            EXPECT_TRUE(list.contains(name)) << qPrintable(name);
            EXPECT_EQ(list.value(name), pair.section(u'=', 1)) << qPrintable(name);
        }
    }
}

TEST(JobVariables, EmptyFieldsDropTheirRows)
{
    auto job = std::make_unique<_JobBasics>();
    const _varValList list = job->exportJobVarList_Basic(false);
    EXPECT_EQ(list.size(), 74 - 7 - 4 - 3);
    for (const char* absent : { "ImageDirComplete", "MainImageDir", "ImageStereoL", "ColorSpace",
             "Database", "D", "SceneDatabaseDir" })
        EXPECT_FALSE(list.contains(QLatin1String(absent))) << absent;
    EXPECT_TRUE(list.contains(QStringLiteral("DatabaseName")));
    EXPECT_TRUE(list.value(QStringLiteral("DatabaseName")).isEmpty());
}
