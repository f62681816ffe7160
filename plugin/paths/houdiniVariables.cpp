#include "houdiniVariables.h"

#include "shared/zkShared.h"

namespace {

/// The value of a variable as ":r" (root) gives it: scene extensions dropped
/// wherever they stand, longest first so ".hiplc" does not leave "lc".
QString withoutSceneExtensions(QString value)
{
    value.remove(QStringLiteral(".hiplc"), Qt::CaseSensitive);
    value.remove(QStringLiteral(".hipnc"), Qt::CaseSensitive);
    value.remove(QStringLiteral(".hip"), Qt::CaseSensitive);
    return value;
}

/// An expanded path lands in a field of 1000 units. Values may name further
/// variables many times over, and each such step multiplies a path's length,
/// so a few "set -g" lines could grow one path past any memory. Expansion
/// stops growing a path at this length: twice the field, so that a name
/// starting inside the field still matches whole; no real path comes near it.
constexpr qsizetype MaxExpandedPathLength = 2048;

/// QString::replace ignoring case, with the result cut at MaxExpandedPathLength.
void replaceAny(QString& text, const QString& pattern, const QString& value)
{
    qsizetype at = text.indexOf(pattern, 0, Qt::CaseInsensitive);
    if (at < 0)
        return;
    QString out;
    qsizetype from = 0;
    for (; at >= 0 && out.size() < MaxExpandedPathLength;
         at = text.indexOf(pattern, from, Qt::CaseInsensitive)) {
        out += QStringView(text).mid(from, at - from);
        out += value;
        from = at + pattern.size();
    }
    out += QStringView(text).mid(from);
    out.truncate(MaxExpandedPathLength);
    text = out;
}

/// Whether \p path may hold a reference to \p name: "$" or "${" followed by
/// it, in any case. Far cheaper than the four replacements it spares: most
/// places fail on their first character, compared case-folded.
bool mayReference(QStringView path, QStringView name)
{
    const char32_t first = QChar::toCaseFolded(char32_t(name.front().unicode()));
    const auto matchesAt = [&](qsizetype at) {
        return at < path.size() && QChar::toCaseFolded(char32_t(path[at].unicode())) == first
            && path.mid(at).startsWith(name, Qt::CaseInsensitive);
    };
    for (qsizetype at = path.indexOf(u'$'); at >= 0; at = path.indexOf(u'$', at + 1)) {
        if (matchesAt(at + 1)
            || (at + 1 < path.size() && path[at + 1] == u'{' && matchesAt(at + 2)))
            return true;
    }
    return false;
}

} // namespace

QString houdiniNodeName(const QString& nodePath)
{
    const qsizetype slash = nodePath.lastIndexOf(u'/');
    return slash > 0 ? nodePath.mid(slash + 1) : nodePath;
}

QString replaceHoudiniVariables(QString path, zkJ::_JobBasics_largePath* job,
    QList<_namevalue>& variables, _zkString<500> const& sceneFile)
{
    if (path.isEmpty() || !job)
        return path;
    path.truncate(MaxExpandedPathLength);

    const QString baseName = zkGetFileNameBase(sceneFile.toQString(), u'/');
    const QString databaseDir = job->sceneDatabaseDir.toQString();

    // Longer names before their prefixes, ":r" forms before their plain forms:
    // "$HIPNAME" must not become the directory followed by "NAME".
    replaceAny(path, QStringLiteral("$hipname:r"), baseName);
    replaceAny(path, QStringLiteral("${hipname}:r"), baseName);
    replaceAny(path, QStringLiteral("$HIPNAME"), baseName);
    replaceAny(path, QStringLiteral("${HIPNAME}"), baseName);
    replaceAny(path, QStringLiteral("$HIPPATH"), databaseDir);
    replaceAny(path, QStringLiteral("${HIPPATH}"), databaseDir);
    replaceAny(path, QStringLiteral("$HIP"), databaseDir);
    replaceAny(path, QStringLiteral("${HIP}"), databaseDir);

    for (const _namevalue& variable : qAsConst(variables)) {
        // A nameless entry would turn every "$" of the path into its value.
        if (variable.name.isEmpty() || !mayReference(path, variable.name))
            continue;
        const QString root = withoutSceneExtensions(variable.value);
        const QString dollar = QLatin1Char('$') + variable.name;
        const QString braced = QStringLiteral("${") + variable.name + QLatin1Char('}');
        replaceAny(path, dollar + QStringLiteral(":r"), root);
        replaceAny(path, dollar, variable.value);
        replaceAny(path, braced + QStringLiteral(":r"), root);
        replaceAny(path, braced, variable.value);
    }

    const QString node = houdiniNodeName(job->layer.toQString());
    replaceAny(path, QStringLiteral("$OS"), node);
    replaceAny(path, QStringLiteral("${OS}"), node);

    const QString start = QString::number(job->seqStart, 'g', 6);
    const QString end = QString::number(job->seqEnd, 'g', 6);
    replaceAny(path, QStringLiteral("$RFSTART"), start);
    replaceAny(path, QStringLiteral("${RFSTART}"), start);
    replaceAny(path, QStringLiteral("$RFEND"), end);
    replaceAny(path, QStringLiteral("${RFEND}"), end);
    return path;
}
