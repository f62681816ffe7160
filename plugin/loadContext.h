// What one pLoadSceneFile call knows besides the module state: the host's
// record and the submitter's arguments.
#pragma once

#include "plugin/zkPluginRecords.h"

#include <QString>
#include <QStringList>

struct LoadContext
{
    zkP::_dataPARS_LoadSceneFile* data = nullptr;
    /// The scene path as the host gave it.
    QString scenePath;
    /// Submitter arguments from element 1 on; a null element reads as empty.
    QStringList arguments;
    /// "-houdiniBuildVersion" given: minor versions drop their build part.
    bool buildVersionSwitch = false;
    /// "-houdiniCompressedIFD" given: Mantra exports write compressed files.
    bool compressedExportSwitch = false;
};

/// Reads the argument vector of the submitter's settings block (element 0 is
/// the program and never read) and the two switches, whose words are compared
/// whole and ignoring letter case. A null block or vector gives no arguments.
void readSubmitterArguments(LoadContext& ctx, const zkP::_submitterSettings* settings);
