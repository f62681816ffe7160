#include "usdRenderSettingsList.h"

#include "elementSection.h"

void _USD_RendersettingNode::clear()
{
    camera.clear();
    imageUsesTake = false;
    archiveControlSet = false;
    spareFlag = false;
}

int _USD_RSList::findIndex(QString const& nodePath, bool const& create)
{
    return elementSection::findByNodePath(list, byPath, nodePath, create);
}

int _USD_RSList::addFromROP(QString name, QString const& driverPath)
{
    const int index = findIndex(elementSection::unwrapChsop(name), true);
    list[index].renderNodes.append(driverPath);
    return index;
}

int _USD_RSList::add(_USD_RendersettingNode& node)
{
    const int index = findIndex(node.nodePath, true);
    _USD_RendersettingNode& entry = list[index];
    entry.nodePath = node.nodePath;
    entry.camera = node.camera;
    entry.archiveEnabled = node.archiveEnabled;
    entry.archiveFile = node.archiveFile;
    return index;
}
