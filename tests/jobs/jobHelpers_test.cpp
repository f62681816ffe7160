#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "jobs/ZK_DataTypes_jobs_defines.h"

#include <gtest/gtest.h>

#include <memory>

using namespace zkJ;

TEST(SquareBracketVariables, TableConversion)
{
    const struct
    {
        const char* in;
        const char* out;
    } cases[] = {
        { "/r/[Layer]/[Camera]_[Channel].exr", "/r/<Layer>/<Camera>_<Channel>.exr" },
        { "[Camera_no.]", "<Camera_no.>" },
        { "[layer]_[SCENE]", "<Layer>_<Scene>" },
        { "[User][LocalHost][CompanyProject][SceneFolder][Database][DatabaseName]",
            "<User><LocalHost><CompanyProject><SceneFolder><Database><DatabaseName>" },
        { "/r/[Layer/img", "/r/[Layer/img" },
        { "]Layer[", "]Layer[" },
        { "[Unknown]", "[Unknown]" },
    };
    for (const auto& c : cases) {
        _zkString<1000> text(QString::fromUtf8(c.in));
        replaceSquareBracketVariablesSub(text);
        EXPECT_EQ(text.toQString().toStdString(), c.out) << c.in;
    }
}

TEST(SquareBracketVariables, JobPathsAndChannels)
{
    auto job = std::make_unique<_JobBasics_largePath>();
    job->imageDir.set(QStringLiteral("/r/[Scene]/"));
    job->imageFileName.set(QStringLiteral("[Layer]."));
    job->channels[7].fileName.set(QStringLiteral("/r/[Channel]."));
    job->sceneName.set(QStringLiteral("/s/[Layer].hip"));
    job->replaceSquareBracketVariables();
    EXPECT_EQ(job->imageDir.toQString(), QStringLiteral("/r/<Scene>/"));
    EXPECT_EQ(job->imageFileName.toQString(), QStringLiteral("<Layer>."));
    EXPECT_EQ(job->channels[7].fileName.toQString(), QStringLiteral("/r/<Channel>."));
    EXPECT_EQ(job->sceneName.toQString(), QStringLiteral("/s/[Layer].hip"));
}

TEST(SceneDisplayName, ShortensPaths)
{
    const struct
    {
        const char* scene;
        const char* display;
    } cases[] = {
        { "/proj/shots/sh010/scene.hip", ".../    sh010/    scene" },
        { "!anything/at.all", "!anything/at.all" },
        { "C:/proj/Scenes/shot.hip", ".../    proj/    shot" },
        { "C:/x.hip", "C:/x" },
        { "/p/img.<FN4>.ifd", "/    p/    img." },
        { "/p/RENDER_pictures/a_<FN2>.hip", "/    p/    a_2" },
        { "a.b", "a.b" },
        { "", "" },
    };
    auto job = std::make_unique<_JobBasics>();
    for (const auto& c : cases) {
        job->sceneName.set(QString::fromUtf8(c.scene));
        EXPECT_EQ(job->getSceneDisplayName().toStdString(), c.display) << c.scene;
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
    _zkString<50> first, second, third;
    getSSV(QStringLiteral("sq010_sh020_v003"), first, second, third, QStringLiteral("sq"),
        QStringLiteral("SH"), QStringLiteral("v"), QString(), QString(), QString(), 0, 0);
    EXPECT_EQ(first.toQString(), QStringLiteral("010"));
    EXPECT_EQ(second.toQString(), QStringLiteral("020"));
    EXPECT_EQ(third.toQString(), QStringLiteral("003"));

    // "none" keeps the earlier value; an empty prefix starts at the front.
    third.set(QStringLiteral("keep"));
    getSSV(QStringLiteral("ab.cd<x>"), first, second, third, QString(), QString(),
        QStringLiteral("none"), QString(), QString(), QString(), 0, 0);
    EXPECT_EQ(first.toQString(), QStringLiteral("ab"));
    EXPECT_EQ(second.toQString(), QStringLiteral(".cd"));
    EXPECT_EQ(third.toQString(), QStringLiteral("keep"));

    // Fixed lengths and suffixes.
    getSSV(QStringLiteral("SEQ01SH02-v7"), first, second, third, QString(), QStringLiteral("sh"),
        QStringLiteral("-"), QString(), QString(), QString(), 5, 2);
    EXPECT_EQ(first.toQString(), QStringLiteral("SEQ01"));
    EXPECT_EQ(second.toQString(), QStringLiteral("02"));
    EXPECT_EQ(third.toQString(), QStringLiteral("v7"));
    getSSV(QStringLiteral("sq010-sh020"), first, second, third, QString(), QStringLiteral("-sh"),
        QStringLiteral("none"), QStringLiteral("-SH"), QString(), QString(), 0, 0);
    EXPECT_EQ(first.toQString(), QStringLiteral("sq010"));
    EXPECT_EQ(second.toQString(), QStringLiteral("020"));

    // A missing prefix leaves its part empty; a missing third prefix ends the search.
    third.set(QStringLiteral("old"));
    getSSV(QStringLiteral("sh020_v3"), first, second, third, QStringLiteral("sq"),
        QStringLiteral("sh"), QStringLiteral("x"), QString(), QString(), QString(), 0, 0);
    EXPECT_TRUE(first.isEmpty());
    EXPECT_EQ(second.toQString(), QStringLiteral("020"));
    EXPECT_TRUE(third.isEmpty());

    getSSV(QString(70, u'n'), first, second, third, QString(), QString(), QString(), QString(),
        QString(), QString(), 0, 0);
    EXPECT_EQ(first.length, 50);
    EXPECT_TRUE(second.isEmpty());
}

TEST(DirectoryLevels, GetDirectoryNo)
{
    const struct
    {
        const char* path;
        int no;
        int count;
        const char* result;
    } cases[] = {
        { "/a/b/c/d", 2, 2, "b_c" },
        { "/a/b/c/d/e", 1, 3, "a_b_c" },
        { "/a/b", 1, 1, "/a/b" },
        { "/aa/bb/cc", 5, 1, "cc" },
        { "/aa/bb/cc", 2, 5, "bb_cc" },
        { "//srv/share/dir/x", 1, 1, "srv" },
        { "C:/proj/x/y", 1, 1, "proj" },
        { "proj/x/y", 2, 1, "x" },
    };
    for (const auto& c : cases) {
        EXPECT_EQ(getDirectoryNo(QString::fromUtf8(c.path), c.no, c.count).toStdString(), c.result)
            << c.path << " " << c.no << " " << c.count;
    }
}

TEST(DirectoryLevels, GetDirectoryUntilNo)
{
    const struct
    {
        const char* path;
        int no;
        int count;
        const char* result;
    } cases[] = {
        { "/a/b/c/d/e", 2, 2, "/a/b/c/" },
        { "/a/b/c/d/e", 1, 1, "/a/" },
        { "/a/b", 1, 1, "/a/b" },
        { "/aa/bb", 5, 1, "/aa/bb" },
        { "/aa/bb/cc", 2, 3, "/aa/bb/cc" },
        { "//srv/share/dir/x", 2, 1, "//srv/share/" },
        { "//srv", 1, 1, "//srv" },
        { "C:/proj/x/y", 1, 2, "C:/proj/x/" },
    };
    for (const auto& c : cases) {
        EXPECT_EQ(
            getDirectoryUntilNo(QString::fromUtf8(c.path), c.no, c.count).toStdString(), c.result)
            << c.path << " " << c.no << " " << c.count;
    }
}
