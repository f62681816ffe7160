#include "plugin/wires.h"

#include "plugin/nodeTypes.h"
#include "plugin/parameterLine.h"
#include "plugin/paths/nodeReferences.h"
#include "plugin/textSearch.h"

#include <QSet>

#include <map>
#include <tuple>

namespace {

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

QString siblingPath(QStringView nodePath, const QString& name)
{
    const QStringView parent = parentPath(nodePath);
    return parent.isEmpty() ? name : parent.toString() + u'/' + name;
}

/// A fetch source as a member path: "/out/mantra1" and "../mantra1" seen
/// from "out/fetch1" both give "out/mantra1".
QString sourcePath(const WireNode& fetch)
{
    const QString resolved
        = resolveParameterReference(fetch.fetchSource, QString(u'/' + fetch.path));
    return resolved.startsWith(u'/') ? resolved.mid(1) : resolved;
}

bool isSubnet(const QString& type)
{
    return type == u"subnet" || type == u"ropnet";
}

} // namespace

std::optional<InputEntry> inputEntry(QStringView line)
{
    qsizetype at = 0;
    while (at < line.size() && line[at].isDigit() && line[at].unicode() < 128)
        ++at;
    if (at == 0 || at > 9 || at == line.size() || !isBlank(line[at]))
        return std::nullopt;
    InputEntry entry;
    entry.index = line.left(at).toInt();
    while (at < line.size() && isBlank(line[at]))
        ++at;
    qsizetype end = at;
    while (end < line.size() && !isBlank(line[end]))
        ++end;
    const QStringView name = line.mid(at, end - at);
    if (name.isEmpty())
        return std::nullopt;
    // A parenthesised entry is the enclosing network's input or a dot; the
    // walk stays among the node's siblings.
    if (!name.startsWith(u'(') && !name.startsWith(u'"'))
        entry.name = name.toString();
    return entry;
}

bool displayFlagOn(QStringView line)
{
    return line.startsWith(u"flags =") && containsShort(line, u" display on");
}

QString fetchSourceValue(QStringView line)
{
    if (!line.startsWith(u"source\t"))
        return QString();
    const QString value = parameterLine::unquotedBracketValue(line.toString());
    return value.isEmpty() ? QString() : value;
}

std::optional<int> switchIndexValue(QStringView line)
{
    if (!line.startsWith(u"index\t"))
        return std::nullopt;
    bool ok = false;
    const int value = parameterLine::bracketValue(line.toString()).toInt(&ok);
    return ok && value >= 0 ? value : WireNode::EveryInput;
}

void DefMemberReader::feed(QStringView line, WireNode& node)
{
    switch (state) {
    case State::Outside:
        if (line.trimmed() == u"inputs")
            state = State::Opening;
        else if (displayFlagOn(line))
            node.display = true;
        return;
    case State::Opening:
        state = line.trimmed() == u"{" ? State::Inside : State::Outside;
        return;
    case State::Inside:
        if (line.trimmed() == u"}") {
            state = State::Outside;
            return;
        }
        if (const auto entry = inputEntry(line))
            WireGraph::addInput(node, *entry);
        return;
    }
}

bool WireGraph::keptType(QStringView type)
{
    return type == u"fetch" || type == u"switch" || type == u"subnet" || type == u"ropnet"
        || type == u"output";
}

const WireNode* WireGraph::find(QStringView path) const
{
    // A key over the caller's characters: no copy of the path per lookup.
    const auto it = index.constFind(QString::fromRawData(path.data(), path.size()));
    return it == index.cend() ? nullptr : &nodes[std::size_t(*it)];
}

WireNode* WireGraph::insert(QStringView path)
{
    if (const WireNode* node = find(path))
        return const_cast<WireNode*>(node);
    if (size() >= MaxNodes || pathUnits + path.size() > MaxPathUnits) {
        full = true;
        return nullptr;
    }
    WireNode node;
    node.path = path.toString();
    pathUnits += path.size();
    index.insert(node.path, size());
    children[parentPath(path).toString()].push_back(size());
    nodes.push_back(std::move(node));
    return &nodes.back();
}

