// Whole scenes through the built plugin, loaded as the host loads them: every
// tests/cases/NAME.hip (or .hipnc, .hiplc) with NAME.expect.json beside it.
// The cases are found when the tests run, so a new case needs no build step.
#include "tools/host/hostRecords.h"
#include "tools/host/jobJson.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
#include <ostream>
#include <vector>

namespace {

const QString CasesDir = QStringLiteral(ZK_SOURCE_DIR "/tests/cases");
const QStringList SceneSuffixes
    = { QStringLiteral(".hip"), QStringLiteral(".hipnc"), QStringLiteral(".hiplc") };
const QString ExpectSuffix = QStringLiteral(".expect.json");

struct SceneCase
{
    QString name;
    /// Absolute, as the host passes it; empty when the case has no scene.
    QString scene;
};

// Named in failure lines by the case name rather than as bytes.
void PrintTo(const SceneCase& c, std::ostream* os)
{
    *os << c.name.toStdString();
}

std::vector<SceneCase> findCases()
{
    std::vector<SceneCase> cases;
    const QDir dir(CasesDir);
    for (const QString& file : dir.entryList({ u'*' + ExpectSuffix }, QDir::Files, QDir::Name)) {
        SceneCase c { file.chopped(ExpectSuffix.size()), QString() };
        for (const QString& suffix : SceneSuffixes) {
            if (dir.exists(c.name + suffix))
                c.scene = QFileInfo(dir.filePath(c.name + suffix)).absoluteFilePath();
        }
        cases.push_back(c);
    }
    return cases;
}

/// A JSON value as compact text, for messages.
QString show(const QJsonValue& v)
{
    const QByteArray wrapped = QJsonDocument(QJsonArray { v }).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
}

/// Every string inside \p v with @DIR@ and @SCENE@ replaced.
QJsonValue substitute(const QJsonValue& v, const QString& scene)
{
    if (v.isString()) {
        QString s = v.toString();
        s.replace(QStringLiteral("@SCENE@"), scene);
        s.replace(QStringLiteral("@DIR@"), QFileInfo(scene).absolutePath() + u'/');
        return s;
    }
    if (v.isArray()) {
        QJsonArray out;
        for (const QJsonValue& item : v.toArray())
            out.append(substitute(item, scene));
        return out;
    }
    if (v.isObject()) {
        QJsonObject out;
        const QJsonObject o = v.toObject();
        for (auto it = o.begin(); it != o.end(); ++it)
            out.insert(it.key(), substitute(it.value(), scene));
        return out;
    }
    return v;
}

/// Variables set for one case and put back as they were afterwards.
class CaseEnvironment
{
public:
    explicit CaseEnvironment(const QJsonObject& variables)
    {
        for (auto it = variables.begin(); it != variables.end(); ++it) {
            const QByteArray name = it.key().toLocal8Bit();
            saved.append({ name, qEnvironmentVariableIsSet(name.constData()), qgetenv(name) });
            qputenv(name.constData(), it.value().toString().toLocal8Bit());
        }
    }
    ~CaseEnvironment()
    {
        for (const Saved& s : saved) {
            if (s.wasSet)
                qputenv(s.name.constData(), s.value);
            else
                qunsetenv(s.name.constData());
        }
    }
    CaseEnvironment(const CaseEnvironment&) = delete;
    CaseEnvironment& operator=(const CaseEnvironment&) = delete;

private:
    struct Saved
    {
        QByteArray name;
        bool wasSet;
        QByteArray value;
    };
    QList<Saved> saved;
};

/// The keys a job object has, taken from the JSON of a zeroed record, so the
/// list cannot drift from what hipjobs prints.
QJsonObject jobTemplate()
{
    void* memory = std::calloc(1, sizeof(zkJ::_JobBasics_largePath));
    const QJsonObject o = memory
        ? zkHost::jobJson(*static_cast<zkJ::_JobBasics_largePath*>(memory), 0, true)
        : QJsonObject();
    std::free(memory);
    return o;
}

/// Faults of the case file itself: unknown keys, missing or mistyped checks.
QStringList caseErrors(const QJsonObject& expect)
{
    QStringList errors;
    // The top-level keys, their types, and which of them a case must have.
    const QJsonObject top { { QStringLiteral("arguments"), QJsonArray() },
        { QStringLiteral("environment"), QJsonObject() }, { QStringLiteral("result"), 0 },
        { QStringLiteral("arrayText"), QString() }, { QStringLiteral("jobCount"), 0 },
        { QStringLiteral("jobs"), QJsonArray() } };
    for (const char* required : { "result", "arrayText", "jobCount" }) {
        if (!expect.contains(QLatin1String(required)))
            errors << QStringLiteral("\"%1\" is missing").arg(QLatin1String(required));
    }
    for (auto it = expect.begin(); it != expect.end(); ++it) {
        if (!top.contains(it.key()))
            errors << QStringLiteral("unknown key \"%1\"").arg(it.key());
        else if (top.value(it.key()).type() != it.value().type())
            errors << QStringLiteral("\"%1\" has the wrong type").arg(it.key());
    }
    QJsonArray texts = expect.value(QStringLiteral("arguments")).toArray();
    for (const QJsonValue& v : expect.value(QStringLiteral("environment")).toObject())
        texts.append(v);
    for (const QJsonValue& v : texts) {
        if (!v.isString())
            errors << QStringLiteral("arguments and environment values must be strings");
    }

    static const QJsonObject known = jobTemplate();
    const QJsonObject knownApp = known.value(QStringLiteral("renderApp")).toObject();
    const QJsonArray jobs = expect.value(QStringLiteral("jobs")).toArray();
    if (jobs.size() > expect.value(QStringLiteral("jobCount")).toInt())
        errors << QStringLiteral("more job entries than \"jobCount\"");
    for (qsizetype i = 0; i < jobs.size(); ++i) {
        const QJsonObject job = jobs[i].toObject();
        for (auto it = job.begin(); it != job.end(); ++it) {
            if (!known.contains(it.key()))
                errors << QStringLiteral("job %1: unknown key \"%2\"").arg(i).arg(it.key());
            else if (known.value(it.key()).type() != it.value().type())
                errors << QStringLiteral("job %1: \"%2\" has the wrong type").arg(i).arg(it.key());
        }
        for (const QString& key : job.value(QStringLiteral("renderApp")).toObject().keys()) {
            if (!knownApp.contains(key))
                errors << QStringLiteral("job %1: unknown key \"renderApp.%2\"").arg(i).arg(key);
        }
    }
    return errors;
}

class SceneCases : public ::testing::TestWithParam<SceneCase>
{
protected:
    static void SetUpTestSuite()
    {
        QString error;
        if (!plugin.open(QStringLiteral(ZK_PLUGIN_PATH), error))
            pluginError = error;
    }

