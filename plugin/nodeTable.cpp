#include "plugin/nodeTable.h"

#include "plugin/nodeTypes.h"

NodeEntry* NodeTable::find(QStringView path)
{
    if (lastFound >= 0 && entries[std::size_t(lastFound)].path == path)
        return &entries[std::size_t(lastFound)];
    // Every member header is looked up: a key over the caller's characters
    // spares a copy of the path each time.
    const auto it = index.constFind(QString::fromRawData(path.data(), path.size()));
    if (it == index.cend())
        return nullptr;
    lastFound = *it;
    return &entries[std::size_t(lastFound)];
}

const NodeEntry* NodeTable::find(QStringView path) const
{
    return const_cast<NodeTable*>(this)->find(path);
}

NodeEntry* NodeTable::insert(QStringView path)
{
    if (NodeEntry* entry = find(path))
        return entry;
    if (size() >= MaxNodes || pathUnits + path.size() > MaxPathUnits) {
        full = true;
        return nullptr;
    }
    NodeEntry entry;
    entry.inRopNetwork = inRopNetwork(path);
    entry.path = path.toString();
    pathUnits += path.size();
    index.insert(entry.path, size());
    entries.push_back(std::move(entry));
    return &entries.back();
}

bool NodeTable::inRopNetwork(QStringView path) const
{
    if (const NodeEntry* entry = find(path))
        return entry->inRopNetwork;
    const QStringView parent = parentPath(path);
    if (parent.isEmpty())
        return false;
    const NodeEntry* p = find(parent);
    return childOfRopNetwork(
        parent, p ? QStringView(p->type) : QStringView(), p && p->inRopNetwork);
}
