// One job per take and per wedge variant. Copies are appended to the host's
// job array like every other job, so its record cap ends a runaway fan-out.
#include "completion.h"
#include "plugin/elements/elementSection.h"
#include "plugin/jobCopy.h"
#include "plugin/jobWalk.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <map>
#include <tuple>
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

/// Every job renders the scene's first take unless its driver names one of
/// its own; the jobs of drivers without a take of their own are copied once
/// per further take.
LoadResult fanOutTakes(Scene& scene)
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
            if (copy->waitForPreIDs[0] != 0)
                copy->waitForPreIDs[0] = static_cast<unsigned char>(copy->waitForPreIDs[0] + shift);
        }
    }
    return LoadOk;
}

/// Copies the jobs of wedged drivers once per variant. A copy that waits
/// waits for the copy of its export made for the same wedge and variant, so
/// each variant renders the scene files written for it.
LoadResult fanOutWedges(Scene& scene)
{
    zkJ::_JobBasicsArray& jobs = scene.jobs;
    QList<WedgeNode>& wedges = scene.wedges;
    const int m = jobs.count;
    int counter = m;
    // The job a waiting copy's source waits for: the first with that preID.
    std::array<int, 256> firstWithPreID;
    firstWithPreID.fill(-1);
    const LoadResult numbered = forEachJob(jobs, [&](const zkJ::_JobBasics_largePath& job, int j) {
        // A driver with its own take was not copied per take, which leaves
        // preIDs above m; the wedge copies must not repeat them.
        counter = std::max(counter, int(job.preID));
        if (firstWithPreID[job.preID] < 0)
            firstWithPreID[job.preID] = j;
        return LoadOk;
    });
    if (numbered != LoadOk)
        return numbered;
    // The wedges of each driver in list order: a scene may hold many wedge
    // drivers, and trying each on every job would multiply the two.
    QHash<QString, std::vector<int>> wedgesOf;
    for (int w = 0; w < wedges.size(); ++w)
        wedgesOf[wedges.at(w).driver].push_back(w);
    // preID of the copy of job j made for wedge w and variant k.
    std::map<std::tuple<int, int, int>, unsigned char> copies;
    return forEachJob(jobs, [&](const zkJ::_JobBasics_largePath& job, int j) {
        const auto driven = wedgesOf.constFind(job.layer.toQString());
        for (const int w : driven == wedgesOf.cend() ? std::vector<int>() : *driven) {
            WedgeNode& wedge = wedges[w];
            const int total = wedge.totalWedges();
            for (int k = 0; k < total; ++k) {
                zkJ::_JobBasics_largePath* copy = appendCopy(jobs, j);
                if (!copy)
                    return LoadNoJobRecord;
                copy->sceneState.set(wedge.nodePath + u'*' + QString::number(k));
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
                copies[{ j, w, k }] = copy->preID;
                const unsigned char waitsFor = copy->waitForPreIDs[0];
                if (waitsFor == 0)
                    continue;
                const auto found = copies.find({ firstWithPreID[waitsFor], w, k });
                if (found != copies.end())
                    copy->waitForPreIDs[0] = found->second;
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
    if ((scene.takes.size() > 1 || scene.takeFound) && !scene.takes.isEmpty()) {
        const LoadResult result = fanOutTakes(scene);
        if (result != LoadOk)
            return result;
    }
    if (scene.emptyDriverFound && jobs.count == 0)
        return LoadOnlyEmptyDrivers;
    if (!scene.wedges.isEmpty())
        return fanOutWedges(scene);
    return forEachJob(jobs, [](zkJ::_JobBasics_largePath& job, int) {
        removeWedgeTokens(job);
        return LoadOk;
    });
}
