// After the scan: the jobs are finished in place (array options, versions,
// the scene each stand-alone render reads, cameras and stereo), then
// multiplied per take and per wedge variant.
#pragma once

#include "plugin/loadResult.h"
#include "plugin/scene.h"

/// Finishes the jobs the scan made. LoadNoJobRecord when the job array
/// yields no record for an index below its count.
LoadResult completeJobs(Scene& scene);

/// Copies jobs per take and per wedge variant and removes the wedge tokens
/// left in paths. LoadOnlyEmptyDrivers when drivers were met but none made a
/// job; LoadNoJobRecord when the job array cannot give a record.
LoadResult fanOutJobs(Scene& scene);
