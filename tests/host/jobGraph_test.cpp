// The DOT text of a job graph as Graphviz reads it: nodes, edges and
// clusters counted in dot's own plain output, for hostile labels and for an
// example scene loaded through the plugin.
#include "tools/host/jobGraph.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace {

/// dot's output for \p dot in \p format; fails the test when dot rejects it
/// (scripts/install-deps.sh installs Graphviz).
QString renderDot(const QString& dot, const char* format)
{
    QProcess p;
    p.start(QStringLiteral("dot"), { QStringLiteral("-T") + QLatin1String(format) });
    p.write(dot.toUtf8());
    p.closeWriteChannel();
    EXPECT_TRUE(p.waitForFinished(60000));
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().constData() << qPrintable(dot);
    return QString::fromUtf8(p.readAllStandardOutput());
}

} // namespace

TEST(JobGraph, DotParsesWithClustersAndEdges)
{
    using zkHost::GraphJob;
    // Two takes, a wedge variant inside the second, a wait for a preID no job
    // has, and labels that would end a DOT string or a line.
    const auto t = [](const char* text) { return QString::fromUtf8(text); };
    const QList<GraphJob> jobs { { 1, {}, t("/out/a\"}; x -> y"), t("Houdini"), t("1-10"), {}, {} },
        { 2, { 1, 99 }, t("/out/b\\"), t("Houdini"), t("1-10"), t("Main"), {} },
        { 3, { 2 }, t("/out/b\nc"), t("Mantra_StdA"), t("1-10 x2"), t("tk1"), t("/out/w*0") },
        { 4, { 3, 1 }, t("/out/d"), t("Houdini"), t("1-10"), t("tk1"), {} } };
    const QString dot = zkHost::jobGraphDot(jobs, QStringLiteral("/proj/\"shot\".hip"));
    const QString plain = renderDot(dot, "plain");
    EXPECT_EQ(plain.count(QStringLiteral("\nnode ")), 4);
    EXPECT_EQ(plain.count(QStringLiteral("\nedge ")), 4);
    EXPECT_EQ(dot.count(QStringLiteral("subgraph cluster_")), 3);

    zkHost::Plugin plugin;
    QString error;
    ASSERT_TRUE(plugin.open(QStringLiteral(ZK_PLUGIN_PATH), error)) << qPrintable(error);
    for (const char* example : { "cache_chain.hip", "takes_wedge.hip" }) {
        zkHost::SceneLoad load(QStringLiteral(ZK_SOURCE_DIR "/examples/") + QLatin1String(example));
        ASSERT_EQ(plugin.load(&load.record), 1) << example;
        const QList<GraphJob> loaded = zkHost::graphJobs(load.jobs);
        qsizetype waits = 0;
        for (const GraphJob& job : loaded)
            waits += job.waits.size();
        const QString scene = zkHost::jobGraphDot(loaded, QLatin1String(example));
        EXPECT_TRUE(renderDot(scene, "svg").contains(QLatin1String("<svg"))) << example;
        const QString drawn = renderDot(scene, "plain");
        EXPECT_EQ(drawn.count(QStringLiteral("\nnode ")), loaded.size()) << example;
        EXPECT_EQ(drawn.count(QStringLiteral("\nedge ")), waits) << example;
    }
}
