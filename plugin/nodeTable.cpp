#include "plugin/nodeTable.h"

#include "plugin/nodeTypes.h"

NodeEntry* NodeTable::find(QStringView path)
{
    const auto it = index.constFind(path.toString());
    return it == index.cend() ? nullptr : &entries[std::size_t(*it)];
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
    entry.path = path.toString();
    pathUnits += path.size();
    index.insert(entry.path, size());
    entries.push_back(std::move(entry));
    return &entries.back();
}

bool NodeTable::inRopNetwork(QStringView path) const
{
    // Walk up to the top, then decide downwards: a subnet counts only when
    // it lies in a ROP network itself. Iterative, so a path of thousands of
    // levels costs no stack.
    std::vector<QStringView> ancestors;
    for (QStringView p = parentPath(path); !p.isEmpty(); p = parentPath(p))
        ancestors.push_back(p);
    bool inside = false;
    for (auto it = ancestors.rbegin(); it != ancestors.rend(); ++it) {
        const NodeEntry* parent = find(*it);
        inside = childOfRopNetwork(*it, parent ? QStringView(parent->type) : QStringView(), inside);
    }
    return inside;
}
