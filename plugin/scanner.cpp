#include "scanner.h"

#include "plugin/frameChannels.h"
#include "plugin/nodeTypes.h"
#include "plugin/parameterLine.h"
#include "shared/zkAscii.h"
#include "shared/zkShared.h"

#include <QIODevice>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr int MaxEnvironmentValueLength = 200;

/// Renderer markers of a section header under obj/, img/ or stage/, in the
/// order they are tried.
const char* const RendererMarkers[] = {
    "/mantra",
    "/arnold",
    "/Redshift_",
    "/rs_",
    "/opengl",
    "/geometry",
    "/geo",
    "_geo_",
    "/comp",
    "/rop_comp",
    "/alembic",
    "/vray",
    "/usd_rop",
    "/usdrender_",
    "/ris",
    "/filecache",
    "/hdprman",
    "/karma",
    "/rendersettings",
};

/// RendererMarkers in lower case, in the same order.
const std::array<std::string, std::size(RendererMarkers)>& foldedMarkers()
{
    static const auto folded = [] {
        std::array<std::string, std::size(RendererMarkers)> all;
        for (size_t i = 0; i < all.size(); ++i) {
            for (const char* c = RendererMarkers[i]; *c; ++c)
                all[i] += zkAscii::lower(*c);
        }
        return all;
    }();
    return folded;
}

/// ".parm" anywhere in \p line; many lines end in "{", few hold a '.'
/// followed by "parm", and a character search is far cheaper than a
/// substring search set up per line.
bool containsParm(QStringView line)
{
    for (qsizetype dot = line.indexOf(u'.'); dot >= 0; dot = line.indexOf(u'.', dot + 1)) {
        if (line.mid(dot + 1, 4) == u"parm")
            return true;
    }
    return false;
}

/// A section header prepared for many searches. Headers are nearly always
/// ASCII, and for ASCII text Qt's case-insensitive comparison is plain ASCII
/// case folding, so such a header is searched as bytes and a lower-case copy;
/// any other header goes to Qt's own searches.
class HeaderText
{
public:
    explicit HeaderText(QStringView header)
        : line(header)
    {
        ascii = header.size() <= qsizetype(sizeof(bytes));
        for (qsizetype i = 0; ascii && i < header.size(); ++i) {
            const char16_t c = header[i].unicode();
            if (c >= 0x80) {
                ascii = false;
                break;
            }
            bytes[i] = char(c);
            lower[i] = char(zkAscii::lower(c));
        }
    }

    bool exact(const char* needle) const
    {
        if (ascii)
            return std::string_view(bytes, size_t(line.size())).find(needle)
                != std::string_view::npos;
        return line.contains(QLatin1String(needle), Qt::CaseSensitive);
    }

    bool anyCase(const char* needle) const
    {
        if (!ascii)
            return line.contains(QLatin1String(needle), Qt::CaseInsensitive);
        char folded[32];
        size_t n = 0;
        for (; needle[n] && n < sizeof(folded); ++n)
            folded[n] = zkAscii::lower(needle[n]);
        return std::string_view(lower, size_t(line.size())).find(std::string_view(folded, n))
            != std::string_view::npos;
    }

    bool isAscii() const { return ascii; }
    /// The ASCII header in lower case; only when isAscii().
    std::string_view lowered() const { return std::string_view(lower, size_t(line.size())); }

private:
    QStringView line;
    bool ascii = false;
    char bytes[512];
    char lower[512];
};

