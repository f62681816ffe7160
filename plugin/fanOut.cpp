// One job per take and per wedge variant. Copies are appended to the host's
// job array like every other job, so its record cap ends a runaway fan-out.
#include "completion.h"
#include "plugin/elements/elementSection.h"
#include "plugin/jobCopy.h"
#include "plugin/jobWalk.h"
#include "plugin/wires.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <vector>

namespace {

/// The wedge tokens of paths, in the order they are replaced: the longer
/// names before their prefixes.
const QString WedgeNumBraced = QStringLiteral("${WEDGENUM}");
const QString WedgeNum = QStringLiteral("$WEDGENUM");
const QString WedgeBraced = QStringLiteral("${WEDGE}");
const QString Wedge = QStringLiteral("$WEDGE");
/// Where both braced tokens start.
const QString WedgeBracedStart = QStringLiteral("${WEDGE");

/// Applies \p edit to the paths that can carry wedge tokens: the image
/// output, and the scene a render job reads (an export's path often holds
/// "$WEDGENUM").
template <typename Edit>
void editWedgePaths(zkJ::_JobBasics_largePath& job, Edit&& edit)
{
    for (_zkString<1000>* field : { &job.imageDir, &job.imageFileName, &job.sceneName }) {
        // A braced token can arrive through a scene variable ("render/${WEDGE}").
        if (!field->view().contains(Wedge) && !field->view().contains(WedgeBracedStart))
            continue;
        QString text = field->toQString();
        edit(text);
        field->set(text);
    }
}

void removeWedgeTokens(zkJ::_JobBasics_largePath& job)
{
    editWedgePaths(job, [](QString& text) {
        for (const QString* token : { &WedgeNumBraced, &WedgeNum, &WedgeBraced, &Wedge })
            text.remove(*token);
    });
}

/// Appends a copy of job \p source; null when the array gives no record.
zkJ::_JobBasics_largePath* appendCopy(zkJ::_JobBasicsArray& jobs, int source)
{
    zkJ::_JobBasics_largePath* copy = appendJob(jobs);
    // Growing the array may have moved every record.
    if (copy)
        copyJob(*copy, jobs.records[source]);
    return copy;
}

/// The first entry of the take list equal to a name ignoring case. A scene
/// may list millions of takes, so they are found through an index rather
/// than a walk per job.
class TakeList
{
public:
    explicit TakeList(const QStringList& names)
        : takes(names)
    {
        for (int i = 0; i < takes.size(); ++i)
            byName.note(caseFoldedKey(takes.at(i)), i);
    }

