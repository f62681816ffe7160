// The scenes of a run: the paths a user names, folders searched for scenes.
#pragma once

#include <QStringList>

namespace hipjobs {

/// Scenes in the order they are named; a folder stands for the scene files
/// under it (*.hip, *.hipnc, *.hiplc; with \p recurse in its subfolders as
/// well) in sorted order, so that two runs over one tree list it alike. A
/// path that is neither a folder nor an existing file is kept as a scene: its
/// load then reports that it cannot be opened. Paths come back absolute.
QStringList collectScenes(const QStringList& paths, bool recurse);

} // namespace hipjobs