bool hasRendererMarker(const HeaderText& header)
{
    // An Alembic archive only loads geometry; a Karma render-properties node
    // only describes settings. Neither renders by itself, but the remaining
    // markers are still tried.
    const auto counts = [&](const char* marker) {
        if (std::strcmp(marker, "/alembic") == 0)
            return !header.anyCase("/alembicarchive");
        if (std::strcmp(marker, "/karma") == 0)
            return !header.anyCase("renderproper");
        return true;
    };
    if (!header.isAscii()) {
        for (const char* marker : RendererMarkers) {
            if (header.anyCase(marker) && counts(marker))
                return true;
        }
        return false;
    }
    // Each marker but "_geo_" starts with "/": the header's slashes are few,
    // so each marker is compared at each slash rather than searched for.
    const std::string_view lower = header.lowered();
    for (size_t slash = lower.find('/'); slash != std::string_view::npos;
         slash = lower.find('/', slash + 1)) {
        for (size_t i = 0; i < std::size(RendererMarkers); ++i) {
            const std::string& folded = foldedMarkers()[i];
            if (folded[0] == '/' && lower.compare(slash, folded.size(), folded) == 0
                && counts(RendererMarkers[i]))
                return true;
        }
    }
    return header.anyCase("_geo_");
}

// Case-insensitive searches over every line dominate the scan, so each
// search below first looks for a character that every match must hold at a
// known offset and that has no other case form ('_', '-', ' ', 'g'). Only
// there does Qt's own comparison decide, so the outcome is the same as that
// of QStringView::indexOf(..., Qt::CaseInsensitive).

/// Position of "_HIP_SAVEVERSION" in any case, or -1.
qsizetype findSaveVersion(QStringView line)
{
    constexpr QStringView key(u"_HIP_SAVEVERSION");
    for (qsizetype at = line.indexOf(u'_'); at >= 0; at = line.indexOf(u'_', at + 1)) {
        if (line.size() - at < key.size())
            return -1;
        // Node paths hold many '_'; only 'h' and 'H' fold to the next
        // character, so that test spares most full comparisons.
        const char16_t next = line[at + 1].unicode();
        if (next != u'h' && next != u'H')
            continue;
        if (line.mid(at, key.size()).compare(key, Qt::CaseInsensitive) == 0)
            return at;
    }
    return -1;
}

/// Position of "set -g " in any case, or -1.
qsizetype findSetGlobal(QStringView line)
{
    constexpr QStringView key(u"set -g ");
    constexpr qsizetype DashOffset = 4;
    for (qsizetype dash = line.indexOf(u'-', DashOffset); dash >= 0;
         dash = line.indexOf(u'-', dash + 1)) {
        if (dash + 2 >= line.size())
            return -1;
        if (line[dash - 1] != u' ' || line[dash + 2] != u' '
            || zkAscii::lower(line[dash + 1].unicode()) != u'g')
            continue;
        const QStringView candidate = line.mid(dash - DashOffset, key.size());
        if (candidate.compare(key, Qt::CaseInsensitive) == 0)
            return dash - DashOffset;
    }
    return -1;
}

/// Letters whose case-folded form is 's' or 'h'; a variable line starts with one.
bool mayStartVariableLine(QChar first)
{
    const char16_t c = first.unicode();
    return c == u's' || c == u'S' || c == u'h' || c == u'H' || c == u'\u017F';
}

void readFrameRange(QStringView line, Scene& scene)
{
    const QStringView rest = line.mid(line.indexOf(u' ') + 1);
    const qsizetype blank = rest.indexOf(u' ');
    if (blank < 0)
        return;
    scene.frameStart = roundedFrameNumber(rest.left(blank));
    scene.frameEnd = roundedFrameNumber(rest.mid(blank + 1));
}

