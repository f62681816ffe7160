// Member headers as the three archive forms write them, declared types, the
// reader each type goes to, and the per-node table's bounds.
#include "plugin/nodeTable.h"
#include "plugin/nodeTypes.h"

#include <gtest/gtest.h>

namespace {

const QString Nul(QChar(u'\0'));
const QString Cpio = QStringLiteral("070707") + QString(70, u'0');
const QString HouNC = QStringLiteral("HouNC\x1a"
                                     "1033600ba305bd2f60c0a3b1130c");

QString q(const char* text)
{
    return QString::fromUtf8(text);
}

QString describe(const std::optional<MemberHeader>& h)
{
    const char* members[] = { "init", "def", "chn", "parm" };
    return h ? h->path.toString() + u'|' + q(members[int(h->member)]) + u'|' + h->rest.toString()
             : q("none");
}

} // namespace

TEST(MemberHeader, ArchiveAndMimeForms)
{
    // A binary member written before a header without a line end shares its line.
    const QString binary = HouNC + q("out.userdata") + Nul + q("\x01V") + Nul + q("16.5");
    const std::pair<QString, const char*> archive[] = {
        { Cpio + q("obj/cam1.init") + Nul + q("type = cam"), "obj/cam1|init|type = cam" },
        { HouNC + q("out/dop1.def") + Nul + q("comment"), "out/dop1|def|comment" },
        { q("HouLC\x1a") + HouNC.mid(6) + q("out/a b/c.chn") + Nul + q("{"), "out/a b/c|chn|{" },
        { binary + HouNC + q("out/d.parm") + Nul + q("{"), "out/d|parm|{" },
        // A version "12.1.207" right before the header: "0707" twice, the last one starts it.
        { q("12.1.207") + Cpio + q("out/t.init") + Nul, "out/t|init|" },
        { Cpio + q("obj/cam1.userdata") + Nul, "none" },
        { q("0707079") + Cpio.mid(7) + q("a.init") + Nul, "none" },
        { q("obj/cam1.init type = cam"), "none" }, { Cpio + q(".parm") + Nul + q("{"), "none" }
    };
    for (const auto& [line, expected] : archive)
        EXPECT_EQ(describe(archiveMemberHeader(line)), q(expected)) << expected;
    const QString lead = q("Content-Disposition: attachment; filename=\"");
    EXPECT_EQ(describe(mimeMemberHeader(lead + q("out/bake 1.init\""))), q("out/bake 1|init|"));
    EXPECT_EQ(describe(mimeMemberHeader(lead + q("out/a.parm"))), q("none"));
}

TEST(DeclaredType, InitLineBaseNameAndBypass)
{
    EXPECT_EQ(initTypeValue(u"type = filecache::2.0").toString(), q("filecache::2.0"));
    EXPECT_TRUE(initTypeValue(u"matchesdef = 0").isNull() && initTypeValue(u"type = ").isNull());
    const char* names[][2] = { { "ifd", "ifd" }, { "filecache::2.0", "filecache" },
        { "labs::vertex_animation_textures::3.0", "vertex_animation_textures" },
        { "qLib::rop_tool_ql::1", "rop_tool_ql" },
        { "gamedev::rop_motion_vectors", "rop_motion_vectors" } };
    for (const auto& n : names)
        EXPECT_EQ(baseTypeName(q(n[0])).toString(), q(n[1])) << n[0];

    bool on = false, off = true, other = false;
    EXPECT_TRUE(readFlagsLine(u"flags =  lock off model off bypass on display off", on) && on);
    EXPECT_TRUE(readFlagsLine(u"flags =  lock off bypass off display on", off) && !off);
    EXPECT_FALSE(readFlagsLine(u"comment \"bypass on\"", other));
}

TEST(DeclaredType, ReaderTable)
{
    using R = NodeReader;
    const struct
    {
        const char* type;
        R elsewhere, inRopNetwork;
    } rows[] = { { "ifd", R::OutputDriver, R::OutputDriver },
        { "filecache", R::OutputDriver, R::OutputDriver },
        { "usd_rop", R::OutputDriver, R::OutputDriver }, { "geometry", R::None, R::OutputDriver },
        { "usd", R::None, R::OutputDriver }, { "rop_tool_ql", R::None, R::OutputDriver },
        { "IFD", R::None, R::OutputDriver }, { "cam", R::Camera, R::Camera },
        { "stereocamrig", R::Camera, R::Camera }, { "wedge", R::None, R::Wedge },
        { "rendersettings", R::UsdRenderSettings, R::UsdRenderSettings },
        { "karmarenderproperties", R::UsdRenderSettings, R::UsdRenderSettings },
        { "hdprman", R::Lop, R::Lop }, { "merge", R::None, R::None }, { "fetch", R::None, R::None },
        { "subnet", R::None, R::None }, { "Redshift_IPR", R::None, R::None } };
    for (const auto& r : rows) {
        EXPECT_EQ(readerForType(q(r.type), false), r.elsewhere) << r.type;
        EXPECT_EQ(readerForType(q(r.type), true), r.inRopNetwork) << r.type;
    }
}

TEST(NodeTable, RopNetworksAndLimits)
{
    NodeTable t;
    const char* nodes[][2] = { { "obj/ropnet1", "ropnet" }, { "obj/ropnet1/sub", "subnet" },
        { "obj/geo1", "geo" }, { "obj/geo1/sub", "subnet" }, { "out/sub", "subnet" } };
    for (const auto& n : nodes)
        t.insert(q(n[0]))->type = q(n[1]);
    for (const char* inside : { "out/m", "out/sub/m", "obj/ropnet1/m", "obj/ropnet1/sub/m" })
        EXPECT_TRUE(t.inRopNetwork(q(inside))) << inside;
    for (const char* outside : { "obj/geo1/m", "obj/geo1/sub/m", "out", "obj/unknown/m" })
        EXPECT_FALSE(t.inRopNetwork(q(outside))) << outside;

    NodeTable bounded;
    ASSERT_EQ(bounded.insert(u"a"), bounded.insert(u"a"));
    for (qsizetype i = 1; i < NodeTable::MaxNodes; ++i)
        ASSERT_NE(bounded.insert(QString::number(i)), nullptr);
    EXPECT_TRUE(
        bounded.insert(u"one more") == nullptr && bounded.overflowed() && bounded.find(u"a"));
    NodeTable longPaths; // the path text is bounded too
    EXPECT_NE(longPaths.insert(QString(NodeTable::MaxPathUnits, u'x')), nullptr);
    EXPECT_EQ(longPaths.insert(u"y"), nullptr);
}
