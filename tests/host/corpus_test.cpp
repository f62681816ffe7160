// Real scenes from public projects, described by a manifest beside them. The
// folder lives outside the project; without it these tests are skipped.
#include "plugin/scanner.h"
#include "support/scanState.h"
#include "tools/host/hostRecords.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

extern "C" int pLoadSceneFile(zkP::_dataPARS_LoadSceneFile* data);

namespace {

/// The manifest's rows by column name; none without the corpus.
QList<QMap<QString, QString>> corpusScenes()
{
    QList<QMap<QString, QString>> scenes;
    const QDir corpus(QStringLiteral(ZK_CORPUS_DIR));
    QFile manifest(corpus.filePath(QStringLiteral("MANIFEST.tsv")));
    if (!manifest.open(QIODevice::ReadOnly | QIODevice::Text))
        return scenes;
    QTextStream in(&manifest);
    const QStringList header = in.readLine().split(u'\t');
    while (!in.atEnd()) {
        const QStringList fields = in.readLine().split(u'\t');
        QMap<QString, QString> row;
        for (qsizetype i = 0; i < header.size() && i < fields.size(); ++i)
            row[header[i]] = fields[i];
        row[QStringLiteral("path")] = corpus.filePath(row.value(QStringLiteral("relative_path")));
        scenes.append(row);
    }
    return scenes;
}

/// The member path of a job's driver: its layer without the leading "/".
QString nodeOf(const zkJ::_JobBasics_largePath& job)
{
    return job.layer.toQString().mid(1);
}

// A job waits for its own export (first) and for the drivers upstream of its
// own in the wires, each of them, and nothing else.
void expectWiredWaits(const zkJ::_JobBasicsArray& jobs, int count, const WireGraph& wires)
{
    QSet<QString> made;
    for (int i = 0; i < count; ++i)
        made.insert(nodeOf(jobs.records[i]));
    const auto madeJobs = [&](QStringView path) { return made.contains(path.toString()); };
    for (int i = 0; i < count; ++i) {
        const zkJ::_JobBasics_largePath& job = jobs.records[i];
        const QString node = nodeOf(job);
        const QStringList upstream = wires.upstreamDrivers(node, madeJobs);
        QSet<QString> waitedFor;
        for (int w = 0; w < job.waitForPreIDCount; ++w) {
            int k = 0;
            while (k < count && jobs.records[k].preID != job.waitForPreIDs[w])
                ++k;
            ASSERT_LT(k, count) << "job " << i << " waits for a job that is not there";
            const zkJ::_JobBasics_largePath& other = jobs.records[k];
            waitedFor.insert(nodeOf(other));
            if (w == 0 && other.layer.isEqual(job.layer)) {
                EXPECT_TRUE(other.renderApp.rendererName.view().startsWith(u"create")) << i;
                continue;
            }
            EXPECT_TRUE(upstream.contains(nodeOf(other))) << "job " << i << " " << w;
        }
        if (job.waitForPreIDCount >= 29)
            continue;
        for (const QString& driver : upstream)
            EXPECT_TRUE(waitedFor.contains(driver)) << qPrintable(node + u' ' + driver);
    }
}

// Every real scene loads to jobs a farm can run: each names its application
// and its output, waits only for its export and the drivers wired into it,
// and Houdini's own jobs carry the version the manifest records. The rules
// behind the scan (version, frame range, takes, cameras) are pinned by the
// scene cases.
TEST(Corpus, EveryRealSceneGivesSaneJobs)
{
    const auto scenes = corpusScenes();
    if (scenes.isEmpty())
        GTEST_SKIP() << "no scene corpus beside the project";
    for (const auto& scene : scenes) {
        SCOPED_TRACE(qPrintable(scene.value(QStringLiteral("path"))));
        zkHost::SceneLoad host(scene.value(QStringLiteral("path")));
        const int result = pLoadSceneFile(&host.record);
        EXPECT_TRUE(result == 1 || result == 25) << result;
        const zkJ::_JobBasicsArray& jobs = *host.jobs.array;
        const QString version = scene.value(QStringLiteral("houdini_version"));
        for (int i = 0; i < jobs.count; ++i) {
            const zkJ::_JobBasics_largePath& job = jobs.records[i];
            EXPECT_FALSE(job.renderApp.appName.isEmpty()) << "job " << i;
            EXPECT_FALSE(job.imageFileName.isEmpty()) << "job " << i;
            if (version.contains(u'.') && job.renderApp.appName.view() == u"Houdini") {
                EXPECT_EQ(job.renderApp.versionMajor, version.section(u'.', 0, 0).toInt());
            }
        }
        const int loaded = jobs.count;
        // The scene's frame range and camera sizes as the manifest records them.
        QFile file(scene.value(QStringLiteral("path")));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QTextStream stream(&file);
        LineSource in(stream);
        LoadContext ctx;
        ctx.data = &host.record;
        ctx.scenePath = file.fileName();
        Scene scanned(ctx);
        scanScene(scanned, in);
        expectWiredWaits(jobs, loaded, scanned.wires);
        static const QRegularExpression frange(QStringLiteral("frange (-?\\d+) (-?\\d+)"));
        const QRegularExpressionMatch range = frange.match(scene.value(QStringLiteral("notes")));
        if (range.hasMatch()) {
            EXPECT_EQ(scanned.frameStart, range.captured(1).toInt());
            EXPECT_EQ(scanned.frameEnd, range.captured(2).toInt());
        }
        static const QRegularExpression camera(QStringLiteral("^obj/(\\S+) (\\d+)x(\\d+)$"));
        for (const QString& entry : scene.value(QStringLiteral("cameras")).split(u',')) {
            const QRegularExpressionMatch cam = camera.match(entry.trimmed());
            // Cameras are found by their declared type, whatever their name.
            const _zkString8_allSize<150> name(QStringLiteral("/obj/") + cam.captured(1));
            for (const CameraNode& known : scanned.cameras.list) {
                if (cam.hasMatch() && known.name.isEqual(name)) {
                    EXPECT_EQ(known.resX, cam.captured(2).toInt()) << qPrintable(entry);
                    EXPECT_EQ(known.resY, cam.captured(3).toInt()) << qPrintable(entry);
                }
            }
        }
    }
}

/// One row of the hand-made driver table: what a node should give.
struct ExpectedDriver
{
    QString layer;
    QString job; ///< "yes", "yes:export pair" or "no:REASON"
    QString size; ///< "WxH" or "-"
    QString frames; ///< "S-E" or "-"
};

/// The driver table's rows by scene; a scene with a "-" row has an empty list.
QMap<QString, QList<ExpectedDriver>> expectedDrivers()
{
    QMap<QString, QList<ExpectedDriver>> byScene;
    QFile table(QStringLiteral(ZK_SOURCE_DIR "/tests/host/corpus_drivers.tsv"));
    if (!table.open(QIODevice::ReadOnly | QIODevice::Text))
        return byScene;
    QTextStream in(&table);
    bool header = true;
    while (!in.atEnd()) {
        const QString line = in.readLine();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (std::exchange(header, false))
            continue;
        const QStringList f = line.split(u'\t');
        QList<ExpectedDriver>& drivers = byScene[f.value(0)];
        if (f.value(1) != u"-")
            drivers.append({ f.value(1), f.value(3), f.value(6), f.value(7) });
    }
    return byScene;
}

// Each real scene gives a job for exactly the output nodes its declared types
// make drivers (and no job for a File SOP or a shader node that a name would
// have made one), each with its camera's size and the frame range its
// channels key it to, as the hand-made table says.
TEST(Corpus, DriversFollowTheDeclaredTypes)
{
    const auto table = expectedDrivers();
    if (table.isEmpty() || !QDir(QStringLiteral(ZK_CORPUS_DIR)).exists())
        GTEST_SKIP() << "no scene corpus beside the project";
    for (auto scene = table.cbegin(); scene != table.cend(); ++scene) {
        const QString path = QStringLiteral(ZK_CORPUS_DIR "/") + scene.key();
        SCOPED_TRACE(qPrintable(scene.key()));
        zkHost::SceneLoad host(path);
        pLoadSceneFile(&host.record);
        const zkJ::_JobBasicsArray& jobs = *host.jobs.array;
        QMap<QString, QList<const zkJ::_JobBasics_largePath*>> byLayer;
        for (int i = 0; i < jobs.count; ++i)
            byLayer[jobs.records[i].layer.toQString()].append(jobs.records + i);

        QSet<QString> expectedLayers;
        for (const ExpectedDriver& d : scene.value()) {
            const auto made = byLayer.value(d.layer);
            if (!d.job.startsWith(u"yes")) {
                EXPECT_TRUE(made.isEmpty()) << qPrintable(d.layer) << " " << qPrintable(d.job);
                continue;
            }
            expectedLayers.insert(d.layer);
            // Take copies repeat a driver's jobs; a pair's render waits for its
            // export first (the wires add waits for other drivers).
            const bool pair = d.job == u"yes:export pair";
            const auto waits = std::count_if(made.cbegin(), made.cend(), [&](auto* job) {
                return job->waitForPreIDCount > 0
                    && std::any_of(made.cbegin(), made.cend(),
                        [&](auto* own) { return own->preID == job->waitForPreIDs[0]; });
            });
            EXPECT_EQ(waits > 0, pair) << qPrintable(d.layer);
            if (made.isEmpty()) {
                ADD_FAILURE() << "no job for " << qPrintable(d.layer);
                continue;
            }
            const zkJ::_JobBasics_largePath& job = *made.front();
            if (d.frames.contains(u'-') && d.frames != u"-") {
                const qsizetype dash = d.frames.indexOf(u'-', 1);
                EXPECT_EQ(job.seqStart, d.frames.left(dash).toInt()) << qPrintable(d.layer);
                EXPECT_EQ(job.seqEnd, d.frames.mid(dash + 1).toInt()) << qPrintable(d.layer);
            }
            if (d.size.contains(u'x')) {
                EXPECT_EQ(job.imageWidth, d.size.section(u'x', 0, 0).toInt())
                    << qPrintable(d.layer);
                EXPECT_EQ(job.imageHeight, d.size.section(u'x', 1, 1).toInt())
                    << qPrintable(d.layer);
            }
        }
        for (auto made = byLayer.cbegin(); made != byLayer.cend(); ++made)
            EXPECT_TRUE(expectedLayers.contains(made.key()))
                << "unexpected job " << qPrintable(made.key());
    }
}

// Real scenes hold binary members, odd blanks and every archive form: the scan
// that decodes only the lines holding a rule's bytes must leave the same state
// and jobs as the one that decodes every line.
TEST(Corpus, MarkedScanAgreesWithEveryLineScan)
{
    for (const auto& scene : corpusScenes()) {
        const QString path = scene.value(QStringLiteral("path"));
        QString described[2];
        for (const ScanMode mode : { ScanMode::Marked, ScanMode::EveryLine }) {
            zkHost::SceneLoad host(path);
            QFile file(path);
            ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
            QTextStream stream(&file);
            LineSource in(stream);
            LoadContext ctx;
            ctx.data = &host.record;
            ctx.scenePath = path;
            Scene scanned(ctx);
            const LoadResult result = scanScene(scanned, in, SectionReaders(), mode);
            described[mode == ScanMode::EveryLine] = zkTest::describeScan(result, scanned);
        }
        EXPECT_EQ(described[0], described[1]) << qPrintable(path);
    }
}

} // namespace