void readSaveVersion(QStringView line, Scene& scene)
{
    const qsizetype open = line.indexOf(u'\'');
    if (open < 0)
        return;
    const qsizetype close = line.indexOf(u'\'', open + 1);
    if (close < 0)
        return;
    const QString version = line.mid(open + 1, close - open - 1).trimmed().toString();
    if (version.isEmpty())
        return;

    scene.houdiniVersion = version;
    const qsizetype dot = version.indexOf(u'.');
    if (dot < 0) {
        // A bare major number carries no minor part for either use.
        scene.houdiniMajor = version.toInt();
        scene.houdiniMinorForJobs.clear();
        scene.houdiniMinorForReaders.clear();
        return;
    }
    scene.houdiniMajor = QStringView(version).left(dot).toInt();
    const QString rest = version.mid(dot + 1);
    const qsizetype restDot = rest.indexOf(u'.');
    if (scene.ctx.buildVersionSwitch) {
        scene.houdiniMinorForJobs = restDot < 0 ? rest : rest.left(restDot);
        scene.houdiniMinorForReaders = scene.houdiniMinorForJobs;
        return;
    }
    scene.houdiniMinorForJobs = rest;
    // "5.303.1" -> "5303": minor and build joined, anything further dropped.
    QString joined = rest;
    if (restDot >= 0)
        joined.remove(restDot, 1);
    const qsizetype further = joined.indexOf(u'.');
    scene.houdiniMinorForReaders = further < 0 ? joined : joined.left(further);
}

void readGlobalVariable(QStringView line, qsizetype setAt, Scene& scene)
{
    if (!scene.variablesBound.roomFor(scene.variables.size()))
        return;
    const qsizetype assign = line.indexOf(QStringView(u" = "));
    const qsizetype nameAt = setAt + 7;
    // QString::mid semantics: a negative length reads to the end.
    const QString name = line.toString().mid(nameAt, assign - nameAt).trimmed();
    QStringView value = line.mid(assign + 3).trimmed();
    value = value.size() >= 2 ? value.mid(1, value.size() - 2) : QStringView();
    scene.variables.append({ name, value.trimmed().toString() });
}

void readTake(QStringView line, Scene& scene)
{
    QStringView name = line.mid(9).trimmed();
    const qsizetype blank = name.indexOf(u' ');
    if (blank >= 0)
        name = name.left(blank);
    name = name.trimmed();
    if (!name.isEmpty() && scene.takesBound.roomFor(scene.takes.size()))
        scene.takes.append(name.toString());
}

void takeEnvironment(Scene& scene)
{
    const _varValList environment = zkGetEnvironmentVariableList(false);
    for (const _varValue& variable : environment.items) {
        if (variable.value.size() <= MaxEnvironmentValueLength
            && variable.name.startsWith(QStringView(u"HIP"), Qt::CaseInsensitive))
            scene.variables.append({ variable.name, variable.value });
    }
}

/// What the scan does after a rule has looked at a line.
enum class Then {
    NextRule, ///< the line goes on to the rules after this one
    LineDone,
    StopScan, ///< a reader's result ends the load
};

struct ScanStep
{
    Scene& scene;
    LineSource& in;
    const SectionReaders& readers;
    QString& header;
    LoadResult result = LoadOk;
    /// A line read while looking for a member's end that starts another
    /// member: the scan takes it next.
    QString pending;
    /// The last ".chn" member read and the node it belongs to; it counts
    /// for that node's section only.
    QString channelsOf;
    FrameChannelReader channels;
    /// Bytes read again for channel references so far.
    qint64 rereadBytes = 0;
    /// The undecoded bytes of the line the rules look at, while no reader
    /// has read past it; none for a line left over by a member's reading.
    std::optional<QByteArrayView> raw;
};

Then takeFrameRange(QStringView line, ScanStep& step)
{
    // Only "frange" and a blank is the scene's range: node parameters named
    // "frange" ("frange\t[ 0 ...") would reset every driver's range.
    if (zkAscii::lower(line.front().unicode()) == u'f'
        && line.startsWith(QStringView(u"frange "), Qt::CaseInsensitive))
        readFrameRange(line, step.scene);
    return Then::NextRule;
}

/// Whether \p raw holds '_' followed by 'h' or 'H', as a line holding
/// "_HIP_SAVEVERSION" in any case must: both are ASCII, so they stand side
/// by side in the bytes as in the text. A byte search per '_' is cheaper
/// than Qt's per '_' of the decoded text, and member headers hold several.
bool mayHoldSaveVersion(QByteArrayView raw)
{
    const char* const begin = raw.data();
    const char* const end = begin + raw.size();
    for (const char* c = begin; c != end;) {
        const void* found = std::memchr(c, '_', size_t(end - c));
        if (!found)
            return false;
        c = static_cast<const char*>(found) + 1;
        if (c != end && (*c == 'h' || *c == 'H'))
            return true;
    }
    return false;
}

