#include "houdiniVariables.h"

#include "plugin/textSearch.h"
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
/// \p folded is the text's caseFoldedKey(), kept up to date.
void replaceAny(QString& text, QString& folded, const QString& pattern, const QString& value)
{
    const LinearSearch search(pattern, Qt::CaseInsensitive);
    qsizetype at = search.indexIn(folded);
    if (at < 0)
        return;
    QString out;
    qsizetype from = 0;
    for (; at >= 0 && out.size() < MaxExpandedPathLength; at = search.indexIn(folded, from)) {
        out += QStringView(text).mid(from, at - from);
        out += value;
        from = at + pattern.size();
    }
    out += QStringView(text).mid(from);
    out.truncate(MaxExpandedPathLength);
    text = out;
    folded = caseFoldedKey(text);
}

/// Whether \p folded (a path's caseFoldedKey()) holds "$" or "${" followed by
/// \p name in any case: one pass, far cheaper than the four replacements it
/// spares.
bool mayReference(const QString& folded, const QString& name)
{
    // A first look at the few "$" of a path rules out nearly every variable
    // before a search is set up: the name's first character must follow one.
    const QString first
        = caseFoldedKey(QStringView(name).left(name.front().isHighSurrogate() ? 2 : 1));
    bool follows = false;
    for (qsizetype at = folded.indexOf(u'$'); at >= 0 && !follows;
         at = folded.indexOf(u'$', at + 1)) {
        const QStringView rest = QStringView(folded).mid(at + 1);
        follows
            = rest.startsWith(first) || (rest.startsWith(u'{') && rest.mid(1).startsWith(first));
    }
    if (!follows)
        return false;
    return LinearSearch(QString(u'$' + name), Qt::CaseInsensitive).indexIn(folded) >= 0
        || LinearSearch(QString(QStringLiteral("${") + name), Qt::CaseInsensitive).indexIn(folded)
        >= 0;
}

} // namespace

QString houdiniNodeName(const QString& nodePath)
{
    const qsizetype slash = nodePath.lastIndexOf(u'/');
    return slash > 0 ? nodePath.mid(slash + 1) : nodePath;
}

QString replaceHoudiniVariables(QString path, zkJ::_JobBasics_largePath* job,
    const QList<SceneVariable>& variables, _zkString<500> const& sceneFile)
{
    if (path.isEmpty() || !job)
        return path;
    path.truncate(MaxExpandedPathLength);
    QString folded = caseFoldedKey(path);

    const QString baseName = zkGetFileNameBase(sceneFile.toQString(), u'/');
    const QString databaseDir = job->sceneDatabaseDir.toQString();

    // Longer names before their prefixes, ":r" forms before their plain forms:
    // "$HIPNAME" must not become the directory followed by "NAME".
    replaceAny(path, folded, QStringLiteral("$hipname:r"), baseName);
    replaceAny(path, folded, QStringLiteral("${hipname}:r"), baseName);
    replaceAny(path, folded, QStringLiteral("$HIPNAME"), baseName);
    replaceAny(path, folded, QStringLiteral("${HIPNAME}"), baseName);
    replaceAny(path, folded, QStringLiteral("$HIPPATH"), databaseDir);
    replaceAny(path, folded, QStringLiteral("${HIPPATH}"), databaseDir);
    replaceAny(path, folded, QStringLiteral("$HIP"), databaseDir);
    replaceAny(path, folded, QStringLiteral("${HIP}"), databaseDir);

    for (const SceneVariable& variable : variables) {
        // A nameless entry would turn every "$" of the path into its value.
        if (variable.name.isEmpty() || !mayReference(folded, variable.name))
            continue;
        const QString root = withoutSceneExtensions(variable.value);
        const QString dollar = QLatin1Char('$') + variable.name;
        const QString braced = QStringLiteral("${") + variable.name + QLatin1Char('}');
        replaceAny(path, folded, dollar + QStringLiteral(":r"), root);
        replaceAny(path, folded, dollar, variable.value);
        replaceAny(path, folded, braced + QStringLiteral(":r"), root);
        replaceAny(path, folded, braced, variable.value);
    }

    const QString node = houdiniNodeName(job->layer.toQString());
    replaceAny(path, folded, QStringLiteral("$OS"), node);
    replaceAny(path, folded, QStringLiteral("${OS}"), node);

    const QString start = QString::number(job->seqStart, 'g', 6);
    const QString end = QString::number(job->seqEnd, 'g', 6);
    replaceAny(path, folded, QStringLiteral("$RFSTART"), start);
    replaceAny(path, folded, QStringLiteral("${RFSTART}"), start);
    replaceAny(path, folded, QStringLiteral("$RFEND"), end);
    replaceAny(path, folded, QStringLiteral("${RFEND}"), end);
    return path;
}
