#include "completion.h"

#include "plugin/jobWalk.h"
#include "plugin/renderers.h"
#include "plugin/scene.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A renderer's version as the submitter or the scene gives it.
struct RendererVersion
{
    int major = 0;
    QString minor;

    /// "7.1.4.1" gives 7 and "1.4.1"; "7" gives 7 and keeps the minor text.
    void parse(const QString& text)
    {
        const qsizetype dot = text.indexOf(u'.');
        if (dot < 0) {
            major = text.toInt();
            return;
        }
        major = QStringView(text).left(dot).toInt();
        minor = text.mid(dot + 1);
    }

    /// A version above 0 replaces the job's Houdini version.
    void applyTo(zkRA::_RenderAppBasic& app) const
    {
        if (major <= 0)
            return;
        app.versionMajor = static_cast<short>(major);
        app.setVersionMinor(minor);
    }
};

using RendererVersions = std::array<RendererVersion, RendererCount>;

/// "HtoA_KickVersion" of the scene, then the submitter's overrides: the last
/// one given wins, and an override without a value behind it is ignored.
RendererVersions rendererVersions(const Scene& scene)
{
    const QStringList& arguments = scene.ctx.arguments;
    RendererVersions v;
    for (const SceneVariable& variable : scene.variables) {
        if (variable.name.compare(QLatin1String("HtoA_KickVersion"), Qt::CaseInsensitive) == 0)
            v[int(Renderer::Arnold)].parse(variable.value);
    }
    for (qsizetype i = 0; i + 1 < arguments.size(); ++i) {
        for (int r = 0; r < RendererCount; ++r) {
            const QLatin1String argument = rendererRow(Renderer(r)).versionArgument;
            if (!argument.isEmpty() && arguments[i].compare(argument, Qt::CaseInsensitive) == 0)
                v[r].parse(arguments[i + 1]);
        }
    }
    return v;
}

/// What a render job needs of its export job: the export's output is the
/// scene the render job reads.
struct ExportFiles
{
    QString imagePath;
    QString extension;
    bool singleFile = false;
    int padding = 4;

    /// The export's files as a scene name, with a "<FN4>"-style frame token
    /// unless they are one file.
    QString sceneName(bool frameTokenAlways) const
    {
        if (singleFile && !frameTokenAlways)
            return imagePath + extension;
        return imagePath + QStringLiteral("<FN%1>").arg(padding) + extension;
    }
};

/// The files of the export job that \p note names; none for a job without one.
ExportFiles exportFilesOf(const Scene& scene, const JobNote& note)
{
    ExportFiles files;
    if (note.exportJob < 0)
        return files;
    const zkJ::_JobBasics_largePath* exportJob = scene.jobs.records + note.exportJob;
    _zkString<1000> imagePath = exportJob->imageDir;
    imagePath.append(exportJob->imageFileName.view());
    files.imagePath = imagePath.toQString();
    files.extension = exportJob->imageExtension.toQString();
    files.singleFile = exportJob->imageSingleOutputFile;
    files.padding = exportJob->padding;
    return files;
}

/// Houdini's own jobs read the scene; a stand-alone render job reads its
/// export's files and carries the version of its renderer.
void completeApplication(zkJ::_JobBasics_largePath& job, const JobNote& note,
    const ExportFiles& exportFiles, const Scene& scene, const RendererVersions& versions)
{
    zkRA::_RenderAppBasic& app = job.renderApp;
    if (note.exportJob < 0) {
        job.renderLicenses.set(appNameHoudini);
        job.sceneName.set(scene.ctx.scenePath);
        return;
    }
    const Renderer renderer = note.renderer;
    if (renderer == Renderer::Mantra) {
        job.renderLicenses.set(*rendererRow(renderer).application);
        app.rendererName.clear();
        job.sceneName.set(exportFiles.sceneName(true));
        return;
    }
    job.renderLicenses.clear();
    // A USD render job keeps its render delegate as its renderer name.
    if (renderer != Renderer::Usd) {
        app.rendererName.set(appNameHoudini_Archive);
        app.rendererVersion.set(scene.houdiniVersion);
    }
    job.sceneName.set(exportFiles.sceneName(false));
    if (renderer == Renderer::Arnold)
        app.rendererName.setLatin1("HtoA");
    else if (renderer == Renderer::VRay && !exportFiles.singleFile)
        app.rendererName.setLatin1("multifile");
    versions[int(renderer)].applyTo(app);
}

