#include "plugin/readers/readerCommon.h"
#include "sectionFeed.h"

#include <gtest/gtest.h>

namespace {

struct CameraRow
{
    const char* shape;
    const char* header;
    std::initializer_list<const char*> body;
    bool listed;
    const char* name;
    int resX;
    int resY;
    bool stereo;
};

const char* const Res1920 = "res\t[ 0\tlocks=0 ]\t(\t1920\t1080\t)";

class CameraReaderTable : public ReaderTest, public ::testing::WithParamInterface<CameraRow>
{ };

TEST_P(CameraReaderTable, SectionGivesEntry)
{
    const CameraRow& row = GetParam();
    SectionFeed feed(qsl(row.body));
    QString line = qs(row.header);

    EXPECT_TRUE(loadCamNode(nullptr, feed.source, line));

    if (!row.listed) {
        EXPECT_TRUE(camList.list.isEmpty());
        return;
    }
    ASSERT_EQ(camList.list.size(), 1);
    const _camNode& cam = camList.list.first();
    EXPECT_EQ(cam.name.toQString(), qs(row.name));
    EXPECT_EQ(cam.resX, row.resX);
    EXPECT_EQ(cam.resY, row.resY);
    EXPECT_EQ(cam.isStereo, row.stereo);
    EXPECT_TRUE(cam.renderNodes.isEmpty());
}

const CameraRow CameraRows[] = {
    { "Plain", "obj/cam1.parm {", { Res1920, "}" }, true, "/obj/cam1", 1920, 1080, false },
    { "NoResolution", "obj/cam1.parm {", { "focal\t[ 0 ]\t(\t50\t)", "}" }, true, "/obj/cam1", 0, 0,
        false },
    { "SquareWithoutTab", "obj/cam1.parm {", { "res\t[ 0 ]\t(\t640\t)", "}" }, true, "/obj/cam1",
        640, 640, false },
    { "KeywordAnyCase", "obj/cam1.parm {", { "RES\t[ 0 ]\t(\t800\t600\t)", "}" }, true, "/obj/cam1",
        800, 600, false },
    { "QuotedNumbers", "obj/cam1.parm {", { "res\t[ 0 ]\t(\t\"1280\"\t\"720\"\t)", "}" }, true,
        "/obj/cam1", 1280, 720, false },
    { "NotANumber", "obj/cam1.parm {", { "res\t[ 0 ]\t(\twide\t1080\t)", "}" }, true, "/obj/cam1",
        0, 1080, false },
    { "NoClosingBracket", "obj/cam1.parm {", { "res\t[ 0 ]\t(\t1920\t1080", "}" }, true,
        "/obj/cam1", 0, 0, false },
    { "OtherKeywordStartingRes", "obj/cam1.parm {", { "resMenu\t[ 0 ]\t(\t7\t8\t)", "}" }, true,
        "/obj/cam1", 0, 0, false },
    { "CommentsAndBlanks", "obj/cam1.parm {", { "", "# res\t(\t1\t2\t)", Res1920, "", "}" }, true,
        "/obj/cam1", 1920, 1080, false },
    { "LastResolutionWins", "obj/cam1.parm {", { Res1920, "res\t[ 0 ]\t(\t320\t240\t)", "}" }, true,
        "/obj/cam1", 320, 240, false },
    { "ArchivePrefixDropped", "hip.dir/obj/cam1.parm {", { "}" }, true, "/obj/cam1", 0, 0, false },
    { "OutNetwork", "out/cam2.parm {", { "}" }, true, "/out/cam2", 0, 0, false },
    { "StereoLowerCase", "obj/stereo_rig.parm {", { "}" }, true, "/obj/stereo_rig", 0, 0, true },
    { "StereoAnyCase", "obj/Stereo_rig.parm {", { "}" }, true, "/obj/Stereo_rig", 0, 0, true },
    { "StereocamName", "obj/stereocam1/left.parm {", { "}" }, true, "/obj/stereocam1/left", 0, 0,
        true },
    { "ExcludedXform", "obj/cam1_xform.parm {", { Res1920, "}" }, false, "", 0, 0, false },
    { "ExcludedXformAnyCase", "obj/camXFORM.parm {", { Res1920, "}" }, false, "", 0, 0, false },
    { "ExcludedCamOrigin", "obj/rig/camOrigin.parm {", { "}" }, false, "", 0, 0, false },
    { "ExcludedFile", "obj/cam_file1.parm {", { "}" }, false, "", 0, 0, false },
    { "ExcludedProfileSubstring", "obj/profile_cam.parm {", { Res1920, "}" }, false, "", 0, 0,
        false },
    { "ExcludedConstraints", "obj/cam1/constraints.parm {", { "}" }, false, "", 0, 0, false },
    { "CutOff", "obj/cam1.parm {", { Res1920 }, false, "", 0, 0, false },
    { "EmptySection", "obj/cam1.parm {", {}, false, "", 0, 0, false },
};

INSTANTIATE_TEST_SUITE_P(Sections, CameraReaderTable, ::testing::ValuesIn(CameraRows),
    [](const ::testing::TestParamInfo<CameraRow>& info) { return std::string(info.param.shape); });

using CameraReader = ReaderTest;

TEST_F(CameraReader, StopsAfterClosingBrace)
{
    SectionFeed feed(qsl({ Res1920, "}", "obj/cam2.parm {" }));
    QString line = QStringLiteral("obj/cam1.parm {");

    loadCamNode(nullptr, feed.source, line);

    EXPECT_EQ(line, QStringLiteral("}"));
    EXPECT_EQ(feed.nextUnread(), QStringLiteral("obj/cam2.parm {"));
}

TEST_F(CameraReader, LongPathIsCutToCapacity)
{
    const QString longName = QString(200, u'c');
    SectionFeed feed(qsl({ "}" }));
    QString line = QStringLiteral("obj/") + longName + QStringLiteral(".parm {");

    loadCamNode(nullptr, feed.source, line);

    ASSERT_EQ(camList.list.size(), 1);
    EXPECT_EQ(
        camList.list.first().name.toQString(), (QStringLiteral("/obj/") + longName).left(150));
}

TEST_F(CameraReader, DriverRegisteredBeforeSectionStaysAttached)
{
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/cam1"), QStringLiteral("/out/mantra1"));
    SectionFeed feed(qsl({ Res1920, "}" }));
    QString line = QStringLiteral("obj/cam1.parm {");

    loadCamNode(nullptr, feed.source, line);

    ASSERT_EQ(camList.list.size(), 1);
    const _camNode& cam = camList.list.first();
    EXPECT_EQ(cam.resX, 1920);
    EXPECT_EQ(cam.resY, 1080);
    EXPECT_EQ(cam.renderNodes, QStringList { QStringLiteral("/out/mantra1") });
    EXPECT_EQ(camList.findCamIndexByRenderNode(QStringLiteral("/out/mantra1")), 0);
}

TEST_F(CameraReader, CutOffSectionLeavesRegisteredEntryWithoutResolution)
{
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/cam1"), QStringLiteral("/out/mantra1"));
    SectionFeed feed(qsl({ Res1920 }));
    QString line = QStringLiteral("obj/cam1.parm {");

    loadCamNode(nullptr, feed.source, line);

    ASSERT_EQ(camList.list.size(), 1);
    EXPECT_EQ(camList.list.first().resX, 0);
    EXPECT_EQ(camList.list.first().resY, 0);
}

using CameraList = ReaderTest;

_camNode camera(const char* name, int resX, int resY)
{
    _camNode cam;
    cam.name.setLatin1(name);
    cam.resX = resX;
    cam.resY = resY;
    return cam;
}

TEST_F(CameraList, FindAppendsBlankEntryWithoutName)
{
    EXPECT_EQ(camList.findCamIndex(_zkString8_allSize<150>("/obj/cam1")), 0);
    EXPECT_EQ(camList.findCamIndex(_zkString8_allSize<150>("/obj/cam2")), 1);
    ASSERT_EQ(camList.list.size(), 2);
    EXPECT_TRUE(camList.list.at(0).name.isEmpty());
    EXPECT_EQ(camList.list.at(0).resX, 0);
    EXPECT_FALSE(camList.list.at(0).isStereo);
}

TEST_F(CameraList, NamesCompareExactly)
{
    _camNode lower = camera("/obj/cam1", 100, 50);
    _camNode upper = camera("/obj/Cam1", 200, 60);
    camList.addCam(lower);
    camList.addCam(upper);
    camList.addCam(lower);

    ASSERT_EQ(camList.list.size(), 2);
    EXPECT_EQ(camList.findCamIndex(_zkString8_allSize<150>("/obj/Cam1")), 1);
    EXPECT_EQ(camList.list.at(1).resX, 200);
}

TEST_F(CameraList, DriversOfOneCameraShareEntry)
{
    const _zkString8_allSize<150> cam("/obj/cam1");
    camList.addCamFromOutNode(cam, QStringLiteral("/out/mantra1"));
    camList.addCamFromOutNode(cam, QStringLiteral("/out/karma1"));
    camList.addCamFromOutNode(cam, QStringLiteral("/out/mantra1"));

    ASSERT_EQ(camList.list.size(), 1);
    EXPECT_EQ(camList.list.first().name.toQString(), QStringLiteral("/obj/cam1"));
    EXPECT_EQ(camList.list.first().renderNodes,
        QStringList({ QStringLiteral("/out/mantra1"), QStringLiteral("/out/karma1"),
            QStringLiteral("/out/mantra1") }));
}

TEST_F(CameraList, ChsopWrapperIsRemoved)
{
    camList.addCamFromOutNode(
        _zkString8_allSize<150>("`chsop(\\\"/obj/cam1`"), QStringLiteral("/out/mantra1"));

    ASSERT_EQ(camList.list.size(), 1);
    EXPECT_EQ(camList.list.first().name.toQString(), QStringLiteral("/obj/cam1"));
}

TEST_F(CameraList, LookupByDriverIsExactAndEarliestWins)
{
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/a"), QStringLiteral("/out/r1"));
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/b"), QStringLiteral("/out/r2"));
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/b"), QStringLiteral("/out/r1"));

    EXPECT_EQ(camList.findCamIndexByRenderNode(QStringLiteral("/out/r1")), 0);
    EXPECT_EQ(camList.findCamIndexByRenderNode(QStringLiteral("/out/r2")), 1);
    EXPECT_EQ(camList.findCamIndexByRenderNode(QStringLiteral("/out/R1")), -1);
    EXPECT_EQ(camList.findCamIndexByRenderNode(QStringLiteral("/out/r3")), -1);
}

TEST_F(CameraList, AddCamKeepsDriversAndOverwritesResolution)
{
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/cam1"), QStringLiteral("/out/r1"));
    _camNode first = camera("/obj/cam1", 640, 480);
    first.isStereo = true;
    camList.addCam(first);
    _camNode second = camera("/obj/cam1", 1920, 1080);
    camList.addCam(second);

    ASSERT_EQ(camList.list.size(), 1);
    EXPECT_EQ(camList.list.first().resX, 1920);
    EXPECT_FALSE(camList.list.first().isStereo);
    EXPECT_EQ(camList.list.first().renderNodes, QStringList { QStringLiteral("/out/r1") });
}

TEST_F(CameraList, ExcludedCameraLeavesRegisteredEntryUntouched)
{
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/camFile"), QStringLiteral("/out/r1"));
    _camNode cam = camera("/obj/camFile", 640, 480);
    camList.addCam(cam);

    ASSERT_EQ(camList.list.size(), 1);
    EXPECT_EQ(camList.list.first().resX, 0);
}

} // namespace
