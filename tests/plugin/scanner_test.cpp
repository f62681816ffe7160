#include "plugin/parserState.h"
#include "plugin/scanner.h"
#include "shared/zkShared.h"
#include "support/sceneLoad.h"
#include "support/textLines.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

// ---- dispatch of section headers -------------------------------------------

struct HeaderCase
{
    const char* line;
    SectionKind kind;
};

TEST(SectionDispatch, HeadersGoToTheirReaders)
{
    const HeaderCase cases[] = {
        { "out/mantra1.parm {", SectionKind::OutNode },
        { "out/anything.parm {", SectionKind::OutNode },
        { "out/alembicarchive1.parm {", SectionKind::OutNode },
        { "obj/geo1/file1.parm {", SectionKind::OutNode },
        { "obj/alembicarchive1.parm {", SectionKind::None },
        { "obj/ALEMBICARCHIVE1.parm {", SectionKind::None },
        { "obj/alembic1.parm {", SectionKind::OutNode },
        { "obj/alembicarchive1/mantra.parm {", SectionKind::OutNode },
        { "OBJ/x/MANTRA1.parm {", SectionKind::OutNode },
        { "img/comp1/rop_comp1.parm {", SectionKind::OutNode },
        { "img/comp1/blur1.parm {", SectionKind::OutNode },
        { "img/net/blur1.parm {", SectionKind::None },
        { "stage/karma1.parm {", SectionKind::OutNode },
        { "stage/KARMA1.parm {", SectionKind::OutNode },
        { "stage/karmarenderproperties1.parm {", SectionKind::None },
        { "stage/karmaRenderProperties1.parm {", SectionKind::None },
        { "stage/karmarenderproperties1/rendersettings.parm {", SectionKind::UsdRenderSettings },
        { "stage/rendersettings1.parm {", SectionKind::UsdRenderSettings },
        { "stage/RenderSettings1.parm {", SectionKind::OutNode },
        { "stage/hdprman1.parm {", SectionKind::Lop },
        { "stage/HdPrman1.parm {", SectionKind::OutNode },
        { "stage/usdrender_rop1.parm {", SectionKind::OutNode },
        { "stage/sublayer1.parm {", SectionKind::None },
        { "out/wedge1.parm {", SectionKind::Wedge },
        { "obj/wedge1.parm {", SectionKind::Wedge },
        { "obj/awedge1.parm {", SectionKind::None },
        { "obj/net/wedge1.parm {", SectionKind::Wedge },
        { "obj/Wedge1.parm {", SectionKind::None },
        { "obj/cam1.parm {", SectionKind::Camera },
        { "out/cam1.parm {", SectionKind::Camera },
        { "obj/stereocam_rig.parm {", SectionKind::Camera },
        { "obj/stereocam_rig/mantra.parm {", SectionKind::Camera },
        { "obj/Cam1.parm {", SectionKind::None },
        { "shop/mantra1.parm {", SectionKind::None },
        { "out/mantra1.parm", SectionKind::None },
        { "out/mantra1.PARM {", SectionKind::None },
        { "out/mantra1.parm {}", SectionKind::None },
        { "out/mantra1.userdata {", SectionKind::None },
        { "{", SectionKind::None },
        { "", SectionKind::None },
    };
    for (const HeaderCase& c : cases) {
        const QString header = QString::fromUtf8(c.line);
        EXPECT_EQ(sectionKind(header), c.kind) << c.line;
        // Headers that are not plain ASCII take Qt's own searches; a leading
        // character that no rule looks at must not change the answer.
        EXPECT_EQ(sectionKind(QStringLiteral("\u00e9") + header), c.kind) << "non-ASCII " << c.line;
    }
}

// ---- scans with recording readers ------------------------------------------

struct ReaderCall
{
    SectionKind kind;
    QString header;
    QString firstBodyLine;
};

QList<ReaderCall> calls;
LoadResult outNodeResult = LoadOk;
LoadResult usdResult = LoadOk;
bool outNodeSetsTake = false;
int seenMajor = 0;
QString seenMinor;

void record(SectionKind kind, LineSource& in, QString& header)
{
    const QString original = header;
    QString first;
    in.next(first);
    calls.append({ kind, original, first });
    while (!first.startsWith(u'}') && in.next(first)) { }
    header = first;
}

