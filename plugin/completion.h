// After the scan: the jobs are finished in place (array options, versions,
// the scene each stand-alone render reads, cameras and stereo), then
// multiplied per take and per wedge variant.
#pragma once

#include "plugin/loadContext.h"
#include "plugin/loadResult.h"
#include "plugin/scanner.h"

/// Finishes the jobs the scan made. LoadNoJobRecord when the job array
/// yields no record for an index below its count.
LoadResult completeJobs(const LoadContext& ctx, const ScanResult& scan);

/// Copies jobs per take and per wedge variant and removes the wedge tokens
/// left in paths. LoadOnlyEmptyDrivers when drivers were met but none made a
/// job; LoadNoJobRecord when the job array cannot give a record.
LoadResult fanOutJobs(const LoadContext& ctx, const ScanResult& scan);

/// The load after the scan: the scan's own result when a reader ended it,
/// else the completion pass and the fan-out.
LoadResult finishLoad(const LoadContext& ctx, const ScanResult& scan);

/// A whole load once the scene is open: fresh module state, the scan of
/// \p in, then finishLoad(). The entry point reads a file through it; the
/// fuzz target feeds it from memory, so both run the same load.
LoadResult loadLines(const LoadContext& ctx, LineSource& in);
