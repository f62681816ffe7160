// The four element readers (camera, LOP, USD render settings, wedge) over one
// table: each row is a section, and the expectation describes every list
// entry the section left, plus the first line the reader did not consume.
#include "plugin/readers/readerCommon.h"
#include "readerText.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

QString drivers(const QStringList& renderNodes)
{
    return renderNodes.isEmpty() ? QString() : QStringLiteral(" <- ") + renderNodes.join(u',');
}

/// Every entry of the four lists, in a compact text.
QString describeLists()
{
    QStringList out;
    for (const _camNode& c : camList.list)
        out << QStringLiteral("cam %1 %2x%3%4%5")
                   .arg(c.name.toQString())
                   .arg(c.resX)
                   .arg(c.resY)
                   .arg(c.isStereo ? QStringLiteral(" stereo") : QString(), drivers(c.renderNodes));
    for (const _LOPNode& l : LOPList.list)
        out << QStringLiteral("lop %1 out=%2%3 renderer=%4%5")
                   .arg(l.nodePath, l.imageOut,
                       l.imageUsesTake ? QStringLiteral(" take") : QString(), l.renderer,
                       drivers(l.renderNodes));
    for (const _USD_RendersettingNode& r : USD_RSList.list)
        out << QStringLiteral("rs %1 cam=%2%3%4%5 file=%6%7")
                   .arg(r.nodePath, r.camera, r.archiveEnabled ? QStringLiteral(" on") : QString(),
                       r.archiveControlSet ? QStringLiteral(" set") : QString(),
                       r.imageUsesTake ? QStringLiteral(" take") : QString(), r.archiveFile,
                       drivers(r.renderNodes));
    for (_wedgeNode& w : wedges)
        out << QStringLiteral("wedge %1 prefix=%2 method=%3 driver=%4 total=%5 first=%6")
                   .arg(w.nodePath, w.prefix, w.wedgeMethod, w.driver)
                   .arg(w.totalWedges())
                   .arg(w.getWedgeFileName(0));
    return out.join(QStringLiteral("; "));
}

/// Reads one section with reader \p kind ('c', 'l', 'r' or 'w') and describes
/// the lists; " | next=LINE" names the first line left unread.
QString readSection(char kind, const char* header, const char* body)
{
    zkTest::TextLines lines(body);
    QString line = qs(header);
    bool result = true;
    switch (kind) {
    case 'c':
        result = loadCamNode(nullptr, lines.source, line);
        break;
    case 'l':
        result = loadLOPNode(nullptr, lines.source, line);
        break;
    case 'r':
        result = load_USD_RS_Node(nullptr, lines.source, line) == 1;
        break;
    default:
        result = loadWedgeNode(nullptr, lines.source, line);
    }
    QString next;
    QString text = result ? describeLists() : QStringLiteral("reader failed");
    if (lines.source.next(next))
        text += QStringLiteral(" | next=") + next;
    return text;
}

#define RES "res\t[ 0\tlocks=0 ]\t(\t1920\t1080\t)\n"
#define RS_CAMERA "camera\t[ 0\tlocks=0 ]\t(\t\"/cameras/cam1\"\t)\n"
#define RS_ON "xn__redshiftglobalRS_archive_enable\t[ 0\tlocks=0 ]\t(\t\"on\"\t)\n"
#define RS_FILE                                                                                    \
    "xn__redshiftglobalRS_archive_fileName\t[ 0\tlocks=0 ]\t(\t\"$HIP/rs/$OS.$F4.rs\"\t)\n"
#define W_METHOD "wedgemethod\t[ 0\tlocks=0 ]\t(\t\"channel\"\t)\n"
#define W_DRIVER "driver\t[ 0\tlocks=0 ]\t(\t\"../mantra1\"\t)\n"
#define W_NAME1 "name1\t[ 0\tlocks=0 ]\t(\t\"scale\"\t)\n"
#define W_STEPS1 "steps1\t[ 0\tlocks=0 ]\t(\t3\t)\n"
#define W_BASE W_METHOD W_DRIVER W_NAME1 W_STEPS1
#define W_LISTED(first)                                                                            \
    "wedge /out/wedge1 prefix= method=channel driver=/out/mantra1 total=3 first=" first

struct SectionRow
{
    const char* what;
    char reader;
    const char* header;
    const char* body;
    const char* left;
};

