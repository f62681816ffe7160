// The end of a render-settings section rewrites the image of every Houdini
// job of the first driver registered with it.
#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/readers/readerCommon.h"
#include "plugin/zkPluginRecords.h"
#include "readerText.h"

#include <gtest/gtest.h>

namespace {

const char* const FileName = "xn__redshiftglobalRS_archive_fileName\t[ 0\tlocks=0 ]\t(\t"
                             "\"$HIP/rs/$OS.${OS}.$F4.rs\"\t)\n";

QString image(const zkJ::_JobBasics_largePath& job)
{
    return job.imageDir.toQString() + u'|' + job.imageFileName.toQString() + u'|'
        + job.imageExtension.toQString();
}

/// What a job's image becomes when \p path goes through the image-name split.
QString splitImage(const zkJ::_JobBasics_largePath& job, const QString& path)
{
    zkJ::_JobBasics_largePath expected = job;
    expected.imageDir.clear();
    expected.imageExtension.clear();
    expected.imageFileName.set(path);
    expected.splitImageFileInto_DirFileExt(true);
    return image(expected);
}

const QString Untouched = QStringLiteral("/old/dir/|old.####|.exr");

/// A job array with a load record pointing at it, as the host hands them over.
class RenderSettingsRewrite : public ::testing::Test
{
protected:
    void SetUp() override
    {
        resetParserState();
        USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs1"));
    }
    void TearDown() override { resetParserState(); }

    zkJ::_JobBasics_largePath& addJob(const QString& app, const char* layer)
    {
        zkJ::_JobBasics_largePath* job = nullptr;
        EXPECT_TRUE(jobs.getNewJob(job));
        job->renderApp.appName.set(app);
        job->layer.set(qs(layer));
        job->sceneDatabaseDir.set(QStringLiteral("/proj/shot/"));
        job->imageDir.set(QStringLiteral("/old/dir/"));
        job->imageFileName.set(QStringLiteral("old.####"));
        job->imageExtension.set(QStringLiteral(".exr"));
        return *job;
    }

    int readSection(const QByteArray& body)
    {
        zkTest::TextLines lines(body);
        QString line = QStringLiteral("stage/rendersettings1.parm {");
        return load_USD_RS_Node(&data, lines.source, line);
    }

    _zkString<500> sceneFile { QStringLiteral("/proj/shot/scene.hip") };
    zkJ::_JobBasicsArray jobs;
    zkP::_dataPARS_LoadSceneFile data { &sceneFile, &jobs, nullptr };
};

TEST_F(RenderSettingsRewrite, FirstDriverJobsTakeTheExpandedArchiveFile)
{
    addJob(appNameHoudini, "/out/rs1");
    addJob(appNameRedshift, "/out/rs1");
    addJob(appNameHoudini, "/out/rs2");
    addJob(appNameHoudini, "/out/RS1");
    addJob(appNameHoudini, "/out/rs1");
    USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs2"));

    EXPECT_EQ(readSection(QByteArray(FileName) + "}"), 1);

    const QString expanded
        = QStringLiteral("/proj/shot//rs/rendersettings1.rendersettings1.%4d.rs");
    EXPECT_EQ(image(*jobs.at(0)), splitImage(*jobs.at(0), expanded));
    EXPECT_EQ(image(*jobs.at(4)), splitImage(*jobs.at(4), expanded));
    EXPECT_TRUE(
        image(*jobs.at(0)).endsWith(QStringLiteral("|rendersettings1.rendersettings1.|.rs")));
    // Other applications, drivers registered later and layers in another case stay.
    for (int i : { 1, 2, 3 })
        EXPECT_EQ(image(*jobs.at(i)), Untouched) << i;
}

TEST_F(RenderSettingsRewrite, ArchiveTexts)
{
    const struct
    {
        const char* body;
        const char* path; // nullptr: the job stays as it was
    } rows[] = {
        { "xn__redshiftglobalRS_archive_fileName\t[ 0 ]\t(\t\"/net/$SHOT/$HIPNAME_$F.rs\"\t)\n}",
            "/net/sh010/scene_%d.rs" },
        { "}", "" }, // an empty archive empties the image
        { FileName, nullptr }, // cut off: nothing stored, nothing rewritten
    };
    for (const auto& row : rows) {
        SetUp();
        hVariables.append(_namevalue { QStringLiteral("SHOT"), QStringLiteral("sh010") });
        jobs.clear();
        zkJ::_JobBasics_largePath& job = addJob(appNameHoudini, "/out/rs1");
        EXPECT_EQ(readSection(row.body), 1);
        EXPECT_EQ(image(job), row.path ? splitImage(job, qs(row.path)) : Untouched) << row.body;
    }

    SetUp();
    jobs.clear();
    zkJ::_JobBasics_largePath& job = addJob(appNameHoudini, "/out/rs1");
    const QByteArray longPath = "/r/" + QByteArray(1500, 'a') + ".rs";
    EXPECT_EQ(
        readSection("xn__redshiftglobalRS_archive_fileName\t[ 0 ]\t(\t\"" + longPath + "\"\t)\n}"),
        1);
    EXPECT_EQ(USD_RSList.list.first().archiveFile.size(), longPath.size());
    EXPECT_EQ(image(job), splitImage(job, QString::fromLatin1(longPath.left(1000))));
}

TEST_F(RenderSettingsRewrite, NoRegisteredDriverNoArrayOrNoRecord)
{
    addJob(appNameHoudini, "/out/rs1");
    resetParserState();
    USD_RSList.addFromROP(QStringLiteral("/stage/other"), QStringLiteral("/out/rs1"));
    EXPECT_EQ(readSection(QByteArray(FileName) + "}"), 1);
    EXPECT_EQ(image(*jobs.at(0)), Untouched);

    SetUp();
    data.jobs = nullptr;
    EXPECT_EQ(readSection(QByteArray(FileName) + "}"), 1);

    // A record missing below the count ends the load; records before it were rewritten.
    data.jobs = &jobs;
    jobs.count = jobs.allocated + 1;
    EXPECT_EQ(readSection(QByteArray(FileName) + "}"), 7);
    EXPECT_NE(image(*jobs.at(0)), Untouched);
    jobs.count = jobs.allocated;
}

} // namespace
