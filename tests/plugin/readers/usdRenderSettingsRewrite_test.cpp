// The end of a render-settings section rewrites the image of every Houdini job
// of the first driver registered with its entry. No driver registers itself,
// so no scene reaches it; it is driven here through the list's registration.
#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/parserState.h"
#include "plugin/readers/readerCommon.h"
#include "support/textLines.h"

#include <gtest/gtest.h>

TEST(RenderSettingsRewrite, FirstDriverHoudiniJobsTakeTheArchiveFile)
{
    resetParserState();
    USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs1"));
    USD_RSList.addFromROP(QStringLiteral("/stage/rendersettings1"), QStringLiteral("/out/rs2"));
    zkJ::_JobBasicsArray jobs;
    const struct
    {
        const QString& app;
        const char* layer;
    } rows[] = { { appNameHoudini, "/out/rs1" }, { appNameRedshift, "/out/rs1" },
        { appNameHoudini, "/out/rs2" } };
    for (const auto& row : rows) {
        zkJ::_JobBasics_largePath* job = nullptr;
        ASSERT_TRUE(jobs.getNewJob(job));
        job->renderApp.appName.set(row.app);
        job->layer.set(QString::fromUtf8(row.layer));
        job->sceneDatabaseDir.set(QStringLiteral("/proj/shot/"));
        job->imageFileName.set(QStringLiteral("old."));
    }
    _zkString<500> sceneFile(QStringLiteral("/proj/shot/scene.hip"));
    zkP::_dataPARS_LoadSceneFile data { &sceneFile, &jobs, nullptr };
    const auto readSection = [&data] {
        zkTest::TextLines lines("xn__redshiftglobalRS_archive_fileName\t[ 0 ]\t(\t"
                                "\"$HIP/rs/$HIPNAME.$OS.${OS}.$F4.rs\"\t)\n}\n");
        QString line = QStringLiteral("stage/rendersettings1.parm {");
        return load_USD_RS_Node(&data, lines.source, line);
    };
    ASSERT_EQ(readSection(), LoadOk);
    const zkJ::_JobBasics_largePath& rewritten = *jobs.at(0);
    EXPECT_EQ(rewritten.imageDir.toQString(), QStringLiteral("<Database>rs/"));
    EXPECT_EQ(rewritten.imageFileName.toQString(),
        QStringLiteral("scene.rendersettings1.rendersettings1."));
    EXPECT_EQ(rewritten.imageExtension.toQString(), QStringLiteral(".rs"));
    EXPECT_EQ(rewritten.padding, 4);
    for (int i : { 1, 2 })
        EXPECT_EQ(jobs.at(i)->imageFileName.toQString(), QStringLiteral("old.")) << i;

    // A record missing below the count ends the load.
    jobs.count = jobs.allocated + 1;
    EXPECT_EQ(readSection(), LoadNoJobRecord);
    jobs.count = jobs.allocated;
    resetParserState();
}
