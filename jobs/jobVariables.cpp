// The job's fields as named variables for the host's path and command
// templates. Several names are aliases kept for older templates.
#include "ZK_DataTypes_jobs0_Basics.h"
#include "ZK_DataTypes_jobs_defines.h"

#include <cmath>

namespace zkJ {

namespace {

/// Half away from zero; values no frame range can hold print as 0.
QString roundedFrame(double v)
{
    if (!std::isfinite(v) || std::fabs(v) > 9.0e15)
        return QStringLiteral("0");
    const double r = v >= 0 ? v + 0.5 : v - 0.5;
    return QString::number(static_cast<long long>(r));
}

QString buildOS()
{
#if defined(_WIN32)
    return QStringLiteral("win");
#elif defined(__APPLE__)
    return QStringLiteral("mac");
#else
    return QStringLiteral("lx");
#endif
}

} // namespace

_varValList _JobBasics::exportJobVarList_Basic(const bool& flag) const
{
    (void)flag;
    _varValList v;
    const unsigned short slash = u'/';

    if (!imageDir.isEmpty()) {
        const QString complete
            = zkGetDirName(imageDir.toQString() + imageFileName.toQString(), slash);
        const QString completeUp = zkGetDirName(complete, slash);
        v.add(QStringLiteral("ImageDirComplete"), complete);
        v.add(QStringLiteral("ImageDirComplete><../"), completeUp);
        v.add(QStringLiteral("ImageDirComplete><../><../"), zkGetDirName(completeUp, slash));
        const _zkString<500> dirUp = zkGetDirName(imageDir);
        v.add(QStringLiteral("ImageDir"), imageDir.toQString());
        v.add(QStringLiteral("ImageDir><../"), dirUp.toQString());
        v.add(QStringLiteral("ImageDir><../><../"), zkGetDirName(dirUp).toQString());
        v.add(QStringLiteral("MainImageDir"), imageDir.toQString());
    }
    if (!imageStereoL.isEmpty())
        v.add(QStringLiteral("ImageStereoL"), imageStereoL.toQString());
    if (!imageStereoR.isEmpty())
        v.add(QStringLiteral("ImageStereoR"), imageStereoR.toQString());
    if (!imageStereoM.isEmpty())
        v.add(QStringLiteral("ImageStereoM"), imageStereoM.toQString());
    if (!colorSpace.isEmpty())
        v.add(QStringLiteral("ColorSpace"), colorSpace.toQString());

    const _zkString<500> sceneFolder = zkGetDirName(sceneName);
    const _zkString<500> sceneFolderUp = zkGetDirName(sceneFolder);
    v.add(QStringLiteral("SceneFolder><../><../"), zkGetDirName(sceneFolderUp).toQString());
    v.add(QStringLiteral("SceneFolder><../"), sceneFolderUp.toQString());
    v.add(QStringLiteral("SceneFolder"), sceneFolder.toQString());

    QString scene = sceneName.toQString();
    scene.remove(QStringLiteral("<FN>"), Qt::CaseSensitive);
    for (int digits = 1; digits <= 7; ++digits)
        scene.remove(QStringLiteral("<FN%1>").arg(digits), Qt::CaseSensitive);
    v.add(QStringLiteral("SceneFileNameBase"), zkGetFileNameBase(scene, slash));

    const QString database = sceneDatabaseDir.toQString();
    if (!database.isEmpty()) {
        v.add(QStringLiteral("Database"), database);
        v.add(QStringLiteral("SceneDatabaseDir"), database);
        v.add(QStringLiteral("D"), database);
    }
    QString databaseName = database;
    if (databaseName.endsWith(u'/'))
        databaseName.chop(1);
    v.add(QStringLiteral("DatabaseName"), databaseName.mid(databaseName.lastIndexOf(u'/') + 1));

    const QString app = renderApp.appName.toQString();
    const QString renderer = renderApp.rendererName.toQString();
    const QString major = QString::number(renderApp.versionMajor);
    const QString minor = renderApp.getVersionMinorDisplay(true, 1);
    const QString minorFull = renderApp.getVersionMinorDisplay(false, 1);
    const QString rendererVersion = renderApp.rendererVersion.toQString();
    v.add(QStringLiteral("App"), app);
    v.add(QStringLiteral("AppRenderer"), renderer);
    v.add(QStringLiteral("AppLow"), app.toLower());
    v.add(QStringLiteral("AppRendererLow"), renderer.toLower());
    v.add(QStringLiteral("AppVer"), major);
    v.add(QStringLiteral("AppVerMinor"), minor);
    v.add(QStringLiteral("AppVerMinorFull"), minorFull);
    v.add(QStringLiteral("AppRendererVersion"), rendererVersion);
    v.add(QStringLiteral("renderLicenses"), renderLicenses.toQString());
    v.add(QStringLiteral("requiredLicenses"), renderLicenses.toQString());
    v.add(QStringLiteral("zkJobVersion"), major + u'.' + minorFull);
    v.add(QStringLiteral("zkJobVersionMajor"), major);
    v.add(QStringLiteral("zkJobVersionMinor"), minor);
    v.add(QStringLiteral("zkJobVersionMinorFull"), minorFull);
    v.add(QStringLiteral("zkJobVersionMinorTwoDigits"), renderApp.getVersionMinorDisplay(false, 2));
    v.add(QStringLiteral("zkJobRendererVersion"), rendererVersion);
    v.add(QStringLiteral("zkJobRendererVersionMajor"),
        renderApp.rendererVersion.left(u'.', false).toQString());
    v.add(QStringLiteral("AppType"), renderApp.appType.toQString().toLower());
    v.add(QStringLiteral("OS"), buildOS());

    const QString layerName = layer.toQString();
    v.add(QStringLiteral("Layer"), layerName);
    v.add(QStringLiteral("LayerAsFileName"), zkRemoveIllegalCharFromHtmlFile(layerName));
    v.add(QStringLiteral("Pass"), layerName);
    v.add(QStringLiteral("P"), layerName);
    v.add(QStringLiteral("Camera"), camera.toQString());
    v.add(QStringLiteral("Camera_no."), camera.toQString());
    v.add(QStringLiteral("Channel"), channel.toQString());
    v.add(QStringLiteral("AOVChannel"), channel.toQString());
    v.add(QStringLiteral("AOV"), channel.toQString());
    v.add(QStringLiteral("State"), sceneState.toQString());
    v.add(QStringLiteral("SceneState"), sceneState.toQString());
    v.add(QStringLiteral("MainImageExtension"), imageExtension.toQString());
    v.add(QStringLiteral("PNL"),
        PNL == 0 ? QStringLiteral(" ") : QString(QChar::fromLatin1(char(PNL))));
    v.add(QStringLiteral("ImageFormatOverride"), imageFormatOverride.toQString());
    v.add(QStringLiteral("OverrideImageFormat"), imageFormatOverride.toQString());
    v.add(QStringLiteral("ImageSingleOutputFile"), bool2str(imageSingleOutputFile, false));

    const QString step = QString::number(seqStep);
    v.add(QStringLiteral("TotalStep"), step);
    v.add(QStringLiteral("TotalEnd"), roundedFrame(seqEnd));
    v.add(QStringLiteral("TotalStart"), QString::number(seqStart, 'g', 6));
    v.add(QStringLiteral("TotalSeqStep"), step);
    v.add(QStringLiteral("TotalSeqEnd"), roundedFrame(seqEnd));
    v.add(QStringLiteral("TotalSeqStart"), roundedFrame(seqStart));
    v.add(QStringLiteral("SeqFrameSet"), seqFrameSet.toQString());
    v.add(QStringLiteral("FrameSet"), seqFrameSet.toQString());
    v.add(QStringLiteral("sceneOS"), QString::number(sceneOS));
    v.add(QStringLiteral("sceneOSstr"), OS2String(static_cast<_zkOS>(sceneOS)));
    v.add(QStringLiteral("ShutgunID"), shotgunID.toQString());
    v.add(QStringLiteral("ShotgunID"), shotgunID.toQString());
    v.add(QStringLiteral("Padding"), QString::number(padding));
    v.add(QStringLiteral("TotalTiles"), QString::number(imageMulti));
    v.add(QStringLiteral("ImageMulti"), QString::number(imageMulti));
    v.add(QStringLiteral("ImageHeight"), QString::number(imageHeight));
    v.add(QStringLiteral("ImageWidth"), QString::number(imageWidth));
    v.add(QStringLiteral("Height"), QString::number(imageHeight));
    v.add(QStringLiteral("Width"), QString::number(imageWidth));
    v.add(QStringLiteral("AdditionalCommandlineParam"),
        customData_Str(CUSTOMAdditionalCommandlineFlags));
    return v;
}

} // namespace zkJ
