// LOP nodes of one scene: image output and renderer, and the drivers that render them.
#pragma once

#include "plugin/elements/elementSection.h"

#include <QList>
#include <QString>
#include <QStringList>

struct LopNode
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

class LopList
{
public:
    int findLOPIndex(QString const& nodePath, bool const& create);
    int findLOPIndexByRenderNode(QString const& driverPath) const;
    int addLOPFromOutNode(QString lopPath, QString const& driverPath);
    void addLOP(LopNode& node);

    /// Add through the members above: they keep the lookups' indexes.
    QList<LopNode> list;

private:
    elementSection::FirstIndex byPath;
    elementSection::FirstIndex byDriver;
};
