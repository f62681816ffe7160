// The readers share one signature: the scene being loaded, the line source
// positioned after the section's header line, and the header line itself
// (which holds the last line the reader decoded when it returns). LoadOk
// goes on with the scan; any other result ends the load with it.
#pragma once

#include "plugin/lineSource.h"
#include "plugin/loadResult.h"
#include "plugin/scene.h"

#include <QString>

/// A declared node's path, else \p fromHeader (the path its header's
/// network prefix gives).
inline QString sectionNodePath(const Scene& scene, const QString& fromHeader)
{
    return scene.section.path.isEmpty() ? fromHeader : scene.section.path;
}

using SectionReader = LoadResult (*)(Scene& scene, LineSource& in, QString& header);

LoadResult readWedgeSection(Scene& scene, LineSource& in, QString& header);
LoadResult readCameraSection(Scene& scene, LineSource& in, QString& header);
LoadResult readLopSection(Scene& scene, LineSource& in, QString& header);
LoadResult readRenderSettingsSection(Scene& scene, LineSource& in, QString& header);
/// Makes the driver's job, or export and render jobs, at the section's end.
LoadResult readDriverSection(Scene& scene, LineSource& in, QString& header);
