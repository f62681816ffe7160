// The wire lines of a ".def" member and of fetch and switch parameters, the
// walk from a driver to the drivers it waits for, and the waits of take and
// wedge copies.
#include "plugin/wires.h"

#include <QSet>

#include <gtest/gtest.h>

namespace {

QString q(const char* text)
{
    return QString::fromUtf8(text);
}

QString describe(const std::optional<InputEntry>& e)
{
    return e ? QString::number(e->index) + u'|' + e->name : q("none");
}

struct Node
{
    const char* path;
    const char* type;
    std::vector<const char*> inputs;
    const char* parm = nullptr; // a ".parm" line
    bool display = false;
};

} // namespace

TEST(WireLines, DefMemberAndParameterLines)
{
    const char* entries[][2] = { { "0 \tgeo_cache 0 1", "0|geo_cache" },
        { "0 \ttorus1", "0|torus1" }, { "2 \t\"\" 0 1", "2|" }, { "0 \t(0) 0 1", "0|" },
        { "4 \t(dot2) \"\" 1 \"N\"", "4|" }, { "}", "none" }, { "inputs", "none" },
        { "x \ta 0 1", "none" }, { "3", "none" }, { "12345678901 \ta", "none" } };
    for (const auto& e : entries)
        EXPECT_EQ(describe(inputEntry(q(e[0]))), q(e[1])) << e[0];

    EXPECT_TRUE(displayFlagOn(u"flags =  lock off bypass off display on render on"));
    EXPECT_FALSE(displayFlagOn(u"flags =  lock off display off render on"));

    const char* sources[][2] = { { "source\t[ 0\tlocks=0 ]\t(\t/obj/r/cache\t)", "/obj/r/cache" },
        { "source\t[ 0\tlocks=0 ]\t(\t\"../pre\"\t)", "../pre" },
        { "source\t[ 0\tlocks=0 ]\t(\t\"\"\t)", "" }, { "sourcex\t[ 0\tlocks=0 ]\t(\ta\t)", "" } };
    for (const auto& line : sources)
        EXPECT_EQ(fetchSourceValue(q(line[0])), q(line[1])) << line[0];

    const std::pair<const char*, int> indices[] = { { "index\t[ 0\tlocks=0 ]\t(\t7\t)", 7 },
        { "index\t[ 0\tlocks=0 ]\t(\t[ index\t0 ] \t)", WireNode::EveryInput },
        { "index\t[ 0\tlocks=0 ]\t(\t-2\t)", WireNode::EveryInput } };
    for (const auto& [line, index] : indices)
        EXPECT_EQ(switchIndexValue(q(line)), std::optional<int>(index)) << line;
    EXPECT_FALSE(switchIndexValue(u"indexes\t[ 0\tlocks=0 ]\t(\t1\t)"));

    // A ".def" member: only the "inputs" block gives inputs.
    WireNode node;
    DefMemberReader reader;
    for (const char* line : { "flags =  bypass off display on render on", "inputsNamed3", "{",
             "1 \tpyro 0 1 \"input1\"", "}", "inputs", "{", "0 \tpyro 0 1", "1 \t\"\" 0 1",
             "2 \tgas 0 1", "300 \ttoo_far 0 1", "}", "stat", "{", "0 \tlate", "}" })
        reader.feed(q(line), node);
    EXPECT_TRUE(node.display);
    EXPECT_EQ(node.inputs, QStringList({ q("pyro"), QString(), q("gas") }));
}

