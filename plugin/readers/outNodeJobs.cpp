#include "outNodeJobs.h"

#include "jobs/ZK_DataTypes_jobs_defines.h"
#include "plugin/jobCopy.h"
#include "plugin/jobWalk.h"
#include "plugin/paths/houdiniVariables.h"
#include "plugin/paths/imageTokens.h"
#include "plugin/renderers.h"
#include "shared/zkShared.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString SimulationOptions = QStringLiteral(
    " \"RenderPreviewFirst=0~0\" \"DistributeStartToEnd=0~1\" \"MaxClientsAtATime=0~1\" "
    "\"SeqDivMIN=0~0\"");
const char* const LocalRenderOutOption = " \"AllowLocalRenderOut=0~0\"";

/// "ip" renders to Houdini's interactive viewer: nothing a farm could write.
bool isUsableOutput(const QString& path)
{
    return !path.isEmpty() && path != "ip"_L1;
}

void removeBraces(QString& path)
{
    path.remove(u'{');
    path.remove(u'}');
}

/// "$AOV." and its kin become the job token the host fills per channel.
void markAovTokens(QString& path)
{
    for (const char* token : { "$AOV.", "$AOV/", "$AOV_" }) {
        const QString plain = QLatin1String(token);
        path.replace(plain, QStringLiteral("<ValueVar @") + plain + u'>');
    }
}

/// Redshift AOVs give a prefix, suffix and format instead of a file name;
/// each AOV file's first frame token becomes a printf placeholder.
void composeAovFiles(Driver& d)
{
    for (int n = 0; n < Driver::AovSlots; ++n) {
        if (!d.aovPrefix[n].isEmpty() || !d.aovSuffix[n].isEmpty()) {
            const QLatin1String aovToken("$AOV");
            const bool hasToken
                = d.imagePath.contains(aovToken) || d.aovPrefix[n].contains(aovToken);
            if (d.aovPrefix[n].isEmpty())
                d.aovPrefix[n]
                    = zkGetDirName(d.imagePath, u'/') + zkGetFileNameBase(d.imagePath, u'/');
            if (hasToken) {
                d.aovFile[n] = d.aovPrefix[n] + d.aovFormat[n];
                d.aovFile[n].replace(aovToken, d.aovSuffix[n]);
            } else {
                d.aovFile[n] = d.aovPrefix[n] + u'.' + d.aovSuffix[n] + d.aovFormat[n];
            }
            d.aovPrefix[n].clear();
            d.aovSuffix[n].clear();
            d.aovFormat[n].clear();
        }
        convertFirstDollarF(d.aovFile[n]);
    }
}

/// The AOV files go into the job's channel slots in AOV order, expanded like
/// the image path; each is used once (an export pair's render job gets them).
void writeAovChannels(Driver& d, zkJ::_JobBasics_largePath& job)
{
    int slot = 0;
    for (QString& file : d.aovFile) {
        if (file.isEmpty())
            continue;
        job.channels[slot++].fileName.set(
            replaceHoudiniVariables(file, &job, d.scene.variables, d.scene.sceneFile));
        file.clear();
    }
}

/// The first LOP entry that lists the driver among its render nodes, or null.
const LopNode* linkedLop(const Driver& d)
{
    const LopList& lops = d.scene.lops;
    const int index = lops.findByDriver(d.path);
    return index < 0 ? nullptr : &lops.list.at(index);
}

QString renderRendererName(const Driver& d, zkJ::_JobBasics_largePath& job)
{
    const Renderer renderer = firstRenderer(d.marked, false);
    if (renderer == Renderer::Usd) {
        const LopNode* lop = linkedLop(d);
        return lop ? lop->renderName() : QString();
    }
    if (renderer == Renderer::Alembic && d.isSingleFile) {
        job.imageSingleOutputFile = true;
        return QStringLiteral("alembic-singleFile");
    }
    return rendererRow(renderer).renderName;
}

/// The export job's renderer name. A USD export of a Redshift render
/// delegate that writes ".rs" files is a Redshift proxy export from here on.
void setExportRenderer(Driver& d, zkJ::_JobBasics_largePath& job, zkJ::_JobBasicsArray& jobs)
{
    _zkString<25>& name = job.renderApp.rendererName;
    const Renderer renderer = firstRenderer(d.marked, true);
    if (renderer == Renderer::Usd) {
        const LopNode* lop = linkedLop(d);
        name.set(lop ? lop->exportName() : QString(rendererRow(renderer).exportName));
        if (d.isSingleFile)
            job.imageSingleOutputFile = true;
        if (name.indexOf(_zkString<25>("redshift"), 0) < 0 || !d.exportPath.endsWith(".rs"_L1))
            return;
        d.prependPicture = true;
        jobs.arrayText.append(QString::fromLatin1(LocalRenderOutOption));
        d.marked = (d.marked | bit(Renderer::Redshift)) & ~bit(Renderer::Usd);
    }
    const Renderer exporter = firstRenderer(d.marked, true);
    name.set(QString(rendererRow(exporter).exportName));
    if (exporter == Renderer::VRay && d.isSingleFile)
        job.imageSingleOutputFile = true;
}

/// The stand-alone renderer that renders an export's files: a USD export
/// goes to the renderer of its LOP node.
Renderer renderApplication(const Driver& d, const LopNode* lop)
{
    const Renderer renderer = firstRenderer(d.marked, true);
    if (renderer == Renderer::Usd && lop && lop->renderer == "arnold"_L1)
        return Renderer::Arnold;
    return renderer;
}

