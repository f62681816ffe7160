#include "jobGraph.h"

#include "jobJson.h"

#include <QHash>
#include <QMap>

namespace zkHost {

namespace {

/// A DOT double-quoted string: quotes and backslashes escaped, line ends as
/// DOT's centred line break, so no scene text can end the string early.
QString quoted(const QString& text)
{
    QString out;
    out.reserve(text.size() + 2);
    out += u'"';
    for (const QChar c : text) {
        if (c == u'"' || c == u'\\')
            out += u'\\';
        if (c == u'\n') {
            out += QStringLiteral("\\n");
            continue;
        }
        if (c == u'\r' || c.unicode() == 0)
            continue;
        out += c;
    }
    out += u'"';
    return out;
}

QString nodeName(int index)
{
    return QStringLiteral("j%1").arg(index);
}

QString nodeLine(const GraphJob& job, int index, const QString& indent)
{
    QString label = job.layer + u'\n' + job.renderer + u'\n' + job.frames;
    return indent + nodeName(index) + QStringLiteral(" [label=") + quoted(label)
        + QStringLiteral("];\n");
}

} // namespace

GraphJob graphJob(const zkJ::_JobBasics_largePath& job)
{
    GraphJob g;
    g.preID = job.preID;
    const int waitCount = std::min<int>(job.waitForPreIDCount, int(sizeof(job.waitForPreIDs)));
    for (int i = 0; i < waitCount; ++i)
        g.waits.append(job.waitForPreIDs[i]);
    g.layer = text(job.layer);
    g.renderer = text(job.renderApp.appName);
    const QString renderer = text(job.renderApp.rendererName);
    if (!renderer.isEmpty())
        g.renderer += u' ' + renderer;
    g.frames = QStringLiteral("%1-%2").arg(job.seqStart).arg(job.seqEnd);
    if (job.seqStep > 1)
        g.frames += QStringLiteral(" x%1").arg(job.seqStep);
    g.take = text(job.channel);
    g.variant = text(job.sceneState);
    return g;
}

QList<GraphJob> graphJobs(const HostJobArray& jobs)
{
    QList<GraphJob> list;
    for (int i = 0; i < jobs.readableCount(); ++i)
        list.append(graphJob(jobs.array->records[i]));
    return list;
}

QString jobGraphDot(const QList<GraphJob>& jobs, const QString& scene)
{
    QString dot = QStringLiteral("digraph jobs {\n  label=") + quoted(scene)
        + QStringLiteral(";\n  rankdir=LR;\n  node [shape=box];\n");

    // Clusters in the order their first job comes, so the drawing follows
    // the array.
    QList<QString> takes;
    QMap<QString, QList<QString>> variants;
    QMap<QString, QList<int>> members; // "take\nvariant" -> job indices
    QList<int> loose;
    for (int i = 0; i < jobs.size(); ++i) {
        const GraphJob& job = jobs[i];
        if (job.take.isEmpty() && job.variant.isEmpty()) {
            loose.append(i);
            continue;
        }
        if (!takes.contains(job.take))
            takes.append(job.take);
        if (!variants[job.take].contains(job.variant))
            variants[job.take].append(job.variant);
        members[job.take + u'\n' + job.variant].append(i);
    }

    for (const int i : loose)
        dot += nodeLine(jobs[i], i, QStringLiteral("  "));
    for (int t = 0; t < takes.size(); ++t) {
        const QString& take = takes[t];
        const bool takeCluster = !take.isEmpty();
        QString indent = QStringLiteral("  ");
        if (takeCluster) {
            dot += indent + QStringLiteral("subgraph cluster_t%1 {\n").arg(t);
            indent += QStringLiteral("  ");
            dot += indent + QStringLiteral("label=") + quoted(QStringLiteral("take ") + take)
                + QStringLiteral(";\n");
        }
        const QList<QString>& takeVariants = variants[take];
        for (int v = 0; v < takeVariants.size(); ++v) {
            const QString& variant = takeVariants[v];
            const QList<int>& ids = members[take + u'\n' + variant];
            if (variant.isEmpty()) {
                for (const int i : ids)
                    dot += nodeLine(jobs[i], i, indent);
                continue;
            }
            dot += indent + QStringLiteral("subgraph cluster_t%1_v%2 {\n").arg(t).arg(v);
            dot += indent + QStringLiteral("  label=") + quoted(variant) + QStringLiteral(";\n");
            for (const int i : ids)
                dot += nodeLine(jobs[i], i, indent + QStringLiteral("  "));
            dot += indent + QStringLiteral("}\n");
        }
        if (takeCluster)
            dot += QStringLiteral("  }\n");
    }

    // preIDs are 8-bit and repeat past 255 jobs; a repeated number stands
    // for its first job, as no record says which one is meant.
    QHash<int, int> jobWithPreID;
    for (int i = jobs.size() - 1; i >= 0; --i)
        jobWithPreID.insert(jobs[i].preID, i);
    for (int i = 0; i < jobs.size(); ++i) {
        for (const int wait : jobs[i].waits) {
            const auto it = jobWithPreID.constFind(wait);
            if (it != jobWithPreID.cend())
                dot += QStringLiteral("  ") + nodeName(*it) + QStringLiteral(" -> ") + nodeName(i)
                    + QStringLiteral(";\n");
        }
    }
    dot += QStringLiteral("}\n");
    return dot;
}

} // namespace zkHost
