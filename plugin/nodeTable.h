// What the scan keeps per node of a scene that declares its node types: the
// base type, the bypass flag and where the node's members start in the file,
// so that a reader can come back to a section already passed (a channel
// reference to a node read earlier) without a second pass over the file.
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

#include <vector>

struct NodeEntry
{
    /// The member path, without the leading "/": "obj/ropnet1/mantra1".
    QString path;
    /// The declared type without namespace and version; empty when the scene
    /// declared none for this node.
    QString type;
    bool bypass = false;
    /// Its parent is a ROP network, by the types declared before it.
    bool inRopNetwork = false;
    /// File offsets of the lines that start the node's members, -1 when the
    /// scene has none (yet).
    qint64 initOffset = -1;
    qint64 defOffset = -1;
    qint64 chnOffset = -1;
    qint64 parmOffset = -1;
};

class NodeTable
{
public:
    /// Nodes kept: a hundred times the largest real scene we know (705
    /// nodes). A hostile scene of millions of ".init" members must not grow
    /// the table without end; nodes past the limit read as undeclared.
    static constexpr qsizetype MaxNodes = 65536;
    /// Path text kept, over all nodes (8 MB): the node count alone would let
    /// 65,536 paths of a megabyte each through.
    static constexpr qsizetype MaxPathUnits = 4 * 1024 * 1024;

    /// The entry of \p path, or nullptr.
    NodeEntry* find(QStringView path);
    const NodeEntry* find(QStringView path) const;

    /// The entry of \p path, added when missing; nullptr once a limit is
    /// reached (overflowed() then tells so).
    NodeEntry* insert(QStringView path);

    /// Whether the node \p path lies in a ROP network: its parent is "/out",
    /// a ropnet, or a subnet that lies in one. A scene declares a network
    /// before its children, so each entry decides it once, from its parent's
    /// entry, when it is added; a lookup is one hash of the path.
    bool inRopNetwork(QStringView path) const;

    qsizetype size() const { return qsizetype(entries.size()); }
    bool overflowed() const { return full; }

private:
    std::vector<NodeEntry> entries;
    QHash<QString, qsizetype> index;
    /// The entry found last: a node's members follow one another, so most
    /// lookups ask for it again, and in a table of tens of thousands of nodes
    /// its hash bucket is seldom still in the cache.
    mutable qsizetype lastFound = -1;
    qsizetype pathUnits = 0;
    bool full = false;
};
