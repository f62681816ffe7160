// The path a File Cache node writes when its "filemethod" is "constructed":
// the node builds it from its parameters with its own "sopoutput"
// expression, and the "file" value the scene also holds is a stale default.
#pragma once

#include <QString>
#include <QStringView>

#include <functional>

/// The parameters of a File Cache node that make up its path, each the last
/// line's unquoted value; a null string where the scene has no line.
struct FileCacheParameters
{
    QString filemethod;
    QString basedir;
    QString basename;
    QString version;
    QString enableversion;
    QString timedependent;
    QString filetype;

    /// Keeps \p value when \p name is one of the parameters above; returns
    /// whether it was.
    bool take(QStringView name, const QString& value);
};

/// Whether a "filemethod" value selects the constructed path ("constructed"
/// or 0). A scene without the line holds a File Cache older than the
/// parameter, which writes its "file".
bool fileCacheConstructed(const QString& filemethod);

/// A toggle value: "on" or "1" (any case) is on, any other text off, a missing
/// line \p whenMissing.
bool toggleOn(const QString& value, bool whenMissing);

/// basedir + "/" + basename + ["/v" + version] + "/" + basename
/// + ["_v" + version] + [".$F4"] + filetype, with the defaults of missing
/// parameters. \p expandPart gives a part's text with its variables expanded
/// (a null string when it refuses the part); the parts are expanded one by
/// one before the join, so "$HIPNAME.$OS" + "_v1" never reads as "$OS_v1".
/// ".$F4" is joined as written, for the frame-token rule. A refused part
/// gives a null string.
QString composeFileCachePath(
    const FileCacheParameters& p, const std::function<QString(const QString&)>& expandPart);