const SectionRow SectionRows[] = {
    // Cameras: resolution, stereo, excluded names.
    { "camera", 'c', "obj/cam1.parm {", RES "}\nobj/cam2.parm {\n",
        "cam /obj/cam1 1920x1080 | next=obj/cam2.parm {" },
    { "no resolution", 'c', "obj/cam1.parm {", "focal\t[ 0 ]\t(\t50\t)\n}", "cam /obj/cam1 0x0" },
    { "square without tab", 'c', "obj/cam1.parm {", "res\t[ 0 ]\t(\t640\t)\n}",
        "cam /obj/cam1 640x640" },
    { "res any case, quoted", 'c', "obj/cam1.parm {", "RES\t[ 0 ]\t(\t\"800\"\t\"600\"\t)\n}",
        "cam /obj/cam1 800x600" },
    { "res not a number", 'c', "obj/cam1.parm {", "res\t[ 0 ]\t(\twide\t1080\t)\n}",
        "cam /obj/cam1 0x1080" },
    { "res unclosed", 'c', "obj/cam1.parm {", "res\t[ 0 ]\t(\t1920\t1080\n}", "cam /obj/cam1 0x0" },
    { "resMenu is no res", 'c', "obj/cam1.parm {", "resMenu\t[ 0 ]\t(\t7\t8\t)\n}",
        "cam /obj/cam1 0x0" },
    { "camera comments, last res", 'c', "obj/cam1.parm {",
        "\n# res\t(\t1\t2\t)\n" RES "res\t[ 0 ]\t(\t320\t240\t)\n}", "cam /obj/cam1 320x240" },
    { "archive prefix", 'c', "hip.dir/obj/cam1.parm {", "}", "cam /obj/cam1 0x0" },
    { "out network", 'c', "out/cam2.parm {", "}", "cam /out/cam2 0x0" },
    { "stereo", 'c', "obj/Stereo_rig.parm {", "}", "cam /obj/Stereo_rig 0x0 stereo" },
    { "stereocam", 'c', "obj/stereocam1/left.parm {", "}", "cam /obj/stereocam1/left 0x0 stereo" },
    { "xform excluded", 'c', "obj/camXFORM.parm {", RES "}", "" },
    { "camOrigin excluded", 'c', "obj/rig/camOrigin.parm {", "}", "" },
    { "file excluded", 'c', "obj/profile_cam.parm {", RES "}", "" },
    { "constraints excluded", 'c', "obj/cam1/constraints.parm {", "}", "" },
    { "camera cut off", 'c', "obj/cam1.parm {", RES, "" },
    { "camera empty", 'c', "obj/cam1.parm {", "", "" },
    // LOP nodes: image output through the token conversion, renderer from the path.
    { "hdprman", 'l', "stage/hdprman1.parm {",
        "picture\t[ 0\tlocks=0 ]\t(\t\"$HIP/render/$OS.$F4.exr\"\t)\n}\nnext\n",
        "lop /stage/hdprman1 out=$HIP/render/$OS.%4d.exr renderer=prman | next=next" },
    { "picture any case", 'l', "stage/hdprman1.parm {", "Picture\t[ 0 ]\t(\t\"/r/a.$F.exr\"\t)\n}",
        "lop /stage/hdprman1 out=/r/a.%d.exr renderer=prman" },
    { "active take", 'l', "stage/hdprman1.parm {",
        "picture\t[ 0 ]\t(\t\"/r/$ACTIVETAKE/a.$F4.exr\"\t)\n}",
        "lop /stage/hdprman1 out=/r/<Channel>/a.%4d.exr take renderer=prman" },
    { "rejected picture keeps earlier", 'l', "stage/hdprman1.parm {",
        "picture\t[ 0 ]\t(\t\"/r/a.exr\"\t)\npicture\t[ 0 ]\t(\t\"`chs(\"x\")`\"\t)\n\n# "
        "picture\t(\t\"/x.exr\"\t)\n}",
        "lop /stage/hdprman1 out=/r/a.exr renderer=prman" },
    { "karma path", 'l', "stage/karma_settings.parm {", "}",
        "lop /stage/karma_settings out= renderer=karma" },
    { "prman without hd", 'l', "stage/prman1.parm {", "}", "lop /stage/prman1 out= renderer=" },
    { "lop out network first", 'l', "stage/lopnet/out/hdprman1.parm {", "}",
        "lop /out/hdprman1 out= renderer=prman" },
    { "lop img network", 'l', "img/comp/hdprman2.parm {", "}",
        "lop /img/comp/hdprman2 out= renderer=prman" },
    { "lop obj network", 'l', "obj/lopnet1/hdprman1.parm {", "}",
        "lop /obj/lopnet1/hdprman1 out= renderer=prman" },
    { "lop cut off", 'l', "stage/hdprman1.parm {", "picture\t[ 0 ]\t(\t\"/r/a.exr\"\t)", "" },
    // USD render settings: camera, archive switch and file.
    { "settings", 'r', "stage/rendersettings1.parm {", RS_CAMERA RS_ON RS_FILE "}\nafter",
        "rs /stage/rendersettings1 cam=/cameras/cam1 on file=$HIP/rs/$OS.%4d.rs | next=after" },
    { "settings empty", 'r', "stage/rendersettings1.parm {", "\n# camera\t(\t/x\t)\n}",
        "rs /stage/rendersettings1 cam= file=" },
    { "settings out network first", 'r', "stage/net/out/rendersettings1.parm {", "}",
        "rs /out/rendersettings1 cam= file=" },
    { "settings obj network", 'r', "obj/lop/rendersettings2.parm {", "}",
        "rs /obj/lop/rendersettings2 cam= file=" },
    { "settings keywords any case", 'r', "stage/rendersettings1.parm {",
        "CAMERA\t[ 0 ]\t(\t/c\t)\nXN__REDSHIFTGLOBALRS_ARCHIVE_ENABLE\t[ 0 ]\t(\ton\t)\n}",
        "rs /stage/rendersettings1 cam=/c on file=" },
    { "enable off", 'r', "stage/rendersettings1.parm {",
        RS_ON "xn__redshiftglobalRS_archive_enable\t[ 0 ]\t(\t\"off\"\t)\n}",
        "rs /stage/rendersettings1 cam= file=" },
    { "enable value exact case", 'r', "stage/rendersettings1.parm {",
        "xn__redshiftglobalRS_archive_enable\t[ 0 ]\t(\t\"ON\"\t)\n}",
        "rs /stage/rendersettings1 cam= file=" },
    // "none" holds "on": read as the enable switch it would turn the archive on.
    { "control before enable", 'r', "stage/rendersettings1.parm {",
        "xn__redshiftglobalRS_archive_enable_control\t[ 0 ]\t(\t\"none\"\t)\n}",
        "rs /stage/rendersettings1 cam= file=" },
    { "file name control", 'r', "stage/rendersettings1.parm {",
        RS_FILE "xn__redshiftglobalRS_archive_fileName_control\t[ 0 ]\t(\t\"set\"\t)\n}",
        "rs /stage/rendersettings1 cam= file=$HIP/rs/$OS.%4d.rs" },
    { "camera expressions ignored", 'r', "stage/rendersettings1.parm {",
        RS_CAMERA
        "camera\t[ 0 ]\t(\t\"`chs(\\\"../cam\\\")`\"\t)\ncamera\t[ 0 ]\t(\t\"`chsop(x`\"\t)\n}",
        "rs /stage/rendersettings1 cam=/cameras/cam1 file=" },
    { "camera self reference", 'r', "stage/rendersettings1.parm {",
        "camera\t[ 0 ]\t(\t\"[ camera/cams/main]\"\t)\n}",
        "rs /stage/rendersettings1 cam=/cams/main file=" },
    { "camera unclosed", 'r', "stage/rendersettings1.parm {",
        RS_CAMERA "camera\t[ 0 ]\t(\t\"/cam2\"\n}", "rs /stage/rendersettings1 cam= file=" },
    { "rejected archive keeps earlier", 'r', "stage/rendersettings1.parm {",
        RS_FILE "xn__redshiftglobalRS_archive_fileName\t[ 0 ]\t(\t\"testfile.exr\"\t)\n}",
        "rs /stage/rendersettings1 cam= file=$HIP/rs/$OS.%4d.rs" },
    { "settings cut off", 'r', "stage/rendersettings1.parm {", RS_CAMERA RS_ON RS_FILE, "" },
    // Wedges: kept only with a driver, the "channel" method and at least one variant.
    { "wedge", 'w', "out/wedge1.parm {",
        "prefix\t[ 0\tlocks=0 ]\t(\t\"wedge\"\t)\n" W_BASE "range1\t[ 0 ]\t(\t0\t1\t)\n}\nafter",
        "wedge /out/wedge1 prefix=wedge method=channel driver=/out/mantra1 total=3 "
        "first=wedge_scale_0.000000 | next=after" },
    { "keywords and method any case", 'w', "out/wedge1.parm {",
        "WedgeMethod\t[ 0 ]\t(\tChannel\t)\nDRIVER\t[ 0 ]\t(\t/out/r1\t)\nName1\t[ 0 ]\t(\tx\t)\n"
        "STEPS1\t[ 0 ]\t(\t2\t)\n}",
        "wedge /out/wedge1 prefix= method=Channel driver=/out/r1 total=2 first=_x_0.000000" },
    { "one parent step only", 'w', "obj/net/wedge1.parm {",
        W_METHOD "driver\t[ 0 ]\t(\t\"../../r1\"\t)\n" W_NAME1 W_STEPS1 "}",
        "wedge /obj/net/wedge1 prefix= method=channel driver=/obj/net/../r1 total=3 "
        "first=_scale_0.000000" },
    { "decimal commas", 'w', "out/wedge1.parm {", W_BASE "range1\t[ 0 ]\t(\t0,5\t1,5\t)\n}",
        W_LISTED("_scale_0.500000") },
    { "range without tab", 'w', "out/wedge1.parm {", W_BASE "range1\t[ 0 ]\t(\t0.25\t)\n}",
        W_LISTED("_scale_0.250000") },
    { "parameters out of order", 'w', "out/wedge1.parm {",
        W_METHOD W_DRIVER "steps2\t[ 0 ]\t(\t2\t)\nname2\t[ 0 ]\t(\tseed\t)\n" W_STEPS1 W_NAME1
                          "range2\t[ 0 ]\t(\t5\t6\t)\n}",
        "wedge /out/wedge1 prefix= method=channel driver=/out/mantra1 total=6 "
        "first=_scale_0.000000_seed_5.000000" },
    { "parameter 0, -1 and stepsize ignored", 'w', "out/wedge1.parm {",
        "name0\t[ 0 ]\t(\tx\t)\nsteps0\t[ 0 ]\t(\t9\t)\nrange-1\t[ 0 ]\t(\t4\t5\t)\n" W_BASE
        "stepsize\t[ 0 ]\t(\t0\t)\n\n# wedgemethod\t(\tother\t)\n}",
        W_LISTED("_scale_0.000000") },
    { "other method", 'w', "out/wedge1.parm {",
        "wedgemethod\t[ 0 ]\t(\ttake\t)\n" W_DRIVER W_NAME1 W_STEPS1 "}", "" },
    { "no method", 'w', "out/wedge1.parm {", W_DRIVER W_NAME1 W_STEPS1 "}", "" },
    { "no driver", 'w', "out/wedge1.parm {", W_METHOD W_NAME1 W_STEPS1 "}", "" },
    { "no parameters", 'w', "out/wedge1.parm {", W_METHOD W_DRIVER "}", "" },
    { "gap without steps", 'w', "out/wedge1.parm {",
        W_BASE "name3\t[ 0 ]\t(\tz\t)\nsteps3\t[ 0 ]\t(\t2\t)\n}", "" },
    { "zero steps", 'w', "out/wedge1.parm {", W_METHOD W_DRIVER W_NAME1 "steps1\t[ 0 ]\t(\t0\t)\n}",
        "" },
    { "product overflows", 'w', "out/wedge1.parm {",
        W_METHOD W_DRIVER "steps1\t[ 0 ]\t(\t100000\t)\nsteps2\t[ 0 ]\t(\t100000\t)\n}", "" },
    { "number above limit", 'w', "out/wedge1.parm {",
        W_BASE "name1001\t[ 0 ]\t(\tfar\t)\nrange999999\t[ 0 ]\t(\t1\t2\t)\n}\nafter",
        " | next=after" },
    { "huge number", 'w', "out/wedge1.parm {", W_BASE "steps2000000000\t[ 0 ]\t(\t2\t)\n}", "" },
    // A name or range without number ends the section at once, behind it.
    { "name without number", 'w', "out/wedge1.parm {", W_BASE "namespace\t[ 0 ]\t(\tx\t)\ntail\n}",
        " | next=tail" },
    { "range without number", 'w', "out/wedge1.parm {", W_BASE "rangex\t[ 0 ]\t(\t1\t2\t)\n}",
        " | next=}" },
    { "wedge cut off", 'w', "out/wedge1.parm {", W_BASE, "" },
};

