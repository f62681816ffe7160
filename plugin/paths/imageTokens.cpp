#include "imageTokens.h"

#include "plugin/parameterLine.h"
#include "plugin/textSearch.h"

namespace {

/// Redshift puts each picture value in front of the path read so far, and a
/// section of a million such lines would copy the growing path a million
/// times. A value that would take the path past this length is not taken;
/// real paths stay far below the 1000 units of the field they end in.
constexpr qsizetype MaxPrependedPathLength = 10000;

/// Replaces the token of \p length characters at \p at by "%", keeping one
/// width digit behind it, and closes the placeholder with "d".
void toPlaceholder(QString& value, qsizetype at, qsizetype length)
{
    const qsizetype widthAt = at + length;
    const bool hasWidth = widthAt < value.size() && value.at(widthAt).isDigit();
    value.insert(hasWidth ? widthAt + 1 : widthAt, u'd');
    value.replace(at, length, u'%');
}

/// Turns the first "$F", "$F4", "${F}" or "${F4}" into "%d" / "%4d" (a
/// brace of the braced forms is left for the caller to drop). False when
/// the value has no frame token.
bool convertFrameToken(QString& value)
{
    if (convertFirstDollarF(value))
        return true;
    const qsizetype at = value.indexOf(QStringLiteral("${F"), 0, Qt::CaseInsensitive);
    if (at < 0)
        return false;
    toPlaceholder(value, at, 3);
    return true;
}

} // namespace

bool convertFirstDollarF(QString& path)
{
    const qsizetype at = path.indexOf(QStringLiteral("$F"), 0, Qt::CaseInsensitive);
    if (at < 0)
        return false;
    toPlaceholder(path, at, 2);
    return true;
}

bool replaceImageOutVars(
    QString line, bool const& prepend, QString& imageOut, bool& takeFound, bool& singleFile)
{
    singleFile = false;

    const QString name = parameterLine::parameterName(line);
    QString value = parameterLine::outerBracketValue(line);

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
    if (containsLinear(value, QStringLiteral("[ ") + name)) {
        if (!imageOut.isEmpty())
            return false;
        value = parameterLine::withoutSelfReference(value, name);
    }

    if (value.contains(QStringLiteral("chs("), Qt::CaseSensitive))
        return false;
    if (value.isEmpty() || value.contains(QStringLiteral("testfile.exr"), Qt::CaseSensitive))
        return false;

    if (prepend && imageOut.size() + value.size() > MaxPrependedPathLength)
        return false;
    imageOut = prepend ? value + imageOut : value;
    return true;
}
