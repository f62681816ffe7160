// Job record layers and the job array shared with the host.
//
// The host reads these records as raw memory by offset, allocates them with
// calloc/realloc and moves them with memcpy: every offset, size and default
// below is a binary interface and is pinned by a static_assert under its type.
// The first layer is packed to 2 bytes with explicit gap fields so that the
// large-path layer can start right at its end (offset 3686); the settings part
// holds doubles and is packed to 4.
#pragma once

#include "shared/zkShared.h"
#include "shared/zkString.h"
#include "zkJobsExport.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <type_traits>

namespace zkRA {

#pragma pack(push, 2)
/// Application and renderer of a job (264 bytes).
struct ZK_JOBS_EXPORT _RenderAppBasic
{
    short versionMajor;
    unsigned char reserved2[4];
    _zkString<25> appName;
    _zkString<25> rendererName;
    _zkString<25> rendererNameExtra;
    _zkString<15> appType;
    _zkString<15> rendererVersion;
    _zkString8_allSize<15> versionMinor;

    /// versionMinor, without its dots when \p removeDot, with trailing "0"s
    /// dropped while it is longer than \p minDigits.
    QString getVersionMinorDisplay(bool const& removeDot, unsigned char const& minDigits) const;
    /// Keeps the first five characters of \p text (8-bit), padded right with "0" to five.
    void setVersionMinor(QString text);
};
#pragma pack(pop)

} // namespace zkRA

namespace zkJ {

/// Records per job array at most: a hostile scene must not drive the host out
/// of memory. The fuzz build lowers it (the sanitizer's realloc copies the
/// whole block on every growth), so that inputs reach the cap cheaply.
#ifndef ZK_MAX_JOB_RECORDS
#    define ZK_MAX_JOB_RECORDS 10000
#endif
constexpr int MaxJobRecords = ZK_MAX_JOB_RECORDS;

/// Structure tag and layout version of records and arrays.
constexpr unsigned short JobStructureID = 1033;
constexpr unsigned short JobStructureVersion = 1;

/// Value kinds of custom data entries.
enum CUSTOMData_Modes : int {
    CUSTOMData_Mode16bit = 0, ///< stored as "u", two bytes per character
    CUSTOMData_Mode8bit = 1, ///< stored as "c", one byte per character
};

#pragma pack(push, 2)

/// First record layer: identity, application, names, resolution, IDs, flags.
struct ZK_JOBS_EXPORT _JobBasics_noSettings_noPaths
{
    unsigned short structureID;
    unsigned short structureVersion;
    unsigned char structureReserved[16];
    unsigned char initMarker;
    unsigned char sceneOS;
    zkRA::_RenderAppBasic renderApp;
    _zkString<150> camera;
    _zkString<150> layer;
    _zkString<100> channel;
    _zkString<100> sceneState;
    _zkString<100> auxName;
    _zkString<100> colorSpace;
    _zkString<200> auxText;
    _zkString<200> renderLicenses;
    _passHash commandPassword;
    unsigned short imageWidth;
    unsigned short imageHeight;
    unsigned char auxByte1;
    bool imageSingleOutputFile;
    unsigned char auxByte2;
    unsigned char gap2561;
    _zkString<15> imageFormatOverride;
    signed char imageMulti;
    unsigned char gap2599;
    _zkString<10> shortNameTable[10][3];
    _zkString<10> imageStereoL;
    _zkString<10> imageStereoM;
    _zkString<10> imageStereoR;
    unsigned char gap3458[2];
    unsigned long long ID;
    unsigned char preID;
    unsigned char waitForPreIDCount;
    unsigned char waitForPreIDs[30];
    unsigned char auxByte3;
    unsigned char gap3501;
    _zkString8_allSize<50> shotgunID;
    _zkString8_allSize<20> auxShortText1;
    unsigned char PNL;
    unsigned char padding;
    _zkString8_allSize<20> auxShortText2;
    unsigned char reservedTail[80];

    _JobBasics_noSettings_noPaths() = default;
    _JobBasics_noSettings_noPaths(const _JobBasics_noSettings_noPaths&) = default;
    /// Field-wise copy: strings copy their length and whole array; the reserved
    /// unit of each string and the gap bytes keep the target's values.
    _JobBasics_noSettings_noPaths& operator=(const _JobBasics_noSettings_noPaths& other);