bool fakeWedge(zkP::_dataPARS_LoadSceneFile*, LineSource& in, QString& header)
{
    record(SectionKind::Wedge, in, header);
    return false;
}

bool fakeCamera(zkP::_dataPARS_LoadSceneFile*, LineSource& in, QString& header)
{
    record(SectionKind::Camera, in, header);
    return false;
}

bool fakeLop(zkP::_dataPARS_LoadSceneFile*, LineSource& in, QString& header)
{
    record(SectionKind::Lop, in, header);
    return false;
}

LoadResult fakeUsd(zkP::_dataPARS_LoadSceneFile*, LineSource& in, QString& header)
{
    record(SectionKind::UsdRenderSettings, in, header);
    return usdResult;
}

LoadResult fakeOut(zkP::_dataPARS_LoadSceneFile*, LineSource& in, QString& header, bool& takeFound,
    const int& major, const QString& minor)
{
    record(SectionKind::OutNode, in, header);
    seenMajor = major;
    seenMinor = minor;
    if (outNodeSetsTake)
        takeFound = true;
    return outNodeResult;
}

class Scanner : public ::testing::Test
{
protected:
    void SetUp() override
    {
        resetParserState();
        calls.clear();
        outNodeResult = LoadOk;
        usdResult = LoadOk;
        outNodeSetsTake = false;
        readers.wedge = fakeWedge;
        readers.camera = fakeCamera;
        readers.lop = fakeLop;
        readers.usdRenderSettings = fakeUsd;
        readers.outNode = fakeOut;
        ctx.scenePath = QStringLiteral("/proj/shot/scene.hip");
    }

    ScanResult scan(const char* text)
    {
        zkTest::TextLines lines(text);
        return scanScene(ctx, lines.source, readers);
    }

    /// hVariables without the environment's entries.
    QList<_namevalue> sceneVariables() const
    {
        QList<_namevalue> result;
        for (const _namevalue& v : hVariables)
            if (!v.name.startsWith(QStringLiteral("HIP"), Qt::CaseInsensitive))
                result.append(v);
        return result;
    }

    LoadContext ctx;
    SectionReaders readers;
};

TEST_F(Scanner, FrameRange)
{
    const struct
    {
        const char* line;
        int start;
        int end;
    } cases[] = {
        { "frange 1 240", 1, 240 },
        { "  FRANGE 1001 1100  ", 1001, 1100 },
        { "frange 5", 1, 100 },
        { "frange", 1, 100 },
        { "frange 1 240 x", 1, 0 },
        { "frange a b", 0, 0 },
        { "frange -5 -1", -5, -1 },
        { "# frange 3 4", 1, 100 },
        { "x frange 3 4", 1, 100 },
    };
    for (const auto& c : cases) {
        resetParserState();
        scan(c.line);
        EXPECT_EQ(GLseqStart, c.start) << c.line;
        EXPECT_EQ(GLseqEnd, c.end) << c.line;
    }
}

TEST_F(Scanner, SavedVersion)
{
    const struct
    {
        const char* line;
        bool buildSwitch;
        const char* full;
        int major;
        const char* jobsMinor;
        const char* readersMinor;
    } cases[] = {
        { "set -g _HIP_SAVEVERSION = '19.5.303'", false, "19.5.303", 19, "5.303", "5303" },
        { "set -g _HIP_SAVEVERSION = '19.5.303'", true, "19.5.303", 19, "5", "5" },
        { "set -g _HIP_SAVEVERSION = '20.0.547.1'", false, "20.0.547.1", 20, "0.547.1", "0547" },
        { "set -g _hip_saveversion = ' 18.0 '", false, "18.0", 18, "0", "0" },
        { "set -g _HIP_SAVEVERSION = '21'", false, "21", 21, "", "" },
        { "set -g _HIP_SAVEVERSION = 'x.5'", false, "x.5", 0, "5", "5" },
        { "set -g _HIP_SAVEVERSION = ''", false, "", 10, "", "" },
        { "set -g _HIP_SAVEVERSION = '19.5", false, "", 10, "", "" },
        { "_HIP_SAVEVERSION", false, "", 10, "", "" },
    };
    for (const auto& c : cases) {
        resetParserState();
        ctx.buildVersionSwitch = c.buildSwitch;
        const ScanResult result = scan(c.line);
        EXPECT_EQ(result.houdiniVersion, QString::fromUtf8(c.full)) << c.line;
        EXPECT_EQ(result.houdiniMajor, c.major) << c.line;
        EXPECT_EQ(result.houdiniMinorForJobs, QString::fromUtf8(c.jobsMinor)) << c.line;
        EXPECT_EQ(result.houdiniMinorForReaders, QString::fromUtf8(c.readersMinor)) << c.line;
        // A version line is never also a scene variable.
        EXPECT_TRUE(sceneVariables().isEmpty()) << c.line;
    }
}

