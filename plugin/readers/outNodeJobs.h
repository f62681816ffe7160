// What the output-driver reader learns from one section, and how that
// becomes the driver's jobs once the section's "}" is read.
#pragma once

#include "plugin/loadResult.h"
#include "plugin/paths/fileCachePath.h"
#include "plugin/renderers.h"
#include "plugin/scene.h"

#include <QString>

/// One output driver as its section has described it so far.
struct Driver
{
    static constexpr int AovSlots = 20; ///< index 0 stays empty; AOVs are numbered 1 to 19

    explicit Driver(Scene& loading)
        : scene(loading)
        , frameStart(loading.frameStart)
        , frameEnd(loading.frameEnd)
    { }

    Scene& scene;

    QString path; ///< node path such as "/out/mantra1"; the jobs' layer
    /// The node's type as the scene declares it; empty when it declares none
    /// and the section's name chose the reader.
    QString type;
    bool bypass = false;
    /// A USD ROP's only output is its USD file: one job writes it, none renders.
    bool usdFileOnly = false;
    /// A File Cache's path parameters, for the path it constructs.
    FileCacheParameters cache;
    QString imagePath;
    QString exportPath; ///< scene-description file of an export
    QString takeName;
    /// "trange" on: the driver's own "f" line sets its frames, else the scene's range holds.
    bool ownFrameRange = false;
    int frameStart;
    int frameEnd;
    int frameStep = 1;
    bool exportMode = false;
    bool isSingleFile = false; ///< one output file for the whole frame range
    bool proxyCamera = false; ///< a Redshift proxy export: no render job
    int overrideResX = 0;
    int overrideResY = 0;

    /// The last "override_camerares" line: whether the driver's own size counts.
    enum class Toggle { Absent, Off, On } resToggle = Toggle::Absent;
    /// The last "res_fraction" line as a number above 0, else 0.
    double resFraction = 0.0;

    QString aovFile[AovSlots];
    QString aovPrefix[AovSlots];
    QString aovSuffix[AovSlots];
    QString aovFormat[AovSlots];

    /// The renderers the section's lines have named so far; the first in
    /// table order is the driver's.
    RendererSet marked = 0;
    bool prependPicture = false; ///< Redshift: picture values go in front of the path

    bool marks(Renderer r) const { return (marked & bit(r)) != 0; }
    bool declared() const { return !type.isEmpty(); }
};

/// The end of a driver's section: its own LOP entry for a Karma driver, then
/// the job (or export and render jobs). LoadNoJobRecord when the job array
/// gives no record; a driver without a usable output makes no job.
LoadResult makeDriverJobs(Driver& d);
