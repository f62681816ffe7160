// How the plugin takes and walks the host's job records. Every record the
// plugin takes comes from appendJob, so count never runs past the records
// the array holds and every index below count has its record.
#pragma once

#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/loadResult.h"

/// A new record at the end of \p jobs, or null when the array can give none.
/// getNewJob leaves count one past the records when it refuses; the host
/// reads count records, so the refusal is taken back here.
inline zkJ::_JobBasics_largePath* appendJob(zkJ::_JobBasicsArray& jobs)
{
    zkJ::_JobBasics_largePath* job = nullptr;
    if (jobs.getNewJob(job))
        return job;
    --jobs.count;
    return nullptr;
}

/// Applies \p step to each job in array order, with its index; the first
/// result other than LoadOk ends the walk with it. Jobs appended by a step
/// are not walked, and a step that appends may move every record: after
/// that it reaches its job again through its index. LoadNoJobRecord when the array's count names
/// more records than it holds (a host's array, before the plugin took any).
template <typename Step>
LoadResult forEachJob(zkJ::_JobBasicsArray& jobs, Step&& step)
{
    const int n = jobs.count;
    for (int i = 0; i < n; ++i) {
        zkJ::_JobBasics_largePath* job = jobs.at(i);
        if (!job)
            return LoadNoJobRecord;
        const LoadResult result = step(*job, i);
        if (result != LoadOk)
            return result;
    }
    return LoadOk;
}
