// Wedge drivers of one scene and their parameters.
#pragma once

#include <QList>
#include <QString>

struct WedgeParameter
{
    QString name;
    double rangeStart = 0.0;
    double rangeEnd = 0.0;
    int steps = 0;

    double valueAt(int const& i) const;
};

struct WedgeNode
{
    QString prefix;
    QString nodePath;
    QString driver;
    QString wedgeMethod;
    QList<WedgeParameter> params;
    int total = -1;

    int totalWedges();
    QString fileName(int index);
};
