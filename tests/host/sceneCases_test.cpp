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

#include <algorithm>
#include <optional>
#include <ostream>
#include <utility>
#include <vector>

namespace {

const QString CasesDir = QStringLiteral(ZK_SOURCE_DIR "/tests/cases");
const QStringList SceneSuffixes
    = { QStringLiteral(".hip"), QStringLiteral(".hipnc"), QStringLiteral(".hiplc") };
const QString ExpectSuffix = QStringLiteral(".expect.json");
/// What every output driver's job carries as "zkSubmitterPluginVersion";
/// cases write @PLUGINVERSION@, so a new version is one edit here.
const QString PluginVersion = QStringLiteral(" 8.4.00");

struct SceneCase
{
    std::string name;
    /// Absolute, as the host passes it; empty when the case has no scene.
    QString scene;
};

void PrintTo(const SceneCase& c, std::ostream* os)
{
    *os << c.name;
}

/// Every name that has a scene or expectations; a case lacking either fails.
std::vector<SceneCase> findCases()
{
    const QDir dir(CasesDir);
    const QStringList suffixes = QStringList(SceneSuffixes) << ExpectSuffix;
    QStringList names;
    for (const QString& file : dir.entryList(QDir::Files, QDir::Name)) {
        for (const QString& suffix : suffixes) {
            if (file.endsWith(suffix) && !names.contains(file.chopped(suffix.size())))
                names << file.chopped(suffix.size());
        }
    }
    std::vector<SceneCase> cases;
    for (const QString& name : names) {
        cases.push_back({ name.toStdString(), QString() });
        for (const QString& suffix : SceneSuffixes) {
            if (dir.exists(name + suffix))
                cases.back().scene = QFileInfo(dir.filePath(name + suffix)).absoluteFilePath();
        }
    }
    return cases;
}

/// A value as compact JSON text, for messages and for placing paths in JSON.
std::string show(const QJsonValue& v)
{
    if (v.isUndefined())
        return "no such key";
    const QByteArray wrapped = QJsonDocument(QJsonArray { v }).toJson(QJsonDocument::Compact);
    return wrapped.mid(1, wrapped.size() - 2).toStdString();
}

/// Faults of the case file that no comparison would show: an unknown top-level
/// key (a misspelt "jobs" would check nothing), a value of another type,
/// arguments that are not texts, entries for jobs beyond the count, a strict
/// case that does not list every job. A missing
/// "result", "arrayText" or "jobCount", or a job key that jobs do not have,
/// fails its comparison.
QStringList caseErrors(const QJsonObject& expect)
{
    QStringList errors;
    const QJsonObject top { { QStringLiteral("arguments"), QJsonArray() },
        { QStringLiteral("environment"), QJsonObject() }, { QStringLiteral("result"), 0 },
        { QStringLiteral("arrayText"), QString() }, { QStringLiteral("jobCount"), 0 },
        { QStringLiteral("jobs"), QJsonArray() }, { QStringLiteral("strict"), false } };
    for (auto it = expect.begin(); it != expect.end(); ++it) {
        if (!top.contains(it.key()))
            errors << QStringLiteral("unknown key \"%1\"").arg(it.key());
        else if (top.value(it.key()).type() != it.value().type())
            errors << QStringLiteral("\"%1\" has the wrong type").arg(it.key());
    }
    QJsonArray texts = expect.value(QStringLiteral("arguments")).toArray();
    for (const QJsonValue& v : expect.value(QStringLiteral("environment")).toObject())
        texts.append(v);
    if (!std::all_of(texts.begin(), texts.end(), [](const QJsonValue& v) { return v.isString(); }))
        errors << QStringLiteral("arguments and environment values must be strings");
    const qsizetype listed = expect.value(QStringLiteral("jobs")).toArray().size();
    const int count = expect.value(QStringLiteral("jobCount")).toInt();
    if (listed > count)
        errors << QStringLiteral("more job entries than \"jobCount\"");
    if (expect.value(QStringLiteral("strict")).toBool() && listed != count)
        errors << QStringLiteral("a strict case lists every job");
    return errors;
}

class SceneCases : public ::testing::TestWithParam<SceneCase>
{ };

/// One load of the scene through the library opened once for the whole suite.
QJsonObject load(const SceneCase& c, const QStringList& arguments, QString& error)
{
    static zkHost::Plugin plugin;
    static const bool opened = plugin.open(QStringLiteral(ZK_PLUGIN_PATH), error);
    if (!opened)
        return {};
    zkHost::SceneLoad host(c.scene, arguments);
    return zkHost::loadJson(host.jobs, plugin.load(&host.record), c.scene, true);
}

void expectField(const QString& where, const QJsonValue& got, const QJsonValue& expected)
{
    if (got != expected)
        ADD_FAILURE() << qPrintable(where) << ": got " << show(got) << ", expected "
                      << show(expected);
}

/// The listed keys of \p want, objects key by key; when \p strict, every key
/// of \p got too, so a key nobody listed fails as "expected no such key".
void expectObject(
    const QString& where, const QJsonObject& got, const QJsonObject& want, bool strict)
{
    QStringList keys = want.keys();
    for (const QString& key : got.keys()) {
        if (strict && !want.contains(key))
            keys << key;
    }
    for (const QString& key : keys) {
        if (want.value(key).isObject() && got.value(key).isObject())
            expectObject(
                where + key + u'.', got.value(key).toObject(), want.value(key).toObject(), strict);
        else
            expectField(where + key, got.value(key), want.value(key));
    }
}

TEST_P(SceneCases, MatchesItsExpectations)
{
    const SceneCase& c = GetParam();
    const QString name = QString::fromStdString(c.name);
    ASSERT_FALSE(c.scene.isEmpty()) << c.name << ": expectations without a scene";
    QFile file(QDir(CasesDir).filePath(name + ExpectSuffix));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << c.name << ": a scene without expectations";
    QJsonParseError parseError;
    // @DIR@ is the scene's directory with a trailing "/", @ROOT@ the
    // repository's (the cases' directory two up), @SCENE@ the scene's path.
    QByteArray text = file.readAll();
    const QString dir = QFileInfo(c.scene).absolutePath();
    for (const auto& [token, path] :
        { std::pair { "@SCENE@", c.scene }, std::pair { "@DIR@", dir + u'/' },
            std::pair { "@ROOT@", QDir::cleanPath(dir + QStringLiteral("/../..")) + u'/' },
            std::pair { "@PLUGINVERSION@", PluginVersion } }) {
        const std::string quoted = show(path);
        text.replace(token, QByteArray::fromStdString(quoted.substr(1, quoted.size() - 2)));
    }
    const QJsonDocument doc = QJsonDocument::fromJson(text, &parseError);
    ASSERT_TRUE(doc.isObject()) << c.name << ": " << qPrintable(parseError.errorString());
    const QJsonObject expect = doc.object();
    const QStringList errors = caseErrors(expect);
    ASSERT_TRUE(errors.isEmpty()) << c.name << ": "
                                  << qPrintable(errors.join(QStringLiteral("; ")));

    QStringList arguments;
    for (const QJsonValue& a : expect.value(QStringLiteral("arguments")).toArray())
        arguments << a.toString();
    // Variables of the case, put back as they were afterwards.
    const QJsonObject environment = expect.value(QStringLiteral("environment")).toObject();
    QList<std::pair<QByteArray, std::optional<QByteArray>>> saved;
    for (auto it = environment.begin(); it != environment.end(); ++it) {
        const QByteArray var = it.key().toLocal8Bit();
        saved.append(
            { var, qEnvironmentVariableIsSet(var) ? std::optional(qgetenv(var)) : std::nullopt });
        qputenv(var, it.value().toString().toLocal8Bit());
    }
    QString error;
    const QJsonObject first = load(c, arguments, error);
    // One load of the library serves each scene alike, however many came before.
    const QJsonObject second = load(c, arguments, error);
    for (const auto& [var, value] : saved)
        value ? qputenv(var, *value) : qunsetenv(var);
    ASSERT_FALSE(first.isEmpty()) << qPrintable(error);

    for (const char* key : { "result", "arrayText" })
        expectField(name + u' ' + QLatin1String(key), first.value(QLatin1String(key)),
            expect.value(QLatin1String(key)));
    const QJsonArray jobs = first.value(QStringLiteral("jobs")).toArray();
    expectField(name + QStringLiteral(" jobCount"), int(jobs.size()),
        expect.value(QStringLiteral("jobCount")));
    const QJsonArray expectedJobs = expect.value(QStringLiteral("jobs")).toArray();
    for (qsizetype i = 0; i < expectedJobs.size() && i < jobs.size(); ++i)
        expectObject(QStringLiteral("%1 job %2 ").arg(name).arg(i), jobs[i].toObject(),
            expectedJobs[i].toObject(), expect.value(QStringLiteral("strict")).toBool());
    EXPECT_TRUE(second == first) << c.name << ": a second load gives other jobs";
}

INSTANTIATE_TEST_SUITE_P(Scenes, SceneCases, ::testing::ValuesIn(findCases()),
    [](const ::testing::TestParamInfo<SceneCase>& info) { return info.param.name; });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SceneCases);

} // namespace
