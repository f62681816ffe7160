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

private:
    elementSection::FirstIndex byPath;
};
