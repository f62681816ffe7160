#include "plugin/paths/nodeReferences.h"

#include <QStringList>

namespace {

bool isNameChar(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

/// Length of the single variable reference at the start of \p text ("$NAME"
/// or "${NAME}"), or 0.
qsizetype variableReferenceLength(QStringView text)
{
    if (text.size() < 2 || text[0] != u'$')
        return 0;
    if (text[1] == u'{') {
        const qsizetype close = text.indexOf(u'}');
        if (close < 3)
            return 0;
        for (QChar c : text.mid(2, close - 2))
            if (!isNameChar(c))
                return 0;
        return close + 1;
    }
    qsizetype n = 1;
    while (n < text.size() && isNameChar(text[n]))
        ++n;
    return n > 1 ? n : 0;
}

/// Length of a quote at \p at: 1 for ' or ", 2 for \" (and \'), else 0.
qsizetype quoteLength(QStringView text, qsizetype at)
{
    if (at >= text.size())
        return 0;
    if (text[at] == u'"' || text[at] == u'\'')
        return 1;
    if (text[at] == u'\\' && at + 1 < text.size()
        && (text[at + 1] == u'"' || text[at + 1] == u'\''))
        return 2;
    return 0;
}

} // namespace

QString expandNodeName(const QString& path, QStringView nodeName)
{
    QString out;
    qsizetype from = 0;
    for (;;) {
        const qsizetype at = path.indexOf(u"$", from);
        if (at < 0)
            break;
        const QStringView rest = QStringView(path).mid(at);
        qsizetype length = 0;
        if (rest.startsWith(u"${OS}"))
            length = 5;
        else if (rest.startsWith(u"$OS") && (rest.size() == 3 || !isNameChar(rest[3])))
            length = 3;
        if (length == 0) {
            out += QStringView(path).mid(from, at + 1 - from);
            from = at + 1;
            continue;
        }
        out += QStringView(path).mid(from, at - from);
        out += nodeName;
        from = at + length;
    }
    out += QStringView(path).mid(from);
    return out;
}

QString unwrapVariableBackticks(const QString& path)
{
    QString out;
    qsizetype from = 0;
    for (;;) {
        const qsizetype open = path.indexOf(u'`', from);
        if (open < 0)
            break;
        const qsizetype close = path.indexOf(u'`', open + 1);
        if (close < 0)
            break;
        const QStringView inner = QStringView(path).mid(open + 1, close - open - 1);
        if (!inner.isEmpty() && variableReferenceLength(inner) == inner.size()) {
            // The braced form keeps the name's end where the backtick was:
            // "`$OS`_geo" must not read as a variable "$OS_geo".
            out += QStringView(path).mid(from, open - from);
            if (inner[1] == u'{') {
                out += inner;
            } else {
                out += QStringLiteral("${");
                out += inner.mid(1);
                out += u'}';
            }
        } else {
            out += QStringView(path).mid(from, close + 1 - from);
        }
        from = close + 1;
    }
    out += QStringView(path).mid(from);
    return out;
}

ChannelReference findChannelReference(QStringView value)
{
    static constexpr QStringView Call = u"`chs(";
    for (qsizetype at = value.indexOf(Call); at >= 0; at = value.indexOf(Call, at + 1)) {
        qsizetype p = at + Call.size();
        const qsizetype q = quoteLength(value, p);
        if (q == 0)
            continue;
        const QChar quote = value[p + q - 1];
        p += q;
        qsizetype end = p;
        while (end < value.size() && value[end] != quote)
            ++end;
        if (end >= value.size())
            break;
        // An escaped closing quote: the backslash belongs to the quote.
        qsizetype refEnd = end;
        if (q == 2 && refEnd > p && value[refEnd - 1] == u'\\')
            --refEnd;
        const QStringView tail = value.mid(end + 1);
        if (refEnd == p || !tail.startsWith(u")`"))
            continue;
        ChannelReference ref;
        ref.start = at;
        ref.length = end + 3 - at;
        ref.reference = value.mid(p, refEnd - p).toString();
        return ref;
    }
    return ChannelReference();
}

QString resolveParameterReference(QStringView reference, QStringView nodePath)
{
    QStringList parts;
    if (!reference.startsWith(u'/')) {
        for (QStringView part : nodePath.split(u'/', Qt::SkipEmptyParts))
            parts << part.toString();
    }
    for (QStringView part : reference.split(u'/', Qt::SkipEmptyParts)) {
        if (part == u".")
            continue;
        if (part == u"..") {
            if (parts.isEmpty())
                return QString();
            parts.removeLast();
            continue;
        }
        parts << part.toString();
    }
    if (parts.isEmpty())
        return QString();
    return u'/' + parts.join(u'/');
}

QStringView referencedNode(QStringView resolved)
{
    const qsizetype slash = resolved.lastIndexOf(u'/');
    return slash <= 0 ? QStringView() : resolved.left(slash);
}

QStringView referencedParameter(QStringView resolved)
{
    return resolved.mid(resolved.lastIndexOf(u'/') + 1);
}

QString withCachedValues(QString value)
{
    for (qsizetype open = value.indexOf(u'['); open >= 0; open = value.indexOf(u'[', open)) {
        const qsizetype close = value.indexOf(u']', open);
        if (close < 0)
            break;
        const QStringView inside = QStringView(value).mid(open + 1, close - open - 1).trimmed();
        const qsizetype blank
            = inside.lastIndexOf(u'\t') >= 0 ? inside.lastIndexOf(u'\t') : inside.lastIndexOf(u' ');
        const QString number = blank < 0 ? QString() : inside.mid(blank + 1).toString();
        value.replace(open, close - open + 1, number);
        open += number.size();
    }
    return value;
}
