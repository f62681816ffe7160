// Job-wide constants, identifier forms, path helpers and log predicates.
//
// The constants have internal linkage on purpose: every module that includes
// this header gets its own copy, built by that module's static initialiser
// before any entry point runs, so no module depends on another's start order.
// Their order below is the order in which they are built.
#pragma once

#include "shared/zkString.h"
#include "zkJobsExport.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>

namespace zkJ {

// ---- text constants ----------------------------------------------------------

static const QString LineEnd = QStringLiteral("\n");
static const QByteArray LineEndB = QByteArrayLiteral("\n");
static const QString PDs = QStringLiteral("/");
/// File names that stand for jobs without an image output.
static const QString NoOutputCheckname_new = QStringLiteral("no_check.file");
static const QString NoOutputExecOnce_new = QStringLiteral("execOnce.file");
static const QString NoOutputExecEachClient_new = QStringLiteral("execEachClient.file");
static const QString ExecuteSoftName = QStringLiteral("Execute");
static const QString PythonSoftName = QStringLiteral("Python");
static const QString CommandJobName = QStringLiteral("CommandJob");
/// Custom-data keys the host and its submitters know.
static const QString CUSTOMEnvName = QStringLiteral("zkEnvFile");
static const QString CUSTOMEnvLineName_deprecated = QStringLiteral("zkEnvLine");
static const QString CUSTOMEnvLineName = QStringLiteral("zkEnvList");
static const QString CUSTOMSubmitterParameter = QStringLiteral("zkSubmitterParameter");
static const QString CUSTOMSubmitClientGroup = QStringLiteral("SubmitClientGroup");
static const QString CUSTOMSubmitter_NoSceneExistCheck = QStringLiteral("NoSceneExistCheck");
static const QString CUSTOMAdditionalCommandlineFlags = QStringLiteral("AddCmdFlags");
static const char CUSTOMUserInfoName[] = "UserInfo";
static const char CUSTOMCommentInfoName[] = "Comment";
/// Digit tables of the identifier texts: no "I"/"0" and no "i"/"m", which
/// users misread.
static const QString ID_letters = QStringLiteral("ABCDEFGHJKLMNOPQRSTUVWXYZ123456789+-");
static const QString ID_letters_small = QStringLiteral("abcdefghjklnopqrstuvwxyz");

} // namespace zkJ

namespace zkRS {

#pragma pack(push, 4)
/// One per-job submitter parameter as the host's submitter offers it (704 bytes).
struct _jobParam
{
    unsigned int paramTypeA;
    unsigned int paramTypeB;
    unsigned char paramFlag1;
    unsigned char paramFlag2;
    unsigned char gap10[2];
    int defaultValue;
    int minValue;
    int maxValue;
    _zkString8_allSize<50> paramName;
    _zkString8_allSize<100> paramOptions[6];
    unsigned char gap702[2];
};
#pragma pack(pop)

static_assert(sizeof(_jobParam) == 704, "parameter slot size");
static_assert(offsetof(_jobParam, paramTypeA) == 0, "paramTypeA");
static_assert(offsetof(_jobParam, paramTypeB) == 4, "paramTypeB");
static_assert(offsetof(_jobParam, paramFlag1) == 8, "paramFlag1");
static_assert(offsetof(_jobParam, paramFlag2) == 9, "paramFlag2");
static_assert(offsetof(_jobParam, defaultValue) == 12, "defaultValue");
static_assert(offsetof(_jobParam, minValue) == 16, "minValue");
static_assert(offsetof(_jobParam, maxValue) == 20, "maxValue");
static_assert(offsetof(_jobParam, paramName) == 24, "paramName");
static_assert(offsetof(_jobParam, paramOptions) == 78, "paramOptions");
static_assert(offsetof(_jobParam, gap702) == 702, "tail");

constexpr int ParamSlots = 28;
using _jobParamArray = std::array<_jobParam, ParamSlots>;

/// The table as the submitters expect it: slots 0 to 17 defined, the rest zero.
_jobParamArray makeParamArray();

static const _jobParamArray zkParamArray = makeParamArray();

} // namespace zkRS

namespace zkJ {

static const _zkString8_allSize<50> noAccessDescriptionShort("?update?");
static const _zkString8_allSize<50> noAccessDescriptionShort_noprojectroot("!NoProjectRootAccess!");

// ---- identifiers -------------------------------------------------------------

#pragma pack(push, 1)
/// A 64-bit job identifier viewed as its little-endian parts.
struct ZK_JOBS_EXPORT _IDDecomp
{
    unsigned char preNumber; ///< 0 for a main job, k+1 for its k-th pre-job
    unsigned char extraByte1;
    unsigned char extraByte2;
    unsigned int mainNumber;
    unsigned char unused7;

    void fromID(const unsigned long long& id);
    /// "{ABC }" / "{ABCa}".
    QString str() const;
    /// "ABC_DEFG" / "ABCa_DEFG": unique where the short form is not.
    QString strFull() const;
};

/// The printable part of an identifier packed into 32 bits.
struct ZK_JOBS_EXPORT _IDShort
{
    unsigned char preNumber;
    unsigned short mainLow; ///< (mainNumber / 10000) mod 65536
    unsigned char mainHigh; ///< mainNumber / 655360000

    void fromID(const unsigned long long& id);
    void fromIDDecomp(_IDDecomp id);
    void fromInt32(unsigned int v);
    unsigned int int32() const;
    /// The short form of the identifier it was made from.
    QString str() const;
};
#pragma pack(pop)

static_assert(sizeof(_IDDecomp) == 8, "one 64-bit identifier");
static_assert(offsetof(_IDDecomp, mainNumber) == 3, "mainNumber at byte 3");
static_assert(sizeof(_IDShort) == 4, "32-bit packing");

ZK_JOBS_EXPORT QString ID2str(const unsigned long long& id);
ZK_JOBS_EXPORT QString ID2strFull(const unsigned long long& id);

// ---- path helpers --------------------------------------------------------------

/// Turns the square-bracket spellings users type ("[Layer]") into job tokens
/// ("<Layer>"); texts without both brackets are left alone.
ZK_JOBS_EXPORT void replaceSquareBracketVariablesSub(_zkString<1000>& text);

/// Cuts up to three parts (sequence, shot, version...) from the front of \p name.
/// A prefix "none" leaves that output untouched.
ZK_JOBS_EXPORT void getSSV(QString name, _zkString<50>& first, _zkString<50>& second,
    _zkString<50>& third, QString prefix1, QString prefix2, QString prefix3, QString suffix1,
    QString suffix2, QString suffix3, int length1, int length2);

/// Directory levels \p no to \p no + \p count - 1 of \p path, joined by "_".
ZK_JOBS_EXPORT QString getDirectoryNo(QString path, int no, int count);
/// The beginning of \p path up to and including the separator behind level
/// \p no + \p count - 1.
ZK_JOBS_EXPORT QString getDirectoryUntilNo(QString path, int no, int count);

// ---- log messages --------------------------------------------------------------

/// A message of the host's log protocol; only its leading type is read here.
struct _LogMessage
{
    unsigned int type;
};

ZK_JOBS_EXPORT bool log_IsClientSegmentClosed(const _LogMessage& m);
ZK_JOBS_EXPORT bool log_hasFrameSegment(const _LogMessage& m);

} // namespace zkJ