    /// structureID 1033, structureVersion 1, structureReserved zero; nothing else.
    void setStructureIDs();
    /// Stores only the 16-byte digest of \p password.
    void setCommandPassword(const _zkString8_allSize<40>& password);
    /// True when no password is set (empty hash) or \p hash matches the stored one.
    bool isRightCommandPW(const _passHash& hash) const;
    /// Appends while fewer than 29 entries are in use.
    void addWaitForPreID(const unsigned char& preID);
    /// Writes at \p index clamped to 0..29 and cuts the list behind it.
    void setWaitForPreID(int index, const unsigned char& preID);
};

/// Compact form: 500/250-unit paths and a packed channel table.
struct ZK_JOBS_EXPORT _JobBasics_noSettings : _JobBasics_noSettings_noPaths
{
    static constexpr int MaxChannels = 100;
    static constexpr int ChannelBufferLimit = 7999;

    unsigned char gap3686[6];
    _zkString<500> sceneName;
    _zkString<500> sceneDatabaseDir;
    _zkString<500> auxPath;
    _zkString<500> imageDir;
    _zkString<250> imageFileName;
    _zkString<250> auxImageName;
    _zkString<25> imageExtension;
    unsigned char auxByte4;
    unsigned char channelCount;
    short channelStart[100];
    short channelFileNameLength[100];
    short channelExtensionLength[100];
    unsigned short channelBuffer[8000];
    unsigned short channelBufferUsed;

    void channelClear();
    void channelClearUnusedBuffer();
    void channelAdd(const _zkString<500>& fileName, const _zkString<25>& extension);
    _zkString<500> channelFileName(int k) const;
    _zkString<25> channelExtension(int k) const;
    void channelSetFileName(int k, const _zkString<500>& fileName);
    void channelSetExtension(int k, const _zkString<25>& extension);
    void channelSet(int k, const _zkString<500>& fileName, const _zkString<25>& extension);
    void channelRemove(int k);

private:
    /// Replaces \p oldLen units at \p pos by \p text, moving the rest of the buffer.
    void channelReplaceText(int k, int pos, int oldLen, const unsigned short* text, int newLen);
};

/// One extra output channel of a large-path record; an empty file name means no channel.
struct _channelSlot
{
    _zkString<1000> fileName;
    _zkString<25> extension;
};

/// Large-path form: 1000-unit paths and 100 fixed channel slots.
struct ZK_JOBS_EXPORT _JobBasics_noSettings_largePath : _JobBasics_noSettings_noPaths
{
    _zkString<1000> sceneName;
    _zkString<1000> sceneDatabaseDir;
    _zkString<1000> auxPath;
    _zkString<1000> imageDir;
    _zkString<1000> imageFileName;
    _zkString<1000> auxImageName;
    _zkString<25> imageExtension;
    unsigned char auxByte4;
    unsigned char gap15779;
    _channelSlot channels[100];
};

#pragma pack(pop)

#pragma pack(push, 4)

/// Frame range, frame set, custom data block and settings texts (4988 bytes).
struct ZK_JOBS_EXPORT _JobSettingsScene
{
    static constexpr int CustomDataBytes = 4000;

    unsigned char reserved0[4];
    double seqStart;
    double seqEnd;
    unsigned char reserved20[8];
    _zkString8_allSize<150> seqFrameSet;
    unsigned short seqStep;
    unsigned char reserved184[4];
    int customDataCount;
    int customDataUsed;
    int customDataValuesStart;
    unsigned char customData[4000];
    _zkString<50> settingText1;
    _zkString<50> settingText2;
    _zkString<50> settingText3;
    _zkString<50> settingText4;
    _zkString<50> settingText5;
    _zkString<100> settingText6;
    unsigned char settingsReservedTail[52];

    // ---- custom data: reading ----------------------------------------------
    QString customData_sub(const int& start, const int& length, const CUSTOMData_Modes& mode) const;
    QString customData_Str(const QString& name) const;
    bool customData_Contains(const QString& name) const;
    int customData_maxIDs() const;
    QString customData_NameByID(const int& id) const;
    QString customData_StrByID(const int& id) const;
    void customData_All(QStringList& names, QStringList& values) const;
    void customData_All(_varValList& list) const;
    QString customData_UserInfo() const;
    QString customData_CommentInfo() const;
    bool customData_ContainCommentInfo() const;
    QString customData_AllAsString() const;
    _zkString8_allSize<5000> customData_allValuesAsBlock_Uppercase() const;
    bool customData_isEqual(_JobSettingsScene* other) const;

