// Loading a scene through the plugin's own entry point, linked into the test
// program, so the module state can be read afterwards.
//
//     zkJ::_JobBasicsArray jobs;
//     const int result = zkTest::loadSceneFile(path, jobs);
//     // result is pLoadSceneFile's code; the module state and jobs hold the scene.
#pragma once

#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/zkPluginRecords.h"

#include <QString>
#include <QStringList>

extern "C" int pLoadSceneFile(zkP::_dataPARS_LoadSceneFile* data);

namespace zkTest {

/// Calls pLoadSceneFile for the file at \p path with \p jobs and the submitter
/// \p arguments (such as "-houdiniBuildVersion"), and returns its result.
int loadSceneFile(
    const QString& path, zkJ::_JobBasicsArray& jobs, const QStringList& arguments = {});

} // namespace zkTest
