// The readers share one signature: the load record, the line source positioned
// after the section's header line, and the header line itself (which holds the
// last line the reader decoded when it returns).
#pragma once

#include "plugin/lineSource.h"
#include "plugin/loadResult.h"
#include "plugin/zkPluginRecords.h"

#include <QString>

bool loadWedgeNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line);
bool loadCamNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line);
bool loadLOPNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line);
/// LoadOk to go on; any other value ends the load with it.
LoadResult load_USD_RS_Node(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line);
/// LoadOk to go on; any other value ends the load with it. May set \p takeFound.
LoadResult loadOutNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line,
    bool& takeFound, const int& houdiniMajor, const QString& houdiniMinorForReaders);