    // ---- custom data: writing (every writer rebuilds the whole block) ------
    void customDataSet_All(const QStringList& names, const QStringList& values);
    void customDataSet_All(const _varValList& list);
    void customDataSet_Str(const QString& name, const QString& value);
    void customDataSet_StrByID(const int& id, const QString& value);
    void customDataAppend_Str(const QString& name, const QString& value);
    void customDataSet_UserInfo(const QString& value);
    void customDataSet_CommentInfo(const QString& value);
    void customData_ClearAll();
};

/// Compact job record (30376 bytes).
struct ZK_JOBS_EXPORT _JobBasics : _JobBasics_noSettings, _JobSettingsScene
{
    _JobBasics();
    _JobBasics(const _JobBasics&) = default;
    _JobBasics& operator=(const _JobBasics&) = default;

    /// Zeroes the record and sets the defaults, including the three "<auto>" texts.
    void initialize();
    /// As initialize(), but the first 20 bytes keep their values.
    void zkClearBasics();

    QString IDstr() const;
    QString ID2str() const;
    QString IDstrFull() const;
    QString ID2strFull() const;
    unsigned long long IDmain() const;
    unsigned char IDpre() const;

    void splitImageFileInto_DirFileExt(const bool& printfStyle);
    void splitImageFileInto_DirFileExt_Channel(const bool& printfStyle);

    _varValList exportJobVarList_Basic(const bool& flag) const;
    QString getSceneDisplayName() const;
    QString authStr() const;
};

/// Large-path job record (226968 bytes): the element type of the job array.
struct ZK_JOBS_EXPORT _JobBasics_largePath : _JobBasics_noSettings_largePath, _JobSettingsScene
{
    _JobBasics_largePath();
    _JobBasics_largePath(const _JobBasics_largePath&) = default;
    _JobBasics_largePath& operator=(const _JobBasics_largePath&) = default;

    /// Zeroes the record and sets the defaults (no "<auto>" texts).
    void initialize();
    /// As initialize(), but the first 20 bytes keep their values.
    void zkClearBasics();

    /// Converts into the compact form: paths cut to 500/250/25 units, channel
    /// slots packed while they fit.
    void toJobsBasic(_JobBasics& target) const;

    void splitImageFileInto_DirFileExt(const bool& printfStyle);
    void splitImageFileInto_DirFileExt_Channel(const bool& printfStyle);
    void replaceSquareBracketVariables();
};

#pragma pack(pop)

/// Splits an image path into directory, file name, frame padding and
/// extension; explicitly instantiated for (500, 250), (500, 500) and (1000, 1000).
template <int DirCap, int FileCap>
ZK_JOBS_EXPORT void template_splitImageFileInto_DirFileExt(const bool& printfStyle,
    _zkString<FileCap>& fileName, _zkString<DirCap>& dir, _zkString<25>& extension,
    bool& singleFile, unsigned char& padding, _zkString<DirCap> databaseDir,
    _zkString<DirCap> sceneName);

/// The host's array of large-path job records (2032 bytes).
struct ZK_JOBS_EXPORT _JobBasicsArray
{
    unsigned short structureID;
    unsigned short structureVersion;
    _zkString<1000> arrayText;
    unsigned char gap2010[2];
    unsigned int recordSize;
    int count;
    int allocated;
    _JobBasics_largePath* records;

    _JobBasicsArray();
    ~_JobBasicsArray();
    _JobBasicsArray(const _JobBasicsArray&) = delete;
    _JobBasicsArray& operator=(const _JobBasicsArray&) = delete;

    /// count 0 and arrayText emptied; the allocation is kept for reuse.
    void clear();
    /// Grows to exactly \p size records. Refuses (false, nothing changed) a size
    /// above MaxJobRecords or a failed allocation.
    bool setArraySize(const int& size);
    /// Record \p index, or null when it is not below allocated.
    _JobBasics_largePath* at(const int& index);
    bool isVersionSupported(unsigned char minVersion) const;
    /// Hands out the next record, reinitialised but keeping its first 20 bytes.
    bool getNewJob(_JobBasics_largePath*& job);
};

} // namespace zkJ

