// The renderers an output driver can use, one row each. The output-driver
// reader marks the renderers a section's lines name; the job builders, the
// completion pass and the version overrides read the rows.
#pragma once

#include <QLatin1String>
#include <QString>

#include <array>

extern const char* const zkVersion;

/// The application of every job Houdini itself runs (exports, caches, renders).
extern const QString appNameHoudini;
/// The renderer name a stand-alone render job gets for the Houdini that exported its files.
extern const QString appNameHoudini_Archive;

/// In the order a driver's renderer is chosen: when a section's lines name
/// several, the first of them in this order is the driver's. Mantra, last,
/// is what a driver that names none exports with.
enum class Renderer {
    Usd,
    Arnold,
    OpenGl,
    Geometry,
    Redshift,
    RenderMan,
    Alembic,
    VRay,
    Mantra,
};
constexpr int RendererCount = int(Renderer::Mantra) + 1;

/// A set of renderers, one bit each.
using RendererSet = unsigned;
constexpr RendererSet bit(Renderer r)
{
    return RendererSet(1) << int(r);
}

struct RendererRow
{
    /// The job's renderer name when the driver renders itself; empty for none.
    QLatin1String renderName;
    /// The export job's renderer name; empty when the renderer has no export pair.
    QLatin1String exportName;
    /// The stand-alone application that renders an export's files.
    const QString* application;
    /// The application for an export written as one file, where it differs.
    const QString* singleFileApplication;
    /// The submitter argument whose next argument is this renderer's version.
    QLatin1String versionArgument;
    /// The parameters whose value switches the driver to export; empty for none.
    std::array<QLatin1String, 2> exportToggles;
    /// Renderers whose marks, once read, make this renderer's export toggles
    /// someone else's parameter.
    RendererSet blockedBy;
};

const RendererRow& rendererRow(Renderer r);

/// The first renderer of \p marked in table order; Mantra for none. With
/// \p exporting, only renderers with an export pair count.
Renderer firstRenderer(RendererSet marked, bool exporting);