TEST_F(Scanner, VersionReachesTheOutputDriverReader)
{
    scan("set -g _HIP_SAVEVERSION = '19.5.303'\nout/mantra1.parm {\n}\n");
    EXPECT_EQ(seenMajor, 19);
    EXPECT_EQ(seenMinor, QStringLiteral("5303"));
}

TEST_F(Scanner, GlobalVariables)
{
    const struct
    {
        const char* line;
        const char* name; // nullptr: no variable
        const char* value;
    } cases[] = {
        { "set -g JOB = '/proj/shot'", "JOB", "/proj/shot" },
        { "SET -G job = \"a b\"", "job", "a b" },
        { "Houdini set -g X = ' v '", "X", "v" },
        { "set -g EMPTY = ''", "EMPTY", "" },
        { "set -g ONE = x", "ONE", "" },
        { "set -g A = 'b = c'", "A", "b = c" },
        { "set -g   SPACED   =   'v'", "SPACED", "v" },
        { "echo set -g JOB = 'x'", nullptr, nullptr },
        { "set -g JOB='x'", nullptr, nullptr },
        { "set -gJOB = 'x'", nullptr, nullptr },
        { "\u017Fet -g LONG = 'x'", "LONG", "x" },
    };
    for (const auto& c : cases) {
        resetParserState();
        scan(c.line);
        const QList<_namevalue> variables = sceneVariables();
        if (!c.name) {
            EXPECT_TRUE(variables.isEmpty()) << c.line;
            continue;
        }
        ASSERT_EQ(variables.size(), 1) << c.line;
        EXPECT_EQ(variables[0].name, QString::fromUtf8(c.name)) << c.line;
        EXPECT_EQ(variables[0].value, QString::fromUtf8(c.value)) << c.line;
    }
}

TEST_F(Scanner, VariableNameReadsToTheEndWhenTheAssignmentComesFirst)
{
    scan("Hou = 'v' set -g NAME");
    const QList<_namevalue> variables = sceneVariables();
    ASSERT_EQ(variables.size(), 1);
    EXPECT_EQ(variables[0].name, QStringLiteral("NAME"));
    EXPECT_EQ(variables[0].value, QStringLiteral("v' set -g NAM"));
}

TEST_F(Scanner, Takes)
{
    const ScanResult result = scan("take name Main kids 1\n"
                                   "take name  shot_a  x\n"
                                   "take name Last\n"
                                   "take name \n"
                                   "Take name Upper\n"
                                   "take nameless\n");
    EXPECT_EQ(result.takes,
        QStringList({ QStringLiteral("Main"), QStringLiteral("shot_a"), QStringLiteral("Last"),
            QStringLiteral("less") }));
}