/// The render job of an export pair: a copy of the export job that renders
/// the driver's images and waits for the export.
LoadResult makeRenderJob(Driver& d, int exportIndex)
{
    d.scene.exportPairMade = true;
    zkJ::_JobBasicsArray& jobs = d.scene.jobs;
    zkJ::_JobBasics_largePath* job = appendJob(jobs);
    if (!job)
        return LoadNoJobRecord;
    // Growing the array may have moved the export job.
    const zkJ::_JobBasics_largePath* exportJob = jobs.records + exportIndex;
    JobNote& note = d.scene.noteOf(jobs.count - 1);
    note = d.scene.notes[size_t(exportIndex)];
    note.exportJob = exportIndex;
    copyJob(*job, *exportJob);
    job->preID = static_cast<unsigned char>(jobs.count);
    job->waitForPreIDs[0] = static_cast<unsigned char>(jobs.count - 1);
    job->waitForPreIDCount = 1;
    job->imageSingleOutputFile = false;
    job->imageDir.clear();
    job->imageExtension.clear();
    job->imageFileName.set(
        replaceHoudiniVariables(d.imagePath, job, d.scene.variables, d.scene.sceneFile));

    const bool usd = firstRenderer(d.marked, true) == Renderer::Usd;
    const LopNode* lop = usd ? linkedLop(d) : nullptr;
    note.renderer = renderApplication(d, lop);
    const RendererRow& row = rendererRow(note.renderer);
    // Only a USD export's renderer tells one file from many.
    const bool singleFile = usd && exportJob->imageSingleOutputFile;
    job->renderApp.appName.set(*(singleFile ? row.singleFileApplication : row.application));
    if (usd)
        job->renderApp.rendererName.set(lop ? lop->renderer : QString());
    writeAovChannels(d, *job);
    job->splitImageFileInto_DirFileExt(true);
    return LoadOk;
}

/// The size written into the job. A driver whose toggle leaves the size to the
/// camera gets 0 here, and a fraction of the camera's size noted for the
/// completion pass when it asks for one.
void applyResolution(const Driver& d, zkJ::_JobBasics_largePath& job, JobNote& note)
{
    const bool ownSize = d.resToggle == Driver::Toggle::Absent
        || (d.resToggle == Driver::Toggle::On && d.resFraction <= 0);
    if (ownSize) {
        job.imageWidth = static_cast<unsigned short>(d.overrideResX);
        job.imageHeight = static_cast<unsigned short>(d.overrideResY);
    }
    if (d.resToggle == Driver::Toggle::On && d.resFraction > 0)
        note.resolutionFraction = d.resFraction;
}

} // namespace

LoadResult makeDriverJobs(Driver& d)
{
    const bool karma = d.declared() ? d.type == "karma"_L1 : d.path.contains("/karma"_L1);
    if (karma) {
        // A Karma driver is its own LOP node: its renderer comes from its name.
        LopNode own;
        own.nodePath = d.path;
        own.imageOut = d.imagePath;
        own.imageUsesTake = d.scene.takeFound;
        d.scene.lops.add(own);
        d.scene.lops.addDriver(d.path, d.path);
        d.marked = (d.marked | bit(Renderer::Usd)) & ~bit(Renderer::OpenGl);
    }
    const bool usable = d.usdFileOnly
        ? isUsableOutput(d.exportPath)
        : isUsableOutput(d.imagePath) && (!d.exportMode || isUsableOutput(d.exportPath));
    // A bypassed driver writes nothing, but a scene of only such drivers
    // still has drivers: it reports the empty output, not a missing one.
    if (!usable || d.bypass) {
        d.scene.emptyDriverFound = true;
        return LoadOk;
    }

    Scene& scene = d.scene;
    zkJ::_JobBasicsArray& jobs = scene.jobs;
    zkJ::_JobBasics_largePath* job = appendJob(jobs);
    if (!job)
        return LoadNoJobRecord;
    const int firstIndex = jobs.count - 1;
    JobNote& note = scene.noteOf(firstIndex);
    note = JobNote();
    note.driverNode = d.path.mid(1);

    job->renderApp.appName.set(appNameHoudini);
    job->sceneDatabaseDir.set(scene.databaseDir);
    job->seqStart = d.frameStart;
    job->seqEnd = d.frameEnd;
    job->seqStep = static_cast<unsigned short>(d.frameStep);
    job->layer.set(d.path);
    applyResolution(d, *job, note);
    job->customDataSet_Str(QStringLiteral("zkSubmitterPluginVersion"), QLatin1String(zkVersion));

    removeBraces(d.imagePath);
    removeBraces(d.exportPath);
    composeAovFiles(d);
    note.take = d.takeName;
    markAovTokens(d.imagePath);
    markAovTokens(d.exportPath);

    if (!d.exportMode) {
        job->imageFileName.set(d.imagePath);
        job->renderApp.rendererName.set(renderRendererName(d, *job));
        writeAovChannels(d, *job);
    } else {
        job->imageFileName.set(d.exportPath);
        setExportRenderer(d, *job, jobs);
    }
    job->imageFileName.set(replaceHoudiniVariables(
        job->imageFileName.toQString(), job, scene.variables, scene.sceneFile));
    job->splitImageFileInto_DirFileExt(true);
    job->preID = static_cast<unsigned char>(jobs.count);

    if (d.exportMode && !d.proxyCamera && !d.usdFileOnly) {
        const LoadResult result = makeRenderJob(d, firstIndex);
        if (result != LoadOk)
            return result;
    }

    // Simulations run best on one machine from start to end.
    zkJ::_JobBasics_largePath& first = jobs.records[firstIndex];
    if (first.layer.indexOf(_zkString<150>("_sim_"), 0) >= 0)
        first.customDataSet_Str(zkJ::CUSTOMSubmitterParameter, SimulationOptions);
    return LoadOk;
}
