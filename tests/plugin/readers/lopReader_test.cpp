#include "plugin/readers/readerCommon.h"
#include "sectionFeed.h"

#include <gtest/gtest.h>

namespace {

struct LopRow
{
    const char* shape;
    const char* header;
    std::initializer_list<const char*> body;
    bool listed;
    const char* nodePath;
    const char* imageOut;
    bool usesTake;
    const char* renderer;
};

class LopReaderTable : public ReaderTest, public ::testing::WithParamInterface<LopRow>
{ };

TEST_P(LopReaderTable, SectionGivesEntry)
{
    const LopRow& row = GetParam();
    SectionFeed feed(qsl(row.body));
    QString line = qs(row.header);

    EXPECT_TRUE(loadLOPNode(nullptr, feed.source, line));

    if (!row.listed) {
        EXPECT_TRUE(LOPList.list.isEmpty());
        return;
    }
    ASSERT_EQ(LOPList.list.size(), 1);
    const _LOPNode& node = LOPList.list.first();
    EXPECT_EQ(node.nodePath, qs(row.nodePath));
    EXPECT_EQ(node.imageOut, qs(row.imageOut));
    EXPECT_EQ(node.imageUsesTake, row.usesTake);
    EXPECT_EQ(node.renderer, qs(row.renderer));
    EXPECT_TRUE(node.renderNodes.isEmpty());
}

const LopRow LopRows[] = {
    { "Hdprman", "stage/hdprman1.parm {",
        { "picture\t[ 0\tlocks=0 ]\t(\t\"$HIP/render/$OS.$F4.exr\"\t)", "}" }, true,
        "/stage/hdprman1", "$HIP/render/$OS.%4d.exr", false, "prman" },
    { "PictureKeywordAnyCase", "stage/hdprman1.parm {",
        { "Picture\t[ 0 ]\t(\t\"/r/a.$F.exr\"\t)", "}" }, true, "/stage/hdprman1", "/r/a.%d.exr",
        false, "prman" },
    { "ActiveTake", "stage/hdprman1.parm {",
        { "picture\t[ 0 ]\t(\t\"/r/$ACTIVETAKE/a.$F4.exr\"\t)", "}" }, true, "/stage/hdprman1",
        "/r/<Channel>/a.%4d.exr", true, "prman" },
    { "NoPicture", "stage/hdprman1.parm {", { "camera\t[ 0 ]\t(\t\"/cam\"\t)", "}" }, true,
        "/stage/hdprman1", "", false, "prman" },
    { "RejectedPictureKeepsEarlier", "stage/hdprman1.parm {",
        { "picture\t[ 0 ]\t(\t\"/r/a.exr\"\t)", "picture\t[ 0 ]\t(\t\"`chs(\"x\")`\"\t)", "}" },
        true, "/stage/hdprman1", "/r/a.exr", false, "prman" },
    { "KarmaPath", "stage/karma_settings.parm {", { "}" }, true, "/stage/karma_settings", "", false,
        "karma" },
    { "PrmanWithoutHd", "stage/prman1.parm {", { "}" }, true, "/stage/prman1", "", false, "" },
    { "OutNetworkFirst", "stage/lopnet/out/hdprman1.parm {", { "}" }, true, "/out/hdprman1", "",
        false, "prman" },
    { "ImgNetwork", "img/comp/hdprman2.parm {", { "}" }, true, "/img/comp/hdprman2", "", false,
        "prman" },
    { "ObjNetwork", "obj/lopnet1/hdprman1.parm {", { "}" }, true, "/obj/lopnet1/hdprman1", "",
        false, "prman" },
    { "CommentsAndBlanks", "stage/hdprman1.parm {", { "", "# picture\t(\t\"/x.exr\"\t)", "}" },
        true, "/stage/hdprman1", "", false, "prman" },
    { "CutOff", "stage/hdprman1.parm {", { "picture\t[ 0 ]\t(\t\"/r/a.exr\"\t)" }, false, "", "",
        false, "" },
};

INSTANTIATE_TEST_SUITE_P(Sections, LopReaderTable, ::testing::ValuesIn(LopRows),
    [](const ::testing::TestParamInfo<LopRow>& info) { return std::string(info.param.shape); });

using LopReader = ReaderTest;

TEST_F(LopReader, StopsAfterClosingBrace)
{
    SectionFeed feed(qsl({ "}", "next" }));
    QString line = QStringLiteral("stage/hdprman1.parm {");

    loadLOPNode(nullptr, feed.source, line);

    EXPECT_EQ(line, QStringLiteral("}"));
    EXPECT_EQ(feed.nextUnread(), QStringLiteral("next"));
}

TEST_F(LopReader, DriverRegisteredBeforeSectionStaysAttached)
{
    EXPECT_EQ(
        LOPList.addLOPFromOutNode(QStringLiteral("/stage/HDPRMAN1"), QStringLiteral("/out/usd1")),
        0);
    SectionFeed feed(qsl({ "picture\t[ 0 ]\t(\t\"/r/a.$F4.exr\"\t)", "}" }));
    QString line = QStringLiteral("stage/hdprman1.parm {");

    loadLOPNode(nullptr, feed.source, line);

    ASSERT_EQ(LOPList.list.size(), 1);
    const _LOPNode& node = LOPList.list.first();
    EXPECT_EQ(node.nodePath, QStringLiteral("/stage/hdprman1"));
    EXPECT_EQ(node.imageOut, QStringLiteral("/r/a.%4d.exr"));
    EXPECT_EQ(node.renderer, QStringLiteral("prman"));
    EXPECT_EQ(node.renderNodes, QStringList { QStringLiteral("/out/usd1") });
}

struct RendererRow
{
    const char* shape;
    const char* nodePath;
    const char* hint;
    const char* before;
    const char* after;
};

class LopRendererTable : public ::testing::TestWithParam<RendererRow>
{ };

TEST_P(LopRendererTable, KeywordDecides)
{
    const RendererRow& row = GetParam();
    _LOPNode node;
    node.nodePath = qs(row.nodePath);
    node.renderer = qs(row.before);

    node.setRenderer(qs(row.hint));

    EXPECT_EQ(node.renderer, qs(row.after));
}

const RendererRow RendererRows[] = {
    { "KarmaPath", "/stage/karmarendersettings", "", "", "karma" },
    { "HdprmanPath", "/stage/hdprman1", "", "", "prman" },
    { "VrayPath", "/stage/VRay_settings", "", "", "vray" },
    { "RedshiftPath", "/stage/RedShift1", "", "", "redshift" },
    { "ArnoldPath", "/stage/ARNOLD1", "", "", "arnold" },
    { "KarmaBeforeArnold", "/stage/arnold_vs_karma", "", "", "karma" },
    { "HdprmanBeforeVray", "/stage/vray_hdprman", "", "", "prman" },
    { "PrmanAloneIsNoKeyword", "/stage/prman1", "", "", "" },
    { "NoKeywordKeepsPrevious", "/stage/lop1", "", "vray", "vray" },
    { "HintWinsOverPath", "/stage/karma1", "/out/arnold_rop", "", "arnold" },
    { "HintWithoutKeywordIgnoresPath", "/stage/karma1", "/out/usd1", "redshift", "redshift" },
    { "HintWithoutKeywordKeepsEmpty", "/stage/karma1", "/out/usd1", "", "" },
};

INSTANTIATE_TEST_SUITE_P(Keywords, LopRendererTable, ::testing::ValuesIn(RendererRows),
    [](const ::testing::TestParamInfo<RendererRow>& info) {
        return std::string(info.param.shape);
    });

TEST(LopRendererNames, FollowRenderer)
{
    _LOPNode node;
    EXPECT_EQ(node.rendererName_render(), QStringLiteral("usd"));
    EXPECT_EQ(node.rendererName_create(), QStringLiteral("createUSD"));
    node.renderer = QStringLiteral("karma");
    EXPECT_EQ(node.rendererName_render(), QStringLiteral("usd_karma"));
    EXPECT_EQ(node.rendererName_create(), QStringLiteral("createUSD_karma"));
}

using LopList = ReaderTest;

TEST_F(LopList, FindMatchesPathIgnoringCase)
{
    EXPECT_EQ(LOPList.findLOPIndex(QStringLiteral("/stage/Render"), false), -1);
    EXPECT_TRUE(LOPList.list.isEmpty());
    EXPECT_EQ(LOPList.findLOPIndex(QStringLiteral("/stage/Render"), true), 0);
    EXPECT_EQ(LOPList.findLOPIndex(QStringLiteral("/stage/render"), false), 0);
    EXPECT_EQ(LOPList.findLOPIndex(QStringLiteral("/stage/other"), true), 1);
    ASSERT_EQ(LOPList.list.size(), 2);
    EXPECT_EQ(LOPList.list.at(0).nodePath, QStringLiteral("/stage/Render"));
    EXPECT_TRUE(LOPList.list.at(1).renderer.isEmpty());
    EXPECT_TRUE(LOPList.list.at(1).renderNodes.isEmpty());
}

TEST_F(LopList, DriverPathsCompareExactly)
{
    LOPList.addLOPFromOutNode(QStringLiteral("/stage/a"), QStringLiteral("/out/usd1"));
    LOPList.addLOPFromOutNode(QStringLiteral("/stage/b"), QStringLiteral("/out/usd2"));
    LOPList.addLOPFromOutNode(QStringLiteral("/stage/B"), QStringLiteral("/out/usd1"));

    ASSERT_EQ(LOPList.list.size(), 2);
    EXPECT_EQ(LOPList.list.at(1).renderNodes,
        QStringList({ QStringLiteral("/out/usd2"), QStringLiteral("/out/usd1") }));
    EXPECT_EQ(LOPList.findLOPIndexByRenderNode(QStringLiteral("/out/usd1")), 0);
    EXPECT_EQ(LOPList.findLOPIndexByRenderNode(QStringLiteral("/out/usd2")), 1);
    EXPECT_EQ(LOPList.findLOPIndexByRenderNode(QStringLiteral("/out/USD2")), -1);
}

TEST_F(LopList, ChsopWrapperIsRemoved)
{
    const int index = LOPList.addLOPFromOutNode(
        QStringLiteral("`chsop(\\\"/stage/karma1`"), QStringLiteral("/out/usd1"));

    ASSERT_EQ(index, 0);
    EXPECT_EQ(LOPList.list.first().nodePath, QStringLiteral("/stage/karma1"));
    // Registering a driver does not name the renderer.
    EXPECT_TRUE(LOPList.list.first().renderer.isEmpty());
}

TEST_F(LopList, AddKeepsDriversAndSetsRendererFromPath)
{
    LOPList.addLOPFromOutNode(QStringLiteral("/stage/karma1"), QStringLiteral("/out/usd1"));
    _LOPNode node;
    node.nodePath = QStringLiteral("/stage/Karma1");
    node.imageOut = QStringLiteral("/r/a.%4d.exr");
    node.imageUsesTake = true;
    node.renderNodes = QStringList { QStringLiteral("/out/ignored") };

    LOPList.addLOP(node);

    ASSERT_EQ(LOPList.list.size(), 1);
    const _LOPNode& entry = LOPList.list.first();
    EXPECT_EQ(entry.nodePath, QStringLiteral("/stage/Karma1"));
    EXPECT_EQ(entry.imageOut, QStringLiteral("/r/a.%4d.exr"));
    EXPECT_TRUE(entry.imageUsesTake);
    EXPECT_EQ(entry.renderer, QStringLiteral("karma"));
    EXPECT_EQ(entry.renderNodes, QStringList { QStringLiteral("/out/usd1") });
}

} // namespace