TEST(ElementReaders, SectionsLeaveTheirEntries)
{
    for (const SectionRow& row : SectionRows) {
        resetParserState();
        EXPECT_EQ(readSection(row.reader, row.header, row.body), qs(row.left)) << row.what;
    }
    resetParserState();
}

TEST(ElementReaders, LongCameraPathIsCutToCapacity)
{
    resetParserState();
    const QByteArray name(200, 'c');
    readSection('c', ("obj/" + name + ".parm {").constData(), "}");
    ASSERT_EQ(camList.list.size(), 1);
    EXPECT_EQ(camList.list.first().name.toQString(), QString::fromLatin1("/obj/" + name).left(150));
}

// Drivers register with cameras, LOP nodes and render settings before or after
// their sections are read; registrations survive the section, and a later
// section of the same entry updates it.
TEST(ElementReaders, RegisteredDriversStayWithTheirEntries)
{
    resetParserState();
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/cam1"), QStringLiteral("/out/r1"));
    camList.addCamFromOutNode(
        _zkString8_allSize<150>("`chsop(\\\"/obj/cam2`"), QStringLiteral("/out/r2"));
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/camFile"), QStringLiteral("/out/r3"));
    LOPList.addLOPFromOutNode(QStringLiteral("/stage/HDPRMAN1"), QStringLiteral("/out/usd1"));
    LOPList.addLOPFromOutNode(
        QStringLiteral("`chsop(\\\"/stage/karma1`"), QStringLiteral("/out/usd2"));
    USD_RSList.addFromROP(QStringLiteral("/stage/RenderSettings1"), QStringLiteral("/out/rs1"));
    USD_RSList.addFromROP(QStringLiteral("`chsop(\\\"/stage/rs2`"), QStringLiteral("/out/rs2"));
    USD_RSList.list[0].imageUsesTake = true;
    USD_RSList.list[0].archiveControlSet = true;

    readSection('c', "obj/cam1.parm {", RES "}");
    readSection('c', "obj/cam2.parm {", RES); // cut off: the registered entry keeps 0x0
    readSection('c', "obj/camFile.parm {", RES "}"); // excluded: untouched
    readSection('l', "stage/hdprman1.parm {", "picture\t[ 0 ]\t(\t\"/r/a.$F4.exr\"\t)\n}");
    readSection('r', "stage/rendersettings1.parm {", RS_CAMERA RS_ON "}");
    EXPECT_EQ(readSection(
                  'r', "stage/RENDERSETTINGS1.parm {", "camera\t[ 0 ]\t(\t/cam2\t)\n" RS_FILE "}"),
        QStringLiteral(
            "cam /obj/cam1 1920x1080 <- /out/r1; cam /obj/cam2 0x0 <- /out/r2; "
            "cam /obj/camFile 0x0 <- /out/r3; "
            "lop /stage/hdprman1 out=/r/a.%4d.exr renderer=prman <- /out/usd1; "
            "lop /stage/karma1 out= renderer= <- /out/usd2; "
            "rs /stage/RENDERSETTINGS1 cam=/cam2 set take file=$HIP/rs/$OS.%4d.rs <- /out/rs1; "
            "rs /stage/rs2 cam= file= <- /out/rs2"));
    EXPECT_EQ(camList.findCamIndexByRenderNode(QStringLiteral("/out/r2")), 1);
    EXPECT_EQ(LOPList.findLOPIndexByRenderNode(QStringLiteral("/out/usd2")), 1);
    EXPECT_EQ(USD_RSList.findIndexByROP(QStringLiteral("/out/rs2")), 1);
    resetParserState();
}

