#include "jobs/ZK_DataTypes_jobs0_Basics.h"

#include <gtest/gtest.h>

#include <memory>

using namespace zkJ;

namespace {

QStringList namesOf(const _varValList& list)
{
    QStringList names;
    for (const _varValue& v : list.items)
        names << v.name;
    return names;
}

std::string valueOf(const _varValList& list, const char* name)
{
    EXPECT_TRUE(list.contains(QLatin1String(name))) << name;
    return list.value(QLatin1String(name)).toStdString();
}

std::unique_ptr<_JobBasics> fullJob()
{
    auto job = std::make_unique<_JobBasics>();
    job->imageDir.set(QStringLiteral("/proj/shot/render/"));
    job->imageFileName.set(QStringLiteral("beauty."));
    job->imageStereoL.set(QStringLiteral("L"));
    job->imageStereoR.set(QStringLiteral("R"));
    job->imageStereoM.set(QStringLiteral("M"));
    job->colorSpace.set(QStringLiteral("ACEScg"));
    job->sceneName.set(QStringLiteral("/proj/shot/scenes/sh010_<FN4>.hip"));
    job->sceneDatabaseDir.set(QStringLiteral("/proj/db/"));
    job->renderApp.appName.set(QStringLiteral("Houdini"));
    job->renderApp.rendererName.set(QStringLiteral("Karma"));
    job->renderApp.appType.set(QStringLiteral("DCC"));
    job->renderApp.rendererVersion.set(QStringLiteral("7.2.1"));
    job->renderApp.versionMajor = 20;
    job->renderApp.setVersionMinor(QStringLiteral("5.370"));
    job->layer.set(QStringLiteral("fg/hero:1"));
    job->PNL = 'x';
    job->imageMulti = -3;
    job->seqStart = 1.5;
    job->seqEnd = -2.5;
    job->seqStep = 2;
    job->customDataSet_Str(QStringLiteral("AddCmdFlags"), QStringLiteral("-v 3"));
    return job;
}

} // namespace

TEST(JobVariables, AllRowsInOrder)
{
    const _varValList list = fullJob()->exportJobVarList_Basic(false);
    const QStringList expected = QStringLiteral(
        "ImageDirComplete ImageDirComplete><../ ImageDirComplete><../><../ ImageDir "
        "ImageDir><../ ImageDir><../><../ MainImageDir ImageStereoL ImageStereoR "
        "ImageStereoM ColorSpace SceneFolder><../><../ SceneFolder><../ SceneFolder "
        "SceneFileNameBase Database SceneDatabaseDir D DatabaseName App AppRenderer AppLow "
        "AppRendererLow AppVer AppVerMinor AppVerMinorFull AppRendererVersion renderLicenses "
        "requiredLicenses zkJobVersion zkJobVersionMajor zkJobVersionMinor "
        "zkJobVersionMinorFull zkJobVersionMinorTwoDigits zkJobRendererVersion "
        "zkJobRendererVersionMajor AppType OS Layer LayerAsFileName Pass P Camera Camera_no. "
        "Channel AOVChannel AOV State SceneState MainImageExtension PNL ImageFormatOverride "
        "OverrideImageFormat ImageSingleOutputFile TotalStep TotalEnd TotalStart "
        "TotalSeqStep TotalSeqEnd TotalSeqStart SeqFrameSet FrameSet sceneOS sceneOSstr "
        "ShutgunID ShotgunID Padding TotalTiles ImageMulti ImageHeight ImageWidth Height "
        "Width AdditionalCommandlineParam")
                                     .split(u' ');
    EXPECT_EQ(expected.size(), 74);
    EXPECT_EQ(namesOf(list), expected);
}

