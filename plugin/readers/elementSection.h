// Text rules shared by the camera, wedge, LOP and USD render-settings readers:
// the node path taken from a section's header line, the value of a parameter
// line, and the channel-expression prefix that drivers put around node paths.
#pragma once

#include "plugin/lineSource.h"

#include <QLatin1String>
#include <QList>
#include <QString>
#include <QStringView>

#include <cstring>

namespace elementSection {

/// The next line that a reader whose keywords start with one of \p leads
/// (lower-case ASCII letters, any case in the line) may take, decoded and
/// trimmed into \p line: a line starting with a lead, with "}", or with a
/// non-ASCII byte (which may fold to a letter or be trimmed). Every other line
/// is read past undecoded. False, and \p line emptied, at the end of input.
inline bool nextLineFor(LineSource& in, QString& line, const char* leads)
{
    QByteArrayView raw;
    while (in.nextRaw(raw)) {
        const QByteArrayView body = LineSource::trimmedAscii(raw);
        if (body.isEmpty())
            continue;
        const unsigned char head = static_cast<unsigned char>(body.front());
        const char lower = char(head >= 'A' && head <= 'Z' ? head | 0x20 : head);
        if (head < 0x80 && head != '}' && !(head && std::strchr(leads, lower)))
            continue;
        line = LineSource::decode(raw);
        return true;
    }
    line.clear();
    return false;
}

/// Keyword at the start of a line, ignoring case.
inline bool hasKeyword(QStringView line, QLatin1String keyword)
{
    return line.startsWith(keyword, Qt::CaseInsensitive);
}

/// Text from \p from up to, not including, the first ".parm", with "/" in front.
/// A header without ".parm" gives "/" alone.
inline QString nodePathFrom(const QString& header, qsizetype from)
{
    const QStringView rest = QStringView(header).mid(from < 0 ? 0 : from);
    const qsizetype parm = rest.indexOf(QLatin1String(".parm"));
    return u'/' + (parm < 0 ? QString() : rest.left(parm).toString());
}

/// Node path of a camera or wedge section: from the first "out/", else from the
/// first "obj/" (else from the start).
inline QString nodePathOutObj(const QString& header)
{
    qsizetype at = header.indexOf(QLatin1String("out/"));
    if (at < 0)
        at = header.indexOf(QLatin1String("obj/"));
    return nodePathFrom(header, at);
}

/// Node path of a LOP or render-settings section: from the first "out/", else
/// "stage/", else "img/", else "obj/" (else from the start).
inline QString nodePathStage(const QString& header)
{
    for (QLatin1String network : { QLatin1String("out/"), QLatin1String("stage/"),
             QLatin1String("img/"), QLatin1String("obj/") }) {
        const qsizetype at = header.indexOf(network);
        if (at >= 0)
            return nodePathFrom(header, at);
    }
    return nodePathFrom(header, 0);
}

/// The value between the first "(" and the first ")" after it, without double
/// quotes, trimmed. A line with no ")" behind its "(" has no value.
inline QString bracketValue(const QString& line)
{
    const qsizetype open = line.indexOf(u'(');
    const qsizetype close = line.indexOf(u')', open + 1);
    if (close < 0)
        return QString();
    QString value = line.mid(open + 1, close - open - 1);
    value.remove(u'"');
    return value.trimmed();
}

/// Drivers may name a node through `chsop(\"...\")`; that wrapper loses its
/// first nine characters and its last one.
inline bool isChsopWrapped(QStringView text)
{
    return text.startsWith(QLatin1String("`chsop(\\"));
}

inline QString unwrapChsop(QString text)
{
    if (!isChsopWrapped(text))
        return text;
    text.remove(0, 9);
    text.chop(1);
    return text;
}

/// Index of the first node whose nodePath equals \p nodePath ignoring case;
/// when there is none, a new node with that path is appended (its index
/// returned) if \p create is set, else -1.
template <typename Node>
int findByNodePath(QList<Node>& list, const QString& nodePath, bool create)
{
    for (int i = 0; i < list.size(); ++i) {
        if (list.at(i).nodePath.compare(nodePath, Qt::CaseInsensitive) == 0)
            return i;
    }
    if (!create)
        return -1;
    Node node;
    node.nodePath = nodePath;
    list.append(node);
    return int(list.size()) - 1;
}

/// Index of the first node whose renderNodes hold \p driverPath exactly, or -1.
template <typename Node>
int findByRenderNode(const QList<Node>& list, const QString& driverPath)
{
    for (int i = 0; i < list.size(); ++i) {
        if (list.at(i).renderNodes.contains(driverPath, Qt::CaseSensitive))
            return i;
    }
    return -1;
}

} // namespace elementSection