TEST_F(Scanner, EnvironmentVariablesBeginningWithHip)
{
    const QByteArray limit(200, 'v');
    const QByteArray over(201, 'v');
    ASSERT_EQ(setenv("HIPTEST_LIMIT", limit.constData(), 1), 0);
    ASSERT_EQ(setenv("HIPTEST_OVER", over.constData(), 1), 0);
    ASSERT_EQ(setenv("hiptest_lower", "l", 1), 0);
    ASSERT_EQ(setenv("XHIPTEST", "x", 1), 0);

    scan("");

    QStringList expectedOrder;
    for (const _varValue& v : zkGetEnvironmentVariableList(false).items)
        if (v.name.startsWith(QStringLiteral("HIP"), Qt::CaseInsensitive) && v.value.size() <= 200)
            expectedOrder.append(v.name);
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

TEST_F(Scanner, DatabaseDirKeepsItsSlash)
{
    const struct
    {
        const char* path;
        const char* dir;
    } cases[] = { { "/proj/shot/scene.hip", "/proj/shot/" }, { "scene.hip", "scene.hip" },
        { "/scene.hip", "/" } };
    for (const auto& c : cases) {
        ctx.scenePath = QString::fromUtf8(c.path);
        scan("");
        EXPECT_EQ(DatabaseDir, QString::fromUtf8(c.dir)) << c.path;
    }
}

TEST_F(Scanner, ReadersGetTheHeaderAndTheLinesAfterIt)
{
    scan("out/wedge1.parm {\nw\n}\n"
         "obj/cam1.parm {\nc\n}\n"
         "stage/hdprman1.parm {\nl\n}\n"
         "stage/rendersettings1.parm {\nu\n}\n"
         "out/mantra1.parm { \t\no\n}\n"
         "obj/nothing.parm {\ntake name Inside\n}\n");
    ASSERT_EQ(calls.size(), 5);
    const SectionKind kinds[] = { SectionKind::Wedge, SectionKind::Camera, SectionKind::Lop,
        SectionKind::UsdRenderSettings, SectionKind::OutNode };
    const char* bodies[] = { "w", "c", "l", "u", "o" };
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(calls[i].kind, kinds[i]);
        EXPECT_EQ(calls[i].firstBodyLine, QString::fromUtf8(bodies[i]));
    }
    EXPECT_EQ(calls[4].header, QStringLiteral("out/mantra1.parm {"));
}

TEST_F(Scanner, LinesOfAnUnreadSectionAreScanned)
{
    const ScanResult result = scan("obj/nothing.parm {\ntake name Inside\nfrange 3 4\n}\n");
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_EQ(result.takes, QStringList({ QStringLiteral("Inside") }));
    EXPECT_EQ(GLseqEnd, 4);
}

TEST_F(Scanner, ReaderResultsEndTheScan)
{
    const char* scene = "out/a.parm {\n}\nstage/rendersettings1.parm {\n}\nout/b.parm {\n}\n"
                        "frange 7 8\n";
    outNodeResult = LoadNoJobRecord;
    ScanResult result = scan(scene);
    EXPECT_EQ(result.result, 7);
    EXPECT_EQ(calls.size(), 1);
    EXPECT_EQ(GLseqStart, 1);

    SetUp();
    usdResult = static_cast<LoadResult>(25);
    result = scan(scene);
    EXPECT_EQ(result.result, 25);
    EXPECT_EQ(calls.size(), 2);

    // The element readers' results carry no meaning.
    SetUp();
    result
        = scan("out/wedge1.parm {\n}\nobj/cam1.parm {\n}\nstage/hdprman1.parm {\n}\nfrange 7 8\n");
    EXPECT_EQ(result.result, 1);
    EXPECT_EQ(calls.size(), 3);
    EXPECT_EQ(GLseqStart, 7);
}

TEST_F(Scanner, TakeFlagAndSwitchesAreKept)
{
    outNodeSetsTake = true;
    ctx.compressedExportSwitch = true;
    ctx.buildVersionSwitch = true;
    const ScanResult result = scan("out/mantra1.parm {\n}\n");
    EXPECT_TRUE(result.takeFound);
    EXPECT_TRUE(result.compressedExportSwitch);
    EXPECT_TRUE(result.buildVersionSwitch);
    EXPECT_EQ(result.houdiniMajor, 10);
}

// ---- whole loads through the entry point -----------------------------------

TEST(SceneLoad, MissingOrIrregularFilesCannotBeOpened)
{
    zkJ::_JobBasicsArray jobs;
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    EXPECT_EQ(zkTest::loadSceneFile(dir.filePath(QStringLiteral("absent.hip")), jobs), 3);
    EXPECT_EQ(zkTest::loadSceneFile(dir.path(), jobs), 3);
}

TEST(SceneLoad, EncodingsAndLineEndsGiveTheSameState)
{
    const QByteArray variants[] = {
        "frange 2 9\nset -g JOB = '/p/\xc3\xa4'\ntake name T x\n",
        "frange 2 9\r\nset -g JOB = '/p/\xc3\xa4'\r\ntake name T x",
        "\r\nfrange 2 9\r\r\nset -g JOB = '/p/\xc3\xa4\r'\ntake name T x\r",
    };
    for (const QByteArray& text : variants) {
        zkJ::_JobBasicsArray jobs;
        ASSERT_EQ(zkTest::loadSceneText(text, jobs), 1);
        EXPECT_EQ(GLseqStart, 2);
        EXPECT_EQ(GLseqEnd, 9);
        ASSERT_FALSE(hVariables.isEmpty());
        EXPECT_EQ(hVariables.last().value, QStringLiteral("/p/\u00e4"));
    }
}

