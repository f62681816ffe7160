// One load of one scene: record checks, scan, completion pass, fan-out and
// result. The entry point and the load fuzz target both call loadScene.
#pragma once

#include "plugin/loadResult.h"
#include "plugin/zkPluginRecords.h"

class QIODevice;

/// The whole load for the host's record. The scene is read from \p scene
/// when given (opened for reading), else from the file the record names. An
/// exception that escapes gives LoadInternalError.
LoadResult loadScene(zkP::_dataPARS_LoadSceneFile& data, QIODevice* scene = nullptr);
