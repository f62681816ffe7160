// LOP nodes of one scene: image output and renderer, and the drivers that render them.
#pragma once

#include "plugin/readers/elementSection.h"

#include <QList>
#include <QString>
#include <QStringList>

struct _LOPNode
{
    QString nodePath;
    QString imageOut;
    QString renderer;
    bool imageUsesTake = false;
    QStringList renderNodes;

    void setRenderer(QString const& hint);
    QString rendererName_render() const;
    QString rendererName_create() const;
};

class _LOPList
{
public:
    int findLOPIndex(QString const& nodePath, bool const& create);
    int findLOPIndexByRenderNode(QString const& driverPath) const;
    int addLOPFromOutNode(QString lopPath, QString const& driverPath);
    void addLOP(_LOPNode& node);

    /// Add through the members above: they keep the lookups' indexes.
    QList<_LOPNode> list;

private:
    elementSection::FirstIndex byPath;
    elementSection::FirstIndex byDriver;
};
