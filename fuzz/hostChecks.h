// What the host relies on after pLoadSceneFile returns, checked on the raw
// records: any violation aborts, so the fuzzer records the input.
#pragma once

#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/loadResult.h"

#include <cstdio>
#include <cstdlib>
#include <initializer_list>

// The checks are not part of what is fuzzed: left to the coverage
// instrumentation, their byte loops over every record's custom data would
// take a tenth of each input's time and add features that say nothing about
// the plugin.
#define ZK_NOT_FUZZED __attribute__((no_sanitize("coverage")))

namespace zkFuzz {

[[noreturn]] inline void fail(const char* what, int job)
{
    std::fprintf(stderr, "host check failed: %s (job %d)\n", what, job);
    std::abort();
}

/// Either string kind: `_zkString` or `_zkString8_allSize`.
template <template <int> class Text, int N>
ZK_NOT_FUZZED void checkText(const Text<N>& s, const char* what, int job)
{
    if (s.length > N)
        fail(what, job);
    if (s.data[s.length] != 0)
        fail(what, job);
}

/// The custom data block as its readers walk it: the counters inside the
/// 4000 bytes, one well-formed table entry per counted entry ending exactly
/// where the values start, and every value inside the used bytes.
ZK_NOT_FUZZED inline void checkCustomData(const zkJ::_JobSettingsScene& s, int job)
{
    constexpr int Bytes = zkJ::_JobSettingsScene::CustomDataBytes;
    const int start = s.customDataValuesStart;
    const int used = s.customDataUsed;
    if (s.customDataCount < 0 || start < 0 || used < start || used > Bytes)
        fail("custom data counters", job);
    const unsigned char* d = s.customData;
    int o = 0;
    for (int k = 0; k < s.customDataCount; ++k) {
        if (o + 6 > start || (d[o] != 'c' && d[o] != 'u'))
            fail("custom data entry", job);
        const int valueAt = (d[o + 1] << 8) | d[o + 2];
        const int length = (d[o + 3] << 8) | d[o + 4];
        const int width = d[o] == 'u' ? 2 : 1;
        if (valueAt < start || valueAt + length * width > used)
            fail("custom data value range", job);
        int end = o + 5;
        while (end < start && d[end] != 0)
            ++end;
        if (end >= start)
            fail("custom data name", job);
        o = end + 1;
    }
    if (o != start)
        fail("custom data table end", job);
    for (int i = used; i < Bytes; ++i) {
        if (d[i] != 0)
            fail("custom data bytes behind the used part", job);
    }
}

ZK_NOT_FUZZED inline void checkJob(const zkJ::_JobBasics_largePath& j, int job)
{
    if (j.structureID != zkJ::JobStructureID || j.structureVersion != zkJ::JobStructureVersion)
        fail("record identity", job);
    const zkRA::_RenderAppBasic& app = j.renderApp;
    checkText(app.appName, "appName", job);
    checkText(app.rendererName, "rendererName", job);
    checkText(app.rendererNameExtra, "rendererNameExtra", job);
    checkText(app.appType, "appType", job);
    checkText(app.rendererVersion, "rendererVersion", job);
    checkText(app.versionMinor, "versionMinor", job);
    for (const auto* s : { &j.camera, &j.layer })
        checkText(*s, "camera/layer", job);
    for (const auto* s : { &j.channel, &j.sceneState, &j.auxName, &j.colorSpace })
        checkText(*s, "channel/sceneState/auxName/colorSpace", job);
    for (const auto* s : { &j.auxText, &j.renderLicenses })
        checkText(*s, "auxText/renderLicenses", job);
    checkText(j.imageFormatOverride, "imageFormatOverride", job);
    for (const auto& row : j.shortNameTable) {
        for (const auto& s : row)
            checkText(s, "shortNameTable", job);
    }
    for (const auto* s : { &j.imageStereoL, &j.imageStereoM, &j.imageStereoR })
        checkText(*s, "imageStereo", job);
    if (j.waitForPreIDCount > sizeof(j.waitForPreIDs))
        fail("waitForPreIDCount", job);
    checkText(j.shotgunID, "shotgunID", job);
    checkText(j.auxShortText1, "auxShortText1", job);
    checkText(j.auxShortText2, "auxShortText2", job);
    for (const auto* s : { &j.sceneName, &j.sceneDatabaseDir, &j.auxPath, &j.imageDir,
             &j.imageFileName, &j.auxImageName })
        checkText(*s, "path field", job);
    checkText(j.imageExtension, "imageExtension", job);
    for (const zkJ::_channelSlot& c : j.channels) {
        checkText(c.fileName, "channel file name", job);
        checkText(c.extension, "channel extension", job);
    }
    checkText(j.seqFrameSet, "seqFrameSet", job);
    checkCustomData(j, job);
    for (const auto* s :
        { &j.settingText1, &j.settingText2, &j.settingText3, &j.settingText4, &j.settingText5 })
        checkText(*s, "settingText1-5", job);
    checkText(j.settingText6, "settingText6", job);
}

/// Everything the host reads after a load of a readable scene into a valid array.
ZK_NOT_FUZZED inline void checkLoad(int result, const zkJ::_JobBasicsArray& jobs)
{
    // No node reader ends a load with a code of its own, so every result is
    // one of LoadResults; on a valid array and a readable scene a refusal or
    // an escaped exception is a fault as well.
    if (!isLoadResult(result))
        fail("result code", -1);
    if (result == LoadCannotOpen || result == LoadUnsupportedArray || result == LoadInternalError)
        fail("refused or threw on a readable scene", -1);
    if (jobs.structureID != zkJ::JobStructureID || jobs.structureVersion != zkJ::JobStructureVersion
        || jobs.recordSize != sizeof(zkJ::_JobBasics_largePath))
        fail("array header", -1);
    checkText(jobs.arrayText, "arrayText", -1);
    if (jobs.count < 0 || jobs.count > jobs.allocated || jobs.allocated > zkJ::MaxJobRecords)
        fail("count within the allocated records", -1);
    if (jobs.allocated > 0 && !jobs.records)
        fail("records", -1);
    if (result == LoadOnlyEmptyDrivers && jobs.count != 0)
        fail("result 25 with jobs", -1);
    for (int i = 0; i < jobs.count; ++i)
        checkJob(jobs.records[i], i);
}

} // namespace zkFuzz
