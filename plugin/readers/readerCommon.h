// The readers share one signature: the load record, the line source positioned
// after the section's header line, and the header line itself (which holds the
// last line read when the reader returns).
#pragma once

#include "plugin/lineSource.h"
#include "plugin/zkPluginRecords.h"

#include <QString>

/// Reads lines up to and including the section's closing "}" (or the end of input).
void skipSection(LineSource& in, QString& line);

bool loadWedgeNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line);
bool loadCamNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line);
bool loadLOPNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line);
/// 1 to go on; any other value ends the load with it.
int load_USD_RS_Node(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line);
/// 1 to go on; any other value ends the load with it. May set \p takeFound.
int loadOutNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line, bool& takeFound,
    const int& houdiniMajor, const QString& houdiniMinorForReaders);
