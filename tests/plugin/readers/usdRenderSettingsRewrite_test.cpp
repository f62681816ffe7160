#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/paths/houdiniVariables.h"
#include "plugin/readers/readerCommon.h"
#include "plugin/zkPluginRecords.h"
#include "sectionFeed.h"

#include <gtest/gtest.h>

namespace {

const char* const FileName = "xn__redshiftglobalRS_archive_fileName\t[ 0\tlocks=0 ]\t(\t"
                             "\"$HIP/rs/$OS.${OS}.$F4.rs\"\t)";

/// A job array with a load record pointing at it, as the host hands them over.
class RenderSettingsRewrite : public ReaderTest
{
protected:
    void SetUp() override
    {
        ReaderTest::SetUp();
        sceneFile.set(QStringLiteral("/proj/shot/scene.hip"));
        data.sceneFile = &sceneFile;
        data.jobs = &jobs;
        data.settings = nullptr;
    }

    zkJ::_JobBasics_largePath* addJob(const QString& app, const char* layer)
    {
        zkJ::_JobBasics_largePath* job = nullptr;
        EXPECT_TRUE(jobs.getNewJob(job));
        job->renderApp.appName.set(app);
        job->layer.set(qs(layer));
        job->sceneDatabaseDir.set(QStringLiteral("/proj/shot/"));
        job->imageDir.set(QStringLiteral("/old/dir/"));
        job->imageFileName.set(QStringLiteral("old.####"));
        job->imageExtension.set(QStringLiteral(".exr"));
        return job;
    }

    int readSection(std::initializer_list<const char*> body)
    {
        SectionFeed feed(qsl(body));
        QString line = QStringLiteral("stage/rendersettings1.parm {");
        return load_USD_RS_Node(&data, feed.source, line);
    }

    /// What a job holds after \p path went through the image-name split.
    static zkJ::_JobBasics_largePath splitLike(
        const zkJ::_JobBasics_largePath& job, const char* path)
    {
        zkJ::_JobBasics_largePath expected = job;
        expected.imageDir.clear();
        expected.imageExtension.clear();
        expected.imageFileName.set(qs(path));
        expected.splitImageFileInto_DirFileExt(true);
        return expected;
    }

    static void expectImage(
        const zkJ::_JobBasics_largePath& job, const zkJ::_JobBasics_largePath& expected)
    {
        EXPECT_EQ(job.imageDir.toQString(), expected.imageDir.toQString());
        EXPECT_EQ(job.imageFileName.toQString(), expected.imageFileName.toQString());
        EXPECT_EQ(job.imageExtension.toQString(), expected.imageExtension.toQString());
    }

    static void expectUntouched(const zkJ::_JobBasics_largePath& job)
    {
        EXPECT_EQ(job.imageDir.toQString(), QStringLiteral("/old/dir/"));
        EXPECT_EQ(job.imageFileName.toQString(), QStringLiteral("old.####"));
        EXPECT_EQ(job.imageExtension.toQString(), QStringLiteral(".exr"));
    }