    /// The entry equal to \p name ignoring case, or null.
    const QString* find(const QString& name) const
    {
        const int i = byName.find(caseFoldedKey(name), int(takes.size()),
            [&](int k) { return takes.at(k).compare(name, Qt::CaseInsensitive) == 0; });
        return i < 0 ? nullptr : &takes.at(i);
    }

private:
    const QStringList& takes;
    elementSection::FirstIndex byName;
};

/// Where each job of the fan-out came from, at its index in the job array,
/// so the waits can be written once every copy exists.
using FannedJobs = std::vector<FannedJob>;

/// The jobs each job waits for, by index, before anything is copied. A
/// preID that repeats (past 255 jobs) stands for its first job.
std::vector<std::vector<int>> baseWaits(zkJ::_JobBasicsArray& jobs, FannedJobs& fanned)
{
    std::array<int, 256> firstWithPreID;
    firstWithPreID.fill(-1);
    forEachJob(jobs, [&](const zkJ::_JobBasics_largePath& job, int j) {
        if (firstWithPreID[job.preID] < 0)
            firstWithPreID[job.preID] = j;
        fanned.push_back({ j, 0, QString(), job.preID });
        return LoadOk;
    });
    std::vector<std::vector<int>> waits(fanned.size());
    forEachJob(jobs, [&](const zkJ::_JobBasics_largePath& job, int j) {
        const int n = std::min<int>(job.waitForPreIDCount, int(sizeof(job.waitForPreIDs)));
        for (int i = 0; i < n; ++i) {
            const int upstream = firstWithPreID[job.waitForPreIDs[i]];
            if (upstream >= 0)
                waits[std::size_t(j)].push_back(upstream);
        }
        return LoadOk;
    });
    return waits;
}

/// Replaces the waits of every job: each copy waits inside its own take and
/// variant.
void writeFannedWaits(
    zkJ::_JobBasicsArray& jobs, const FannedJobs& fanned, const std::vector<std::vector<int>>& base)
{
    const std::vector<std::vector<int>> waits = fannedOutWaits(fanned, base);
    forEachJob(jobs, [&](zkJ::_JobBasics_largePath& job, int j) {
        std::fill(std::begin(job.waitForPreIDs), std::end(job.waitForPreIDs), 0);
        job.waitForPreIDCount = 0;
        if (std::size_t(j) < waits.size()) {
            for (const int preID : waits[std::size_t(j)])
                job.addWaitForPreID(static_cast<unsigned char>(preID));
        }
        return LoadOk;
    });
}

/// Every job renders the scene's first take unless its driver names one of
/// its own; the jobs of drivers without a take of their own are copied once
/// per further take.
LoadResult fanOutTakes(Scene& scene, FannedJobs& fanned)
{
    zkJ::_JobBasicsArray& jobs = scene.jobs;
    const QStringList& takes = scene.takes;
    const int n = jobs.count;
    const TakeList takeList(takes);
    std::vector<int> everyTake; // jobs whose drivers name no take the scene has
    const LoadResult named = forEachJob(jobs, [&](zkJ::_JobBasics_largePath& job, int j) {
        const QString& driverTake = scene.noteOf(j).take;
        const QString* take = driverTake.isEmpty() ? nullptr : takeList.find(driverTake);
        // A take the scene does not have renders them all.
        job.channel.set(take ? *take : takes.first());
        if (!take)
            everyTake.push_back(j);
        return LoadOk;
    });
    if (named != LoadOk)
        return named;
    // Each further take copies at least one job, so the job array's cap also
    // bounds this loop for a scene with a huge take list.
    for (int t = 1; t < takes.size() && !everyTake.empty(); ++t) {
        for (const int j : everyTake) {
            zkJ::_JobBasics_largePath* copy = appendCopy(jobs, j);
            if (!copy)
                return LoadNoJobRecord;
            copy->channel.set(takes.at(t));
            // 8-bit arithmetic: t x n wraps like the fields it is added to.
            const auto shift = static_cast<unsigned char>((t % 256) * (n % 256));
            copy->preID = static_cast<unsigned char>(copy->preID + shift);
            fanned.push_back({ j, t, QString(), copy->preID });
        }
    }
    return LoadOk;
}

/// Copies the jobs of wedged drivers once per variant. A copy's waits are
/// written later: for the copies of the same wedge and variant, so each
/// variant renders the scene files written for it.
LoadResult fanOutWedges(Scene& scene, FannedJobs& fanned)
{
    zkJ::_JobBasicsArray& jobs = scene.jobs;
    QList<WedgeNode>& wedges = scene.wedges;
    const int m = jobs.count;
    int counter = m;
    const LoadResult numbered = forEachJob(jobs, [&](const zkJ::_JobBasics_largePath& job, int) {
        // A driver with its own take was not copied per take, which leaves
        // preIDs above m; the wedge copies must not repeat them.
        counter = std::max(counter, int(job.preID));
        return LoadOk;
    });
    if (numbered != LoadOk)
        return numbered;
    // The wedges of each driver in list order: a scene may hold many wedge
    // drivers, and trying each on every job would multiply the two.
    QHash<QString, std::vector<int>> wedgesOf;
    for (int w = 0; w < wedges.size(); ++w)
        wedgesOf[wedges.at(w).driver].push_back(w);
    return forEachJob(jobs, [&](const zkJ::_JobBasics_largePath& job, int j) {
        const auto driven = wedgesOf.constFind(job.layer.toQString());
        for (const int w : driven == wedgesOf.cend() ? std::vector<int>() : *driven) {
            WedgeNode& wedge = wedges[w];
            const int total = wedge.totalWedges();
            for (int k = 0; k < total; ++k) {
                zkJ::_JobBasics_largePath* copy = appendCopy(jobs, j);
                if (!copy)
                    return LoadNoJobRecord;
                const QString variant = wedge.nodePath + u'*' + QString::number(k);
                copy->sceneState.set(variant);
                const QString number = QString::number(k);
                const QString name = wedge.fileName(k);
                editWedgePaths(*copy, [&](QString& text) {
                    text.replace(WedgeNumBraced, number);
                    text.replace(WedgeNum, number);
                    text.replace(WedgeBraced, name);
                    text.replace(Wedge, name);
                });
                ++counter;
                copy->preID = static_cast<unsigned char>(counter);
                const FannedJob from = std::size_t(j) < fanned.size()
                    ? fanned[std::size_t(j)]
                    : FannedJob { j, 0, QString(), 0 };
                fanned.push_back({ from.source, from.take, variant, copy->preID });
            }
        }
        // Copying may have moved the records.
        zkJ::_JobBasics_largePath& own = jobs.records[j];
        own.auxByte3 = 0;
        removeWedgeTokens(own);
        return LoadOk;
    });
}

} // namespace

LoadResult fanOutJobs(Scene& scene)
{
    zkJ::_JobBasicsArray& jobs = scene.jobs;
    // With the take flag but no take in the scene there is no take to name.
    const bool perTake = (scene.takes.size() > 1 || scene.takeFound) && !scene.takes.isEmpty();
    const bool perVariant = !scene.wedges.isEmpty();
    FannedJobs fanned;
    const std::vector<std::vector<int>> waits
        = perTake || perVariant ? baseWaits(jobs, fanned) : std::vector<std::vector<int>>();
    LoadResult result = perTake ? fanOutTakes(scene, fanned) : LoadOk;
    if (result == LoadOk && scene.emptyDriverFound && jobs.count == 0)
        return LoadOnlyEmptyDrivers;
    if (result == LoadOk && perVariant)
        result = fanOutWedges(scene, fanned);
    // Also after a refused copy: the copies made so far wait as they should.
    if (perTake || perVariant)
        writeFannedWaits(jobs, fanned, waits);
    if (result != LoadOk || perVariant)
        return result;
    return forEachJob(jobs, [](zkJ::_JobBasics_largePath& job, int) {
        removeWedgeTokens(job);
        return LoadOk;
    });
}
