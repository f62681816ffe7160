#pragma once

/// Result codes of pLoadSceneFile; the boundary returns them as int. A node
/// reader may also end a load with a code of its own, which passes through.
enum LoadResult : int {
    LoadOk = 1, ///< the job array holds the scene's jobs (possibly none)
    LoadCannotOpen = 3, ///< the scene file could not be opened for reading as text
    LoadUnsupportedArray = 5, ///< the job array's layout version is not supported
    LoadInternalError = 6, ///< an exception escaped from the load
    LoadNoJobRecord = 7, ///< the job array could not give or create a job record
    LoadOnlyEmptyDrivers = 25, ///< drivers were found, none made a job, the array is empty
};

/// Every code above, in ascending order, for those who list them.
constexpr LoadResult LoadResults[] = { LoadOk, LoadCannotOpen, LoadUnsupportedArray,
    LoadInternalError, LoadNoJobRecord, LoadOnlyEmptyDrivers };

/// The code in words, as hosts and tools show it; a code that is not a
/// LoadResult is a node reader's own.
constexpr const char* loadResultText(int result)
{
    switch (result) {
    case LoadOk:
        return "success";
    case LoadCannotOpen:
        return "cannot open scene file";
    case LoadUnsupportedArray:
        return "job array layout version not supported";
    case LoadInternalError:
        return "internal error in the plugin";
    case LoadNoJobRecord:
        return "job array could not give a job record";
    case LoadOnlyEmptyDrivers:
        return "output drivers found, none of them makes a job";
    default:
        return "a node reader stopped the load";
    }
}

constexpr bool isLoadResult(int result)
{
    for (const LoadResult r : LoadResults) {
        if (r == result)
            return true;
    }
    return false;
}

/// Result codes of pInfo.
enum InfoResult : int {
    InfoOk = 1,
    InfoWrongIdentifier = 5, ///< the record's identifier was not the expected one
};
