// Real scenes from public projects, described by a manifest beside them. The
// folder lives outside the project; without it these tests are skipped.
#include "plugin/parserState.h"
#include "plugin/scanner.h"
#include "tools/host/hostRecords.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include <gtest/gtest.h>

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

// Every real scene loads to jobs a farm can run: each names its application
// and its output, and a job that waits, waits for the export of its own
// driver.
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
        for (int i = 0; i < jobs.count; ++i) {
            const zkJ::_JobBasics_largePath& job = jobs.records[i];
            EXPECT_FALSE(job.renderApp.appName.isEmpty()) << "job " << i;
            EXPECT_FALSE(job.imageFileName.isEmpty()) << "job " << i;
            if (job.waitForPreIDCount == 0)
                continue;
            int waitedFor = 0;
            while (waitedFor < jobs.count && jobs.records[waitedFor].preID != job.waitForPreIDs[0])
                ++waitedFor;
            ASSERT_LT(waitedFor, jobs.count) << "job " << i << " waits for a job that is not there";
            EXPECT_TRUE(jobs.records[waitedFor].layer.isEqual(job.layer)) << "job " << i;
            EXPECT_TRUE(jobs.records[waitedFor].renderApp.rendererName.view().startsWith(u"create"))
                << "job " << i;
        }
    }
}

// The manifest records what each scene holds; the scan must find the same
// saved version, frame range, takes and camera resolutions.
TEST(Corpus, ScanFindsWhatTheManifestRecords)
{
    const auto scenes = corpusScenes();
    if (scenes.isEmpty())
        GTEST_SKIP() << "no scene corpus beside the project";
    const QRegularExpression frange(QStringLiteral("frange (-?\\d+) (-?\\d+)"));
    const QRegularExpression plainTakes(QStringLiteral("^[\\w-]+(, [\\w-]+)*$"));
    const QRegularExpression camera(QStringLiteral("^obj/(\\S+) (\\d+)x(\\d+)$"));
    // Only headers holding "/cam" or "stereocam" reach the camera reader.
    const QRegularExpression read(QStringLiteral("/cam|stereocam"));
    const QRegularExpression excluded(QStringLiteral("xform|camOrigin|file|constraints"),
        QRegularExpression::CaseInsensitiveOption);

    for (const auto& scene : scenes) {
        const QString path = scene.value(QStringLiteral("path"));
        SCOPED_TRACE(qPrintable(path));
        resetParserState();
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QTextStream stream(&file);
        LineSource in(stream);
        zkJ::_JobBasicsArray jobs;
        zkP::_dataPARS_LoadSceneFile data { nullptr, &jobs, nullptr };
        LoadContext ctx;
        ctx.data = &data;
        ctx.scenePath = path;
        const ScanResult scan = scanScene(ctx, in);

        const QString version = scene.value(QStringLiteral("houdini_version"));
        if (version.contains(u'.')) {
            EXPECT_EQ(scan.houdiniMajor, version.section(u'.', 0, 0).toInt());
        }
        const QRegularExpressionMatch range = frange.match(scene.value(QStringLiteral("notes")));
        if (range.hasMatch()) {
            EXPECT_EQ(QStringLiteral("%1 %2").arg(GLseqStart).arg(GLseqEnd),
                range.captured(1) + u' ' + range.captured(2));
        }
        const QString takes = scene.value(QStringLiteral("takes"));
        if (plainTakes.match(takes).hasMatch()) {
            EXPECT_EQ(scan.takes.join(QStringLiteral(", ")), takes);
        }

        for (const QString& entry : scene.value(QStringLiteral("cameras")).split(u',')) {
            const QRegularExpressionMatch cam = camera.match(entry.trimmed());
            const QString name = QStringLiteral("/obj/") + cam.captured(1);
            if (!cam.hasMatch() || !read.match(name).hasMatch() || excluded.match(name).hasMatch())
                continue;
            int index = 0;
            while (index < camList.list.size() && camList.list[index].name.toQString() != name)
                ++index;
            ASSERT_LT(index, camList.list.size()) << "no camera " << qPrintable(name);
            EXPECT_EQ(
                QStringLiteral("%1x%2").arg(camList.list[index].resX).arg(camList.list[index].resY),
                cam.captured(2) + u'x' + cam.captured(3))
                << qPrintable(name);
        }
    }
}

} // namespace