TEST(ElementLists, FindAndLookupRules)
{
    resetParserState();
    // Cameras: names exact; a lookup miss appends a blank entry.
    EXPECT_EQ(camList.findCamIndex(_zkString8_allSize<150>("/obj/cam1")), 0);
    EXPECT_EQ(camList.findCamIndex(_zkString8_allSize<150>("/obj/Cam1")), 1);
    EXPECT_TRUE(camList.list.at(0).name.isEmpty());
    // LOP nodes and render settings: paths ignore case; without the flag nothing is added.
    EXPECT_EQ(LOPList.findLOPIndex(QStringLiteral("/stage/Render"), false), -1);
    EXPECT_EQ(LOPList.findLOPIndex(QStringLiteral("/stage/Render"), true), 0);
    EXPECT_EQ(LOPList.findLOPIndex(QStringLiteral("/stage/render"), false), 0);
    EXPECT_EQ(USD_RSList.findIndex(QStringLiteral("/stage/RS"), false), -1);
    EXPECT_EQ(USD_RSList.findIndex(QStringLiteral("/stage/RS"), true), 0);
    EXPECT_EQ(USD_RSList.findIndex(QStringLiteral("/stage/rs"), true), 0);
    EXPECT_EQ(LOPList.list.size() + USD_RSList.list.size(), 2);

    // Driver lookups compare exactly, and the earliest entry wins; repeated
    // registrations are all kept.
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/a"), QStringLiteral("/out/r1"));
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/b"), QStringLiteral("/out/r1"));
    camList.addCamFromOutNode(_zkString8_allSize<150>("/obj/a"), QStringLiteral("/out/r1"));
    EXPECT_EQ(camList.findCamIndexByRenderNode(QStringLiteral("/out/r1")), 2);
    EXPECT_EQ(camList.list.at(2).renderNodes.size(), 2);
    EXPECT_EQ(camList.findCamIndexByRenderNode(QStringLiteral("/out/R1")), -1);
    LOPList.addLOPFromOutNode(QStringLiteral("/stage/b"), QStringLiteral("/out/usd2"));
    EXPECT_EQ(LOPList.findLOPIndexByRenderNode(QStringLiteral("/out/usd2")), 1);
    EXPECT_EQ(LOPList.findLOPIndexByRenderNode(QStringLiteral("/out/USD2")), -1);
    USD_RSList.addFromROP(QStringLiteral("/stage/b"), QStringLiteral("/out/r2"));
    USD_RSList.addFromROP(QStringLiteral("/stage/B"), QStringLiteral("/out/r1"));
    EXPECT_EQ(USD_RSList.findIndexByROP(QStringLiteral("/out/r1")), 1);
    EXPECT_EQ(USD_RSList.findIndexByROP(QStringLiteral("/out/R1")), -1);

    // A camera read again overwrites resolution and stereo, keeps its drivers.
    _camNode cam;
    cam.name.setLatin1("/obj/a");
    cam.resX = 640;
    cam.isStereo = true;
    camList.addCam(cam);
    cam.resX = 1920;
    cam.isStereo = false;
    camList.addCam(cam);
    EXPECT_EQ(camList.list.at(2).resX, 1920);
    EXPECT_FALSE(camList.list.at(2).isStereo);
    EXPECT_EQ(camList.list.at(2).renderNodes.size(), 2);
    resetParserState();
}

