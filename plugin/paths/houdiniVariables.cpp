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

void replaceAny(QString& text, const QString& pattern, const QString& value)
{
    text.replace(pattern, value, Qt::CaseInsensitive);
}

/// Whether "$" + \p name or "${" + \p name stands in \p path, ignoring case:
/// without either, none of a variable's four patterns can match. Paths hold
/// a few "$" and scenes up to thousands of variables, so this look at each
/// "$" spares the four searches for nearly every variable.
bool mayHold(QStringView path, QStringView name)
{
    for (qsizetype at = path.indexOf(u'$'); at >= 0; at = path.indexOf(u'$', at + 1)) {
        QStringView rest = path.mid(at + 1);
        if (rest.startsWith(name, Qt::CaseInsensitive))
            return true;
        if (rest.startsWith(u'{') && rest.mid(1).startsWith(name, Qt::CaseInsensitive))
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

    // Every pattern below begins with "$".
    if (!path.contains(u'$'))
        return path;
    for (const _namevalue& variable : qAsConst(variables)) {
        // A nameless entry would turn every "$" of the path into its value.
        if (variable.name.isEmpty() || !mayHold(path, variable.name))
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