Then takeSaveVersion(QStringView line, ScanStep& step)
{
    if ((step.raw && !mayHoldSaveVersion(*step.raw)) || findSaveVersion(line) < 0)
        return Then::NextRule;
    readSaveVersion(line, step.scene);
    return Then::LineDone;
}

Then takeGlobalVariable(QStringView line, ScanStep& step)
{
    // Cheapest test first: archive member headers start with "Hou" too.
    if (!mayStartVariableLine(line.front())
        || !(line.startsWith(QStringView(u"set -g "), Qt::CaseInsensitive)
            || line.startsWith(QStringView(u"Hou"), Qt::CaseInsensitive)))
        return Then::NextRule;
    const qsizetype setAt = findSetGlobal(line);
    if (setAt >= 0 && line.contains(QStringView(u" = ")))
        readGlobalVariable(line, setAt, step.scene);
    return Then::NextRule;
}

Then takeTake(QStringView line, ScanStep& step)
{
    if (!line.startsWith(QStringView(u"take name")))
        return Then::NextRule;
    readTake(line, step.scene);
    return Then::LineDone;
}

Then takeSection(QStringView line, ScanStep& step)
{
    const SectionReader reader = step.readers[sectionKind(line)];
    if (!reader)
        return Then::LineDone;
    step.header = line.toString();
    step.result = reader(step.scene, step.in, step.header);
    return step.result == LoadOk ? Then::LineDone : Then::StopScan;
}

/// Lines between a MIME part header and its body's "{": a "Content-Type"
/// line and an empty line in real scenes.
constexpr int MaxMimePreamble = 4;

/// Whether \p line starts a member of the archive or a MIME part; \p raw,
/// when given, is the line's undecoded bytes.
bool startsMember(QStringView line, std::optional<QByteArrayView> raw = std::nullopt)
{
    // Asked of every line read inside a member: its first character rules
    // out the MIME forms, and a NUL, which only a NUL byte decodes to, the
    // archive forms. The bytes are searched a word at a time, half as many
    // as the decoded text's.
    if (line.isEmpty())
        return false;
    const char16_t first = line.front().unicode();
    if ((first == u'-' && line.startsWith(u"--"))
        || (first == u'C' && line.startsWith(u"Content-Disposition:")))
        return true;
    if (raw && !raw->contains('\0'))
        return false;
    const char16_t* c = line.utf16();
    const char16_t* const end = c + line.size();
    while (c != end && *c != 0)
        ++c;
    return c != end && archiveMemberHeader(line).has_value();
}

/// The ".def" lines the scan reads: the flags line, the "inputs" block (its
/// entries are read line by line once it has begun), "end", and the lines
/// that start another member. A ".def" member is mostly lines no rule reads
/// and real scenes hold tens of thousands of them, so they are searched for
/// as the scan searches, not read one by one. The member after a ".def" is
/// text, so its header starts a line.
const LineSource::Marks& defMarks()
{
    static const LineSource::Marks marks = [] {
        LineSource::Marks m;
        for (const char* lead :
            { "flags =", "inputs", "end", "070707", "HouNC", "--", "Content-Disposition:" })
            m.addLead(lead, false);
        return m;
    }();
    return marks;
}

/// Whether the raw line \p raw reads "end" once decoded and trimmed, told
/// without decoding it: every ".def" member ends in one, and the line needs
/// no string of its own. A line with other bytes around "end" than ASCII
/// blanks is not taken here; it is decoded as any other.
bool isEndLine(QByteArrayView raw)
{
    const auto blank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    qsizetype from = 0;
    qsizetype to = raw.size();
    while (from < to && blank(raw[from]))
        ++from;
    while (to > from && blank(raw[to - 1]))
        --to;
    return raw.sliced(from, to - from) == QByteArrayView("end");
}