    _zkString<500> sceneFile;
    zkJ::_JobBasicsArray jobs;
    zkP::_dataPARS_LoadSceneFile data {};
};

TEST_F(RenderSettingsRewrite, FirstDriverJobsTakeArchiveFile)
{
    addJob(appNameHoudini, "/out/rs1");
    addJob(appNameRedshift, "/out/rs1");
    addJob(appNameHoudini, "/out/rs2");
    addJob(appNameHoudini, "/out/RS1");
    addJob(appNameHoudini, "/out/rs1");
    USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs1"));
    USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs2"));

    EXPECT_EQ(readSection({ FileName, "}" }), 1);

    const char* const expanded = "/proj/shot//rs/rendersettings1.rendersettings1.%4d.rs";
    ASSERT_EQ(jobs.count, 5);
    expectImage(*jobs.at(0), splitLike(*jobs.at(0), expanded));
    expectImage(*jobs.at(4), splitLike(*jobs.at(4), expanded));
    EXPECT_TRUE(jobs.at(0)->imageFileName.toQString().startsWith(
        QStringLiteral("rendersettings1.rendersettings1.")));
    EXPECT_EQ(jobs.at(0)->imageExtension.toQString(), QStringLiteral(".rs"));
    // Other applications, drivers registered later and layers in another case stay.
    expectUntouched(*jobs.at(1));
    expectUntouched(*jobs.at(2));
    expectUntouched(*jobs.at(3));
}

TEST_F(RenderSettingsRewrite, SceneVariablesAndFrameTokensAreExpanded)
{
    zkJ::_JobBasics_largePath* job = addJob(appNameHoudini, "/out/rs1");
    hVariables.append(_namevalue { QStringLiteral("SHOT"), QStringLiteral("sh010") });
    USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs1"));

    EXPECT_EQ(readSection({ "xn__redshiftglobalRS_archive_fileName\t[ 0 ]\t(\t"
                            "\"/net/$SHOT/$HIPNAME_$F.rs\"\t)",
                  "}" }),
        1);

    expectImage(*job, splitLike(*job, "/net/sh010/scene_%d.rs"));
    EXPECT_TRUE(job->imageDir.toQString().endsWith(QStringLiteral("/sh010/")));
}

TEST_F(RenderSettingsRewrite, EmptyArchiveEmptiesImage)
{
    zkJ::_JobBasics_largePath* job = addJob(appNameHoudini, "/out/rs1");
    USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs1"));

    EXPECT_EQ(readSection({ "}" }), 1);

    expectImage(*job, splitLike(*job, ""));
}

TEST_F(RenderSettingsRewrite, WithoutRegisteredDriverNothingChanges)
{
    addJob(appNameHoudini, "/out/rs1");
    USD_RSList.addFromROP(QStringLiteral("/stage/other"), QStringLiteral("/out/rs1"));

    EXPECT_EQ(readSection({ FileName, "}" }), 1);

    expectUntouched(*jobs.at(0));
}

TEST_F(RenderSettingsRewrite, EmptyArrayOrNoRecordGoesOn)
{
    USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs1"));
    EXPECT_EQ(readSection({ FileName, "}" }), 1);

    data.jobs = nullptr;
    EXPECT_EQ(readSection({ FileName, "}" }), 1);
}

TEST_F(RenderSettingsRewrite, MissingRecordBelowCountEndsLoad)
{
    addJob(appNameHoudini, "/out/rs1");
    USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs1"));
    jobs.count = jobs.allocated + 1;

    EXPECT_EQ(readSection({ FileName, "}" }), 7);

    // Records before the gap were already rewritten.
    EXPECT_NE(jobs.at(0)->imageFileName.toQString(), QStringLiteral("old.####"));
    jobs.count = jobs.allocated;
}

TEST_F(RenderSettingsRewrite, CutOffSectionChangesNoJob)
{
    addJob(appNameHoudini, "/out/rs1");
    USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs1"));

    EXPECT_EQ(readSection({ FileName }), 1);

    expectUntouched(*jobs.at(0));
    EXPECT_TRUE(USD_RSList.list.first().archiveFile.isEmpty());
}

TEST_F(RenderSettingsRewrite, LongArchivePathIsCutToCapacity)
{
    zkJ::_JobBasics_largePath* job = addJob(appNameHoudini, "/out/rs1");
    USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs1"));
    const QByteArray longPath = "/r/" + QByteArray(1500, 'a') + ".rs";
    const QByteArray line
        = "xn__redshiftglobalRS_archive_fileName\t[ 0 ]\t(\t\"" + longPath + "\"\t)";

    EXPECT_EQ(readSection({ line.constData(), "}" }), 1);

    EXPECT_EQ(USD_RSList.list.first().archiveFile.size(), longPath.size());
    expectImage(*job, splitLike(*job, longPath.left(1000).constData()));
}

} // namespace
