// The host's side of the plugin boundary: the library opened with dlopen, the
// entry points resolved by name, and the records built from their documented
// binary layouts, never with the plugin's own constructors. hipjobs and the
// tests load scenes through this one set-up, so both see what a host sees.
//
//     zkHost::Plugin plugin;
//     QString error;
//     if (plugin.open(path, error)) {
//         zkHost::SceneLoad load(QStringLiteral("/proj/shot.hip"), { "-houdiniBuildVersion" });
//         const int result = plugin.load(&load.record);
//     }
#pragma once

#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/zkPluginRecords.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace zkHost {

using InfoFn = int (*)(zkP::_dataPARS_PluginInfo*);
using LoadFn = int (*)(zkP::_dataPARS_LoadSceneFile*);

/// The record size of the large-path job record as the host announces it.
constexpr unsigned int LargePathRecordSize = 226968;
/// Capacity of the scene path field of the load record.
constexpr int SceneNameCapacity = 500;

/// The plugin library and its two entry points; closed on destruction.
struct Plugin
{
    Plugin() = default;
    ~Plugin();
    Plugin(const Plugin&) = delete;
    Plugin& operator=(const Plugin&) = delete;

    /// Opens \p path and resolves pInfo and pLoadSceneFile; false with a
    /// one-line \p error when either step fails.
    bool open(const QString& path, QString& error);

    void* handle = nullptr;
    InfoFn info = nullptr;
    LoadFn load = nullptr;
};

/// The host's job array: zeroed raw memory with the documented header
/// (structure 1033, version 1, large-path record size, no records). Frees the
/// records the plugin allocated, with free(), as the host does.
struct HostJobArray
{
    HostJobArray();
    ~HostJobArray();
    HostJobArray(const HostJobArray&) = delete;
    HostJobArray& operator=(const HostJobArray&) = delete;

    /// Records the plugin handed out, bounded by what it allocated.
    int readableCount() const;

    /// Null when the memory could not be had.
    zkJ::_JobBasicsArray* array = nullptr;
};

/// The submitter's settings block with the argument count and vector at their
/// documented offsets; element 0 is \p program.
struct HostSettings
{
    HostSettings(const QByteArray& program, const QStringList& arguments);

    QList<QByteArray> words;
    std::vector<char*> argv;
    std::unique_ptr<zkP::_submitterSettings> block;
};

/// Everything one pLoadSceneFile call needs: the scene path (cut to the
/// field's capacity), the job array and the settings block, tied together in
/// \c record.
struct SceneLoad
{
    explicit SceneLoad(const QString& scene, const QStringList& arguments = {},
        const QByteArray& program = QByteArrayLiteral("submitter"));
    SceneLoad(const SceneLoad&) = delete;
    SceneLoad& operator=(const SceneLoad&) = delete;

    _zkString<SceneNameCapacity> sceneName;
    HostJobArray jobs;
    HostSettings settings;
    zkP::_dataPARS_LoadSceneFile record {};
};

/// pLoadSceneFile's code in words ("success", "cannot open scene file", ...).
QString resultText(int result);

} // namespace zkHost