TEST(ElementLists, RenderSettingsClearKeepsPathArchiveAndDrivers)
{
    _USD_RendersettingNode node;
    node.nodePath = QStringLiteral("/stage/rs1");
    node.camera = QStringLiteral("/cam");
    node.imageUsesTake = node.archiveEnabled = node.archiveControlSet = node.spareFlag = true;
    node.archiveFile = QStringLiteral("/a.rs");
    node.renderNodes = QStringList { QStringLiteral("/out/r1") };
    node.clear();
    USD_RSList.list = { node };
    EXPECT_EQ(describeLists(), QStringLiteral("rs /stage/rs1 cam= on file=/a.rs <- /out/r1"));
    EXPECT_FALSE(node.spareFlag);
    resetParserState();
}

TEST(LopRenderer, KeywordOfHintOrPathDecides)
{
    const struct
    {
        const char* path;
        const char* hint;
        const char* before;
        const char* after;
    } rows[] = {
        { "/stage/karmarendersettings", "", "", "karma" },
        { "/stage/hdprman1", "", "", "prman" },
        { "/stage/VRay_settings", "", "", "vray" },
        { "/stage/RedShift1", "", "", "redshift" },
        { "/stage/ARNOLD1", "", "", "arnold" },
        { "/stage/arnold_vs_karma", "", "", "karma" },
        { "/stage/vray_hdprman", "", "", "prman" },
        { "/stage/prman1", "", "", "" },
        { "/stage/lop1", "", "vray", "vray" },
        { "/stage/karma1", "/out/arnold_rop", "", "arnold" },
        { "/stage/karma1", "/out/usd1", "redshift", "redshift" },
        { "/stage/karma1", "/out/usd1", "", "" },
    };
    for (const auto& row : rows) {
        _LOPNode node;
        node.nodePath = qs(row.path);
        node.renderer = qs(row.before);
        node.setRenderer(qs(row.hint));
        EXPECT_EQ(node.renderer, qs(row.after)) << row.path << " " << row.hint;
    }
    _LOPNode node;
    EXPECT_EQ(node.rendererName_render() + u' ' + node.rendererName_create(),
        QStringLiteral("usd createUSD"));
    node.renderer = QStringLiteral("karma");
    EXPECT_EQ(node.rendererName_render() + u' ' + node.rendererName_create(),
        QStringLiteral("usd_karma createUSD_karma"));
}

