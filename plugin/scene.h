// What one load learns about its scene. The load creates it, and the
// scanner, every reader, the completion pass and the fan-out work on it by
// reference, so nothing of one scene outlives its load.
#pragma once

#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/elements/cameraList.h"
#include "plugin/elements/lopList.h"
#include "plugin/elements/usdRenderSettingsList.h"
#include "plugin/elements/wedgeList.h"
#include "plugin/frameChannels.h"
#include "plugin/loadContext.h"
#include "plugin/nodeTable.h"
#include "plugin/paths/houdiniVariables.h"
#include "plugin/renderers.h"
#include "plugin/wires.h"
#include "shared/zkString.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// What a job's driver knew that the job record has no field for, kept
/// beside the job array at the job's index until the load ends.
struct JobNote
{
    /// The driver's own take ("" for every take of the scene).
    QString take;
    /// The driver's size as this fraction of its camera's; 0 for none.
    double resolutionFraction = 0.0;
    /// The export job a stand-alone render job reads the files of, or -1.
    int exportJob = -1;
    /// The renderer whose application renders the export's files.
    Renderer renderer = Renderer::Mantra;
    /// The node that made the job, as the archive names it ("out/mantra1");
    /// its wires decide what the job waits for.
    QString driverNode;
};

struct Scene
{
    explicit Scene(const LoadContext& context)
        : ctx(context)
        , jobs(*context.data->jobs)
        , sceneFile(context.data->sceneFile ? *context.data->sceneFile : _zkString<500>())
    { }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    const LoadContext& ctx;
    zkJ::_JobBasicsArray& jobs;
    /// The scene path as the host's record holds it, for path expansion.
    const _zkString<500> sceneFile;

    /// "take name" entries in file order; past the limit further takes are not
    /// listed, so no job is copied for them.
    QStringList takes;
    listLimits::Bound takesBound { listLimits::Takes };
    /// The saved Houdini version as written, such as "19.5.303".
    QString houdiniVersion;
    int houdiniMajor = 10;
    /// Minor version for the job records ("5.303", or "5" with the build switch).
    QString houdiniMinorForJobs;
    /// Minor version for the output-driver reader ("5303", or "5" with the build switch).
    QString houdiniMinorForReaders;

    /// The scene-wide "frange" line: every driver's range until its own says otherwise.
    int frameStart = 1;
    int frameEnd = 100;
    /// The scene's folder, with its trailing "/".
    QString databaseDir;
    /// "set -g" variables and the "HIP" environment variables; past the limit
    /// further "set -g" lines are not kept, and paths keep their names.
    QList<SceneVariable> variables;
    listLimits::Bound variablesBound { listLimits::Variables };

    /// The node of the section a reader is reading, as its ".init" member
    /// declared it; an empty path while the section's node declared no type.
    struct DeclaredSection
    {
        /// "/" + the member path: the node's path wherever it lies.
        QString path;
        QString type;
        bool bypass = false;
        /// The node's ".chn" member, when it came right before the section.
        FrameChannelReader channels;
    };
    DeclaredSection section;
    /// The value of parameter \p parameter of the node \p nodePath ("/obj/a/b"),
    /// unquoted, when the scene holds its line; a null string otherwise. Set
    /// by the scan, which knows where each node's parameters are.
    std::function<QString(QStringView nodePath, QStringView parameter)> parameterValue;

    CameraList cameras;
    LopList lops;
    RenderSettingsList renderSettings;
    /// Past the limit further wedge drivers are not kept: their drivers' jobs are not copied.
    QList<WedgeNode> wedges;
    listLimits::Bound wedgesBound { listLimits::Wedges };
    /// Declared node types, bypass flags and member offsets.
    NodeTable nodes;
    /// The wires between nodes that can make or pass on a wait.
    WireGraph wires;

    /// An image path named the active take: every driver renders per take.
    bool takeFound = false;
    /// A driver was read whose output gives no job.
    bool emptyDriverFound = false;
    /// An export pair was made: the host must not check for its scene files.
    bool exportPairMade = false;
    /// An AOV is written beside the scene, so the scene may not be copied locally.
    bool aovBesideScene = false;

    /// One entry per job the readers made, at the job's index.
    std::vector<JobNote> notes;

    /// The lists the scene made run into their limits, as the first job names them.
    QString limitsReached() const
    {
        QStringList cut { listLimits::said({ &takesBound, &cameras.bound, &wedgesBound, &lops.bound,
            &renderSettings.bound, &variablesBound }) };
        if (nodes.overflowed())
            cut.append(QStringLiteral("nodes=%1").arg(NodeTable::MaxNodes));
        if (wires.overflowed())
            cut.append(QStringLiteral("wires=%1").arg(WireGraph::MaxNodes));
        cut.removeAll(QString());
        return cut.join(u' ');
    }

    /// The note of job \p index, made when the readers left none.
    JobNote& noteOf(int index)
    {
        if (index >= int(notes.size()))
            notes.resize(size_t(index) + 1);
        return notes[size_t(index)];
    }
};
