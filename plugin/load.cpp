#include "load.h"

#include "plugin/completion.h"
#include "plugin/lineSource.h"
#include "plugin/loadContext.h"
#include "plugin/scanner.h"
#include "plugin/scene.h"

#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QTextStream>

namespace {

LoadResult loadLines(const LoadContext& ctx, QIODevice& device)
{
    QTextStream stream(&device);
    LineSource in(stream);
    Scene scene(ctx);
    LoadResult result = scanScene(scene, in);
    if (result == LoadOk)
        result = completeJobs(scene);
    if (result == LoadOk)
        result = waitForWiredDrivers(scene);
    if (result == LoadOk)
        result = fanOutJobs(scene);
    // The host reads count records: whatever count it handed in, it must not
    // be told of more records than the array holds.
    zkJ::_JobBasicsArray& jobs = scene.jobs;
    if (jobs.count > jobs.allocated)
        jobs.count = jobs.allocated;
    // Said last, so that no take or wedge copy repeats it.
    const QString limits = scene.limitsReached();
    if (!limits.isEmpty() && jobs.count > 0)
        jobs.at(0)->customDataSet_Str(QStringLiteral("zkSceneLimitsReached"), limits);
    return result;
}

LoadResult load(zkP::_dataPARS_LoadSceneFile& data, QIODevice* scene)
{
    if (!data.jobs || !data.jobs->isVersionSupported(1))
        return LoadUnsupportedArray;
    LoadContext ctx;
    ctx.data = &data;
    readSubmitterArguments(ctx, data.settings);
    if (!data.sceneFile)
        return LoadCannotOpen;
    ctx.scenePath = data.sceneFile->toQString();
    if (scene)
        return loadLines(ctx, *scene);

    // Anything but a regular file (directory, FIFO, device) could block or
    // never end; refuse it before opening.
    if (!QFileInfo(ctx.scenePath).isFile())
        return LoadCannotOpen;
    // Binary mode: the line source drops every "\r" itself, far cheaper than
    // the device's text-mode filter on scenes of several gigabytes.
    QFile file(ctx.scenePath);
    if (!file.open(QIODevice::ReadOnly))
        return LoadCannotOpen;
    return loadLines(ctx, file);
}

} // namespace

LoadResult loadScene(zkP::_dataPARS_LoadSceneFile& data, QIODevice* scene)
{
    try {
        return load(data, scene);
    } catch (...) {
        return LoadInternalError;
    }
}
