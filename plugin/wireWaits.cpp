// Waits from the scene's wires. A farm starts a job as soon as its waits are
// done, so a render that reads a cache must wait for the cache's job, or it
// reads files that are not written yet.
#include "completion.h"
#include "plugin/jobWalk.h"

#include <QHash>

#include <algorithm>
#include <vector>

namespace {

bool waitsFor(const zkJ::_JobBasics_largePath& job, unsigned char preID)
{
    const int n = std::min<int>(job.waitForPreIDCount, int(sizeof(job.waitForPreIDs)));
    return std::find(job.waitForPreIDs, job.waitForPreIDs + n, preID) != job.waitForPreIDs + n;
}

} // namespace

LoadResult waitForWiredDrivers(Scene& scene)
{
    if (scene.wires.size() == 0)
        return LoadOk;
    zkJ::_JobBasicsArray& jobs = scene.jobs;
    std::vector<QString> nodeOfJob;
    // The last job of each driver is the one waited for: the render job of
    // an export pair, which itself waits for the export.
    QHash<QString, int> lastJobOf;
    const LoadResult listed = forEachJob(jobs, [&](const zkJ::_JobBasics_largePath&, int j) {
        nodeOfJob.push_back(scene.noteOf(j).driverNode);
        lastJobOf.insert(nodeOfJob.back(), j);
        return LoadOk;
    });
    if (listed != LoadOk)
        return listed;

    const auto madeJobs = [&](QStringView path) { return lastJobOf.contains(path.toString()); };
    // Both jobs of an export pair wait for the same drivers: walk once per node.
    QHash<QString, QStringList> upstreamOf;
    return forEachJob(jobs, [&](zkJ::_JobBasics_largePath& job, int j) {
        const QString& node = nodeOfJob[std::size_t(j)];
        auto upstream = upstreamOf.find(node);
        if (upstream == upstreamOf.end())
            upstream = upstreamOf.insert(node, scene.wires.upstreamDrivers(node, madeJobs));
        for (const QString& driver : qAsConst(*upstream)) {
            const unsigned char preID = jobs.records[lastJobOf.value(driver)].preID;
            if (!waitsFor(job, preID))
                job.addWaitForPreID(preID);
        }
        return LoadOk;
    });
}
