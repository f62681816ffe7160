// Loading scene text through the plugin's own entry point, for tests.
//
//     zkJ::_JobBasicsArray jobs;
//     const int result = zkTest::loadSceneText("frange 1 240\n", jobs);
//     // result is pLoadSceneFile's code; the module state and jobs hold the scene.
#pragma once

#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/zkPluginRecords.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

extern "C" int pLoadSceneFile(zkP::_dataPARS_LoadSceneFile* data);

namespace zkTest {

/// Calls pLoadSceneFile for the file at \p path with \p jobs and the submitter
/// \p arguments (such as "-houdiniBuildVersion"), and returns its result.
int loadSceneFile(
    const QString& path, zkJ::_JobBasicsArray& jobs, const QStringList& arguments = {});

/// Writes \p text byte for byte to a temporary file named \p fileName, loads
/// it as loadSceneFile() does and removes it again. Returns the load result,
/// or -1 when the file could not be written.
int loadSceneText(const QByteArray& text, zkJ::_JobBasicsArray& jobs,
    const QStringList& arguments = {}, const QString& fileName = QStringLiteral("scene.hip"));

} // namespace zkTest
