#include "hostRecords.h"

#include "plugin/loadResult.h"

#include <QFile>

#include <algorithm>
#include <cstdlib>
#include <dlfcn.h>

namespace zkHost {

Plugin::~Plugin()
{
    if (handle)
        dlclose(handle);
}

bool Plugin::open(const QString& path, QString& error)
{
    handle = dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        error = QStringLiteral("cannot load plugin: %1").arg(QString::fromLocal8Bit(dlerror()));
        return false;
    }
    info = reinterpret_cast<InfoFn>(dlsym(handle, "pInfo"));
    load = reinterpret_cast<LoadFn>(dlsym(handle, "pLoadSceneFile"));
    if (!info || !load) {
        error = QStringLiteral("cannot load plugin: %1 lacks pInfo or pLoadSceneFile").arg(path);
        return false;
    }
    return true;
}

HostJobArray::HostJobArray()
    : array(static_cast<zkJ::_JobBasicsArray*>(std::calloc(1, sizeof(zkJ::_JobBasicsArray))))
{
    if (!array)
        return;
    array->structureID = zkJ::JobStructureID;
    array->structureVersion = zkJ::JobStructureVersion;
    array->recordSize = LargePathRecordSize;
}

HostJobArray::~HostJobArray()
{
    if (array)
        std::free(static_cast<void*>(array->records));
    std::free(static_cast<void*>(array));
}

int HostJobArray::readableCount() const
{
    if (!array || !array->records || array->count <= 0)
        return 0;
    return std::min(array->count, array->allocated);
}

HostSettings::HostSettings(const QByteArray& program, const QStringList& arguments)
    : block(new zkP::_submitterSettings())
{
    words.append(program);
    for (const QString& arg : arguments)
        words.append(arg.toLocal8Bit());
    for (QByteArray& w : words)
        argv.push_back(w.data());
    argv.push_back(nullptr);
    block->argc = int(words.size());
    block->argv = argv.data();
}

SceneLoad::SceneLoad(const QString& scene, const QStringList& arguments, const QByteArray& program)
    : sceneName(scene)
    , settings(program, arguments)
{
    record.sceneFile = &sceneName;
    record.jobs = jobs.array;
    record.settings = settings.block.get();
}

QString resultText(int result)
{
    const QString words = QString::fromLatin1(loadResultText(result));
    return isLoadResult(result) ? words : QStringLiteral("%1 with code %2").arg(words).arg(result);
}

} // namespace zkHost
