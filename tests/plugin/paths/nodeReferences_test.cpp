// "$OS", single-variable backticks and chs() references in output paths.
#include "plugin/paths/nodeReferences.h"

#include <gtest/gtest.h>

namespace {

QString q(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace

TEST(NodeReferences, NodeNameAndBackticks)
{
    const char* names[][2] = { { "$HIP/geo/$OS.$F4.bgeo", "$HIP/geo/cache1.$F4.bgeo" },
        { "${OS}_v1/${OS}", "cache1_v1/cache1" }, { "$OSX/$OS_v1/$OS", "$OSX/$OS_v1/cache1" },
        { "$$OS", "$cache1" } };
    for (const auto& r : names)
        EXPECT_EQ(expandNodeName(q(r[0]), u"cache1"), q(r[1])) << r[0];
    const char* ticks[][2] = { { "$HIP/`$OS`_v/`$HIPNAME`.exr", "$HIP/${OS}_v/${HIPNAME}.exr" },
        { "`${OS}`", "${OS}" }, { "`$F4+1`.exr", "`$F4+1`.exr" },
        { "`chs(\"x\")`", "`chs(\"x\")`" }, { "``/`$OS", "``/`$OS" }, { "`$`", "`$`" } };
    for (const auto& r : ticks)
        EXPECT_EQ(unwrapVariableBackticks(q(r[0])), q(r[1])) << r[0];
}

TEST(NodeReferences, ChannelReferences)
{
    // start|length|reference of the backticked expression
    const char* found[][2] = { { "`chs(\\\"/obj/dust/file1/file\\\")`",
                                   "0|31|/obj/dust/file1/file" },
        { "`chs(\"../geo/file\")`", "0|20|../geo/file" }, { "$HIP/`chs('base')`.exr", "5|13|base" },
        { "`chs(base)`", "-1|0|" }, { "`chs(\"\")`", "-1|0|" }, { "`chs(\"a\") + 1`", "-1|0|" },
        { "chs(\"a\")", "-1|0|" }, { "`chs(\"a`", "-1|0|" } };
    for (const auto& r : found) {
        const ChannelReference ref = findChannelReference(q(r[0]));
        EXPECT_EQ(
            QString::number(ref.start) + u'|' + QString::number(ref.length) + u'|' + ref.reference,
            q(r[1]))
            << r[0];
    }

    const char* rows[][2]
        = { { "/obj/a/b/parm", "/obj/a/b/parm" }, { "../x/parm", "/obj/geo1/x/parm" },
              { "parm", "/obj/geo1/rop1/parm" }, { "./parm", "/obj/geo1/rop1/parm" },
              { "../../geo2/f/file", "/obj/geo2/f/file" }, { "../../../../x", "" } };
    for (const auto& r : rows)
        EXPECT_EQ(resolveParameterReference(q(r[0]), u"/obj/geo1/rop1"), q(r[1])) << r[0];
    EXPECT_TRUE(
        referencedNode(u"/o/x/parm") == u"/o/x" && referencedParameter(u"/o/x/parm") == u"parm");
}
