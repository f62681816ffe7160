// The binary interface with the host, as one readable table: every field's
// offset and every type's size. The headers pin the same numbers with
// static_asserts; this table is what a reviewer compares with the host's
// documentation, and it reports every mismatch at once instead of the first.
#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/zkPluginRecords.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

#include <cstddef>
#include <dlfcn.h>

namespace {

struct LayoutRow
{
    const char* what;
    size_t actual;
    size_t expected;
};

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#define OFF(T, field, expected)                                                                    \
    {                                                                                              \
#        T "::" #        field, offsetof(T, field), expected                                       \
    }
#define SIZE(T, expected)                                                                          \
    {                                                                                              \
        "sizeof " #T, sizeof(T), expected                                                          \
    }

using zkJ::_JobBasics;
using zkJ::_JobBasics_largePath;
using zkJ::_JobBasicsArray;
using zkJ::_JobSettingsScene;
using zkP::_dataPARS_LoadSceneFile;
using zkP::_dataPARS_PluginInfo;
using zkP::_submitterSettings;
using zkRA::_RenderAppBasic;
using FirstLayer = zkJ::_JobBasics_noSettings_noPaths;
using Compact = zkJ::_JobBasics_noSettings;
using LargePath = zkJ::_JobBasics_noSettings_largePath;

const LayoutRow layoutTable[] = {
    // Fixed-capacity strings: 2N+6 bytes; 8-bit: N+3 rounded up to even.
    SIZE(_zkString<10>, 26),
    SIZE(_zkString<15>, 36),
    SIZE(_zkString<25>, 56),
    SIZE(_zkString<50>, 106),
    SIZE(_zkString<100>, 206),
    SIZE(_zkString<150>, 306),
    SIZE(_zkString<200>, 406),
    SIZE(_zkString<250>, 506),
    SIZE(_zkString<500>, 1006),
    SIZE(_zkString<1000>, 2006),
    OFF(_zkString<25>, length, 0),
    OFF(_zkString<25>, reserved, 2),
    OFF(_zkString<25>, data, 4),
    SIZE(_zkString8_allSize<10>, 14),
    SIZE(_zkString8_allSize<15>, 18),
    SIZE(_zkString8_allSize<16>, 20),
    SIZE(_zkString8_allSize<20>, 24),
    SIZE(_zkString8_allSize<40>, 44),
    SIZE(_zkString8_allSize<50>, 54),
    SIZE(_zkString8_allSize<100>, 104),
    SIZE(_zkString8_allSize<150>, 154),
    SIZE(_zkString8_allSize<5000>, 5004),
    OFF(_zkString8_allSize<16>, data, 2),
    SIZE(_passHash, 20),

    // Application and renderer.
    SIZE(_RenderAppBasic, 264),
    OFF(_RenderAppBasic, versionMajor, 0),
    OFF(_RenderAppBasic, appName, 6),
    OFF(_RenderAppBasic, rendererName, 62),
    OFF(_RenderAppBasic, rendererNameExtra, 118),
    OFF(_RenderAppBasic, appType, 174),
    OFF(_RenderAppBasic, rendererVersion, 210),
    OFF(_RenderAppBasic, versionMinor, 246),

    // First layer, shared by both record forms.
    SIZE(FirstLayer, 3686),
    OFF(FirstLayer, structureID, 0),
    OFF(FirstLayer, structureVersion, 2),
    OFF(FirstLayer, structureReserved, 4),
    OFF(FirstLayer, initMarker, 20),
    OFF(FirstLayer, sceneOS, 21),
    OFF(FirstLayer, renderApp, 22),
    OFF(FirstLayer, camera, 286),
    OFF(FirstLayer, layer, 592),
    OFF(FirstLayer, channel, 898),
    OFF(FirstLayer, sceneState, 1104),
    OFF(FirstLayer, auxName, 1310),
    OFF(FirstLayer, colorSpace, 1516),
    OFF(FirstLayer, auxText, 1722),
    OFF(FirstLayer, renderLicenses, 2128),
    OFF(FirstLayer, commandPassword, 2534),
    OFF(FirstLayer, imageWidth, 2554),
    OFF(FirstLayer, imageHeight, 2556),
    OFF(FirstLayer, auxByte1, 2558),
    OFF(FirstLayer, imageSingleOutputFile, 2559),
    OFF(FirstLayer, auxByte2, 2560),
    OFF(FirstLayer, imageFormatOverride, 2562),
    OFF(FirstLayer, imageMulti, 2598),
    OFF(FirstLayer, shortNameTable, 2600),
    { "sizeof shortNameTable", sizeof(FirstLayer::shortNameTable), 780 },
    OFF(FirstLayer, imageStereoL, 3380),
    OFF(FirstLayer, imageStereoM, 3406),
    OFF(FirstLayer, imageStereoR, 3432),
    OFF(FirstLayer, ID, 3460),
    OFF(FirstLayer, preID, 3468),
    OFF(FirstLayer, waitForPreIDCount, 3469),
    OFF(FirstLayer, waitForPreIDs, 3470),
    OFF(FirstLayer, auxByte3, 3500),
    OFF(FirstLayer, shotgunID, 3502),
    OFF(FirstLayer, auxShortText1, 3556),
    OFF(FirstLayer, PNL, 3580),
    OFF(FirstLayer, padding, 3581),
    OFF(FirstLayer, auxShortText2, 3582),
    OFF(FirstLayer, reservedTail, 3606),

    // Compact paths and the packed channel table.
    SIZE(Compact, 25388),
    OFF(Compact, sceneName, 3692),
    OFF(Compact, sceneDatabaseDir, 4698),
    OFF(Compact, auxPath, 5704),
    OFF(Compact, imageDir, 6710),
    OFF(Compact, imageFileName, 7716),
    OFF(Compact, auxImageName, 8222),
    OFF(Compact, imageExtension, 8728),
    OFF(Compact, auxByte4, 8784),
    OFF(Compact, channelCount, 8785),
    OFF(Compact, channelStart, 8786),
    OFF(Compact, channelFileNameLength, 8986),
    OFF(Compact, channelExtensionLength, 9186),
    OFF(Compact, channelBuffer, 9386),
    OFF(Compact, channelBufferUsed, 25386),

    // Large paths and the fixed channel slots.
    SIZE(LargePath, 221980),
    SIZE(zkJ::_channelSlot, 2062),
    OFF(zkJ::_channelSlot, extension, 2006),
    OFF(LargePath, sceneName, 3686),
    OFF(LargePath, sceneDatabaseDir, 5692),
    OFF(LargePath, auxPath, 7698),
    OFF(LargePath, imageDir, 9704),
    OFF(LargePath, imageFileName, 11710),
    OFF(LargePath, auxImageName, 13716),
    OFF(LargePath, imageExtension, 15722),
    OFF(LargePath, auxByte4, 15778),
    OFF(LargePath, channels, 15780),

    // Scene settings, standalone and at their place in both records.
    SIZE(_JobSettingsScene, 4988),
    OFF(_JobSettingsScene, seqStart, 4),
    OFF(_JobSettingsScene, seqEnd, 12),
    OFF(_JobSettingsScene, seqFrameSet, 28),
    OFF(_JobSettingsScene, seqStep, 182),
    OFF(_JobSettingsScene, customDataCount, 188),
    OFF(_JobSettingsScene, customDataUsed, 192),
    OFF(_JobSettingsScene, customDataValuesStart, 196),
    OFF(_JobSettingsScene, customData, 200),
    OFF(_JobSettingsScene, settingText1, 4200),
    OFF(_JobSettingsScene, settingText2, 4306),
    OFF(_JobSettingsScene, settingText3, 4412),
    OFF(_JobSettingsScene, settingText4, 4518),
    OFF(_JobSettingsScene, settingText5, 4624),
    OFF(_JobSettingsScene, settingText6, 4730),
    OFF(_JobSettingsScene, settingsReservedTail, 4936),
    SIZE(_JobBasics, 30376),
    OFF(_JobBasics, seqStart, 25388 + 4),
    OFF(_JobBasics, settingText6, 25388 + 4730),
    SIZE(_JobBasics_largePath, 226968),
    OFF(_JobBasics_largePath, seqStart, 221980 + 4),
    OFF(_JobBasics_largePath, settingText6, 221980 + 4730),

    // The host's job array.
    SIZE(_JobBasicsArray, 2032),
    OFF(_JobBasicsArray, structureID, 0),
    OFF(_JobBasicsArray, structureVersion, 2),
    OFF(_JobBasicsArray, arrayText, 4),
    OFF(_JobBasicsArray, recordSize, 2012),
    OFF(_JobBasicsArray, count, 2016),
    OFF(_JobBasicsArray, allocated, 2020),
    OFF(_JobBasicsArray, records, 2024),

    // Plugin call records.
    OFF(_dataPARS_PluginInfo, structureID, 0x000),
    OFF(_dataPARS_PluginInfo, infoVersion, 0x002),
    OFF(_dataPARS_PluginInfo, appName, 0x012),
    OFF(_dataPARS_PluginInfo, author, 0x07C),
    OFF(_dataPARS_PluginInfo, pluginVersion, 0x14A),
    OFF(_dataPARS_PluginInfo, managerVersion, 0x182),
    OFF(_dataPARS_PluginInfo, qtVersion, 0x1BA),
    OFF(_dataPARS_PluginInfo, flag, 0x1F2),
    OFF(_dataPARS_PluginInfo, fileFilter, 0x204),
    SIZE(_dataPARS_LoadSceneFile, 0x18),
    OFF(_dataPARS_LoadSceneFile, sceneFile, 0x00),
    OFF(_dataPARS_LoadSceneFile, jobs, 0x08),
    OFF(_dataPARS_LoadSceneFile, settings, 0x10),
    OFF(_submitterSettings, argc, 0x5234),
    OFF(_submitterSettings, argv, 0x5238),
};

#undef OFF
#undef SIZE
#pragma GCC diagnostic pop

TEST(RecordLayout, MatchesTheHostTable)
{
    for (const LayoutRow& row : layoutTable)
        EXPECT_EQ(row.actual, row.expected) << row.what;
}

struct Symbol
{
    QChar type;
    QString name;
};

/// The plugin's dynamic symbol table: defined symbols with their nm type.
QList<Symbol> exportedSymbols(bool demangle)
{
    QProcess nm;
    QStringList args { QStringLiteral("-D"), QStringLiteral("--defined-only") };
    if (demangle)
        args << QStringLiteral("-C");
    args << QStringLiteral(ZK_PLUGIN_PATH);
    nm.start(QStringLiteral("nm"), args);
    if (!nm.waitForFinished(30000) || nm.exitCode() != 0)
        return {};
    QList<Symbol> symbols;
    const QStringList lines
        = QString::fromLocal8Bit(nm.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        // "address type name"; the name may hold blanks once demangled.
        const QStringList parts = line.split(u' ');
        if (parts.size() >= 3 && parts[1].size() == 1)
            symbols.append(Symbol { parts[1][0], parts.mid(2).join(u' ') });
    }
    return symbols;
}

TEST(PluginExports, OnlyEntryPointsAndJobMethods)
{
    const QList<Symbol> symbols = exportedSymbols(false);
    if (symbols.isEmpty())
        GTEST_SKIP() << "nm is not available";
    QStringList names;
    for (const Symbol& s : symbols)
        names.append(s.name);
    EXPECT_TRUE(names.contains(QStringLiteral("pInfo")));
    EXPECT_TRUE(names.contains(QStringLiteral("pLoadSceneFile")));
    // Job methods live in the job namespaces; anything else leaked from the
    // parser, or is an inline Qt or standard-library function that an
    // unoptimised build emitted and the export map failed to keep local.
    const QRegularExpression jobSymbol(QStringLiteral("^_ZN?K?(3zkJ|4zkRA|4zkRS)"));
    for (const Symbol& s : symbols) {
        if (s.name == QLatin1String("pInfo") || s.name == QLatin1String("pLoadSceneFile"))
            continue;
        EXPECT_TRUE(jobSymbol.match(s.name).hasMatch()) << qPrintable(s.name);
    }
}

TEST(PluginExports, InternalFunctionsStayHidden)
{
    void* plugin = dlopen(ZK_PLUGIN_PATH, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(plugin, nullptr) << dlerror();
    EXPECT_NE(dlsym(plugin, "pInfo"), nullptr);
    EXPECT_NE(dlsym(plugin, "pLoadSceneFile"), nullptr);
    dlclose(plugin);

    const QList<Symbol> symbols = exportedSymbols(true);
    if (symbols.isEmpty())
        GTEST_SKIP() << "nm is not available";
    const char* internals[] = { "resetParserState", "loadOutNode", "loadCamNode", "loadWedgeNode",
        "loadLOPNode", "load_USD_RS_Node", "LineSource", "hVariables" };
    for (const char* internal : internals) {
        for (const Symbol& s : symbols)
            EXPECT_FALSE(s.name.contains(QLatin1String(internal))) << qPrintable(s.name);
    }
}

} // namespace
