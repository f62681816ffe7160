// The two entry points the host resolves by name.
#include "load.h"
#include "loadResult.h"
#include "pluginExport.h"
#include "renderers.h"
#include "zkPluginRecords.h"

#include <QtGlobal>

#include <cstring>

namespace {

constexpr const char* AppName = "Houdini";
constexpr const char* AuthorText = "zk scene parser authors";
constexpr const char* PluginVersion = "1.0";
constexpr const char* FileFilter = "*.hip;*.hipnc;*.hiplc;";
constexpr int QtVersionCapacity = 25;

} // namespace

extern "C" ZK_PLUGIN_EXPORT int pInfo(zkP::_dataPARS_PluginInfo* info)
{
    if (!info)
        return InfoWrongIdentifier;
    info->managerVersion.setLatin1(zkVersion);
    if (const char* qt = qVersion()) {
        const int n = int(std::strlen(qt));
        unsigned short units[QtVersionCapacity];
        const int cut = n < QtVersionCapacity ? n : QtVersionCapacity;
        for (int i = 0; i < cut; ++i)
            units[i] = static_cast<unsigned char>(qt[i]);
        info->qtVersion.setUnits(units, cut);
    }
    info->infoVersion = 1;
    info->appName.setLatin1(AppName);
    info->author.setLatin1(AuthorText);
    info->pluginVersion.setLatin1(PluginVersion);

    const unsigned short identifier = info->structureID;
    info->structureID = zkP::PluginInfoStructureID;
    if (identifier != zkP::PluginInfoStructureID)
        return InfoWrongIdentifier;
    info->flag = 0;
    info->fileFilter.setLatin1(FileFilter);
    return InfoOk;
}

extern "C" ZK_PLUGIN_EXPORT int pLoadSceneFile(zkP::_dataPARS_LoadSceneFile* data)
{
    if (!data)
        return LoadUnsupportedArray;
    return loadScene(*data);
}
