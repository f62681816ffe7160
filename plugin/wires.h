// The wires of a scene: which node feeds which, as each node's ".def" member
// lists its inputs, plus the two parameters that redirect a ROP network's
// flow (a fetch's "source", a switch's "index"). Users chain their outputs
// (a cache before the export that reads it, renders gathered by a merge), so
// a driver's jobs must wait for the drivers upstream of it; the scan keeps
// what it meets here and the graph is walked once the scan has ended.
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <functional>
#include <optional>
#include <vector>

/// One entry of a ".def" "inputs" block: "0 \tgeo_cache 0 1" (older scenes:
/// "0 \ttorus1"). \c name is empty for an unconnected input (`""`) and for
/// the parenthesised entries that are not followed: "(0)", the enclosing
/// subnet's own input, and "(dot1)", a network dot.
struct InputEntry
{
    int index = 0;
    QString name;
};

/// The input entry of \p line, or nothing when the line is none ("}", a
/// block's name, a line without a leading input number).
std::optional<InputEntry> inputEntry(QStringView line);

/// Whether a ".def" "flags =" line sets the display flag ("display on").
bool displayFlagOn(QStringView line);

/// The node named by a fetch's "source" line, unquoted, or a null string
/// when \p line is no "source" parameter line or names nothing.
QString fetchSourceValue(QStringView line);

/// The input a switch's "index" line selects: its value when that is a
/// plain integer of 0 or more, else WireNode::EveryInput: an expression or a
/// channel reference selects at render time, so every input may count.
/// Nothing when \p line is no "index" line.
std::optional<int> switchIndexValue(QStringView line);

/// What the graph keeps of one node.
struct WireNode
{
    /// Member path without the leading "/": "out/merge1".
    QString path;
    /// Base type when it is one the walk treats apart (fetch, switch,
    /// subnet, ropnet, output); empty otherwise.
    QString type;
    bool display = false;
    /// Sibling names by input index; empty where nothing is followed.
    QStringList inputs;
    /// A fetch's source as written (absolute or relative to the fetch).
    QString fetchSource;
    /// A switch's selected input, or EveryInput.
    int switchIndex = EveryInput;
    static constexpr int EveryInput = -1;
};

/// Reads one ".def" member's lines into a WireNode: the flags line and the
/// "inputs" block. "inputsNamed3" and the other blocks are passed over.
class DefMemberReader
{
public:
    void feed(QStringView line, WireNode& node);

private:
    enum class State { Outside, Opening, Inside };
    State state = State::Outside;
};

class WireGraph
{
public:
    /// Nodes kept. The largest real scene we know has 705 nodes; a hostile
    /// scene of millions of wired nodes must not grow the graph without end,
    /// and each driver's walk visits each kept node at most once, so the
    /// count also bounds the work per driver. Nodes past it have no wires.
    static constexpr qsizetype MaxNodes = 65536;
    /// Inputs kept per node: a merge gathering a few dozen renders is common,
    /// and an input number written in the file must not size a list. Inputs
    /// past it are dropped, as if unconnected.
    static constexpr int MaxInputs = 256;
    /// Units of one kept name or source; Houdini node names are short, and
    /// a megabyte name per input must not multiply by the limits above.
    static constexpr qsizetype MaxNameUnits = 1024;
    /// Path text kept over all nodes: the node count alone would let 65,536
    /// paths of a megabyte each through.
    static constexpr qsizetype MaxPathUnits = 4 * 1024 * 1024;
    /// Waits a walk returns: the job record holds 29.
    static constexpr int MaxWaits = 29;

    /// Whether a node of base type \p type is kept whatever its wires.
    static bool keptType(QStringView type);

    /// The node of \p path, or nullptr.
    const WireNode* find(QStringView path) const;

    /// The node of \p path, added when missing; nullptr past MaxNodes.
    WireNode* insert(QStringView path);

    /// Records a declared base type; keeps a node only for the types the
    /// walk treats apart.
    void setType(QStringView path, QStringView baseType);

    /// Stores one input of \p node; entries past MaxInputs, names past
    /// MaxNameUnits and empty names are dropped.
    static void addInput(WireNode& node, const InputEntry& entry);

    /// Reads a ".parm" line of a kept fetch or switch node; other lines and
    /// nodes are left alone.
    static void readParameterLine(WireNode& node, QStringView line);

    /// The drivers \p driverPath waits for, in input order without repeats,
    /// at most MaxWaits: the nearest upstream nodes for which \p madeJobs is
    /// true, reached through every node for which it is false (merge, null,
    /// bypassed drivers, ...), switches by their index, fetches by their
    /// source, subnets and ropnets by their output children (else display
    /// children) and then their own inputs. A wire leading back to a node
    /// already walked ends that branch, so cycles end.
    QStringList upstreamDrivers(
        QStringView driverPath, const std::function<bool(QStringView)>& madeJobs) const;

    qsizetype size() const { return qsizetype(nodes.size()); }
    bool overflowed() const { return full; }

private:
    std::vector<WireNode> nodes;
    QHash<QString, qsizetype> index;
    /// Kept nodes by parent path, in file order: a subnet hands on its
    /// children without a search over every node.
    QHash<QString, std::vector<qsizetype>> children;
    qsizetype pathUnits = 0;
    bool full = false;
};

/// One job after the take and wedge fan-out, as far as its waits go.
struct FannedJob
{
    /// Index of the job it was copied from among the jobs before the
    /// fan-out (its own index for those jobs).
    int source = 0;
    /// Take index of a take copy; 0 for the jobs before the fan-out, whose
    /// take is the first one or the take their driver names.
    int take = 0;
    /// The wedge variant of a wedge copy ("/out/wedge1*3", its sceneState);
    /// empty otherwise.
    QString variant;
    int preID = 0;
};

/// The waits of every job after the fan-out: \p baseWaits holds, per job
/// before it, the indices of the jobs it waits for (export first, then the
/// wires). A copy waits inside its own take and variant: for each upstream
/// job, its copy of the same take and variant, else of the same take without
/// variant, else the upstream job itself (a driver that renders only its
/// own take has no copies). Returned as preIDs, per job of \p jobs.
std::vector<std::vector<int>> fannedOutWaits(
    const std::vector<FannedJob>& jobs, const std::vector<std::vector<int>>& baseWaits);
