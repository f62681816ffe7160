// The jobs of a load as a Graphviz DOT graph, for `hipjobs --dot`: one node
// per job, one edge per wait, from the job waited for to the waiting job, and
// the take and wedge copies gathered in clusters, so a pipeline user sees at
// a glance which job a farm may start first.
#pragma once

#include "hostRecords.h"

#include <QList>
#include <QString>

namespace zkHost {

/// What the graph shows of one job.
struct GraphJob
{
    int preID = 0;
    QList<int> waits;
    QString layer;
    /// Application and renderer, as the table's two columns: "Houdini createIFD".
    QString renderer;
    /// "1001-1100", " x2" added for a step above 1, as the table writes them.
    QString frames;
    /// The take (the record's channel) and wedge variant (its sceneState).
    QString take;
    QString variant;
};

GraphJob graphJob(const zkJ::_JobBasics_largePath& job);

/// The readable records of \p jobs.
QList<GraphJob> graphJobs(const HostJobArray& jobs);

/// \p jobs as a DOT digraph named after \p scene. Node "jN" is job N; a wait
/// for a preID no job has draws no edge (the table shows the number all the
/// same), and a preID that repeats (past 255 jobs) stands for its first job. Jobs of a take form a
/// cluster, and inside it each wedge variant forms one; jobs without either stay at the top level.
QString jobGraphDot(const QList<GraphJob>& jobs, const QString& scene);

} // namespace zkHost
