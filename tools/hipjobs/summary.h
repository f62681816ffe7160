// What a wrangler scans for a shot folder: one line per scene and a total.
#pragma once

#include "tools/host/hostRecords.h"

#include <QJsonObject>
#include <QMap>
#include <QString>

namespace hipjobs {

struct SceneSummary
{
    QString scene;
    int result = 0;
    int jobs = 0;
    /// Jobs per renderer: the application, and "/" and the renderer name
    /// when the job has one ("Houdini/createIFD", "Mantra_StdA").
    QMap<QString, int> renderers;
    qint64 frames = 0; ///< frames of all jobs, each range counted with its step
    int takes = 0; ///< distinct takes named by jobs
    int wedgeVariants = 0; ///< distinct wedge variants named by jobs
    int waits = 0; ///< jobs that wait for another job
};

SceneSummary summarize(const zkHost::HostJobArray& jobs, int result, const QString& scene);

/// Sums over every scene of a run; \c sums has no scene and no result.
struct TotalSummary
{
    int scenes = 0;
    int failed = 0;
    SceneSummary sums;

    void add(const SceneSummary& s);
};

QJsonObject summaryJson(const SceneSummary& s);
QJsonObject totalJson(const TotalSummary& t);

/// Aligned text: a header, one row per scene, the total row.
QString summaryTable(const QList<SceneSummary>& scenes, const TotalSummary& total);

} // namespace hipjobs
