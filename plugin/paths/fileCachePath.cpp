#include "plugin/paths/fileCachePath.h"

#include <array>
#include <utility>

bool FileCacheParameters::take(QStringView name, const QString& value)
{
    const std::array<std::pair<QStringView, QString*>, 7> fields { {
        { u"filemethod", &filemethod },
        { u"basedir", &basedir },
        { u"basename", &basename },
        { u"version", &version },
        { u"enableversion", &enableversion },
        { u"timedependent", &timedependent },
        { u"filetype", &filetype },
    } };
    for (const auto& [fieldName, field] : fields) {
        if (name == fieldName) {
            // An empty value is a value: it must not read as a missing line.
            *field = value.isNull() ? QStringLiteral("") : value;
            return true;
        }
    }
    return false;
}

bool fileCacheConstructed(const QString& filemethod)
{
    return filemethod == u"constructed" || filemethod == u"0";
}

bool toggleOn(const QString& value, bool whenMissing)
{
    if (value.isNull())
        return whenMissing;
    return value.compare(u"on", Qt::CaseInsensitive) == 0 || value == u"1";
}

QString composeFileCachePath(
    const FileCacheParameters& p, const std::function<QString(const QString&)>& expandPart)
{
    const auto orDefault = [](const QString& value, const char16_t* fallback) {
        return value.isNull() ? QString::fromUtf16(fallback) : value;
    };
    const QString basedir = expandPart(orDefault(p.basedir, u"$HIP/geo"));
    const QString basename = expandPart(orDefault(p.basename, u"$HIPNAME.$OS"));
    const QString filetype = expandPart(orDefault(p.filetype, u".bgeo.sc"));
    const bool versioned = toggleOn(p.enableversion, true);
    const QString version = versioned ? expandPart(orDefault(p.version, u"1")) : QStringLiteral("");
    if (basedir.isNull() || basename.isNull() || filetype.isNull() || version.isNull())
        return QString();

    QString path = basedir + u'/' + basename;
    if (versioned)
        path += QStringLiteral("/v") + version;
    path += u'/' + basename;
    if (versioned)
        path += QStringLiteral("_v") + version;
    if (toggleOn(p.timedependent, true))
        path += QStringLiteral(".$F4");
    path += filetype;
    return path;
}
