#include "summary.h"

#include "tools/host/jobJson.h"

#include <QJsonArray>
#include <QSet>
#include <QStringList>

#include <algorithm>

namespace hipjobs {

namespace {

qint64 frameCount(const zkJ::_JobBasics_largePath& job)
{
    if (job.seqEnd < job.seqStart)
        return 0;
    const qint64 step = std::max<qint64>(1, job.seqStep);
    return (qint64(job.seqEnd) - job.seqStart) / step + 1;
}

QJsonObject countsJson(const QMap<QString, int>& counts)
{
    QJsonObject o;
    for (auto it = counts.begin(); it != counts.end(); ++it)
        o[it.key()] = it.value();
    return o;
}

QString countsText(const QMap<QString, int>& counts)
{
    QStringList parts;
    for (auto it = counts.begin(); it != counts.end(); ++it)
        parts.append(QStringLiteral("%1 %2").arg(it.key()).arg(it.value()));
    return parts.isEmpty() ? QStringLiteral("-") : parts.join(QStringLiteral(", "));
}

QStringList countCells(const SceneSummary& s)
{
    return { QString::number(s.jobs), QString::number(s.frames), QString::number(s.takes),
        QString::number(s.wedgeVariants), QString::number(s.waits), countsText(s.renderers) };
}

} // namespace

SceneSummary summarize(const zkHost::HostJobArray& jobs, int result, const QString& scene)
{
    SceneSummary s;
    s.scene = scene;
    s.result = result;
    s.jobs = jobs.readableCount();
    QSet<QString> takes;
    QSet<QString> variants;
    for (int i = 0; i < s.jobs; ++i) {
        const zkJ::_JobBasics_largePath& job = jobs.array->records[i];
        const QString renderer = zkHost::text(job.renderApp.rendererName);
        const QString app = zkHost::text(job.renderApp.appName);
        ++s.renderers[renderer.isEmpty() ? app : app + u'/' + renderer];
        s.frames += frameCount(job);
        if (job.channel.length > 0)
            takes.insert(zkHost::text(job.channel));
        if (job.sceneState.length > 0)
            variants.insert(zkHost::text(job.sceneState));
        if (job.waitForPreIDCount > 0)
            ++s.waits;
    }
    s.takes = int(takes.size());
    s.wedgeVariants = int(variants.size());
    return s;
}

void TotalSummary::add(const SceneSummary& s)
{
    ++scenes;
    if (s.result != 1)
        ++failed;
    sums.jobs += s.jobs;
    for (auto it = s.renderers.begin(); it != s.renderers.end(); ++it)
        sums.renderers[it.key()] += it.value();
    sums.frames += s.frames;
    sums.takes += s.takes;
    sums.wedgeVariants += s.wedgeVariants;
    sums.waits += s.waits;
}

QJsonObject summaryJson(const SceneSummary& s)
{
    return QJsonObject {
        { QStringLiteral("scene"), s.scene },
        { QStringLiteral("result"), s.result },
        { QStringLiteral("resultText"), zkHost::resultText(s.result) },
        { QStringLiteral("jobCount"), s.jobs },
        { QStringLiteral("renderers"), countsJson(s.renderers) },
        { QStringLiteral("frames"), s.frames },
        { QStringLiteral("takes"), s.takes },
        { QStringLiteral("wedgeVariants"), s.wedgeVariants },
        { QStringLiteral("waits"), s.waits },
    };
}

QJsonObject totalJson(const TotalSummary& t)
{
    return QJsonObject {
        { QStringLiteral("total"), true },
        { QStringLiteral("scenes"), t.scenes },
        { QStringLiteral("failed"), t.failed },
        { QStringLiteral("jobCount"), t.sums.jobs },
        { QStringLiteral("renderers"), countsJson(t.sums.renderers) },
        { QStringLiteral("frames"), t.sums.frames },
        { QStringLiteral("takes"), t.sums.takes },
        { QStringLiteral("wedgeVariants"), t.sums.wedgeVariants },
        { QStringLiteral("waits"), t.sums.waits },
    };
}

QString summaryTable(const QList<SceneSummary>& scenes, const TotalSummary& total)
{
    QList<QStringList> rows;
    rows.append({ QStringLiteral("scene"), QStringLiteral("result"), QStringLiteral("jobs"),
        QStringLiteral("frames"), QStringLiteral("takes"), QStringLiteral("wedges"),
        QStringLiteral("waits"), QStringLiteral("renderers") });
    for (const SceneSummary& s : scenes)
        rows.append(QStringList { s.scene, zkHost::resultText(s.result) } + countCells(s));
    rows.append(QStringList { QStringLiteral("total: %1 scene(s)").arg(total.scenes),
                    QStringLiteral("%1 failed").arg(total.failed) }
        + countCells(total.sums));
    QList<int> widths(rows.first().size(), 0);
    for (const QStringList& row : rows) {
        for (int c = 0; c < row.size(); ++c)
            widths[c] = std::max(widths[c], int(row[c].size()));
    }
    QString out;
    for (const QStringList& row : rows) {
        QStringList cells;
        for (int c = 0; c < row.size(); ++c)
            cells.append(c + 1 < row.size() ? row[c].leftJustified(widths[c]) : row[c]);
        out += cells.join(QStringLiteral("  ")) + u'\n';
    }
    return out;
}

} // namespace hipjobs