// ---- layout pins -----------------------------------------------------------
// The record layers use inheritance, which is not standard layout in C++
// terms; GCC still lays them out deterministically and offsetof gives the
// byte offsets the host relies on, so the warning is silenced for the pins.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

#define ZK_PIN(T, field, off) static_assert(offsetof(T, field) == (off), #T "::" #field)

static_assert(sizeof(zkRA::_RenderAppBasic) == 264, "_RenderAppBasic size");
ZK_PIN(zkRA::_RenderAppBasic, versionMajor, 0);
ZK_PIN(zkRA::_RenderAppBasic, reserved2, 2);
ZK_PIN(zkRA::_RenderAppBasic, appName, 6);
ZK_PIN(zkRA::_RenderAppBasic, rendererName, 62);
ZK_PIN(zkRA::_RenderAppBasic, rendererNameExtra, 118);
ZK_PIN(zkRA::_RenderAppBasic, appType, 174);
ZK_PIN(zkRA::_RenderAppBasic, rendererVersion, 210);
ZK_PIN(zkRA::_RenderAppBasic, versionMinor, 246);

static_assert(sizeof(zkJ::_JobBasics_noSettings_noPaths) == 3686, "first layer size");
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, structureID, 0);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, structureVersion, 2);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, structureReserved, 4);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, initMarker, 20);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, sceneOS, 21);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, renderApp, 22);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, camera, 286);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, layer, 592);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, channel, 898);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, sceneState, 1104);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, auxName, 1310);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, colorSpace, 1516);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, auxText, 1722);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, renderLicenses, 2128);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, commandPassword, 2534);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, imageWidth, 2554);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, imageHeight, 2556);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, auxByte1, 2558);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, imageSingleOutputFile, 2559);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, auxByte2, 2560);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, imageFormatOverride, 2562);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, imageMulti, 2598);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, shortNameTable, 2600);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, imageStereoL, 3380);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, imageStereoM, 3406);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, imageStereoR, 3432);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, ID, 3460);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, preID, 3468);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, waitForPreIDCount, 3469);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, waitForPreIDs, 3470);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, auxByte3, 3500);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, shotgunID, 3502);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, auxShortText1, 3556);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, PNL, 3580);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, padding, 3581);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, auxShortText2, 3582);
ZK_PIN(zkJ::_JobBasics_noSettings_noPaths, reservedTail, 3606);
static_assert(sizeof(zkJ::_JobBasics_noSettings_noPaths::shortNameTable) == 780, "shortNameTable");

static_assert(sizeof(zkJ::_JobBasics_noSettings) == 25388, "compact layer size");
ZK_PIN(zkJ::_JobBasics_noSettings, gap3686, 3686);
ZK_PIN(zkJ::_JobBasics_noSettings, sceneName, 3692);
ZK_PIN(zkJ::_JobBasics_noSettings, sceneDatabaseDir, 4698);
ZK_PIN(zkJ::_JobBasics_noSettings, auxPath, 5704);
ZK_PIN(zkJ::_JobBasics_noSettings, imageDir, 6710);
ZK_PIN(zkJ::_JobBasics_noSettings, imageFileName, 7716);
ZK_PIN(zkJ::_JobBasics_noSettings, auxImageName, 8222);
ZK_PIN(zkJ::_JobBasics_noSettings, imageExtension, 8728);
ZK_PIN(zkJ::_JobBasics_noSettings, auxByte4, 8784);
ZK_PIN(zkJ::_JobBasics_noSettings, channelCount, 8785);
ZK_PIN(zkJ::_JobBasics_noSettings, channelStart, 8786);
ZK_PIN(zkJ::_JobBasics_noSettings, channelFileNameLength, 8986);
ZK_PIN(zkJ::_JobBasics_noSettings, channelExtensionLength, 9186);
ZK_PIN(zkJ::_JobBasics_noSettings, channelBuffer, 9386);
ZK_PIN(zkJ::_JobBasics_noSettings, channelBufferUsed, 25386);

