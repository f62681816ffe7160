#include "renderers.h"

using namespace Qt::Literals::StringLiterals;

const char* const zkVersion = " 8.4.00";

const QString appNameHoudini = QStringLiteral("Houdini");
const QString appNameHoudini_Archive = QStringLiteral("Hdni");

namespace {

const QString Mantra = QStringLiteral("Mantra_StdA");
const QString Arnold = QStringLiteral("Arnold");
const QString Redshift = QStringLiteral("Redshift");
const QString VRay = QStringLiteral("VRay_StdA");
const QString RenderMan = QStringLiteral("RenderMan");
const QString Usd = QStringLiteral("USD_StdA");
const QString UsdSingleFile = QStringLiteral("USD_StdA_single");
const QString ArnoldSingleFile = QStringLiteral("Arnold-singlefile");

constexpr RendererSet ExportRenderers = bit(Renderer::Arnold) | bit(Renderer::Redshift)
    | bit(Renderer::RenderMan) | bit(Renderer::VRay);

/// Indexed by Renderer. USD drivers take their render and export names and
/// their application from the LOP node they render, so their row holds the
/// names of a LOP node without a renderer.
constexpr RendererRow Rows[RendererCount] = {
    { "usd"_L1, "createUSD"_L1, &Usd, &UsdSingleFile, {}, {}, 0 },
    { "arnold"_L1, "createASS"_L1, &Arnold, &ArnoldSingleFile, "-customRenVer_Arnold"_L1,
        { "ar_ass_export_enable\t"_L1 }, ExportRenderers & ~bit(Renderer::Arnold) },
    { "opengl"_L1, {}, nullptr, nullptr, {}, {}, 0 },
    { "geometry"_L1, {}, nullptr, nullptr, {}, {}, 0 },
    { "redshift"_L1, "createRS"_L1, &Redshift, &Redshift, "-customRenVer_Redshift"_L1,
        { "RS_archive_enable\t"_L1 }, ExportRenderers & ~bit(Renderer::Redshift) },
    { "prman"_L1, "createRIB"_L1, &RenderMan, &RenderMan, "-customRenVer_prman"_L1,
        { "rib_outputmode\t"_L1, "diskfile\t"_L1 }, ExportRenderers & ~bit(Renderer::RenderMan) },
    { "alembic"_L1, {}, nullptr, nullptr, {}, {}, 0 },
    // V-Ray's export mode is a number rather than a toggle, read whatever else
    // the section names.
    { "vray"_L1, "createVrScene"_L1, &VRay, &VRay, "-customRenVer_VRay"_L1, {}, 0 },
    { {}, "createIFD"_L1, &Mantra, &Mantra, {}, { "soho_outputmode"_L1 }, ExportRenderers },
};

} // namespace

const RendererRow& rendererRow(Renderer r)
{
    return Rows[int(r)];
}

Renderer firstRenderer(RendererSet marked, bool exporting)
{
    for (int r = 0; r < RendererCount; ++r) {
        if ((marked & bit(Renderer(r))) && (!exporting || !Rows[r].exportName.isEmpty()))
            return Renderer(r);
    }
    return Renderer::Mantra;
}
