// USD render-settings nodes of one scene.
#pragma once

#include "plugin/elements/elementSection.h"

#include <QList>
#include <QString>

struct RenderSettingsNode
{
    QString nodePath;
    QString camera;
    bool imageUsesTake = false;
    bool archiveEnabled = false;
    bool archiveControlSet = false;
    QString archiveFile;
};

class RenderSettingsList
{
public:
    int findIndex(QString const& nodePath, bool const& create);
    int add(RenderSettingsNode& node);

    /// Add through the members above: they keep the lookups' indexes.
    QList<RenderSettingsNode> list;
    /// Render-settings nodes past the limit are not kept, nor drivers past it linked.
    listLimits::Bound bound { listLimits::RenderSettings };

private:
    elementSection::FirstIndex byPath;
};