TEST(JobVariables, Values)
{
    const _varValList list = fullJob()->exportJobVarList_Basic(true);
    const struct
    {
        const char* name;
        const char* value;
    } rows[]
        = { { "ImageDirComplete", "/proj/shot/render/" },
              { "ImageDirComplete><../", "/proj/shot/" },
              { "ImageDirComplete><../><../", "/proj/" },
              { "ImageDir><../", "/proj/shot/" },
              { "ImageDir><../><../", "/proj/" },
              { "SceneFolder", "/proj/shot/scenes/" },
              { "SceneFolder><../", "/proj/shot/" },
              { "SceneFolder><../><../", "/proj/" },
              { "SceneFileNameBase", "sh010_" },
              { "DatabaseName", "db" },
              { "AppLow", "houdini" },
              { "AppType", "dcc" },
              { "AppVer", "20" },
              { "AppVerMinor", "537" },
              { "AppVerMinorFull", "5.37" },
              { "zkJobVersion", "20.5.37" },
              { "zkJobVersionMinorTwoDigits", "5.37" },
              { "zkJobRendererVersionMajor", "7" },
              { "LayerAsFileName", "fghero1" },
              { "P", "fg/hero:1" },
              { "PNL", "x" },
              { "TotalStart", "1.5" },
              { "TotalSeqStart", "2" },
              { "TotalEnd", "-3" },
              { "TotalSeqEnd", "-3" },
              { "TotalStep", "2" },
              { "TotalTiles", "-3" },
              { "Padding", "4" },
              { "ImageSingleOutputFile", "false" },
              { "AdditionalCommandlineParam", "-v 3" },
#if defined(__APPLE__)
              { "OS", "mac" },
#elif defined(_WIN32)
              { "OS", "win" },
#else
              { "OS", "lx" },
#endif
          };
    for (const auto& row : rows)
        EXPECT_EQ(valueOf(list, row.name), row.value) << row.name;
}

TEST(JobVariables, EmptyFieldsDropTheirRows)
{
    auto job = std::make_unique<_JobBasics>();
    const _varValList list = job->exportJobVarList_Basic(false);
    EXPECT_EQ(list.size(), 74 - 7 - 4 - 3);
    for (const char* absent : { "ImageDirComplete", "MainImageDir", "ImageStereoL", "ColorSpace",
             "Database", "D", "SceneDatabaseDir" })
        EXPECT_FALSE(list.contains(QLatin1String(absent))) << absent;
    EXPECT_EQ(valueOf(list, "DatabaseName"), "");
    EXPECT_EQ(valueOf(list, "PNL"), " ");
    EXPECT_EQ(valueOf(list, "TotalStart"), "1");
    EXPECT_EQ(valueOf(list, "TotalEnd"), "1");
}

TEST(JobVariables, MinorVersionForms)
{
    auto job = std::make_unique<_JobBasics>();
    const struct
    {
        const char* stored;
        const char* minor;
        const char* full;
        const char* twoDigits;
    } cases[] = {
        { "50", "5", "5", "50" },
        { "5.370", "537", "5.37", "5.37" },
        { "00000", "0", "0", "00" },
    };
    for (const auto& c : cases) {
        job->renderApp.versionMinor.setLatin1(c.stored);
        const _varValList list = job->exportJobVarList_Basic(false);
        EXPECT_EQ(valueOf(list, "AppVerMinor"), c.minor) << c.stored;
        EXPECT_EQ(valueOf(list, "zkJobVersionMinor"), c.minor) << c.stored;
        EXPECT_EQ(valueOf(list, "AppVerMinorFull"), c.full) << c.stored;
        EXPECT_EQ(valueOf(list, "zkJobVersionMinorTwoDigits"), c.twoDigits) << c.stored;
    }
}

TEST(JobVariables, FrameRounding)
{
    auto job = std::make_unique<_JobBasics>();
    const struct
    {
        double start;
        double end;
        const char* totalStart;
        const char* seqStart;
        const char* end_;
    } cases[] = {
        { 1.0, 100.0, "1", "1", "100" },
        { 0.5, 0.4, "0.5", "1", "0" },
        { -0.5, -0.4, "-0.5", "-1", "0" },
        { 1001.25, 1e300, "1001.25", "1001", "0" },
    };
    for (const auto& c : cases) {
        job->seqStart = c.start;
        job->seqEnd = c.end;
        const _varValList list = job->exportJobVarList_Basic(false);
        EXPECT_EQ(valueOf(list, "TotalStart"), c.totalStart) << c.start;
        EXPECT_EQ(valueOf(list, "TotalSeqStart"), c.seqStart) << c.start;
        EXPECT_EQ(valueOf(list, "TotalEnd"), c.end_) << c.end;
    }
}
