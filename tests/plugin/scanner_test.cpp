// The scanner's rules show in the jobs of the scene cases (tests/cases,
// scanner_*). What no scene can make is pinned here: a reader result other
// than 1 ending the scan, and the database directory of a scene path that is
// not absolute.
#include "plugin/parserState.h"
#include "plugin/scanner.h"
#include "support/textLines.h"

#include <gtest/gtest.h>

namespace {

struct Recorded
{
    int outCalls = 0, usdCalls = 0, outResult = 1, usdResult = 1, major = 0;
    QString minor;
} recorded;

/// Consumes the section as a reader would and returns \p result.
LoadResult skipSection(LineSource& in, QString& line, int& calls, int result)
{
    ++calls;
    while (in.next(line) && !line.startsWith(u'}')) { }
    return static_cast<LoadResult>(result);
}

LoadResult fakeUsd(zkP::_dataPARS_LoadSceneFile*, LineSource& in, QString& header)
{
    return skipSection(in, header, recorded.usdCalls, recorded.usdResult);
}

LoadResult fakeOut(zkP::_dataPARS_LoadSceneFile*, LineSource& in, QString& header, bool& takeFound,
    const int& major, const QString& minor)
{
    recorded.major = major;
    recorded.minor = minor;
    takeFound = true;
    return skipSection(in, header, recorded.outCalls, recorded.outResult);
}

TEST(Scanner, DriverAndRenderSettingsResultsEndTheScan)
{
    const struct
    {
        int outResult, usdResult, result, outCalls, usdCalls;
    } rows[] = { { 7, 1, 7, 1, 0 }, { 1, 25, 25, 1, 1 }, { 1, 1, 1, 2, 1 } };
    for (const auto& row : rows) {
        recorded = Recorded();
        recorded.outResult = row.outResult;
        recorded.usdResult = row.usdResult;
        resetParserState();
        SectionReaders readers;
        readers.usdRenderSettings = fakeUsd;
        readers.outNode = fakeOut;
        LoadContext ctx;
        ctx.buildVersionSwitch = ctx.compressedExportSwitch = true;
        zkTest::TextLines lines("set -g _HIP_SAVEVERSION = '19.5.303'\nout/a.parm {\n}\n"
                                "stage/rendersettings1.parm {\n}\nout/b.parm {\n}\n");
        const ScanResult scan = scanScene(ctx, lines.source, readers);
        EXPECT_EQ(scan.result, row.result) << row.outResult << ' ' << row.usdResult;
        EXPECT_EQ(recorded.outCalls, row.outCalls);
        EXPECT_EQ(recorded.usdCalls, row.usdCalls);
        // The driver reader gets the readers' version and may set the take
        // flag; the switches reach the completion pass through the result.
        EXPECT_EQ(recorded.major, 19);
        EXPECT_EQ(recorded.minor, QStringLiteral("5"));
        EXPECT_TRUE(scan.takeFound && scan.buildVersionSwitch && scan.compressedExportSwitch);
    }
}

TEST(Scanner, DatabaseDirKeepsItsSlash)
{
    const char* rows[][2] = { { "/proj/shot/scene.hip", "/proj/shot/" },
        { "scene.hip", "scene.hip" }, { "/scene.hip", "/" } };
    for (const auto& row : rows) {
        LoadContext ctx;
        ctx.scenePath = QString::fromUtf8(row[0]);
        zkTest::TextLines lines("");
        scanScene(ctx, lines.source);
        EXPECT_EQ(DatabaseDir, QString::fromUtf8(row[1])) << row[0];
    }
}

} // namespace
