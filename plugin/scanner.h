// The pass over a scene file: global lines are read here, node sections are
// handed to their readers.
#pragma once

#include "plugin/lineSource.h"
#include "plugin/loadContext.h"
#include "plugin/loadResult.h"
#include "plugin/readers/readerCommon.h"

#include <QString>
#include <QStringList>
#include <QStringView>

/// What one scan learns that is not module state; the completion pass and
/// the fan-out work from it.
struct ScanResult
{
    /// LoadOk, or the code of the reader that ended the scan.
    LoadResult result = LoadOk;
    /// "take name" entries in file order.
    QStringList takes;
    /// The saved Houdini version as written, such as "19.5.303".
    QString houdiniVersion;
    int houdiniMajor = 10;
    /// Minor version for the job records ("5.303", or "5" with the build switch).
    QString houdiniMinorForJobs;
    /// Minor version for the output-driver reader ("5303", or "5" with the build switch).
    QString houdiniMinorForReaders;
    /// Set by the output-driver reader when a driver renders per take.
    bool takeFound = false;
    bool buildVersionSwitch = false;
    bool compressedExportSwitch = false;
};

/// Which reader a section header goes to.
enum class SectionKind {
    None, ///< not a section the parser reads; its lines are scanned as ordinary lines
    Wedge,
    Camera,
    UsdRenderSettings,
    Lop,
    OutNode,
};

/// The reader for a trimmed line, None for anything that is no section header.
SectionKind sectionKind(QStringView line);

/// The readers a scan hands sections to. Loads use the defaults; tests put
/// recording stand-ins in their place.
struct SectionReaders
{
    using ElementReader = bool (*)(zkP::_dataPARS_LoadSceneFile*, LineSource&, QString&);
    using UsdReader = LoadResult (*)(zkP::_dataPARS_LoadSceneFile*, LineSource&, QString&);
    using OutReader = LoadResult (*)(
        zkP::_dataPARS_LoadSceneFile*, LineSource&, QString&, bool&, const int&, const QString&);

    ElementReader wedge = loadWedgeNode;
    ElementReader camera = loadCamNode;
    ElementReader lop = loadLOPNode;
    UsdReader usdRenderSettings = load_USD_RS_Node;
    OutReader outNode = loadOutNode;
};

/// How the scan picks the lines it decodes.
enum class ScanMode {
    /// Only lines whose bytes hold what some rule needs: the normal scan.
    Marked,
    /// Every line, decoded and tested by every rule: slow, and the reference
    /// that the marked scan must agree with.
    EveryLine,
};

/// Sets DatabaseDir and the "HIP" environment variables, then reads every
/// line of \p in, updating the module state and calling the readers.
ScanResult scanScene(const LoadContext& ctx, LineSource& in,
    const SectionReaders& readers = SectionReaders(), ScanMode mode = ScanMode::Marked);
