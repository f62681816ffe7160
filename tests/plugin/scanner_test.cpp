// The scanner's rules are pinned by the scene cases in tests/cases; while
// output drivers make no jobs, what a scan learns is not visible in the jobs,
// so the table below reads it after scanning each scanner case.
#include "plugin/parserState.h"
#include "plugin/scanner.h"
#include "shared/zkShared.h"
#include "support/sceneLoad.h"
#include "support/textLines.h"
#include "tools/host/hostRecords.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

const QString CasesDir = QStringLiteral(ZK_SOURCE_DIR "/tests/cases/");

/// hVariables without the environment's entries.
QStringList sceneVariables()
{
    QStringList result;
    for (const _namevalue& v : hVariables) {
        if (!v.name.startsWith(QStringLiteral("HIP"), Qt::CaseInsensitive))
            result << v.name + u'=' + v.value;
    }
    return result;
}

/// What a scan learned, with the parts still at their initial values left out.
QString describe(const ScanResult& scan)
{
    QStringList parts;
    if (GLseqStart != 1 || GLseqEnd != 100)
        parts << QStringLiteral("frange %1 %2").arg(GLseqStart).arg(GLseqEnd);
    if (!scan.houdiniVersion.isEmpty() || scan.houdiniMajor != 10)
        parts << QStringLiteral("version %1 major %2 minor %3/%4")
                     .arg(scan.houdiniVersion)
                     .arg(scan.houdiniMajor)
                     .arg(scan.houdiniMinorForJobs, scan.houdiniMinorForReaders);
    if (!sceneVariables().isEmpty())
        parts << QStringLiteral("vars ") + sceneVariables().join(u'|');
    if (!scan.takes.isEmpty())
        parts << QStringLiteral("takes ") + scan.takes.join(u'|');
    if (!camList.list.isEmpty() || !wedges.isEmpty() || !LOPList.list.isEmpty()
        || !USD_RSList.list.isEmpty())
        parts << QStringLiteral("cameras %1 wedges %2 lops %3 settings %4")
                     .arg(camList.list.size())
                     .arg(wedges.size())
                     .arg(LOPList.list.size())
                     .arg(USD_RSList.list.size());
    return parts.join(QStringLiteral("; "));
}

/// Scans a case scene with the submitter arguments of its expectations.
QString scanCase(const QString& file)
{
    const QString name = file.left(file.lastIndexOf(u'.'));
    QFile expect(CasesDir + name + QStringLiteral(".expect.json"));
    if (!expect.open(QIODevice::ReadOnly))
        return QStringLiteral("no expectations");
    QStringList arguments;
    for (const QJsonValue& a : QJsonDocument::fromJson(expect.readAll())
                                   .object()
                                   .value(QStringLiteral("arguments"))
                                   .toArray())
        arguments << a.toString();
    const zkHost::HostSettings settings("submitter", arguments);

    QFile scene(CasesDir + file);
    if (!scene.open(QIODevice::ReadOnly))
        return QStringLiteral("no scene");
    resetParserState();
    QTextStream stream(&scene);
    LineSource in(stream);
    zkJ::_JobBasicsArray jobs;
    zkP::_dataPARS_LoadSceneFile data { nullptr, &jobs, nullptr };
    LoadContext ctx;
    ctx.data = &data;
    readSubmitterArguments(ctx, settings.block.get());
    ctx.scenePath = scene.fileName();
    return describe(scanScene(ctx, in));
}

