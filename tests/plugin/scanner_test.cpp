// The scanner's rules show in the jobs of the scene cases (tests/cases,
// scanner_*). What no scene can make is pinned here: a driver reader's failure
// ending the scan, and the database directory of a scene path that is not
// absolute.
#include "plugin/scanner.h"
#include "support/textLines.h"

#include <gtest/gtest.h>

namespace {

struct Recorded
{
    int calls = 0, result = 1, major = 0;
    QString minor;
} recorded;

LoadResult fakeOut(Scene& scene, LineSource& in, QString& line)
{
    ++recorded.calls;
    recorded.major = scene.houdiniMajor;
    recorded.minor = scene.houdiniMinorForReaders;
    scene.takeFound = true;
    QByteArrayView raw;
    while (in.nextRaw(raw)) {
        line = LineSource::decode(raw);
        if (line.startsWith(u'}'))
            break;
    }
    return static_cast<LoadResult>(recorded.result);
}

// No scene makes the driver reader fail: it gives 7 only when the job array
// cannot grow (its guard stops at 251 jobs, far below the array's cap).
TEST(Scanner, ADriverReaderFailureEndsTheScan)
{
    for (const int result : { 7, 1 }) {
        recorded = Recorded();
        recorded.result = result;
        SectionReaders readers;
        readers[SectionKind::OutNode] = fakeOut;
        zkJ::_JobBasicsArray jobs;
        zkP::_dataPARS_LoadSceneFile record { nullptr, &jobs, nullptr };
        LoadContext ctx;
        ctx.data = &record;
        ctx.buildVersionSwitch = true;
        Scene scene(ctx);
        zkTest::TextLines lines(
            "set -g _HIP_SAVEVERSION = '19.5.303'\nout/a.parm {\n}\nout/b.parm {\n}\n");
        EXPECT_EQ(scanScene(scene, lines.source, readers), result);
        EXPECT_EQ(recorded.calls, result == 1 ? 2 : 1);
        // The driver reader sees the readers' version and may set the take flag.
        EXPECT_EQ(recorded.major, 19);
        EXPECT_EQ(recorded.minor, QStringLiteral("5"));
        EXPECT_TRUE(scene.takeFound);
    }
}

TEST(Scanner, DatabaseDirKeepsItsSlash)
{
    const char* rows[][2] = { { "/proj/shot/scene.hip", "/proj/shot/" },
        { "scene.hip", "scene.hip" }, { "/scene.hip", "/" } };
    for (const auto& row : rows) {
        zkJ::_JobBasicsArray jobs;
        zkP::_dataPARS_LoadSceneFile record { nullptr, &jobs, nullptr };
        LoadContext ctx;
        ctx.data = &record;
        ctx.scenePath = QString::fromUtf8(row[0]);
        Scene scene(ctx);
        zkTest::TextLines lines("");
        scanScene(scene, lines.source);
        EXPECT_EQ(scene.databaseDir, QString::fromUtf8(row[1])) << row[0];
    }
}

} // namespace
