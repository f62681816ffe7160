// Records the host passes to the entry points. Their layout is fixed by the host.
#pragma once

#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "shared/zkString.h"

#include <cstddef>

namespace zkP {

/// Plugin information record, written by pInfo.
struct _dataPARS_PluginInfo
{
    unsigned short structureID;
    unsigned short infoVersion;
    unsigned char reserved4[14];
    _zkString<50> appName;
    _zkString<100> author;
    _zkString<25> pluginVersion;
    _zkString<25> managerVersion;
    _zkString<25> qtVersion;
    unsigned char flag;
    unsigned char reserved1F3[17];
    /// The host chooses this capacity; the plugin writes 22 characters and a terminator.
    _zkString<100> fileFilter;
};

/// Structure identifier of the information record.
constexpr unsigned short PluginInfoStructureID = 45061;

/// The part of the submitter's settings block the plugin reads.
struct _submitterSettings
{
    unsigned char hostOwned[0x5234];
    int argc;
    char** argv;
};

/// Scene load record, read by pLoadSceneFile and handed to every reader.
struct _dataPARS_LoadSceneFile
{
    _zkString<500>* sceneFile;
    zkJ::_JobBasicsArray* jobs;
    _submitterSettings* settings;
};

} // namespace zkP

static_assert(offsetof(zkP::_dataPARS_PluginInfo, structureID) == 0x000, "info identifier");
static_assert(offsetof(zkP::_dataPARS_PluginInfo, infoVersion) == 0x002, "info version");
static_assert(offsetof(zkP::_dataPARS_PluginInfo, reserved4) == 0x004, "info reserved");
static_assert(offsetof(zkP::_dataPARS_PluginInfo, appName) == 0x012, "info application name");
static_assert(offsetof(zkP::_dataPARS_PluginInfo, author) == 0x07C, "info author");
static_assert(offsetof(zkP::_dataPARS_PluginInfo, pluginVersion) == 0x14A, "info plugin version");
static_assert(offsetof(zkP::_dataPARS_PluginInfo, managerVersion) == 0x182, "info manager version");
static_assert(offsetof(zkP::_dataPARS_PluginInfo, qtVersion) == 0x1BA, "info Qt version");
static_assert(offsetof(zkP::_dataPARS_PluginInfo, flag) == 0x1F2, "info flag byte");
static_assert(offsetof(zkP::_dataPARS_PluginInfo, reserved1F3) == 0x1F3, "info reserved tail");
static_assert(offsetof(zkP::_dataPARS_PluginInfo, fileFilter) == 0x204, "info file filter");
static_assert(std::is_standard_layout_v<zkP::_dataPARS_PluginInfo>, "host reads it by offset");

static_assert(offsetof(zkP::_submitterSettings, argc) == 0x5234, "argument count");
static_assert(offsetof(zkP::_submitterSettings, argv) == 0x5238, "argument vector");

static_assert(offsetof(zkP::_dataPARS_LoadSceneFile, sceneFile) == 0x00, "scene path pointer");
static_assert(offsetof(zkP::_dataPARS_LoadSceneFile, jobs) == 0x08, "job array pointer");
static_assert(offsetof(zkP::_dataPARS_LoadSceneFile, settings) == 0x10, "settings pointer");
static_assert(sizeof(zkP::_dataPARS_LoadSceneFile) == 0x18, "load record size");
static_assert(std::is_standard_layout_v<zkP::_dataPARS_LoadSceneFile>, "host reads it by offset");
