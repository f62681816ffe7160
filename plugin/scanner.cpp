#include "scanner.h"

#include "plugin/parserState.h"
#include "shared/zkShared.h"

#include <cstring>
#include <string_view>

namespace {

constexpr int MaxEnvironmentValueLength = 200;

/// Every expanded path walks the whole variable list; past this many entries
/// further "set -g" lines are not kept, so a scene of millions of them does
/// not make each path cost millions of steps. Real scenes set a few dozen
/// (the 57 scenes of the test corpus at most 20).
constexpr qsizetype MaxSceneVariables = 256;

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
            lower[i] = char(c >= u'A' && c <= u'Z' ? c - u'A' + u'a' : c);
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
        for (; needle[n] && n < sizeof(folded); ++n) {
            const char c = needle[n];
            folded[n] = c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
        }
        return std::string_view(lower, size_t(line.size())).find(std::string_view(folded, n))
            != std::string_view::npos;
    }

private:
    QStringView line;
    bool ascii = false;
    char bytes[512];
    char lower[512];
};

bool hasRendererMarker(const HeaderText& header)
{
    for (const char* marker : RendererMarkers) {
        if (!header.anyCase(marker))
            continue;
        // An Alembic archive only loads geometry; a Karma render-properties
        // node only describes settings. Neither renders by itself.
        if (std::strcmp(marker, "/alembic") == 0 && header.anyCase("/alembicarchive"))
            continue;
        if (std::strcmp(marker, "/karma") == 0 && header.anyCase("renderproper"))
            continue;
        return true;
    }
    return false;
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
            || (line[dash + 1].unicode() | 0x20) != u'g')
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

bool isAsciiSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

char asciiLower(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

/// Whether \p key (lower-case ASCII) may stand at \p at of \p raw in any
/// letter case. A byte above 0x7F may be a character that folds to an ASCII
/// letter, so it counts as a possible match for the exact test to decide.
bool mayHoldAnyCase(QByteArrayView raw, qsizetype at, const char* key)
{
    for (qsizetype k = 0; key[k]; ++k) {
        if (at + k >= raw.size())
            return false;
        const char c = raw[at + k];
        if (static_cast<unsigned char>(c) >= 0x80)
            return true;
        if (asciiLower(c) != key[k])
            return false;
    }
    return true;
}

/// Whether \p text (a few ASCII bytes) occurs in \p body, exactly. A search
/// for its first byte and a compare there; Qt's general substring search costs
/// more to set up than these short lines take to scan.
bool holdsBytes(QByteArrayView body, const char* text)
{
    const size_t n = std::strlen(text);
    const char* const begin = body.data();
    const char* const end = begin + body.size();
    for (const char* p = begin; size_t(end - p) >= n
         && (p = static_cast<const char*>(std::memchr(p, text[0], size_t(end - p) - n + 1)));
         ++p) {
        if (std::memcmp(p, text, n) == 0)
            return true;
    }
    return false;
}

/// Cheap test on a raw line: false only for lines that no rule of the scan
/// can take, which are nearly all lines of a scene. Every rule's exact test
/// runs afterwards on the decoded text, so this only has to be generous.
/// A line whose first or last visible byte is not ASCII may be trimmed
/// differently once decoded, so it always passes.
bool mayMatter(QByteArrayView raw, bool hasUnderscore)
{
    qsizetype first = 0;
    qsizetype last = raw.size() - 1;
    while (first <= last && isAsciiSpace(raw[first]))
        ++first;
    if (first > last)
        return false;
    while (isAsciiSpace(raw[last]))
        --last;
    const char head = raw[first];
    const char tail = raw[last];
    if (static_cast<unsigned char>(head) >= 0x80 || static_cast<unsigned char>(tail) >= 0x80)
        return true;
    if (head == '#')
        return false;
    const QByteArrayView body = raw.sliced(first, last - first + 1);
    // "frange", "take name" and section headers are known by their ends.
    if ((head == 'f' || head == 'F') && mayHoldAnyCase(body, 0, "frange"))
        return true;
    if (head == 't' && body.startsWith("take name"))
        return true;
    if (tail == '{' && holdsBytes(body, ".parm"))
        return true;
    // A variable line starts with "set -g " or "Hou" and holds " = ".
    if ((mayHoldAnyCase(body, 0, "set -g ") || mayHoldAnyCase(body, 0, "hou"))
        && body.contains(" = "))
        return true;
    if (!hasUnderscore)
        return false;
    const char* const begin = body.data();
    const char* const end = begin + body.size();
    for (const char* p = begin;
         (p = static_cast<const char*>(std::memchr(p, '_', size_t(end - p)))); ++p) {
        if (mayHoldAnyCase(body, p - begin, "_hip_saveversion"))
            return true;
    }
    return false;
}

void readFrameRange(QStringView line)
{
    const QStringView rest = line.mid(line.indexOf(u' ') + 1);
    const qsizetype blank = rest.indexOf(u' ');
    if (blank < 0)
        return;
    GLseqStart = rest.left(blank).toInt();
    GLseqEnd = rest.mid(blank + 1).toInt();
}

void readSaveVersion(QStringView line, ScanResult& scan)
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

    scan.houdiniVersion = version;
    const qsizetype dot = version.indexOf(u'.');
    if (dot < 0) {
        // A bare major number carries no minor part for either use.
        scan.houdiniMajor = version.toInt();
        scan.houdiniMinorForJobs.clear();
        scan.houdiniMinorForReaders.clear();
        return;
    }
    scan.houdiniMajor = QStringView(version).left(dot).toInt();
    const QString rest = version.mid(dot + 1);
    const qsizetype restDot = rest.indexOf(u'.');
    if (scan.buildVersionSwitch) {
        scan.houdiniMinorForJobs = restDot < 0 ? rest : rest.left(restDot);
        scan.houdiniMinorForReaders = scan.houdiniMinorForJobs;
        return;
    }
    scan.houdiniMinorForJobs = rest;
    // "5.303.1" -> "5303": minor and build joined, anything further dropped.
    QString joined = rest;
    if (restDot >= 0)
        joined.remove(restDot, 1);
    const qsizetype further = joined.indexOf(u'.');
    scan.houdiniMinorForReaders = further < 0 ? joined : joined.left(further);
}

