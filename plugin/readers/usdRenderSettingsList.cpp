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
    for (int i = 0; i < list.size(); ++i) {
        if (list.at(i).nodePath.compare(nodePath, Qt::CaseInsensitive) == 0)
            return i;
    }
    if (!create)
        return -1;
    _USD_RendersettingNode node;
    node.nodePath = nodePath;
    list.append(node);
    return int(list.size()) - 1;
}

int _USD_RSList::findIndexByROP(QString const& driverPath) const
{
    for (int i = 0; i < list.size(); ++i) {
        if (list.at(i).renderNodes.contains(driverPath, Qt::CaseSensitive))
            return i;
    }
    return -1;
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