static_assert(sizeof(zkJ::_channelSlot) == 2062, "channel slot size");
static_assert(sizeof(zkJ::_JobBasics_noSettings_largePath) == 221980, "large-path layer size");
ZK_PIN(zkJ::_JobBasics_noSettings_largePath, sceneName, 3686);
ZK_PIN(zkJ::_JobBasics_noSettings_largePath, sceneDatabaseDir, 5692);
ZK_PIN(zkJ::_JobBasics_noSettings_largePath, auxPath, 7698);
ZK_PIN(zkJ::_JobBasics_noSettings_largePath, imageDir, 9704);
ZK_PIN(zkJ::_JobBasics_noSettings_largePath, imageFileName, 11710);
ZK_PIN(zkJ::_JobBasics_noSettings_largePath, auxImageName, 13716);
ZK_PIN(zkJ::_JobBasics_noSettings_largePath, imageExtension, 15722);
ZK_PIN(zkJ::_JobBasics_noSettings_largePath, auxByte4, 15778);
ZK_PIN(zkJ::_JobBasics_noSettings_largePath, channels, 15780);

static_assert(sizeof(zkJ::_JobSettingsScene) == 4988, "settings size");
ZK_PIN(zkJ::_JobSettingsScene, reserved0, 0);
ZK_PIN(zkJ::_JobSettingsScene, seqStart, 4);
ZK_PIN(zkJ::_JobSettingsScene, seqEnd, 12);
ZK_PIN(zkJ::_JobSettingsScene, reserved20, 20);
ZK_PIN(zkJ::_JobSettingsScene, seqFrameSet, 28);
ZK_PIN(zkJ::_JobSettingsScene, seqStep, 182);
ZK_PIN(zkJ::_JobSettingsScene, reserved184, 184);
ZK_PIN(zkJ::_JobSettingsScene, customDataCount, 188);
ZK_PIN(zkJ::_JobSettingsScene, customDataUsed, 192);
ZK_PIN(zkJ::_JobSettingsScene, customDataValuesStart, 196);
ZK_PIN(zkJ::_JobSettingsScene, customData, 200);
ZK_PIN(zkJ::_JobSettingsScene, settingText1, 4200);
ZK_PIN(zkJ::_JobSettingsScene, settingText2, 4306);
ZK_PIN(zkJ::_JobSettingsScene, settingText3, 4412);
ZK_PIN(zkJ::_JobSettingsScene, settingText4, 4518);
ZK_PIN(zkJ::_JobSettingsScene, settingText5, 4624);
ZK_PIN(zkJ::_JobSettingsScene, settingText6, 4730);
ZK_PIN(zkJ::_JobSettingsScene, settingsReservedTail, 4936);

static_assert(sizeof(zkJ::_JobBasics) == 30376, "compact record size");
static_assert(sizeof(zkJ::_JobBasics_largePath) == 226968, "large-path record size");
ZK_PIN(zkJ::_JobBasics, sceneName, 3692);
ZK_PIN(zkJ::_JobBasics, seqStart, 25388 + 4);
ZK_PIN(zkJ::_JobBasics, customDataCount, 25388 + 188);
ZK_PIN(zkJ::_JobBasics, settingText2, 25388 + 4306);
ZK_PIN(zkJ::_JobBasics_largePath, sceneName, 3686);
ZK_PIN(zkJ::_JobBasics_largePath, channels, 15780);
ZK_PIN(zkJ::_JobBasics_largePath, seqStart, 221980 + 4);
ZK_PIN(zkJ::_JobBasics_largePath, customDataCount, 221980 + 188);
ZK_PIN(zkJ::_JobBasics_largePath, settingsReservedTail, 221980 + 4936);
static_assert(!std::is_polymorphic_v<zkJ::_JobBasics_largePath>, "plain memory, no vtable");
static_assert(!std::is_polymorphic_v<zkJ::_JobBasics>, "plain memory, no vtable");
static_assert(std::is_trivially_destructible_v<zkJ::_JobBasics_largePath>, "freed with free()");
static_assert(
    std::is_trivially_copy_constructible_v<zkJ::_JobBasics_largePath>, "copied with memcpy");

static_assert(sizeof(zkJ::_JobBasicsArray) == 2032, "job array size");
ZK_PIN(zkJ::_JobBasicsArray, structureID, 0);
ZK_PIN(zkJ::_JobBasicsArray, structureVersion, 2);
ZK_PIN(zkJ::_JobBasicsArray, arrayText, 4);
ZK_PIN(zkJ::_JobBasicsArray, recordSize, 2012);
ZK_PIN(zkJ::_JobBasicsArray, count, 2016);
ZK_PIN(zkJ::_JobBasicsArray, allocated, 2020);
ZK_PIN(zkJ::_JobBasicsArray, records, 2024);

#undef ZK_PIN
#pragma GCC diagnostic pop
