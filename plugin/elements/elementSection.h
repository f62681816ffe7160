// Text rules shared by the camera, wedge, LOP and USD render-settings readers:
// the node path taken from a section's header line, the value of a parameter
// line, and the channel-expression prefix that drivers put around node paths.
#pragma once

#include "plugin/elements/listLimits.h"
#include "plugin/textSearch.h"

#include <QChar>
#include <QHash>
#include <QLatin1String>
#include <QList>
#include <QString>
#include <QStringView>

namespace elementSection {

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

/// Where the first node of a list with a given key stands. A scene may hold
/// hundreds of thousands of sections, and a walk of the list for each one
/// makes its load quadratic. A position is trusted only once the node there
/// is seen to match; one that no longer does falls back to the walk.
class FirstIndex
{
public:
    /// The first position below \p size whose node \p matches, or -1.
    template <typename Matches>
    int find(const QString& key, int size, Matches&& matches) const
    {
        const auto hit = first.constFind(key);
        if (hit == first.cend())
            return -1;
        if (*hit < size && matches(*hit))
            return *hit;
        for (int i = 0; i < size; ++i) {
            if (matches(i))
                return i;
        }
        return -1;
    }

    /// The node at \p index now has \p key.
    void note(const QString& key, int index)
    {
        const auto hit = first.find(key);
        if (hit == first.end())
            first.insert(key, index);
        else if (index < *hit)
            *hit = index;
    }

private:
    QHash<QString, int> first;
};

/// Index of the first node whose nodePath equals \p nodePath ignoring case;
/// when there is none, a new node with that path is appended (its index
/// returned) if \p create is set and \p bound leaves room, else -1.
template <typename Node>
int findByNodePath(QList<Node>& list, FirstIndex& byPath, const QString& nodePath, bool create,
    listLimits::Bound& bound)
{
    const QString key = caseFoldedKey(nodePath);
    const int found = byPath.find(key, int(list.size()),
        [&](int i) { return list.at(i).nodePath.compare(nodePath, Qt::CaseInsensitive) == 0; });
    if (found >= 0 || !create || !bound.roomFor(list.size()))
        return found;
    Node node;
    node.nodePath = nodePath;
    list.append(node);
    const int index = int(list.size()) - 1;
    byPath.note(key, index);
    return index;
}

/// Index of the first node whose renderNodes hold \p driverPath exactly, or -1.
template <typename Node>
int findByRenderNode(const QList<Node>& list, const FirstIndex& byDriver, const QString& driverPath)
{
    return byDriver.find(driverPath, int(list.size()),
        [&](int i) { return list.at(i).renderNodes.contains(driverPath, Qt::CaseSensitive); });
}

/// Appends \p driverPath to the render nodes of node \p index, when there is
/// such a node and \p bound leaves room for the link.
template <typename Node>
void addRenderNode(QList<Node>& list, FirstIndex& byDriver, int index, const QString& driverPath,
    listLimits::Bound& bound)
{
    if (index < 0 || !bound.roomForLink())
        return;
    list[index].renderNodes.append(driverPath);
    byDriver.note(driverPath, index);
}

} // namespace elementSection