/// Reads the body of a member the scan reads whole (".def", ".chn", a MIME
/// ".init"): each line goes to \p onLine until it returns false. A line that
/// starts another member ends the body too and is left for the scan, so a
/// member without its usual last line hides no member after it.
template <typename OnLine>
void readMemberBody(ScanStep& step, OnLine&& onLine)
{
    QByteArrayView raw;
    while (step.in.nextRaw(raw)) {
        QString text = LineSource::decode(raw);
        if (startsMember(text)) {
            step.pending = std::move(text);
            return;
        }
        if (!onLine(QStringView(text)))
            return;
    }
}

/// Moves past a MIME part's preamble to its "{" line; false when another
/// line comes first (it is left for the scan).
bool reachMimeBody(ScanStep& step)
{
    QByteArrayView raw;
    for (int i = 0; i < MaxMimePreamble && step.in.nextRaw(raw); ++i) {
        QString text = LineSource::decode(raw);
        if (text == u"{")
            return true;
        if (text.isEmpty() || text.startsWith(u"Content-", Qt::CaseInsensitive))
            continue;
        step.pending = std::move(text);
        return false;
    }
    return false;
}

void readInitMember(const MemberHeader& member, bool mime, ScanStep& step)
{
    const QString path = member.path.toString();
    QString type;
    if (!mime) {
        type = initTypeValue(member.rest.trimmed()).toString();
    } else {
        readMemberBody(step, [&](QStringView line) {
            const QStringView declared = initTypeValue(line);
            if (declared.isNull())
                return true;
            type = declared.toString();
            return false;
        });
    }
    if (type.isEmpty())
        return;
    const QStringView base = baseTypeName(type);
    if (NodeEntry* entry = step.scene.nodes.insert(path))
        entry->type = base.toString();
    step.scene.wires.setType(path, base);
}

void readDefMember(const MemberHeader& member, bool mime, ScanStep& step)
{
    const QString path = member.path.toString();
    bool bypass = false;
    WireNode wired;
    DefMemberReader wires;
    bool inInputs = false;
    const auto feed = [&](QStringView line) {
        if (line == u"end")
            return false;
        readFlagsLine(line, bypass);
        wires.feed(line, wired);
        if (line == u"inputs")
            inInputs = true;
        else if (line.startsWith(u'}'))
            inInputs = false;
        return true;
    };
    // In the archive forms the body's first line shares the header's line.
    QByteArrayView raw;
    if (mime || feed(member.rest.trimmed())) {
        while (inInputs ? step.in.nextRaw(raw) : step.in.nextMarked(raw, defMarks())) {
            if (isEndLine(raw))
                break;
            QString text = LineSource::decode(raw);
            if (startsMember(text, raw)) {
                step.pending = std::move(text);
                break;
            }
            if (!feed(text))
                break;
        }
    }
    if (NodeEntry* entry = step.scene.nodes.find(path))
        entry->bypass = bypass;
    if (!wired.display && wired.inputs.isEmpty() && !step.scene.wires.find(path))
        return;
    if (WireNode* node = step.scene.wires.insert(path)) {
        node->display = wired.display;
        node->inputs = wired.inputs;
    }
}

void readChnMember(const MemberHeader& member, bool mime, ScanStep& step)
{
    // Only a driver's frame channels count; animated nodes hold long ".chn"
    // members, which the scan passes over like any other lines.
    const NodeEntry* node = step.scene.nodes.find(member.path);
    if (!node || readerForType(node->type, node->inRopNetwork) != NodeReader::OutputDriver)
        return;
    step.channelsOf = member.path.toString();
    step.channels = FrameChannelReader();
    int depth = 0;
    bool opened = false;
    const auto feed = [&](QStringView line) {
        step.channels.readLine(line);
        for (const QChar c : line) {
            if (c == u'{') {
                ++depth;
                opened = true;
            } else if (c == u'}') {
                --depth;
            }
        }
        return !(opened && depth <= 0);
    };
    if (mime || feed(member.rest.trimmed()))
        readMemberBody(step, feed);
}

