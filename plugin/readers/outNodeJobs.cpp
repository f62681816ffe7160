#include "outNodeJobs.h"

#include "jobs/ZK_DataTypes_jobs_defines.h"
#include "plugin/jobCopy.h"
#include "plugin/jobWalk.h"
#include "plugin/parserState.h"
#include "plugin/paths/houdiniVariables.h"
#include "plugin/paths/imageTokens.h"
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
    const int index = lops.findLOPIndexByRenderNode(d.path);
    return index < 0 ? nullptr : &lops.list.at(index);
}

QString renderRendererName(const Driver& d, zkJ::_JobBasics_largePath& job)
{
    if (d.isUSD) {
        const LopNode* lop = linkedLop(d);
        return lop ? lop->rendererName_render() : QString();
    }
    if (d.isArnold)
        return QStringLiteral("arnold");
    if (d.isPicture)
        return QStringLiteral("opengl");
    if (d.isGeometry)
        return QStringLiteral("geometry");
    if (d.isRedshift)
        return QStringLiteral("redshift");
    if (d.isRenderMan)
        return QStringLiteral("prman");
    if (d.isAlembic) {
        if (!d.isSingleFile)
            return QStringLiteral("alembic");
        job.imageSingleOutputFile = true;
        return QStringLiteral("alembic-singleFile");
    }
    if (d.isVRay)
        return QStringLiteral("vray");
    return QString();
}

/// The export job's renderer name. A USD export of a Redshift render
/// delegate that writes ".rs" files is a Redshift proxy export from here on.
void setExportRenderer(Driver& d, zkJ::_JobBasics_largePath& job, zkJ::_JobBasicsArray& jobs)
{
    _zkString<25>& name = job.renderApp.rendererName;
    if (d.isUSD) {
        const LopNode* lop = linkedLop(d);
        name.set(lop ? lop->rendererName_create() : QStringLiteral("createUSD"));
        if (name.indexOf(_zkString<25>("redshift"), 0) >= 0 && d.exportPath.endsWith(".rs"_L1)) {
            d.prependPicture = true;
            jobs.arrayText.append(QString::fromLatin1(LocalRenderOutOption));
            d.isRedshift = true;
            d.isUSD = false;
        }
        if (d.isSingleFile)
            job.imageSingleOutputFile = true;
    }
    if (d.isUSD)
        return;
    if (d.isArnold)
        name.setLatin1("createASS");
    else if (d.isRedshift)
        name.setLatin1("createRS");
    else if (d.isRenderMan)
        name.setLatin1("createRIB");
    else if (d.isVRay) {
        name.setLatin1("createVrScene");
        if (d.isSingleFile)
            job.imageSingleOutputFile = true;
    } else
        name.setLatin1("createIFD");
}

/// The stand-alone renderer that renders an export's files.
const QString& renderApplication(const Driver& d, bool exportIsSingleFile, const LopNode* lop)
{
    if (d.isUSD) {
        if (lop && lop->renderer == "arnold"_L1)
            return exportIsSingleFile ? appNameArnold_singlefile : appNameArnold;
        return exportIsSingleFile ? appNameUSDsingle : appNameUSD;
    }
    if (d.isArnold)
        return appNameArnold;
    if (d.prependPicture)
        return appNameRedshift;
    if (d.isRenderMan)
        return appNameRenderman;
    if (d.isVRay)
        return appNameVRay;
    return appNameMantra;
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

    const LopNode* lop = d.isUSD ? linkedLop(d) : nullptr;
    job->renderApp.appName.set(renderApplication(d, exportJob->imageSingleOutputFile, lop));
    if (d.isUSD)
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
    if (d.path.contains("/karma"_L1)) {
        // A Karma driver is its own LOP node: its renderer comes from its name.
        LopNode own;
        own.nodePath = d.path;
        own.imageOut = d.imagePath;
        own.imageUsesTake = d.scene.takeFound;
        d.scene.lops.addLOP(own);
        d.scene.lops.addLOPFromOutNode(d.path, d.path);
        d.isUSD = true;
        d.isPicture = false;
    }
    if (!isUsableOutput(d.imagePath) || (d.exportMode && !isUsableOutput(d.exportPath))) {
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

    if (d.exportMode && !d.proxyCamera) {
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
