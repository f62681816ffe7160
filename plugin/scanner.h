// The pass over a scene file: global lines are read here, node sections are
// handed to their readers.
#pragma once

#include "plugin/lineSource.h"
#include "plugin/loadResult.h"
#include "plugin/readers/readerCommon.h"
#include "plugin/scene.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>

/// Which reader a section header goes to.
enum class SectionKind {
    None, ///< not a section the parser reads; its lines are scanned as ordinary lines
    Wedge,
    Camera,
    UsdRenderSettings,
    Lop,
    OutNode,
};
constexpr int SectionKindCount = int(SectionKind::OutNode) + 1;

/// The reader for a trimmed line, None for anything that is no section header.
SectionKind sectionKind(QStringView line);

/// The reader of each section kind, indexed by SectionKind; None has none.
/// Loads use the defaults; tests put recording stand-ins in their place.
struct SectionReaders
{
    std::array<SectionReader, SectionKindCount> byKind { nullptr, readWedgeSection,
        readCameraSection, readRenderSettingsSection, readLopSection, readDriverSection };

    SectionReader& operator[](SectionKind kind) { return byKind[size_t(kind)]; }
    SectionReader operator[](SectionKind kind) const { return byKind[size_t(kind)]; }
};

/// How the scan picks the lines it decodes.
enum class ScanMode {
    /// Only lines whose bytes hold what some rule needs: the normal scan.
    Marked,
    /// Every line, decoded and tested by every rule: slow, and the reference
    /// that the marked scan must agree with.
    EveryLine,
};

/// Sets the scene's folder and the "HIP" environment variables, then reads
/// every line of \p in into \p scene, handing sections to their readers.
/// LoadOk, or the result of the reader that ended the scan.
LoadResult scanScene(Scene& scene, LineSource& in, const SectionReaders& readers = SectionReaders(),
    ScanMode mode = ScanMode::Marked);
