// Real scenes from public projects, described by a manifest beside them. The
// folder lives outside the project; without it these tests are skipped.
#include "tools/host/hostRecords.h"

#include <QDir>
#include <QFile>
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
// and its output, a job that waits, waits for the export of its own driver,
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

} // namespace