void readGlobalVariable(QStringView line, qsizetype setAt)
{
    if (hVariables.size() >= MaxSceneVariables)
        return;
    const qsizetype assign = line.indexOf(QStringView(u" = "));
    const qsizetype nameAt = setAt + 7;
    // QString::mid semantics: a negative length reads to the end.
    const QString name = line.toString().mid(nameAt, assign - nameAt).trimmed();
    QStringView value = line.mid(assign + 3).trimmed();
    value = value.size() >= 2 ? value.mid(1, value.size() - 2) : QStringView();
    hVariables.append({ name, value.trimmed().toString() });
}

void readTake(QStringView line, ScanResult& scan)
{
    QStringView name = line.mid(9).trimmed();
    const qsizetype blank = name.indexOf(u' ');
    if (blank >= 0)
        name = name.left(blank);
    name = name.trimmed();
    if (!name.isEmpty())
        scan.takes.append(name.toString());
}

void takeEnvironment()
{
    const _varValList environment = zkGetEnvironmentVariableList(false);
    for (const _varValue& variable : environment.items) {
        if (variable.value.size() <= MaxEnvironmentValueLength
            && variable.name.startsWith(QStringView(u"HIP"), Qt::CaseInsensitive))
            hVariables.append({ variable.name, variable.value });
    }
}

/// Hands a section to its reader; a result other than LoadOk ends the scan.
LoadResult readSection(SectionKind kind, const SectionReaders& readers, const LoadContext& ctx,
    LineSource& in, QString& header, ScanResult& scan)
{
    switch (kind) {
    case SectionKind::Wedge:
        readers.wedge(ctx.data, in, header);
        return LoadOk;
    case SectionKind::Camera:
        readers.camera(ctx.data, in, header);
        return LoadOk;
    case SectionKind::Lop:
        readers.lop(ctx.data, in, header);
        return LoadOk;
    case SectionKind::UsdRenderSettings:
        return readers.usdRenderSettings(ctx.data, in, header);
    case SectionKind::OutNode:
        return readers.outNode(
            ctx.data, in, header, scan.takeFound, scan.houdiniMajor, scan.houdiniMinorForReaders);
    case SectionKind::None:
        break;
    }
    return LoadOk;
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

ScanResult scanScene(const LoadContext& ctx, LineSource& in, const SectionReaders& readers)
{
    ScanResult scan;
    scan.buildVersionSwitch = ctx.buildVersionSwitch;
    scan.compressedExportSwitch = ctx.compressedExportSwitch;

    const qsizetype slash = ctx.scenePath.lastIndexOf(u'/');
    DatabaseDir = slash < 0 ? ctx.scenePath : ctx.scenePath.left(slash + 1);
    takeEnvironment();

    QByteArrayView raw;
    bool hasUnderscore = false;
    QString text;
    QString header;
    while (in.nextRaw(raw, &hasUnderscore)) {
        if (!mayMatter(raw, hasUnderscore))
            continue;
        text = LineSource::decode(raw);
        const QStringView line(text);
        if (line.isEmpty() || line.front() == u'#')
            continue;

        // Only "frange" and a blank is the scene's range: node parameters named
        // "frange" ("frange\t[ 0 ...") would reset every driver's range.
        if ((line.front().unicode() | 0x20) == u'f'
            && line.startsWith(QStringView(u"frange "), Qt::CaseInsensitive))
            readFrameRange(line);

        if (findSaveVersion(line) >= 0) {
            readSaveVersion(line, scan);
            continue;
        }

        if (mayStartVariableLine(line.front()) && line.contains(QStringView(u" = "))) {
            const qsizetype setAt = findSetGlobal(line);
            if (setAt >= 0
                && (line.startsWith(QStringView(u"set -g "), Qt::CaseInsensitive)
                    || line.startsWith(QStringView(u"Hou"), Qt::CaseInsensitive)))
                readGlobalVariable(line, setAt);
        }

        if (line.startsWith(QStringView(u"take name"))) {
            readTake(line, scan);
            continue;
        }

        const SectionKind kind = sectionKind(line);
        if (kind == SectionKind::None)
            continue;
        header = line.toString();
        const LoadResult result = readSection(kind, readers, ctx, in, header, scan);
        if (result != LoadOk) {
            scan.result = result;
            break;
        }
    }
    return scan;
}
