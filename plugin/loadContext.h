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
    /// Submitter arguments from element 1 on.
    QStringList arguments;
    /// "-houdiniBuildVersion" given: minor versions drop their build part.
    bool buildVersionSwitch = false;
    /// "-houdiniCompressedIFD" given: Mantra exports write compressed files.
    bool compressedExportSwitch = false;
};