// ---- wedge arithmetic ------------------------------------------------------

_wedgeNode wedgeOf(std::initializer_list<int> steps)
{
    _wedgeNode wedge;
    const char* names[] = { "scale", "seed", "c", "d" };
    double start = 0.0;
    for (int s : steps) {
        _wedgeParams p;
        p.name = QLatin1String(names[wedge.params.size() % 4]);
        p.rangeStart = start;
        p.rangeEnd = start + 1.0;
        p.steps = s;
        wedge.params.append(p);
        start += 1.0;
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
        { { 7 }, 7 },
        { { 2, 3, 4 }, 24 },
        { { 2, 0, 4 }, 0 },
        { { INT_MAX }, INT_MAX },
        { { 65536, 32768 }, 0 },
        { { 2000, 2000, 2000 }, 0 },
        { { INT_MAX, INT_MAX, INT_MAX, 2 }, 0 },
        { { INT_MAX, INT_MAX, 0 }, 0 },
        { { -2, 3 }, -6 },
        { { -2, -3 }, 6 },
        { { INT_MIN, 2 }, 0 },
    };
    for (const auto& row : rows) {
        _wedgeNode wedge = wedgeOf(row.steps);
        EXPECT_EQ(wedge.totalWedges(), row.total) << row.steps.size() << " parameters";
    }
    // The total is computed once.
    _wedgeNode wedge = wedgeOf({ 3, 2 });
    EXPECT_EQ(wedge.totalWedges(), 6);
    wedge.params.append(wedge.params.first());
    EXPECT_EQ(wedge.totalWedges(), 6);
}