    /// One load of the scene through the library opened for the whole suite.
    static QJsonObject load(const SceneCase& c, const QStringList& arguments)
    {
        zkHost::SceneLoad host(c.scene, arguments);
        const int result = plugin.load(&host.record);
        return zkHost::loadJson(host.jobs, result, c.scene, true);
    }

    static zkHost::Plugin plugin;
    static QString pluginError;
};

zkHost::Plugin SceneCases::plugin;
QString SceneCases::pluginError;

void expectField(const QString& where, const QJsonValue& got, const QJsonValue& expected)
{
    if (got != expected)
        ADD_FAILURE() << qPrintable(where) << ": got " << qPrintable(show(got)) << ", expected "
                      << qPrintable(show(expected));
}

TEST_P(SceneCases, MatchesItsExpectations)
{
    const SceneCase& c = GetParam();
    ASSERT_TRUE(pluginError.isEmpty()) << qPrintable(pluginError);
    ASSERT_FALSE(c.scene.isEmpty()) << qPrintable(c.name) << ": no scene beside the expectations";
    QFile file(QDir(CasesDir).filePath(c.name + ExpectSuffix));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(c.name);
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(file.readAll(), &parseError);
    ASSERT_TRUE(doc.isObject()) << qPrintable(c.name) << ": "
                                << qPrintable(parseError.errorString());
    const QJsonObject expect = substitute(doc.object(), c.scene).toObject();
    const QStringList errors = caseErrors(expect);
    ASSERT_TRUE(errors.isEmpty()) << qPrintable(c.name) << ": "
                                  << qPrintable(errors.join(QStringLiteral("; ")));

    QStringList arguments;
    for (const QJsonValue& a : expect.value(QStringLiteral("arguments")).toArray())
        arguments << a.toString();
    const CaseEnvironment environment(expect.value(QStringLiteral("environment")).toObject());
    const QJsonObject first = load(c, arguments);
    const QJsonArray jobs = first.value(QStringLiteral("jobs")).toArray();

    const QString name = c.name;
    for (const char* key : { "result", "arrayText" }) {
        const QString k = QLatin1String(key);
        expectField(name + u' ' + k, first.value(k), expect.value(k));
    }
    expectField(name + QStringLiteral(" jobCount"), int(jobs.size()),
        expect.value(QStringLiteral("jobCount")));
    const QJsonArray expectedJobs = expect.value(QStringLiteral("jobs")).toArray();
    for (qsizetype i = 0; i < expectedJobs.size() && i < jobs.size(); ++i) {
        const QJsonObject got = jobs[i].toObject();
        const QJsonObject want = expectedJobs[i].toObject();
        const QString where = QStringLiteral("%1 job %2 ").arg(name).arg(i);
        for (auto it = want.begin(); it != want.end(); ++it) {
            if (it.key() != QLatin1String("renderApp")) {
                expectField(where + it.key(), got.value(it.key()), it.value());
                continue;
            }
            const QJsonObject app = got.value(it.key()).toObject();
            const QJsonObject wantApp = it.value().toObject();
            for (auto a = wantApp.begin(); a != wantApp.end(); ++a)
                expectField(
                    where + QStringLiteral("renderApp.") + a.key(), app.value(a.key()), a.value());
        }
    }

    // One load of the library serves each scene alike, however many came before.
    const QJsonObject second = load(c, arguments);
    EXPECT_TRUE(second == first) << qPrintable(name) << ": a second load gives other jobs";
}

std::string caseTestName(const ::testing::TestParamInfo<SceneCase>& info)
{
    std::string name = info.param.name.toStdString();
    for (char& ch : name) {
        if (!std::isalnum(static_cast<unsigned char>(ch)))
            ch = '_';
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Scenes, SceneCases, ::testing::ValuesIn(findCases()), caseTestName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SceneCases);

TEST(SceneCaseFiles, EverySceneHasItsExpectations)
{
    const QDir dir(CasesDir);
    QStringList patterns;
    for (const QString& suffix : SceneSuffixes)
        patterns << u'*' + suffix;
    const QStringList scenes = dir.entryList(patterns, QDir::Files);
    EXPECT_FALSE(scenes.isEmpty());
    for (const QString& scene : scenes) {
        const QString name = scene.left(scene.lastIndexOf(u'.'));
        EXPECT_TRUE(dir.exists(name + ExpectSuffix)) << qPrintable(scene);
    }
}

} // namespace
