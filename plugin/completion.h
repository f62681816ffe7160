// After the scan: the jobs are finished in place (array options, versions,
// the scene each stand-alone render reads, cameras and stereo), made to wait
// for the drivers wired into theirs, then multiplied per take and per wedge
// variant.
#pragma once

#include "plugin/loadResult.h"
#include "plugin/scene.h"

/// Finishes the jobs the scan made. LoadNoJobRecord when the job array
/// yields no record for an index below its count.
LoadResult completeJobs(Scene& scene);

/// Makes every job wait for the last job of each driver wired into its own
/// (WireGraph::upstreamDrivers), after the waits it has, without repeats.
LoadResult waitForWiredDrivers(Scene& scene);

/// Copies jobs per take and per wedge variant and removes the wedge tokens
/// left in paths. LoadOnlyEmptyDrivers when drivers were met but none made a
/// job; LoadNoJobRecord when the job array cannot give a record.
LoadResult fanOutJobs(Scene& scene);