SectionKind kindOfReader(NodeReader reader)
{
    switch (reader) {
    case NodeReader::OutputDriver:
        return SectionKind::OutNode;
    case NodeReader::Camera:
        return SectionKind::Camera;
    case NodeReader::Wedge:
        return SectionKind::Wedge;
    case NodeReader::UsdRenderSettings:
        return SectionKind::UsdRenderSettings;
    case NodeReader::Lop:
        return SectionKind::Lop;
    case NodeReader::None:
        break;
    }
    return SectionKind::None;
}

/// A fetch's or switch's parameters redirect the wires; no reader reads them.
void readWireParameters(WireNode& node, ScanStep& step)
{
    QByteArrayView raw;
    while (step.in.nextRaw(raw)) {
        QString text = LineSource::decode(raw);
        if (text.startsWith(u'}'))
            return;
        if (startsMember(text)) {
            step.pending = std::move(text);
            return;
        }
        WireGraph::readParameterLine(node, text);
    }
}

Then readParmMember(QStringView line, const MemberHeader& member, bool mime, ScanStep& step)
{
    const QString path = member.path.toString();
    Scene& scene = step.scene;
    NodeEntry* entry = scene.nodes.insert(path);
    if (entry && entry->parmOffset < 0)
        entry->parmOffset = step.in.lineOffset();
    if (mime && !reachMimeBody(step))
        return Then::LineDone;
    if (!entry || entry->type.isEmpty()) {
        // A node without a declared type: its name decides, as in hand-written scenes.
        if (!mime)
            return takeSection(line, step);
        return takeSection(QString(path + QStringLiteral(".parm {")), step);
    }
    const SectionKind kind = kindOfReader(readerForType(entry->type, entry->inRopNetwork));
    const SectionReader reader = step.readers[kind];
    if (!reader) {
        const WireNode* wired = scene.wires.find(path);
        if (wired && (wired->type == u"fetch" || wired->type == u"switch"))
            readWireParameters(*scene.wires.insert(path), step);
        return Then::LineDone;
    }
    Scene::DeclaredSection& section = scene.section;
    section.path = u'/' + path;
    section.type = entry->type;
    section.bypass = entry->bypass;
    section.channels = step.channelsOf == path ? step.channels : FrameChannelReader();
    step.header = path + QStringLiteral(".parm {");
    step.result = reader(scene, step.in, step.header);
    section = Scene::DeclaredSection();
    return step.result == LoadOk ? Then::LineDone : Then::StopScan;
}

/// Reading a section again for a channel reference. A reference to a node
/// before the driver starts at the node's remembered ".parm" offset, at most
/// a chunk before its header; one to a node after it looks ahead from the
/// driver's line, at most MaxLookAheadBytes. All references of a load read
/// at most MaxRereadBytes again, so a scene of millions of references costs
/// a bounded multiple of its size; past that, references stay unresolved.
constexpr qint64 MaxLookAheadBytes = qint64(64) << 20;
constexpr qint64 MaxRereadBytes = qint64(256) << 20;

std::optional<MemberHeader> memberHeader(QStringView line)
{
    if (line.contains(QChar(0)))
        return archiveMemberHeader(line);
    if (line.startsWith(u'C'))
        return mimeMemberHeader(line);
    return std::nullopt;
}

