// hipjobs as a user runs it: exit statuses, the stderr line, the JSON shape.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct ToolRun
{
    int status = -1;
    QByteArray out;
    QString err;
};

ToolRun hipjobs(const QStringList& args)
{
    QProcess p;
    p.start(QStringLiteral(ZK_HIPJOBS_PATH), args);
    ToolRun r;
    if (!p.waitForFinished(60000) || p.exitStatus() != QProcess::NormalExit)
        return r;
    r.status = p.exitCode();
    r.out = p.readAllStandardOutput();
    r.err = QString::fromLocal8Bit(p.readAllStandardError());
    return r;
}

QString exampleScene()
{
    return QStringLiteral(ZK_SOURCE_DIR "/examples/simple.hip");
}

TEST(Hipjobs, ExampleSceneExitsZero)
{
    const ToolRun r = hipjobs({ exampleScene() });
    EXPECT_EQ(r.status, 0) << qPrintable(r.err);
    EXPECT_TRUE(r.err.isEmpty()) << qPrintable(r.err);
    EXPECT_TRUE(r.out.contains("result 1 (success)")) << r.out.constData();
}

TEST(Hipjobs, MissingSceneHasItsOwnStatusAndOneLine)
{
    QTemporaryDir dir;
    const QString missing = dir.filePath(QStringLiteral("missing.hip"));
    const ToolRun r = hipjobs({ missing });
    EXPECT_EQ(r.status, 13);
    EXPECT_EQ(r.err.count(u'\n'), 1);
    EXPECT_TRUE(r.err.contains(QStringLiteral("cannot open scene file: ") + missing))
        << qPrintable(r.err);
}

TEST(Hipjobs, UsageErrorsAndPluginFailuresAreDistinct)
{
    const ToolRun noScene = hipjobs({});
    const ToolRun unknown = hipjobs({ QStringLiteral("--no-such-option"), exampleScene() });
    const ToolRun twoScenes = hipjobs({ exampleScene(), exampleScene() });
    const ToolRun badPlugin = hipjobs({ QStringLiteral("--plugin"),
        QStringLiteral(ZK_SOURCE_DIR "/examples/simple.hip"), exampleScene() });
    EXPECT_EQ(noScene.status, 2);
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(twoScenes.status, 2);
    EXPECT_EQ(badPlugin.status, 3);
    EXPECT_TRUE(badPlugin.err.contains(QStringLiteral("cannot load plugin")));
    for (const ToolRun* r : { &noScene, &unknown, &twoScenes, &badPlugin })
        EXPECT_EQ(r->err.count(u'\n'), 1) << qPrintable(r->err);

    // Words after "--" belong to the submitter, not to the tool.
    const ToolRun submitter = hipjobs({ exampleScene(), QStringLiteral("--"),
        QStringLiteral("-houdiniBuildVersion"), QStringLiteral("--json") });
    EXPECT_EQ(submitter.status, 0) << qPrintable(submitter.err);
    EXPECT_FALSE(submitter.out.startsWith('{'));
}

TEST(Hipjobs, HelpListsTheExitStatuses)
{
    const ToolRun r = hipjobs({ QStringLiteral("--help") });
    EXPECT_EQ(r.status, 0);
    EXPECT_TRUE(r.out.contains("--json"));
    EXPECT_TRUE(r.out.contains("Exit status"));
    EXPECT_TRUE(r.out.contains("13 cannot open scene file"));
}

TEST(Hipjobs, JsonHasTheDocumentedKeys)
{
    const ToolRun r = hipjobs({ QStringLiteral("--json"), exampleScene() });
    ASSERT_EQ(r.status, 0) << qPrintable(r.err);
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(r.out, &error);
    ASSERT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
    ASSERT_TRUE(doc.isObject());
    const QJsonObject root = doc.object();
    EXPECT_EQ(root.value(QStringLiteral("result")).toInt(), 1);
    EXPECT_EQ(root.value(QStringLiteral("resultText")).toString(), QStringLiteral("success"));
    EXPECT_TRUE(root.value(QStringLiteral("arrayText")).isString());
    EXPECT_TRUE(root.value(QStringLiteral("scene")).toString().endsWith(u"simple.hip"));
    ASSERT_TRUE(root.value(QStringLiteral("jobs")).isArray());

    const QJsonArray jobs = root.value(QStringLiteral("jobs")).toArray();
    const char* jobKeys[] = { "index", "id", "idFull", "sceneDisplayName", "structureID",
        "renderApp", "camera", "layer", "ID", "preID", "waitForPreIDs", "padding", "sceneName",
        "imageDir", "imageFileName", "imageExtension", "channels", "seqStart", "seqEnd", "seqStep",
        "customData" };
    for (const QJsonValue& job : jobs) {
        for (const char* key : jobKeys)
            EXPECT_TRUE(job.toObject().contains(QLatin1String(key))) << key;
        EXPECT_EQ(job.toObject().value(QStringLiteral("structureID")).toInt(), 1033);
    }
}

TEST(Hipjobs, VarsIsAccepted)
{
    const ToolRun text = hipjobs({ QStringLiteral("--vars"), exampleScene() });
    EXPECT_EQ(text.status, 0) << qPrintable(text.err);
    const ToolRun json
        = hipjobs({ QStringLiteral("--vars"), QStringLiteral("--json"), exampleScene() });
    EXPECT_EQ(json.status, 0) << qPrintable(json.err);
    for (const QJsonValue& job :
        QJsonDocument::fromJson(json.out).object().value(QStringLiteral("jobs")).toArray())
        EXPECT_FALSE(job.toObject().value(QStringLiteral("vars")).toArray().isEmpty());
}

TEST(Hipjobs, MissingSceneStillPrintsJson)
{
    const ToolRun r = hipjobs({ QStringLiteral("--json"), QStringLiteral("/nonexistent/x.hip") });
    EXPECT_EQ(r.status, 13);
    const QJsonObject root = QJsonDocument::fromJson(r.out).object();
    EXPECT_EQ(root.value(QStringLiteral("result")).toInt(), 3);
    EXPECT_TRUE(root.value(QStringLiteral("jobs")).toArray().isEmpty());
}

TEST(Hipjobs, InfoNamesTheApplication)
{
    const ToolRun r = hipjobs({ QStringLiteral("--info") });
    EXPECT_EQ(r.status, 0) << qPrintable(r.err);
    EXPECT_TRUE(r.out.contains("Houdini"));
    EXPECT_TRUE(r.out.contains("*.hip;*.hipnc;*.hiplc;"));

    const ToolRun json = hipjobs({ QStringLiteral("--info"), QStringLiteral("--json") });
    const QJsonObject info = QJsonDocument::fromJson(json.out).object();
    EXPECT_EQ(info.value(QStringLiteral("application")).toString(), QStringLiteral("Houdini"));
    EXPECT_EQ(info.value(QStringLiteral("result")).toInt(), 1);
}

} // namespace
