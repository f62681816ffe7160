#include "scanner.h"

#include "shared/zkAscii.h"
#include "shared/zkShared.h"

#include <array>
#include <cstring>
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
    scene.frameStart = rest.left(blank).toInt();
    scene.frameEnd = rest.mid(blank + 1).toInt();
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

Then takeSaveVersion(QStringView line, ScanStep& step)
{
    if (findSaveVersion(line) < 0)
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
    { { { ".parm", ByteKey::Anywhere, false } }, nullptr, takeSection },
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
    ScanStep step { scene, in, readers, header };
    QByteArrayView raw;
    while (mode == ScanMode::EveryLine ? in.nextRaw(raw) : in.nextMarked(raw, marks)) {
        const QString text = LineSource::decode(raw);
        if (text.isEmpty() || text.front() == u'#')
            continue;
        if (applyRules(text, step) == Then::StopScan)
            break;
    }
    return step.result;
}