/// The value of \p parameter in the ".parm" section of \p path, searched for
/// from where \p in stands up to the offset \p stopAt; null when not found.
QString parameterInSection(LineSource& in, QStringView path, QStringView parameter, qint64 stopAt)
{
    static const LineSource::Marks parmHeaders = [] {
        LineSource::Marks marks;
        marks.addPair(".parm", false);
        return marks;
    }();
    QByteArrayView raw;
    bool inside = false;
    // The header is searched for as the scan searches: only lines holding
    // ".parm" are decoded, so looking ahead costs what the scan does.
    while (
        (inside ? in.nextRaw(raw) : in.nextMarked(raw, parmHeaders)) && in.lineOffset() <= stopAt) {
        const QString text = LineSource::decode(raw);
        if (!inside) {
            const auto member = memberHeader(text);
            inside = member && member->member == NodeMember::Parm && member->path == path;
            continue;
        }
        if (text.startsWith(u'}') || startsMember(text))
            return QString();
        if (text.size() > parameter.size() && text.startsWith(parameter)
            && text[parameter.size()].isSpace()) {
            const QString value = parameterLine::outerBracketValue(text);
            return value.isNull() ? QStringLiteral("") : value;
        }
    }
    return QString();
}

QString referencedValue(ScanStep& step, QStringView nodePath, QStringView parameter)
{
    QIODevice* device = step.in.device();
    if (!device || device->isSequential() || step.rereadBytes >= MaxRereadBytes)
        return QString();
    const QStringView path = nodePath.startsWith(u'/') ? nodePath.mid(1) : nodePath;
    const NodeEntry* node = step.scene.nodes.find(path);
    const bool earlier = node && node->parmOffset >= 0;
    const qint64 from = earlier ? node->parmOffset : step.in.lineOffset();
    if (from < 0)
        return QString();
    const qint64 budget = MaxRereadBytes - step.rereadBytes;
    const qint64 stopAt = from + (earlier ? budget : std::min(budget, MaxLookAheadBytes));
    const qint64 resume = device->pos();
    QString value;
    if (device->seek(from)) {
        QTextStream stream(device);
        LineSource again(stream);
        value = parameterInSection(again, path, parameter, stopAt);
        step.rereadBytes += std::max<qint64>(device->pos() - from, 1);
    }
    device->seek(resume);
    return value;
}

/// A member header of the archive forms (it holds a NUL) or of the MIME
/// form; any other line may still be a hand-written section header.
Then takeMember(QStringView line, ScanStep& step)
{
    std::optional<MemberHeader> member;
    // A NUL in the text comes from a NUL byte only.
    const bool mime = step.raw ? !step.raw->contains('\0') : !line.contains(QChar(0));
    if (!mime)
        member = archiveMemberHeader(line);
    else if (line.front() == u'C')
        member = mimeMemberHeader(line);
    if (!member)
        return takeSection(line, step);
    switch (member->member) {
    case NodeMember::Init:
        readInitMember(*member, mime, step);
        return Then::LineDone;
    case NodeMember::Def:
        readDefMember(*member, mime, step);
        return Then::LineDone;
    case NodeMember::Chn:
        readChnMember(*member, mime, step);
        return Then::LineDone;
    case NodeMember::Parm:
        break;
    }
    return readParmMember(line, *member, mime, step);
}

/// Bytes a raw line must hold for a rule to take it: at the line's first
/// visible byte, or anywhere (LineSource::Marks tells how case is ignored).
struct ByteKey
{
    enum Place { Lead, Anywhere };
    const char* text = nullptr;
    Place place = Lead;
    bool anyCase = false;
};

/// One scene-wide rule: the bytes it needs, and its test of the decoded,
/// trimmed line with what it does there. The bytes only decide whether a line
/// is decoded; the text test alone decides what the rule takes. A pair key
/// that ignores case must not start with 's' or 'k', whose non-ASCII forms
/// the line source does not look for there.
struct LineRule
{
    ByteKey keys[2];
    /// Bytes a line with a lead key must also hold, exactly; none when null.
    const char* alsoHolds;
    Then (*take)(QStringView line, ScanStep& step);
};

