// Values of parameter lines such as
//   picture\t[ 0\tlocks=0 ]\t(\t"$HIP/render/$HIPNAME.$F4.exr"\t)
// Two cuts are in use: node parameters are read up to the first ")", which
// stops at the end of the value list; output paths are read up to the last
// ")", so that a path holding ")" (an expression, a folder name) stays whole.
#pragma once

#include "plugin/textSearch.h"

#include <QString>

namespace parameterLine {

/// A value that names a node through a channel expression (chs(), chsop()),
/// which only Houdini can resolve.
inline bool isChannelExpression(const QString& value)
{
    return value.contains(QLatin1String("chs(")) || value.contains(QLatin1String("chsop("));
}

/// The text between the first "(" and the first ")" after it, trimmed, quotes
/// kept. A line without "(" is read from its start; without ")" it is empty.
inline QString bracketValue(const QString& line)
{
    const qsizetype open = line.indexOf(u'(');
    const qsizetype close = line.indexOf(u')', open + 1);
    if (close < 0)
        return QString();
    return line.mid(open + 1, close - open - 1).trimmed();
}

/// As bracketValue(), with every double quote removed before the trim.
inline QString unquotedBracketValue(const QString& line)
{
    const qsizetype open = line.indexOf(u'(');
    const qsizetype close = line.indexOf(u')', open + 1);
    if (close < 0)
        return QString();
    QString value = line.mid(open + 1, close - open - 1);
    value.remove(u'"');
    return value.trimmed();
}

/// The text between the first "(" and the last ")", trimmed, without one
/// enclosing pair of double quotes, trimmed again. Empty without ")".
inline QString outerBracketValue(const QString& line)
{
    const qsizetype open = line.indexOf(u'(');
    QString value = line.mid(open + 1);
    const qsizetype close = value.lastIndexOf(u')');
    if (close < 0)
        return QString();
    value.truncate(close);
    value = value.trimmed();
    // A lone quote both starts and ends the text: removing both leaves nothing.
    if (value.startsWith(u'"') && value.endsWith(u'"'))
        value = value.size() >= 2 ? value.mid(1, value.size() - 2) : QString();
    return value.trimmed();
}

/// The parameter's name: the text before the first tab (the whole line without one).
inline QString parameterName(const QString& line)
{
    const qsizetype tab = line.indexOf(u'\t');
    return tab < 0 ? line : line.left(tab);
}

/// A value written as a channel reference to its own parameter, such as
/// "[ camera /obj/cam1 ]", gives the text inside it: every "[ " + \p name and
/// every "]" removed, trimmed. Other values stay as they are.
inline QString withoutSelfReference(QString value, const QString& name)
{
    const QString reference = QStringLiteral("[ ") + name;
    if (!containsLinear(value, reference))
        return value;
    value = removeAll(value, reference);
    value.remove(u']');
    return value.trimmed();
}

} // namespace parameterLine
