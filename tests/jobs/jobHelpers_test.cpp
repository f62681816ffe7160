// Helpers the host calls on job records; the plugin itself calls none of them,
// except the display name, which the scene cases show as sceneDisplayName.
#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "jobs/ZK_DataTypes_jobs_defines.h"

#include <gtest/gtest.h>

#include <memory>

using namespace zkJ;

TEST(SquareBracketVariables, TableConversionInJobPaths)
{
    const char* rows[][2] = {
        { "/r/[Layer]/[Camera]_[Channel].exr", "/r/<Layer>/<Camera>_<Channel>.exr" },
        { "[Camera_no.][layer]_[SCENE]", "<Camera_no.><Layer>_<Scene>" },
        { "[User][LocalHost][CompanyProject][SceneFolder][Database][DatabaseName]",
            "<User><LocalHost><CompanyProject><SceneFolder><Database><DatabaseName>" },
        { "/r/[Layer/img]Layer[[Unknown]", "/r/[Layer/img]Layer[[Unknown]" },
    };
    for (const auto& row : rows) {
        _zkString<1000> text(QString::fromUtf8(row[0]));
        replaceSquareBracketVariablesSub(text);
        EXPECT_EQ(text.toQString().toStdString(), row[1]);
    }

    auto job = std::make_unique<_JobBasics_largePath>();
    job->imageDir.set(QStringLiteral("/r/[Scene]/"));
    job->imageFileName.set(QStringLiteral("[Layer]."));
    job->channels[7].fileName.set(QStringLiteral("/r/[Channel]."));
    job->sceneName.set(QStringLiteral("/s/[Layer].hip"));
    job->replaceSquareBracketVariables();
    EXPECT_EQ(job->imageDir.toQString() + job->imageFileName.toQString()
            + job->channels[7].fileName.toQString() + job->sceneName.toQString(),
        QStringLiteral("/r/<Scene>/<Layer>./r/<Channel>./s/[Layer].hip"));
}

TEST(SceneDisplayName, ShortensPaths)
{
    const char* rows[][2] = {
        { "/proj/shots/sh010/scene.hip", ".../    sh010/    scene" },
        { "!anything/at.all", "!anything/at.all" },
        { "C:/proj/Scenes/shot.hip", ".../    proj/    shot" },
        { "C:/x.hip", "C:/x" },
        { "/p/RENDER_pictures/a_<FN2>.hip", "/    p/    a_2" },
        { "a.b", "a.b" },
        { "", "" },
    };
    auto job = std::make_unique<_JobBasics>();
    for (const auto& row : rows) {
        job->sceneName.set(QString::fromUtf8(row[0]));
        EXPECT_EQ(job->getSceneDisplayName().toStdString(), row[1]) << row[0];
    }
}

TEST(AuthString, DependsOnSceneAndID)
{
    auto job = std::make_unique<_JobBasics>();
    const unsigned long long id = 0x0012345678ABCDEFULL;
    job->ID = id;
    // The checksum of no bytes is 0, so the identifier shows through unchanged.
    EXPECT_EQ(job->authStr(), QStringLiteral("auth") + ID2strFull(id) + QStringLiteral("auth"));

    job->sceneName.set(QStringLiteral("/proj/a.hip"));
    const QString a = job->authStr();
    EXPECT_TRUE(a.startsWith(QStringLiteral("auth")) && a.endsWith(QStringLiteral("auth")));
    job->sceneName.set(QStringLiteral("/proj/b.hip"));
    EXPECT_NE(job->authStr(), a);
    job->sceneName.set(QStringLiteral("/proj/a.hip"));
    EXPECT_EQ(job->authStr(), a);
}

TEST(SequenceShotVersion, Parts)
{
    const struct
    {
        const char* name;
        const char* prefixes[6]; // first, second, third, then their suffixes
        int firstLength, secondLength;
        const char* parts; // the three parts after the call, "|" between them
    } rows[] = {
        { "sq010_sh020_v003", { "sq", "SH", "v", "", "", "" }, 0, 0, "010|020|003" },
        // "none" keeps the earlier value; an empty prefix starts at the front.
        { "ab.cd<x>", { "", "", "none", "", "", "" }, 0, 0, "ab|.cd|003" },
        // Fixed lengths and suffixes.
        { "SEQ01SH02-v7", { "", "sh", "-", "", "", "" }, 5, 2, "SEQ01|02|v7" },
        { "sq010-sh020", { "", "-sh", "none", "-SH", "", "" }, 0, 0, "sq010|020|v7" },
        // A missing prefix leaves its part empty; a missing third prefix ends the search.
        { "sh020_v3", { "sq", "sh", "x", "", "", "" }, 0, 0, "|020|" },
    };
    _zkString<50> first, second, third;
    for (const auto& row : rows) {
        QString p[6];
        for (int i = 0; i < 6; ++i)
            p[i] = QString::fromUtf8(row.prefixes[i]);
        getSSV(QString::fromUtf8(row.name), first, second, third, p[0], p[1], p[2], p[3], p[4],
            p[5], row.firstLength, row.secondLength);
        EXPECT_EQ(first.toQString() + u'|' + second.toQString() + u'|' + third.toQString(),
            QString::fromUtf8(row.parts))
            << row.name;
    }
    getSSV(QString(70, u'n'), first, second, third, QString(), QString(), QString(), QString(),
        QString(), QString(), 0, 0);
    EXPECT_EQ(first.length, 50);
    EXPECT_TRUE(second.isEmpty());
}

TEST(DirectoryLevels, NumberedLevelsAndEverythingUntilThem)
{
    const struct
    {
        const char* path;
        int no, count;
        const char* levels;
        const char* until;
    } rows[] = {
        { "/a/b/c/d/e", 2, 2, "b_c", "/a/b/c/" },
        { "/a/b/c/d/e", 1, 3, "a_b_c", "/a/b/c/" },
        { "/a/b/c/d/e", 1, 1, "a", "/a/" },
        { "/a/b", 1, 1, "/a/b", "/a/b" },
        { "/aa/bb/cc", 5, 1, "cc", "/aa/bb/cc" },
        { "/aa/bb/cc", 2, 5, "bb_cc", "/aa/bb/cc" },
        { "//srv/share/dir/x", 1, 1, "srv", "//srv/share/" },
        { "//srv/share/dir/x", 2, 1, "share", "//srv/share/" },
        { "C:/proj/x/y", 1, 2, "proj_x", "C:/proj/x/" },
        { "proj/x/y", 2, 1, "x", "proj/x/" },
        { "//srv", 1, 1, "srv", "//srv" },
    };
    for (const auto& row : rows) {
        const QString path = QString::fromUtf8(row.path);
        EXPECT_EQ(getDirectoryNo(path, row.no, row.count).toStdString(), row.levels)
            << row.path << ' ' << row.no << ' ' << row.count;
        EXPECT_EQ(getDirectoryUntilNo(path, row.no, row.count).toStdString(), row.until)
            << row.path << ' ' << row.no << ' ' << row.count;
    }
}
