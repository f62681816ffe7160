// Synthetic Houdini scenes shaped like production files, for benchmarks.
#pragma once

#include <QString>

/// Writes a scene of about \p targetBytes to \p path: global lines, takes,
/// many node members that carry no parameters of interest, long numeric
/// lines, cameras and a few hundred render nodes. The same size gives the
/// same file. Returns false when the file cannot be written.
bool writeBenchScene(const QString& path, qint64 targetBytes);
