#include "usdRenderSettingsList.h"

#include "elementSection.h"

int RenderSettingsList::findIndex(QString const& nodePath, bool const& create)
{
    return elementSection::findByNodePath(list, byPath, nodePath, create, bound);
}

int RenderSettingsList::add(RenderSettingsNode& node)
{
    const int index = findIndex(node.nodePath, true);
    if (index < 0)
        return index;
    RenderSettingsNode& entry = list[index];
    entry.nodePath = node.nodePath;
    entry.camera = node.camera;
    entry.archiveEnabled = node.archiveEnabled;
    entry.archiveFile = node.archiveFile;
    return index;
}
