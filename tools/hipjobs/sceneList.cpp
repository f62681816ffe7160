#include "sceneList.h"

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace hipjobs {

QStringList collectScenes(const QStringList& paths, bool recurse)
{
    const QStringList patterns
        = { QStringLiteral("*.hip"), QStringLiteral("*.hipnc"), QStringLiteral("*.hiplc") };
    QStringList scenes;
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (!info.isDir()) {
            scenes.append(info.absoluteFilePath());
            continue;
        }
        // Symbolic links to folders are not followed: a link back up the tree
        // would make the search endless.
        QDirIterator it(info.absoluteFilePath(), patterns, QDir::Files,
            recurse ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
        QStringList found;
        while (it.hasNext())
            found.append(QFileInfo(it.next()).absoluteFilePath());
        std::sort(found.begin(), found.end());
        scenes.append(found);
    }
    return scenes;
}

} // namespace hipjobs
