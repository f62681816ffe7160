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
    QString renderName() const;
    QString exportName() const;
};

class LopList
{
public:
    int findByPath(QString const& nodePath, bool const& create);
    int findByDriver(QString const& driverPath) const;
    int addDriver(QString lopPath, QString const& driverPath);
    void add(LopNode& node);

    /// Add through the members above: they keep the lookups' indexes.
    QList<LopNode> list;
    /// LOP nodes past the limit are not kept, nor drivers past it linked.
    listLimits::Bound bound { listLimits::Lops };

private:
    elementSection::FirstIndex byPath;
    elementSection::FirstIndex byDriver;
};