/// Compressed scene descriptions: the export writes ".gz" files and the
/// Mantra job that reads them says so in its renderer name.
void compressExport(zkJ::_JobBasics_largePath& job)
{
    if (job.renderApp.rendererName.view() == u"createIFD") {
        job.renderApp.rendererName.setLatin1("createIFDzip");
        job.imageExtension.append(u".gz");
    } else if (job.renderApp.appName.view() == *rendererRow(Renderer::Mantra).application) {
        job.renderApp.rendererName.setLatin1("zip");
        job.sceneName.append(u".gz");
    }
}

/// The camera a driver renders through gives the job its name, the size the
/// driver left open and, for a stereo rig, the eye tokens.
void completeCamera(zkJ::_JobBasics_largePath& job, const Scene& scene, const JobNote& note)
{
    const int index = scene.cameras.findByDriver(job.layer.toQString());
    if (index < 0)
        return;
    const CameraNode& cam = scene.cameras.list.at(index);
    job.camera.set(cam.name.toQString());
    const double fraction = note.resolutionFraction > 0 ? note.resolutionFraction : 1.0;
    const auto scaled = [fraction](int size) {
        // Halves round away from zero; the field keeps the low 16 bits.
        const double v = std::clamp(std::round(size * fraction), double(INT_MIN), double(INT_MAX));
        return static_cast<unsigned short>(static_cast<int>(v));
    };
    if (job.imageWidth == 0 && cam.resX != 0)
        job.imageWidth = scaled(cam.resX);
    if (job.imageHeight == 0 && cam.resY != 0)
        job.imageHeight = scaled(cam.resY);
    // An export writes scene descriptions, not the eyes' images.
    if (cam.isStereo && !job.renderApp.rendererName.view().contains(u"create")) {
        job.imageFileName.append(u"<Stereo>");
        job.imageStereoL.setLatin1("_left");
        job.imageStereoR.setLatin1("_right");
    }
}

} // namespace

LoadResult completeJobs(Scene& scene)
{
    zkJ::_JobBasicsArray& jobs = scene.jobs;
    if (scene.aovBesideScene)
        jobs.arrayText.append(u" \"AllowLocalSceneCopy=0~0\"");
    if (scene.exportPairMade)
        jobs.arrayText.append(u" -NoSceneExistCheck ");

    // Longer names first, so "$SHOTDIR" is not taken for "$SHOT" followed by "DIR".
    std::stable_sort(scene.variables.begin(), scene.variables.end(),
        [](const SceneVariable& a, const SceneVariable& b) {
            return a.name.size() > b.name.size();
        });

    const RendererVersions versions = rendererVersions(scene);
    // Every "JOB" variable sets the same key in turn: the last one is what stays.
    const QString* houdiniJob = nullptr;
    for (const SceneVariable& variable : qAsConst(scene.variables)) {
        if (variable.name.compare("JOB"_L1, Qt::CaseInsensitive) == 0)
            houdiniJob = &variable.value;
    }
    const LoadResult completed = forEachJob(jobs, [&](zkJ::_JobBasics_largePath& job, int i) {
        job.renderApp.versionMajor = static_cast<short>(scene.houdiniMajor);
        job.renderApp.setVersionMinor(scene.houdiniMinorForJobs);
        if (houdiniJob)
            job.customDataSet_Str(QStringLiteral("HoudiniJob"), *houdiniJob);
        const JobNote& note = scene.noteOf(i);
        completeApplication(job, note, exportFilesOf(scene, note), scene, versions);
        if (jobs.count <= 2)
            job.auxByte3 = 1;
        return LoadOk;
    });
    if (completed != LoadOk)
        return completed;
    // An export's files are read as its render job's scene before they are
    // renamed for compression.
    return forEachJob(jobs, [&](zkJ::_JobBasics_largePath& job, int i) {
        if (scene.ctx.compressedExportSwitch)
            compressExport(job);
        completeCamera(job, scene, scene.noteOf(i));
        return LoadOk;
    });
}