void WireGraph::setType(QStringView path, QStringView baseType)
{
    if (!keptType(baseType)) {
        if (const WireNode* node = find(path))
            const_cast<WireNode*>(node)->type.clear();
        return;
    }
    if (WireNode* node = insert(path))
        node->type = baseType.toString();
}

void WireGraph::addInput(WireNode& node, const InputEntry& entry)
{
    if (entry.name.isEmpty() || entry.name.size() > MaxNameUnits || entry.index >= MaxInputs)
        return;
    while (node.inputs.size() <= entry.index)
        node.inputs.append(QString());
    node.inputs[entry.index] = entry.name;
}

void WireGraph::readParameterLine(WireNode& node, QStringView line)
{
    if (node.type == u"fetch") {
        const QString source = fetchSourceValue(line);
        if (!source.isNull() && source.size() <= MaxNameUnits)
            node.fetchSource = source;
        return;
    }
    if (node.type == u"switch") {
        if (const auto selected = switchIndexValue(line))
            node.switchIndex = *selected;
    }
}

QStringList WireGraph::upstreamDrivers(
    QStringView driverPath, const std::function<bool(QStringView)>& madeJobs) const
{
    QStringList found;
    const WireNode* start = find(driverPath);
    if (!start)
        return found;

    // Depth first in input order, so the waits come in the order the wires
    // are read; each node is walked once, which also ends every cycle.
    QSet<QString> seen { start->path };
    std::vector<QString> pending;
    std::vector<QString> next;
    const auto follow = [&](const WireNode& node) {
        next.clear();
        if (node.type == u"fetch" && !node.fetchSource.isEmpty())
            next.push_back(sourcePath(node));
        if (isSubnet(node.type)) {
            // Output children are what a subnet hands on; without them, the
            // child with the display flag is.
            const auto kids = children.constFind(node.path);
            for (const bool byDisplay : { false, true }) {
                if (kids == children.cend() || !next.empty())
                    break;
                for (const qsizetype k : *kids) {
                    const WireNode& child = nodes[std::size_t(k)];
                    if (byDisplay ? child.display : child.type == u"output")
                        next.push_back(child.path);
                }
            }
        }
        const bool oneInput = node.type == u"switch" && node.switchIndex != WireNode::EveryInput;
        for (qsizetype i = 0; i < node.inputs.size(); ++i) {
            if (oneInput && i != node.switchIndex)
                continue;
            if (!node.inputs[i].isEmpty())
                next.push_back(siblingPath(node.path, node.inputs[i]));
        }
        pending.insert(pending.end(), next.rbegin(), next.rend());
    };

    follow(*start);
    while (!pending.empty() && found.size() < MaxWaits) {
        const QString path = std::move(pending.back());
        pending.pop_back();
        if (seen.contains(path))
            continue;
        seen.insert(path);
        if (madeJobs(path)) {
            found.append(path);
            continue;
        }
        if (const WireNode* node = find(path))
            follow(*node);
    }
    return found;
}

std::vector<std::vector<int>> fannedOutWaits(
    const std::vector<FannedJob>& jobs, const std::vector<std::vector<int>>& baseWaits)
{
    using Key = std::tuple<int, int, QString>;
    std::map<Key, int> preIDs;
    for (const FannedJob& job : jobs)
        preIDs.emplace(Key { job.source, job.take, job.variant }, job.preID);

    std::vector<std::vector<int>> waits(jobs.size());
    for (std::size_t j = 0; j < jobs.size(); ++j) {
        const FannedJob& job = jobs[j];
        if (job.source < 0 || std::size_t(job.source) >= baseWaits.size())
            continue;
        for (const int upstream : baseWaits[std::size_t(job.source)]) {
            for (const Key& key : { Key { upstream, job.take, job.variant },
                     Key { upstream, job.take, QString() }, Key { upstream, 0, QString() } }) {
                const auto it = preIDs.find(key);
                if (it == preIDs.end())
                    continue;
                waits[j].push_back(it->second);
                break;
            }
        }
    }
    return waits;
}
