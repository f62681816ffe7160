#include "imageTokens.h"

namespace {

/// The value of a parameter line: the text inside its outer "( ... )",
/// trimmed and without its enclosing double quotes.
QString parameterValue(const QString& line)
{
    const qsizetype open = line.indexOf(u'(');
    QString value = line.mid(open + 1);
    const qsizetype close = value.lastIndexOf(u')');
    if (close < 0)
        return QString();
    value.truncate(close);
    value = value.trimmed();
    if (value.startsWith(u'"') && value.endsWith(u'"'))
        value = value.size() >= 2 ? value.mid(1, value.size() - 2) : QString();
    return value.trimmed();
}

/// Turns the first "$F", "$F4", "${F}" or "${F4}" into "%d" / "%4d" (a
/// brace of the braced forms is left for the caller to drop). False when
/// the value has no frame token.
bool convertFrameToken(QString& value)
{
    qsizetype at = value.indexOf(QStringLiteral("$F"), 0, Qt::CaseInsensitive);
    qsizetype tokenLength = 2;
    if (at < 0) {
        at = value.indexOf(QStringLiteral("${F"), 0, Qt::CaseInsensitive);
        tokenLength = 3;
    }
    if (at < 0)
        return false;
    const qsizetype widthAt = at + tokenLength;
    const bool hasWidth = widthAt < value.size() && value.at(widthAt).isDigit();
    value.insert(hasWidth ? widthAt + 1 : widthAt, u'd');
    value.replace(at, tokenLength, u'%');
    return true;
}

} // namespace

bool replaceImageOutVars(
    QString line, bool const& prepend, QString& imageOut, bool& takeFound, bool& singleFile)
{
    singleFile = false;

    const qsizetype tab = line.indexOf(u'\t');
    const QString name = tab < 0 ? line : line.left(tab);
    QString value = parameterValue(line);

    // Houdini's floating frame number becomes a plain one-digit frame token.
    if (value.contains(QStringLiteral("$FF"), Qt::CaseInsensitive))
        value.replace(QStringLiteral("$FF"), QStringLiteral("$F1"), Qt::CaseSensitive);
    else if (value.contains(QStringLiteral("${FF}"), Qt::CaseInsensitive))
        value.replace(QStringLiteral("${FF}"), QStringLiteral("${F1}"), Qt::CaseSensitive);

    if (!convertFrameToken(value))
        singleFile = true;

    value.remove(u'{');
    value.remove(u'}');

    const QString activeTake = QStringLiteral("$ACTIVETAKE");
    if (!takeFound)
        takeFound = value.contains(activeTake, Qt::CaseInsensitive);
    const QString channel = QStringLiteral("<Channel>");
    value.replace(activeTake, channel, Qt::CaseInsensitive);
    value.replace(QStringLiteral("`chsop(\"take\")`"), channel, Qt::CaseInsensitive);

    // A value that refers to its own parameter ("[ picture]") is only usable
    // as the first path found for the node.
    const QString selfReference = QStringLiteral("[ ") + name;
    if (value.contains(selfReference, Qt::CaseSensitive)) {
        if (!imageOut.isEmpty())
            return false;
        value.remove(selfReference, Qt::CaseSensitive);
        value.remove(u']');
        value = value.trimmed();
    }

    if (value.contains(QStringLiteral("chs("), Qt::CaseSensitive))
        return false;
    if (value.isEmpty() || value.contains(QStringLiteral("testfile.exr"), Qt::CaseSensitive))
        return false;

    imageOut = prepend ? value + imageOut : value;
    return true;
}
