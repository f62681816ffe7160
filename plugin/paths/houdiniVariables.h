// Expansion of the Houdini variables whose values are known at parse time.
#pragma once

#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "shared/zkString.h"

#include <QList>
#include <QString>

/// A scene or environment variable: its name without "$" and its value.
struct SceneVariable
{
    QString name;
    QString value;
};

/// The node name of a node path: the text after its last "/", or the whole
/// path when it has no "/" or only a leading one ("/out/mantra1" gives "mantra1").
QString houdiniNodeName(const QString& nodePath);

/// Replaces $HIPNAME, $HIP, the scene's own variables, $OS and the frame-range
/// variables in \p path (matched ignoring case, in a fixed order) and returns it.
QString replaceHoudiniVariables(QString path, zkJ::_JobBasics_largePath* job,
    const QList<SceneVariable>& variables, _zkString<500> const& sceneFile);