TEST(SceneLoad, EmptyAndInvalidFilesLoad)
{
    zkJ::_JobBasicsArray jobs;
    EXPECT_EQ(zkTest::loadSceneText(QByteArray(), jobs), 1);
    EXPECT_EQ(GLseqStart, 1);
    EXPECT_EQ(zkTest::loadSceneText(QByteArray("\x80\xff\x00\xfe\nfrange 3 4\n\xc0", 17), jobs), 1);
    EXPECT_EQ(GLseqEnd, 4);
    EXPECT_EQ(jobs.count, 0);
}

TEST(SceneLoad, SecondLoadStartsFromTheInitialState)
{
    const QByteArray scene = "frange 5 6\nset -g JOB = 'a'\nset -g SHOT = 'b'\n";
    zkJ::_JobBasicsArray jobs;
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("twice.hip"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(scene);
    file.close();

    ASSERT_EQ(zkTest::loadSceneFile(path, jobs), 1);
    const QString dir1 = DatabaseDir;
    QStringList first;
    for (const _namevalue& v : hVariables)
        first << v.name + u'=' + v.value;

    ASSERT_EQ(zkTest::loadSceneText("frange 8 9\n", jobs), 1);
    ASSERT_EQ(zkTest::loadSceneFile(path, jobs), 1);
    QStringList second;
    for (const _namevalue& v : hVariables)
        second << v.name + u'=' + v.value;
    EXPECT_EQ(second, first);
    EXPECT_EQ(DatabaseDir, dir1);
    EXPECT_EQ(DatabaseDir, QDir(dir.path()).absolutePath() + u'/');
    EXPECT_EQ(GLseqStart, 5);
    EXPECT_EQ(GLseqEnd, 6);
}

} // namespace

namespace {

// Lines are ruled out on their raw bytes before they are decoded; these
// lines only match once decoded (Unicode spaces trimmed, letters that fold to
// ASCII), so the raw test must let them through.
TEST_F(Scanner, RawPrefilterKeepsLinesThatMatchOnlyOnceDecoded)
{
    calls.clear();
    const ScanResult result = scan("\xc2\xa0"
                                   "frange 7 9\xc2\xa0\n"
                                   "\xc5\xbf"
                                   "et -g SHOT = 'sh010'\n"
                                   "set -g _HIP_\xc5\xbf"
                                   "AVEVERSION = '19.5.303'\n"
                                   "\xe3\x80\x80take name Alt x\n"
                                   "obj/cam1.parm {\xc2\xa0\n"
                                   "}\n");
    EXPECT_EQ(GLseqStart, 7);
    EXPECT_EQ(GLseqEnd, 9);
    ASSERT_EQ(sceneVariables().size(), 1);
    EXPECT_EQ(sceneVariables().front().name, QStringLiteral("SHOT"));
    EXPECT_EQ(sceneVariables().front().value, QStringLiteral("sh010"));
    EXPECT_EQ(result.houdiniMajor, 19);
    EXPECT_EQ(result.takes, QStringList { QStringLiteral("Alt") });
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(calls.front().kind, SectionKind::Camera);
}

TEST_F(Scanner, LinesNearTheRulesAreNotTaken)
{
    calls.clear();
    const ScanResult result = scan("flags = lock off\n"
                                   "framerange 3 4\n"
                                   "t 0 1 2\n"
                                   "tak name X\n"
                                   "sopflags sopflags = \n"
                                   "node_HIP_SAVE 1\n"
                                   "obj/cam1.init {\n"
                                   "{\n");
    EXPECT_EQ(GLseqStart, 1);
    EXPECT_EQ(GLseqEnd, 100);
    EXPECT_TRUE(result.takes.isEmpty());
    EXPECT_TRUE(sceneVariables().isEmpty());
    EXPECT_EQ(result.houdiniMajor, 10);
    EXPECT_TRUE(calls.isEmpty());
}

} // namespace
