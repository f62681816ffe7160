// Real scenes from public projects, described by a manifest beside them. The
// folder lives outside the project; without it these tests are skipped.
#include "plugin/parserState.h"
#include "plugin/scanner.h"
#include "support/scanState.h"
#include "support/sceneLoad.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include <gtest/gtest.h>

namespace {

struct CorpusScene
{
    QString path;
    QString version;
    QString takes;
    QString cameras;
    QString notes;
};

QList<CorpusScene> corpusScenes()
{
    QList<CorpusScene> scenes;
    const QDir corpus(QStringLiteral(ZK_CORPUS_DIR));
    QFile manifest(corpus.filePath(QStringLiteral("MANIFEST.tsv")));
    if (!manifest.open(QIODevice::ReadOnly | QIODevice::Text))
        return scenes;
    QTextStream in(&manifest);
    const QStringList header = in.readLine().split(u'\t');
    const auto column = [&](const char* name) { return header.indexOf(QLatin1String(name)); };
    const qsizetype pathCol = column("relative_path");
    const qsizetype versionCol = column("houdini_version");
    const qsizetype takesCol = column("takes");
    const qsizetype camerasCol = column("cameras");
    const qsizetype notesCol = column("notes");
    if (pathCol < 0 || versionCol < 0 || takesCol < 0 || camerasCol < 0 || notesCol < 0)
        return scenes;
    while (!in.atEnd()) {
        const QStringList f = in.readLine().split(u'\t');
        if (f.size() < header.size())
            continue;
        scenes.append({ corpus.filePath(f[pathCol]), f[versionCol], f[takesCol], f[camerasCol],
            f[notesCol] });
    }
    return scenes;
}

ScanResult scanFile(
    const QString& path, zkJ::_JobBasicsArray& jobs, ScanMode mode = ScanMode::Marked)
{
    resetParserState();
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QTextStream stream(&file);
    LineSource in(stream);
    const _zkString<500> scene(path);
    zkP::_dataPARS_LoadSceneFile data { const_cast<_zkString<500>*>(&scene), &jobs, nullptr };
    LoadContext ctx;
    ctx.data = &data;
    ctx.scenePath = path;
    return scanScene(ctx, in, SectionReaders(), mode);
}

// Every real scene loads to jobs a farm can run: each names its application
// and its output, and a job that waits, waits for the export of its own
// driver.
TEST(Corpus, EveryRealSceneGivesSaneJobs)
{
    const QList<CorpusScene> scenes = corpusScenes();
    if (scenes.isEmpty())
        GTEST_SKIP() << "no scene corpus beside the project";
    for (const CorpusScene& scene : scenes) {
        SCOPED_TRACE(qPrintable(scene.path));
        zkJ::_JobBasicsArray jobs;
        const int result = zkTest::loadSceneFile(scene.path, jobs);
        EXPECT_TRUE(result == 1 || result == 25) << result;
        for (int i = 0; i < jobs.count; ++i) {
            const zkJ::_JobBasics_largePath& job = *jobs.at(i);
            EXPECT_FALSE(job.renderApp.appName.isEmpty()) << "job " << i;
            EXPECT_FALSE(job.imageFileName.isEmpty()) << "job " << i;
            if (job.waitForPreIDCount == 0)
                continue;
            const zkJ::_JobBasics_largePath* waitedFor = nullptr;
            for (int e = 0; e < jobs.count && !waitedFor; ++e) {
                if (jobs.at(e)->preID == job.waitForPreIDs[0])
                    waitedFor = jobs.at(e);
            }
            ASSERT_NE(waitedFor, nullptr) << "job " << i << " waits for a job that is not there";
            EXPECT_TRUE(waitedFor->layer.isEqual(job.layer)) << "job " << i;
            EXPECT_TRUE(waitedFor->renderApp.rendererName.view().startsWith(u"create"))
                << "job " << i;
        }
    }
}

// Real scenes hold binary members, odd blanks and every archive form: the
// scan that decodes only lines with a rule's bytes must agree with the one
// that decodes every line.
TEST(Corpus, MarkedScanAgreesWithEveryLineScan)
{
    const QList<CorpusScene> scenes = corpusScenes();
    if (scenes.isEmpty())
        GTEST_SKIP() << "no scene corpus beside the project";
    for (const CorpusScene& scene : scenes) {
        zkJ::_JobBasicsArray markedJobs;
        zkJ::_JobBasicsArray everyLineJobs;
        const QString marked = zkTest::describeScan(scanFile(scene.path, markedJobs), markedJobs);
        const QString everyLine = zkTest::describeScan(
            scanFile(scene.path, everyLineJobs, ScanMode::EveryLine), everyLineJobs);
        EXPECT_EQ(marked, everyLine) << qPrintable(scene.path);
    }
}

// The manifest records what each scene holds; the scan must find the same
// saved version, frame range, takes and camera resolutions.
TEST(Corpus, ScanFindsWhatTheManifestRecords)
{
    const QList<CorpusScene> scenes = corpusScenes();
    if (scenes.isEmpty())
        GTEST_SKIP() << "no scene corpus beside the project";
    const QRegularExpression frange(QStringLiteral("frange (-?\\d+) (-?\\d+)"));
    const QRegularExpression plainTakes(QStringLiteral("^[\\w-]+(, [\\w-]+)*$"));
    const QRegularExpression camera(QStringLiteral("^obj/(\\S+) (\\d+)x(\\d+)$"));
    const QRegularExpression excluded(QStringLiteral("xform|camOrigin|file|constraints"),
        QRegularExpression::CaseInsensitiveOption);

    for (const CorpusScene& scene : scenes) {
        zkJ::_JobBasicsArray jobs;
        const ScanResult scan = scanFile(scene.path, jobs);
        const QByteArray nameBytes = scene.path.toLocal8Bit();
        const char* name = nameBytes.constData();

        if (scene.version.contains(u'.')) {
            EXPECT_EQ(scan.houdiniMajor, scene.version.section(u'.', 0, 0).toInt()) << name;
        }

        const QRegularExpressionMatch range = frange.match(scene.notes);
        if (range.hasMatch()) {
            EXPECT_EQ(GLseqStart, range.captured(1).toInt()) << name;
            EXPECT_EQ(GLseqEnd, range.captured(2).toInt()) << name;
        }

        if (plainTakes.match(scene.takes).hasMatch()) {
            EXPECT_EQ(scan.takes.join(QStringLiteral(", ")), scene.takes) << name;
        }

        for (const QString& entry : scene.cameras.split(QStringLiteral(", "))) {
            const QRegularExpressionMatch cam = camera.match(entry);
            if (!cam.hasMatch())
                continue;
            const QString path = QStringLiteral("/obj/") + cam.captured(1);
            // Only headers holding "/cam" or "stereocam" reach the camera reader.
            if ((!path.contains(QStringLiteral("/cam"))
                    && !path.contains(QStringLiteral("stereocam")))
                || excluded.match(path).hasMatch())
                continue;
            _zkString8_allSize<150> key(path);
            const qsizetype known = camList.list.size();
            const int index = camList.findCamIndex(key);
            if (index >= known) {
                ADD_FAILURE() << name << ": no camera " << qPrintable(path);
                continue;
            }
            EXPECT_EQ(camList.list[index].resX, cam.captured(2).toInt())
                << name << " " << qPrintable(path);
            EXPECT_EQ(camList.list[index].resY, cam.captured(3).toInt())
                << name << " " << qPrintable(path);
        }
    }
}

} // namespace