TEST(ScannerCases, ScanLearnsWhatTheRulesSay)
{
    const struct
    {
        const char* file;
        const char* learned;
    } rows[] = {
        { "scanner_frange.hip", "frange 1001 1100" },
        { "scanner_frange_text.hip", "frange 0 0" },
        { "scanner_frange_negative.hip", "frange -5 -1" },
        { "scanner_version.hip", "version 19.5.303 major 19 minor 5.303/5303" },
        { "scanner_version_build.hip", "version 20.0.547.1 major 20 minor 0/0" },
        { "scanner_version_parts.hip", "version 20.0.547.1 major 20 minor 0.547.1/0547" },
        { "scanner_version_nodot.hip", "version 21 major 21 minor /" },
        { "scanner_version_text.hip", "version x.5 major 0 minor 5/5" },
        { "scanner_variables.hip",
            "vars JOB=/proj/shot|job=a b|X=v|EMPTY=|ONE=|A=b = c|SPACED=v|BACK=w' set -g BAC" },
        { "scanner_takes.hip", "takes Main|shot_a|Last|less" },
        { "scanner_dispatch.hip",
            "takes s4|s5|s11|s14|s15|s22|s25|s27|s32|s33|s34|s35|s36|s37|s38|s39; "
            "cameras 4 wedges 3 lops 2 settings 2" },
        { "scanner_dispatch_nonascii.hip",
            "takes s4|s5|s11|s14|s15|s22|s25|s27|s32|s33|s34|s35|s36|s37|s38|s39; "
            "cameras 4 wedges 3 lops 2 settings 2" },
        { "scanner_crlf.hip", "frange 2 9; vars JOB=/p/\u00e4; takes T" },
        { "scanner_binary.hip", "frange 3 4; vars JOB=a\ufffdb" },
        { "scanner_unicode_spaces.hip",
            "frange 7 9; version 19.5.303 major 19 minor 5.303/5303; vars SHOT=sh010; takes Alt; "
            "cameras 1 wedges 0 lops 0 settings 0" },
        { "scanner_empty.hipnc", "" },
        { "scanner_licensed.hiplc", "frange 10 20" },
    };
    for (const auto& row : rows)
        EXPECT_EQ(scanCase(QString::fromUtf8(row.file)), QString::fromUtf8(row.learned))
            << row.file;
}

// ---- what no scene can show yet: reader results and what readers are given --

void skipSection(LineSource& in, QString& line)
{
    while (in.next(line) && !line.startsWith(u'}')) { }
}

struct Recorded
{
    int outCalls = 0;
    int usdCalls = 0;
    LoadResult outResult = LoadOk;
    LoadResult usdResult = LoadOk;
    int major = 0;
    QString minor;
} recorded;

LoadResult fakeUsd(zkP::_dataPARS_LoadSceneFile*, LineSource& in, QString& header)
{
    ++recorded.usdCalls;
    skipSection(in, header);
    return recorded.usdResult;
}

LoadResult fakeOut(zkP::_dataPARS_LoadSceneFile*, LineSource& in, QString& header, bool& takeFound,
    const int& major, const QString& minor)
{
    ++recorded.outCalls;
    recorded.major = major;
    recorded.minor = minor;
    takeFound = true;
    skipSection(in, header);
    return recorded.outResult;
}

ScanResult scanWithFakes(const char* text, int outResult, int usdResult)
{
    recorded = Recorded();
    recorded.outResult = static_cast<LoadResult>(outResult);
    recorded.usdResult = static_cast<LoadResult>(usdResult);
    resetParserState();
    SectionReaders readers;
    readers.usdRenderSettings = fakeUsd;
    readers.outNode = fakeOut;
    zkTest::TextLines lines(text);
    return scanScene(LoadContext(), lines.source, readers);
}

