#pragma once

/// Result codes of pLoadSceneFile; the boundary returns them as int.
enum LoadResult : int {
    LoadOk = 1, ///< the job array holds the scene's jobs (possibly none)
    LoadCannotOpen = 3, ///< the scene file could not be opened for reading as text
    LoadUnsupportedArray = 5, ///< the job array's layout version is not supported
    LoadInternalError = 6, ///< an exception escaped from the load
    LoadNoJobRecord = 7, ///< the job array could not give or create a job record
    LoadOnlyEmptyDrivers = 25, ///< drivers were found, none made a job, the array is empty
};

/// Result codes of pInfo.
enum InfoResult : int {
    InfoOk = 1,
    InfoWrongIdentifier = 5, ///< the record's identifier was not the expected one
};
