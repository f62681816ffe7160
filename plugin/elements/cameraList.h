// Cameras of one scene: resolution and stereo flag from the camera sections,
// and the output drivers that render through each camera.
#pragma once

#include "plugin/elements/elementSection.h"
#include "shared/zkString.h"

#include <QList>
#include <QString>
#include <QStringList>

struct CameraNode
{
    _zkString8_allSize<150> name;
    int resX = 0;
    int resY = 0;
    bool isStereo = false;
    QStringList renderNodes;
};

class CameraList
{
public:
    int findByName(_zkString8_allSize<150> const& name);
    int findByDriver(QString const& driverPath) const;
    void addDriver(const _zkString8_allSize<150>& camera, QString const& driverPath);
    void add(CameraNode& cam);

    /// Add through the members above: they keep the lookups' indexes.
    QList<CameraNode> list;
    /// Cameras past the limit are not registered, nor drivers past it linked.
    listLimits::Bound bound { listLimits::Cameras };

private:
    void name(int index, const _zkString8_allSize<150>& name);

    elementSection::FirstIndex byName;
    elementSection::FirstIndex byDriver;
};