TEST(Scanner, DriverAndRenderSettingsResultsEndTheScan)
{
    const char* scene = "set -g _HIP_SAVEVERSION = '19.5.303'\nout/a.parm {\n}\n"
                        "stage/rendersettings1.parm {\n}\nout/b.parm {\n}\nframe 7 8\n";
    ScanResult result = scanWithFakes(scene, 7, 1);
    EXPECT_EQ(result.result, 7);
    EXPECT_EQ(recorded.outCalls, 1);
    EXPECT_EQ(recorded.usdCalls, 0);
    // The driver reader gets the version for readers and may set the take flag.
    EXPECT_EQ(recorded.major, 19);
    EXPECT_EQ(recorded.minor, QStringLiteral("5303"));
    EXPECT_TRUE(result.takeFound);

    result = scanWithFakes(scene, 1, 25);
    EXPECT_EQ(result.result, 25);
    EXPECT_EQ(recorded.outCalls, 1);
    EXPECT_EQ(recorded.usdCalls, 1);

    result = scanWithFakes(scene, 1, 1);
    EXPECT_EQ(result.result, 1);
    EXPECT_EQ(recorded.outCalls, 2);

    // The submitter's switches reach the completion pass through the result.
    LoadContext ctx;
    ctx.buildVersionSwitch = ctx.compressedExportSwitch = true;
    zkTest::TextLines lines("");
    result = scanScene(ctx, lines.source);
    EXPECT_TRUE(result.buildVersionSwitch);
    EXPECT_TRUE(result.compressedExportSwitch);
}

// ---- scene-wide state that cases cannot vary -------------------------------

TEST(Scanner, EnvironmentVariablesBeginningWithHip)
{
    const QByteArray limit(200, 'v');
    const QByteArray over(201, 'v');
    ASSERT_EQ(setenv("HIPTEST_LIMIT", limit.constData(), 1), 0);
    ASSERT_EQ(setenv("HIPTEST_OVER", over.constData(), 1), 0);
    ASSERT_EQ(setenv("hiptest_lower", "l", 1), 0);
    ASSERT_EQ(setenv("XHIPTEST", "x", 1), 0);
    scanWithFakes("", 1, 1);

    QStringList expectedOrder;
    for (const _varValue& v : zkGetEnvironmentVariableList(false).items) {
        if (v.name.startsWith(QStringLiteral("HIP"), Qt::CaseInsensitive) && v.value.size() <= 200)
            expectedOrder.append(v.name);
    }
    QStringList names;
    for (const _namevalue& v : hVariables)
        names.append(v.name);
    EXPECT_EQ(names, expectedOrder);
    EXPECT_TRUE(names.contains(QStringLiteral("HIPTEST_LIMIT")));
    EXPECT_TRUE(names.contains(QStringLiteral("hiptest_lower")));
    EXPECT_FALSE(names.contains(QStringLiteral("HIPTEST_OVER")));
    EXPECT_FALSE(names.contains(QStringLiteral("XHIPTEST")));
    for (const char* name : { "HIPTEST_LIMIT", "HIPTEST_OVER", "hiptest_lower", "XHIPTEST" })
        unsetenv(name);
}

TEST(Scanner, DatabaseDirKeepsItsSlash)
{
    const struct
    {
        const char* path;
        const char* dir;
    } rows[] = { { "/proj/shot/scene.hip", "/proj/shot/" }, { "scene.hip", "scene.hip" },
        { "/scene.hip", "/" } };
    for (const auto& row : rows) {
        LoadContext ctx;
        ctx.scenePath = QString::fromUtf8(row.path);
        zkTest::TextLines lines("");
        scanScene(ctx, lines.source);
        EXPECT_EQ(DatabaseDir, QString::fromUtf8(row.dir)) << row.path;
    }
}

TEST(Scanner, EveryLoadStartsFromTheInitialState)
{
    const QString scene = CasesDir + QStringLiteral("scanner_variables.hip");
    zkJ::_JobBasicsArray jobs;
    ASSERT_EQ(zkTest::loadSceneFile(scene, jobs), 1);
    const QStringList first = sceneVariables();
    ASSERT_EQ(zkTest::loadSceneFile(CasesDir + QStringLiteral("scanner_frange.hip"), jobs), 1);
    ASSERT_EQ(zkTest::loadSceneFile(scene, jobs), 1);
    EXPECT_EQ(sceneVariables(), first);
    EXPECT_EQ(GLseqStart, 1);
    EXPECT_EQ(DatabaseDir, CasesDir);
}

} // namespace
