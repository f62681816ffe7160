#include "scanner.h"

#include "plugin/parserState.h"
#include "shared/zkShared.h"

namespace {

constexpr int MaxEnvironmentValueLength = 200;

/// Renderer markers of a section header under obj/, img/ or stage/, in the
/// order they are tried.
const QStringView RendererMarkers[] = {
    QStringView(u"/mantra"),
    QStringView(u"/arnold"),
    QStringView(u"/Redshift_"),
    QStringView(u"/rs_"),
    QStringView(u"/opengl"),
    QStringView(u"/geometry"),
    QStringView(u"/geo"),
    QStringView(u"_geo_"),
    QStringView(u"/comp"),
    QStringView(u"/rop_comp"),
    QStringView(u"/alembic"),
    QStringView(u"/vray"),
    QStringView(u"/usd_rop"),
    QStringView(u"/usdrender_"),
    QStringView(u"/ris"),
    QStringView(u"/filecache"),
    QStringView(u"/hdprman"),
    QStringView(u"/karma"),
    QStringView(u"/rendersettings"),
};

/// First position of \p needle in \p line, or -1. Qt sets up a substring
/// search on every call, which costs more than the search itself on short
/// lines; instead this looks for one character of the needle that has no other
/// case form (any character when matching exactly) and lets Qt compare only
/// there, so the answer is that of QStringView::indexOf.
qsizetype indexOfText(QStringView line, QStringView needle, Qt::CaseSensitivity cs)
{
    qsizetype anchor = 0;
    if (cs == Qt::CaseInsensitive) {
        while (anchor < needle.size() && needle[anchor].isLetter())
            ++anchor;
        if (anchor == needle.size())
            return line.indexOf(needle, 0, cs);
    }
    const QChar key = needle[anchor];
    for (qsizetype at = line.indexOf(key, anchor); at >= 0; at = line.indexOf(key, at + 1)) {
        const qsizetype start = at - anchor;
        if (start + needle.size() > line.size())
            return -1;
        if (line.mid(start, needle.size()).compare(needle, cs) == 0)
            return start;
    }
    return -1;
}

bool containsExact(QStringView line, QStringView text)
{
    return indexOfText(line, text, Qt::CaseSensitive) >= 0;
}

bool containsAnyCase(QStringView line, QStringView text)
{
    return indexOfText(line, text, Qt::CaseInsensitive) >= 0;
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

bool hasRendererMarker(QStringView line)
{
    for (QStringView marker : RendererMarkers) {
        if (!containsAnyCase(line, marker))
            continue;
        // An Alembic archive only loads geometry; a Karma render-properties
        // node only describes settings. Neither renders by itself.
        if (marker == QStringView(u"/alembic")
            && containsAnyCase(line, QStringView(u"/alembicarchive")))
            continue;
        if (marker == QStringView(u"/karma") && containsAnyCase(line, QStringView(u"renderproper")))
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
    const qsizetype assign = indexOfText(line, QStringView(u" = "), Qt::CaseSensitive);
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

/// Hands a section to its reader; a result other than 1 ends the scan.
int readSection(SectionKind kind, const SectionReaders& readers, const LoadContext& ctx,
    LineSource& in, QString& header, ScanResult& scan)
{
    switch (kind) {
    case SectionKind::Wedge:
        readers.wedge(ctx.data, in, header);
        return 1;
    case SectionKind::Camera:
        readers.camera(ctx.data, in, header);
        return 1;
    case SectionKind::Lop:
        readers.lop(ctx.data, in, header);
        return 1;
    case SectionKind::UsdRenderSettings:
        return readers.usdRenderSettings(ctx.data, in, header);
    case SectionKind::OutNode:
        return readers.outNode(
            ctx.data, in, header, scan.takeFound, scan.houdiniMajor, scan.houdiniMinorForReaders);
    case SectionKind::None:
        break;
    }
    return 1;
}

} // namespace

SectionKind sectionKind(QStringView line)
{
    if (!line.endsWith(u'{') || !containsParm(line))
        return SectionKind::None;

    const bool underOut = containsExact(line, QStringView(u"out/"));
    const bool underObj = containsExact(line, QStringView(u"obj/"));
    if (containsExact(line, QStringView(u"wedge"))
        && (underOut || (underObj && containsExact(line, QStringView(u"/wedge")))))
        return SectionKind::Wedge;
    if ((containsExact(line, QStringView(u"/cam"))
            || containsExact(line, QStringView(u"stereocam")))
        && (underOut || underObj))
        return SectionKind::Camera;

    const bool renderNode = underOut
        || ((containsAnyCase(line, QStringView(u"obj/"))
                || containsAnyCase(line, QStringView(u"img/"))
                || containsAnyCase(line, QStringView(u"stage/")))
            && hasRendererMarker(line));
    if (!renderNode)
        return SectionKind::None;
    if (containsExact(line, QStringView(u"/rendersettings")))
        return SectionKind::UsdRenderSettings;
    if (containsExact(line, QStringView(u"/hdprman")))
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

    QStringView line;
    QString header;
    while (in.nextView(line)) {
        if (line.isEmpty() || line.front() == u'#')
            continue;

        if ((line.front().unicode() | 0x20) == u'f'
            && line.startsWith(QStringView(u"frange"), Qt::CaseInsensitive))
            readFrameRange(line);

        if (findSaveVersion(line) >= 0) {
            readSaveVersion(line, scan);
            continue;
        }

        if (mayStartVariableLine(line.front()) && containsExact(line, QStringView(u" = "))) {
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
        const int result = readSection(kind, readers, ctx, in, header, scan);
        if (result != 1) {
            scan.result = result;
            break;
        }
    }
    return scan;
}
