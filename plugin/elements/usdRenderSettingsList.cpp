#include "usdRenderSettingsList.h"

#include "elementSection.h"

void RenderSettingsNode::clear()
{
    camera.clear();
    imageUsesTake = false;
    archiveControlSet = false;
    spareFlag = false;
}

int RenderSettingsList::findIndex(QString const& nodePath, bool const& create)
{
    return elementSection::findByNodePath(list, byPath, nodePath, create);
}

int RenderSettingsList::addFromROP(QString name, QString const& driverPath)
{
    const int index = findIndex(elementSection::unwrapChsop(name), true);
    list[index].renderNodes.append(driverPath);
    return index;
}

int RenderSettingsList::add(RenderSettingsNode& node)
{
    const int index = findIndex(node.nodePath, true);
    RenderSettingsNode& entry = list[index];
    entry.nodePath = node.nodePath;
    entry.camera = node.camera;
    entry.archiveEnabled = node.archiveEnabled;
    entry.archiveFile = node.archiveFile;
    return index;
}
