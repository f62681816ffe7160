// USD render-settings nodes of one scene and the drivers registered with them.
#pragma once

#include "plugin/elements/elementSection.h"

#include <QList>
#include <QString>
#include <QStringList>

struct RenderSettingsNode
{
    QString nodePath;
    QString camera;
    bool imageUsesTake = false;
    bool archiveEnabled = false;
    bool archiveControlSet = false;
    QString archiveFile;
    bool spareFlag = false;
    QStringList renderNodes;

    RenderSettingsNode() { clear(); }
    void clear();
};

class RenderSettingsList
{
public:
    int findIndex(QString const& nodePath, bool const& create);
    int addFromROP(QString name, QString const& driverPath);
    int add(RenderSettingsNode& node);

    /// Add through the members above: they keep the lookups' indexes.
    QList<RenderSettingsNode> list;

private:
    elementSection::FirstIndex byPath;
};
