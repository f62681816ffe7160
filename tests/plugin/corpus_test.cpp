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

int frangeLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    int count = 0;
    while (!file.atEnd()) {
        if (file.readLine().trimmed().toLower().startsWith("frange"))
            ++count;
    }
    return count;
}

ScanResult scanFile(const QString& path, ScanMode mode = ScanMode::Marked)
{
    resetParserState();
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QTextStream stream(&file);
    LineSource in(stream);
    LoadContext ctx;
    ctx.scenePath = path;
    return scanScene(ctx, in, SectionReaders(), mode);
}

TEST(Corpus, EveryRealSceneLoads)
{
    const QList<CorpusScene> scenes = corpusScenes();
    if (scenes.isEmpty())
        GTEST_SKIP() << "no scene corpus beside the project";
    for (const CorpusScene& scene : scenes) {
        zkJ::_JobBasicsArray jobs;
        EXPECT_EQ(zkTest::loadSceneFile(scene.path, jobs), 1) << qPrintable(scene.path);
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
    zkJ::_JobBasicsArray jobs;
    for (const CorpusScene& scene : scenes) {
        const QString marked = zkTest::describeScan(scanFile(scene.path), jobs);
        const QString everyLine
            = zkTest::describeScan(scanFile(scene.path, ScanMode::EveryLine), jobs);
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
        const ScanResult scan = scanFile(scene.path);
        const QByteArray nameBytes = scene.path.toLocal8Bit();
        const char* name = nameBytes.constData();

        if (scene.version.contains(u'.')) {
            EXPECT_EQ(scan.houdiniMajor, scene.version.section(u'.', 0, 0).toInt()) << name;
        }

        // A node parameter named "frange" counts as a frame range line too
        // (and gives 0 0), so the manifest's range is only checked where the
        // global line is the file's one "frange" line.
        const QRegularExpressionMatch range = frange.match(scene.notes);
        if (range.hasMatch() && frangeLines(scene.path) == 1) {
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