/// In the order the rules look at a line.
const LineRule LineRules[] = {
    { { { "frange", ByteKey::Lead, true } }, nullptr, takeFrameRange },
    { { { "_hip_saveversion", ByteKey::Anywhere, true } }, nullptr, takeSaveVersion },
    { { { "set -g ", ByteKey::Lead, true }, { "hou", ByteKey::Lead, true } }, " = ",
        takeGlobalVariable },
    { { { "take name", ByteKey::Lead, false } }, nullptr, takeTake },
    // A member header, or a hand-written section header; the second rule
    // only adds the keys of the members the scan reads whole.
    { { { ".parm", ByteKey::Anywhere, false }, { ".init", ByteKey::Anywhere, false } }, nullptr,
        takeMember },
    { { { ".def", ByteKey::Anywhere, false }, { ".chn", ByteKey::Anywhere, false } }, nullptr,
        takeMember },
};

/// The keys of every rule, for the line source to look for.
LineSource::Marks ruleMarks()
{
    LineSource::Marks marks;
    for (const LineRule& rule : LineRules) {
        for (const ByteKey& key : rule.keys) {
            if (!key.text)
                continue;
            if (key.place == ByteKey::Lead)
                marks.addLead(key.text, key.anyCase, rule.alsoHolds);
            else
                marks.addPair(key.text, key.anyCase);
        }
    }
    return marks;
}

Then applyRules(QStringView line, ScanStep& step)
{
    for (const LineRule& rule : LineRules) {
        const Then then = rule.take(line, step);
        if (then != Then::NextRule)
            return then;
    }
    return Then::LineDone;
}

} // namespace

SectionKind sectionKind(QStringView line)
{
    if (!line.endsWith(u'{') || !containsParm(line))
        return SectionKind::None;

    const HeaderText header(line);
    const bool underOut = header.exact("out/");
    const bool underObj = header.exact("obj/");
    // Most members of a scene live in other networks; every rule below needs
    // one of these four prefixes, so such headers are done here.
    const bool underRenderNetwork
        = underObj || header.anyCase("obj/") || header.anyCase("img/") || header.anyCase("stage/");
    if (!underOut && !underRenderNetwork)
        return SectionKind::None;

    if (header.exact("wedge") && (underOut || (underObj && header.exact("/wedge"))))
        return SectionKind::Wedge;
    if ((header.exact("/cam") || header.exact("stereocam")) && (underOut || underObj))
        return SectionKind::Camera;

    const bool renderNode = underOut || hasRendererMarker(header);
    if (!renderNode)
        return SectionKind::None;
    if (header.exact("/rendersettings"))
        return SectionKind::UsdRenderSettings;
    if (header.exact("/hdprman"))
        return SectionKind::Lop;
    return SectionKind::OutNode;
}

LoadResult scanScene(Scene& scene, LineSource& in, const SectionReaders& readers, ScanMode mode)
{
    const QString& path = scene.ctx.scenePath;
    const qsizetype slash = path.lastIndexOf(u'/');
    scene.databaseDir = slash < 0 ? path : path.left(slash + 1);
    takeEnvironment(scene);

    static const LineSource::Marks marks = ruleMarks();
    QString header;
    ScanStep step { scene, in, readers, header, LoadOk, {}, {}, {}, 0, {} };
    scene.parameterValue = [&step](QStringView node, QStringView parameter) {
        return referencedValue(step, node, parameter);
    };
    QByteArrayView raw;
    for (;;) {
        QString text;
        step.raw.reset();
        if (!step.pending.isNull()) {
            std::swap(text, step.pending);
        } else if (mode == ScanMode::EveryLine ? in.nextRaw(raw) : in.nextMarked(raw, marks)) {
            text = LineSource::decode(raw);
            step.raw = raw;
        } else {
            break;
        }
        if (text.isEmpty() || text.front() == u'#')
            continue;
        if (applyRules(text, step) == Then::StopScan)
            break;
    }
    scene.parameterValue = nullptr;
    return step.result;
}
