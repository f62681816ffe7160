#include "plugin/readers/readerCommon.h"
#include "sectionFeed.h"

#include <gtest/gtest.h>

namespace {

struct RSRow
{
    const char* shape;
    const char* header;
    std::initializer_list<const char*> body;
    bool stored;
    const char* nodePath;
    const char* camera;
    bool archiveEnabled;
    const char* archiveFile;
};

class RenderSettingsReaderTable : public ReaderTest, public ::testing::WithParamInterface<RSRow>
{ };

TEST_P(RenderSettingsReaderTable, SectionGivesEntry)
{
    const RSRow& row = GetParam();
    SectionFeed feed(qsl(row.body));
    QString line = qs(row.header);

    EXPECT_EQ(load_USD_RS_Node(nullptr, feed.source, line), 1);

    if (!row.stored) {
        EXPECT_TRUE(USD_RSList.list.isEmpty());
        return;
    }
    ASSERT_EQ(USD_RSList.list.size(), 1);
    const _USD_RendersettingNode& node = USD_RSList.list.first();
    EXPECT_EQ(node.nodePath, qs(row.nodePath));
    EXPECT_EQ(node.camera, qs(row.camera));
    EXPECT_EQ(node.archiveEnabled, row.archiveEnabled);
    EXPECT_EQ(node.archiveFile, qs(row.archiveFile));
    // Neither flag is taken over by a new entry.
    EXPECT_FALSE(node.archiveControlSet);
    EXPECT_FALSE(node.imageUsesTake);
    EXPECT_TRUE(node.renderNodes.isEmpty());
}

const char* const Camera = "camera\t[ 0\tlocks=0 ]\t(\t\"/cameras/cam1\"\t)";
const char* const EnableOn = "xn__redshiftglobalRS_archive_enable\t[ 0\tlocks=0 ]\t(\t\"on\"\t)";
const char* const FileName = "xn__redshiftglobalRS_archive_fileName\t[ 0\tlocks=0 ]\t(\t"
                             "\"$HIP/rs/$OS.$F4.rs\"\t)";

const RSRow RSRows[] = {
    { "Full", "stage/rendersettings1.parm {", { Camera, EnableOn, FileName, "}" }, true,
        "/stage/rendersettings1", "/cameras/cam1", true, "$HIP/rs/$OS.%4d.rs" },
    { "Empty", "stage/rendersettings1.parm {", { "}" }, true, "/stage/rendersettings1", "", false,
        "" },
    { "OutNetworkFirst", "stage/net/out/rendersettings1.parm {", { "}" }, true,
        "/out/rendersettings1", "", false, "" },
    { "ObjNetwork", "obj/lop/rendersettings2.parm {", { "}" }, true, "/obj/lop/rendersettings2", "",
        false, "" },
    { "KeywordsAnyCase", "stage/rendersettings1.parm {",
        { "CAMERA\t[ 0 ]\t(\t/c\t)", "XN__REDSHIFTGLOBALRS_ARCHIVE_ENABLE\t[ 0 ]\t(\ton\t)", "}" },
        true, "/stage/rendersettings1", "/c", true, "" },
    { "EnableOff", "stage/rendersettings1.parm {",
        { EnableOn, "xn__redshiftglobalRS_archive_enable\t[ 0 ]\t(\t\"off\"\t)", "}" }, true,
        "/stage/rendersettings1", "", false, "" },
    { "EnableCaseExact", "stage/rendersettings1.parm {",
        { "xn__redshiftglobalRS_archive_enable\t[ 0 ]\t(\t\"ON\"\t)", "}" }, true,
        "/stage/rendersettings1", "", false, "" },
    // "none" holds "on": read as the enable switch it would turn the archive on.
    { "ControlBeforeEnable", "stage/rendersettings1.parm {",
        { "xn__redshiftglobalRS_archive_enable_control\t[ 0 ]\t(\t\"none\"\t)", "}" }, true,
        "/stage/rendersettings1", "", false, "" },
    { "FileNameControlIsNoFileName", "stage/rendersettings1.parm {",
        { FileName, "xn__redshiftglobalRS_archive_fileName_control\t[ 0 ]\t(\t\"set\"\t)", "}" },
        true, "/stage/rendersettings1", "", false, "$HIP/rs/$OS.%4d.rs" },
    { "CameraExpressionIgnored", "stage/rendersettings1.parm {",
        { Camera, "camera\t[ 0 ]\t(\t\"`chs(\\\"../cam\\\")`\"\t)", "}" }, true,
        "/stage/rendersettings1", "/cameras/cam1", false, "" },
    { "CameraChsopIgnored", "stage/rendersettings1.parm {",
        { "camera\t[ 0 ]\t(\t\"`chsop(x`\"\t)", "}" }, true, "/stage/rendersettings1", "", false,
        "" },
    { "CameraSelfReference", "stage/rendersettings1.parm {",
        { "camera\t[ 0 ]\t(\t\"[ camera/cams/main]\"\t)", "}" }, true, "/stage/rendersettings1",
        "/cams/main", false, "" },
    { "CameraWithoutClosingBracket", "stage/rendersettings1.parm {",
        { Camera, "camera\t[ 0 ]\t(\t\"/cam2\"", "}" }, true, "/stage/rendersettings1", "", false,
        "" },
    { "RejectedFileNameKeepsEarlier", "stage/rendersettings1.parm {",
        { FileName, "xn__redshiftglobalRS_archive_fileName\t[ 0 ]\t(\t\"testfile.exr\"\t)", "}" },
        true, "/stage/rendersettings1", "", false, "$HIP/rs/$OS.%4d.rs" },
    { "CommentsAndBlanks", "stage/rendersettings1.parm {", { "", "# camera\t(\t/x\t)", "}" }, true,
        "/stage/rendersettings1", "", false, "" },
    { "CutOff", "stage/rendersettings1.parm {", { Camera, EnableOn, FileName }, false, "", "",
        false, "" },
};

INSTANTIATE_TEST_SUITE_P(Sections, RenderSettingsReaderTable, ::testing::ValuesIn(RSRows),
    [](const ::testing::TestParamInfo<RSRow>& info) { return std::string(info.param.shape); });

using RenderSettingsReader = ReaderTest;

TEST_F(RenderSettingsReader, StopsAfterClosingBrace)
{
    SectionFeed feed(qsl({ Camera, "}", "after" }));
    QString line = QStringLiteral("stage/rendersettings1.parm {");

    EXPECT_EQ(load_USD_RS_Node(nullptr, feed.source, line), 1);

    EXPECT_EQ(line, QStringLiteral("}"));
    EXPECT_EQ(feed.nextUnread(), QStringLiteral("after"));
}

TEST_F(RenderSettingsReader, SamePathInOtherCaseUpdatesOneEntry)
{
    USD_RSList.addFromROP(QStringLiteral("/stage/RenderSettings1"), QStringLiteral("/out/rs1"));
    SectionFeed first(qsl({ Camera, EnableOn, "}" }));
    SectionFeed second(qsl({ "camera\t[ 0 ]\t(\t/cam2\t)", FileName, "}" }));
    QString line = QStringLiteral("stage/rendersettings1.parm {");
    load_USD_RS_Node(nullptr, first.source, line);
    line = QStringLiteral("stage/RENDERSETTINGS1.parm {");
    load_USD_RS_Node(nullptr, second.source, line);

    ASSERT_EQ(USD_RSList.list.size(), 1);
    const _USD_RendersettingNode& node = USD_RSList.list.first();
    EXPECT_EQ(node.nodePath, QStringLiteral("/stage/RENDERSETTINGS1"));
    EXPECT_EQ(node.camera, QStringLiteral("/cam2"));
    EXPECT_FALSE(node.archiveEnabled);
    EXPECT_EQ(node.archiveFile, QStringLiteral("$HIP/rs/$OS.%4d.rs"));
    EXPECT_EQ(node.renderNodes, QStringList { QStringLiteral("/out/rs1") });
}

using RenderSettingsList = ReaderTest;

TEST_F(RenderSettingsList, FindMatchesPathIgnoringCase)
{
    EXPECT_EQ(USD_RSList.findIndex(QStringLiteral("/stage/RS"), false), -1);
    EXPECT_TRUE(USD_RSList.list.isEmpty());
    EXPECT_EQ(USD_RSList.findIndex(QStringLiteral("/stage/RS"), true), 0);
    EXPECT_EQ(USD_RSList.findIndex(QStringLiteral("/stage/rs"), true), 0);
    EXPECT_EQ(USD_RSList.findIndex(QStringLiteral("/stage/rs2"), true), 1);
    EXPECT_EQ(USD_RSList.list.size(), 2);
}

TEST_F(RenderSettingsList, DriversCompareExactly)
{
    EXPECT_EQ(USD_RSList.addFromROP(QStringLiteral("/stage/a"), QStringLiteral("/out/r1")), 0);
    EXPECT_EQ(USD_RSList.addFromROP(QStringLiteral("/stage/b"), QStringLiteral("/out/r2")), 1);
    EXPECT_EQ(USD_RSList.addFromROP(QStringLiteral("/stage/A"), QStringLiteral("/out/r2")), 0);

    EXPECT_EQ(USD_RSList.list.at(0).renderNodes,
        QStringList({ QStringLiteral("/out/r1"), QStringLiteral("/out/r2") }));
    EXPECT_EQ(USD_RSList.findIndexByROP(QStringLiteral("/out/r2")), 0);
    EXPECT_EQ(USD_RSList.findIndexByROP(QStringLiteral("/out/R1")), -1);
}

TEST_F(RenderSettingsList, ChsopWrapperIsRemoved)
{
    USD_RSList.addFromROP(QStringLiteral("`chsop(\\\"/stage/rs1`"), QStringLiteral("/out/r1"));
    ASSERT_EQ(USD_RSList.list.size(), 1);
    EXPECT_EQ(USD_RSList.list.first().nodePath, QStringLiteral("/stage/rs1"));
}

TEST_F(RenderSettingsList, AddKeepsDriversAndFlagsOfEntry)
{
    const int index
        = USD_RSList.addFromROP(QStringLiteral("/stage/rs1"), QStringLiteral("/out/r1"));
    USD_RSList.list[index].imageUsesTake = true;
    USD_RSList.list[index].archiveControlSet = true;

    _USD_RendersettingNode node;
    node.nodePath = QStringLiteral("/stage/rs1");
    node.camera = QStringLiteral("/cam");
    node.archiveEnabled = true;
    node.archiveFile = QStringLiteral("/a.rs");
    EXPECT_EQ(USD_RSList.add(node), index);

    const _USD_RendersettingNode& entry = USD_RSList.list.at(index);
    EXPECT_EQ(entry.camera, QStringLiteral("/cam"));
    EXPECT_TRUE(entry.archiveEnabled);
    EXPECT_EQ(entry.archiveFile, QStringLiteral("/a.rs"));
    EXPECT_TRUE(entry.imageUsesTake);
    EXPECT_TRUE(entry.archiveControlSet);
    EXPECT_EQ(entry.renderNodes, QStringList { QStringLiteral("/out/r1") });
}

TEST(RenderSettingsNode, ClearKeepsPathArchiveAndDrivers)
{
    _USD_RendersettingNode node;
    EXPECT_FALSE(
        node.archiveEnabled || node.archiveControlSet || node.imageUsesTake || node.spareFlag);
    node.nodePath = QStringLiteral("/stage/rs1");
    node.camera = QStringLiteral("/cam");
    node.imageUsesTake = node.archiveEnabled = node.archiveControlSet = node.spareFlag = true;
    node.archiveFile = QStringLiteral("/a.rs");
    node.renderNodes = QStringList { QStringLiteral("/out/r1") };

    node.clear();

    EXPECT_TRUE(node.camera.isEmpty());
    EXPECT_FALSE(node.imageUsesTake);
    EXPECT_FALSE(node.archiveControlSet);
    EXPECT_FALSE(node.spareFlag);
    EXPECT_EQ(node.nodePath, QStringLiteral("/stage/rs1"));
    EXPECT_TRUE(node.archiveEnabled);
    EXPECT_EQ(node.archiveFile, QStringLiteral("/a.rs"));
    EXPECT_EQ(node.renderNodes.size(), 1);
}

} // namespace
