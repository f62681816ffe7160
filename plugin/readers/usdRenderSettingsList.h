// USD render-settings nodes of one scene and the drivers registered with them.
#pragma once

#include "plugin/readers/elementSection.h"

#include <QList>
#include <QString>
#include <QStringList>

struct _USD_RendersettingNode
{
    QString nodePath;
    QString camera;
    bool imageUsesTake = false;
    bool archiveEnabled = false;
    bool archiveControlSet = false;
    QString archiveFile;
    bool spareFlag = false;
    QStringList renderNodes;

    _USD_RendersettingNode() { clear(); }
    void clear();
};

class _USD_RSList
{
public:
    int findIndex(QString const& nodePath, bool const& create);
    int addFromROP(QString name, QString const& driverPath);
    int add(_USD_RendersettingNode& node);

    /// Add through the members above: they keep the lookups' indexes.
    QList<_USD_RendersettingNode> list;

private:
    elementSection::FirstIndex byPath;
};