TEST(WedgeArithmetic, FileNameOfEachVariant)
{
    // The first parameter varies fastest; values have six decimals.
    _wedgeNode wedge = wedgeOf({ 3, 2 });
    wedge.prefix = QStringLiteral("wedge");
    QStringList names;
    for (int i = 0; i < 6; ++i)
        names << wedge.getWedgeFileName(i);
    EXPECT_EQ(names.join(u' '),
        QStringLiteral("wedge_scale_0.000000_seed_1.000000 wedge_scale_0.500000_seed_1.000000 "
                       "wedge_scale_1.000000_seed_1.000000 wedge_scale_0.000000_seed_2.000000 "
                       "wedge_scale_0.500000_seed_2.000000 wedge_scale_1.000000_seed_2.000000"));
    // One step divides by zero: not a number.
    EXPECT_EQ(wedgeOf({ 1, 1 }).getWedgeFileName(0), QStringLiteral("_scale_nan_seed_nan"));
    // 5 % -2 == 1 and 5 / -2 == -2; then -2 % -3 == -2: 1 + -2 * 1 / (-3 - 1) = 1.5.
    EXPECT_EQ(
        wedgeOf({ -2, -3 }).getWedgeFileName(5), QStringLiteral("_scale_-0.333333_seed_1.500000"));
    // A parameter without steps does not divide the index.
    EXPECT_EQ(
        wedgeOf({ 0, 2 }).getWedgeFileName(1), QStringLiteral("_scale_0.000000_seed_2.000000"));
}

} // namespace