TEST(WireGraph, UpstreamDrivers)
{
    const std::vector<Node> scene = { { "out/merge1", "merge", { "a", "", "b", "c" } },
        { "out/null1", "null", { "a" } }, { "out/final", "ifd", { "merge1", "null1" } },
        { "out/sw", "switch", { "a", "b" }, "index\t(\t1\t)" },
        { "out/swAll", "switch", { "b", "a" }, "index\t(\t$F\t)" },
        { "out/swOut", "switch", { "a" }, "index\t(\t5\t)" },
        { "out/picks", "ifd", { "sw", "swAll", "swOut" } },
        { "out/f1", "fetch", { "c" }, "source\t(\t/obj/rn/cache\t)" },
        { "out/f2", "fetch", {}, "source\t(\t\"../b\"\t)" },
        { "out/fetched", "ifd", { "f1", "f2" } }, { "out/sub", "subnet", { "c" } },
        { "out/sub/out0", "output", { "inner" } }, { "out/sub/inner", "ifd", { "" } },
        { "out/sub/shown", "ifd", {}, nullptr, true }, { "out/rn", "ropnet", {} },
        { "out/rn/shown", "ifd", {}, nullptr, true }, { "out/rn/hidden", "ifd", {} },
        { "out/nets", "ifd", { "sub", "rn" } }, { "out/x", "ifd", { "y" } },
        { "out/y", "null", { "z" } }, { "out/z", "merge", { "y", "x", "a" } },
        { "obj/geo/abc", "rop_alembic", { "null1" } }, { "obj/geo/null1", "null", { "cache" } } };
    QSet<QString> routing; // nodes of the table that make no job; all others do
    WireGraph graph;
    for (const Node& n : scene) {
        graph.setType(q(n.path), q(n.type));
        if (q(n.type) != u"ifd" && q(n.type) != u"rop_alembic")
            routing.insert(q(n.path));
        WireNode* node = graph.insert(q(n.path));
        for (int i = 0; i < int(n.inputs.size()); ++i)
            WireGraph::addInput(*node, { i, q(n.inputs[std::size_t(i)]) });
        node->display = n.display;
        if (n.parm)
            WireGraph::readParameterLine(*node, q(n.parm));
    }
    const auto madeJobs = [&](QStringView path) { return !routing.contains(path.toString()); };
    const char* walks[][2] = { { "out/final", "out/a out/b out/c" }, // merge and null, no repeats
        { "out/picks", "out/b out/a" }, // one input, every input, an index past the inputs
        { "out/fetched", "obj/rn/cache out/c out/b" }, // source first, then the fetch's inputs
        { "out/nets", "out/sub/inner out/c out/rn/shown" }, // outputs, else display; own inputs
        { "out/x", "out/a" }, // a cycle back to the driver and among pass-throughs
        { "obj/geo/abc", "obj/geo/cache" }, { "out/a", "" } };
    for (const auto& w : walks)
        EXPECT_EQ(graph.upstreamDrivers(q(w[0]), madeJobs).join(u' '), q(w[1])) << w[0];

    WireNode* wide = graph.insert(u"out/wide");
    for (int i = 0; i < 40; ++i)
        WireGraph::addInput(*wide, { i, QStringLiteral("w%1").arg(i) });
    EXPECT_EQ(graph.upstreamDrivers(u"out/wide", madeJobs).size(), WireGraph::MaxWaits);
}

TEST(FannedOutWaits, CopiesWaitInsideTheirTakeAndVariant)
{
    // Before the fan-out: 0 cache, 1 export and 2 render of the driver it
    // feeds, 3 a driver of its own take. Takes copy 0 to 2; a wedge of two
    // variants copies the pair in both takes.
    const std::vector<std::vector<int>> base { {}, { 0 }, { 1, 0 }, { 0 } };
    const QString v0 = q("/out/wedge1*0"), v1 = q("/out/wedge1*1");
    const std::vector<FannedJob> jobs { { 0, 0, {}, 1 }, { 1, 0, {}, 2 }, { 2, 0, {}, 3 },
        { 3, 0, {}, 4 }, { 0, 1, {}, 5 }, { 1, 1, {}, 6 }, { 2, 1, {}, 7 }, { 1, 0, v0, 8 },
        { 1, 0, v1, 9 }, { 2, 0, v0, 10 }, { 2, 0, v1, 11 }, { 1, 1, v0, 12 }, { 1, 1, v1, 13 },
        { 2, 1, v0, 14 }, { 2, 1, v1, 15 } };
    const std::vector<std::vector<int>> expected { {}, { 1 }, { 2, 1 }, { 1 }, {}, { 5 }, { 6, 5 },
        { 1 }, { 1 }, { 8, 1 }, { 9, 1 }, { 5 }, { 5 }, { 12, 5 }, { 13, 5 } };
    EXPECT_EQ(fannedOutWaits(jobs, base), expected);
}
