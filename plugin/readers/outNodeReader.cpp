// The output-driver reader: one render node's parameter section becomes one
// job, or two for a scene-description export (the export, and the render
// that waits for it).
//
// The section's lines are matched against one ordered table of rules; the
// first rule whose keyword begins the line (ignoring case) and whose
// condition holds takes it. Conditions read the renderer flags as they stand
// when the line is read, so the order of a section's lines matters: an
// export toggle read after a Redshift line is not Mantra's toggle.
#include "outNodeJobs.h"
#include "plugin/parameterLine.h"
#include "plugin/paths/houdiniVariables.h"
#include "plugin/paths/imageTokens.h"
#include "plugin/paths/nodeReferences.h"
#include "readerCommon.h"
#include "sectionLoop.h"

#include <array>
#include <cmath>
#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using parameterLine::bracketValue;
using parameterLine::unquotedBracketValue;

namespace {

/// Beyond this many jobs a driver is skipped: a scene with thousands of
/// drivers must not run the host out of job records.
constexpr int MaxJobsBeforeDriver = 250;

enum class Step {
    Next, ///< read the next line
    Abandon, ///< leave the section now, without a job
};

/// Channel references resolved in one value: a reference whose value holds
/// another is followed this far, so references that lead back to each other end.
constexpr int MaxReferencesPerValue = 8;

QStringView nodeName(QStringView path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

/// A declared driver's line with what names a node resolved: each backticked
/// chs() reference the scene can answer becomes the referenced value (whose
/// "$OS" is the referenced node's name), then a backtick pair around one
/// variable becomes the variable and "$OS" the driver's name. A reference left in
/// place makes the path rule refuse the value, as for an undeclared node.
QString nodeLocal(const Driver& d, const QString& line)
{
    if (!d.declared())
        return line;
    QString out = line;
    for (int i = 0; i < MaxReferencesPerValue && d.scene.parameterValue; ++i) {
        const ChannelReference ref = findChannelReference(out);
        if (ref.start < 0)
            break;
        const QString resolved = resolveParameterReference(ref.reference, d.path);
        if (resolved.isEmpty())
            break;
        const QStringView node = referencedNode(resolved);
        const QString value = d.scene.parameterValue(node, referencedParameter(resolved));
        if (value.isNull())
            break;
        out.replace(ref.start, ref.length, expandNodeName(value, nodeName(node)));
    }
    return expandNodeName(unwrapVariableBackticks(out), nodeName(d.path));
}

// ---- the handlers ----------------------------------------------------------

/// A picture, output or file parameter: the last accepted value wins, or goes
/// in front of the path already read once a Redshift prefix was seen.
Step picture(Driver& d, const QString& line)
{
    bool singleFile = false;
    const bool accepted = replaceImageOutVars(
        nodeLocal(d, line), d.prependPicture, d.imagePath, d.scene.takeFound, singleFile);
    // An Alembic archive without a frame token holds the whole range in one file.
    if (d.marks(Renderer::Alembic) && accepted && singleFile)
        d.isSingleFile = true;
    return Step::Next;
}

Step frameRangeMode(Driver& d, const QString& line)
{
    if (line.contains("\"on\""_L1) || line.contains("\"normal\""_L1))
        d.ownFrameRange = true;
    return Step::Next;
}

/// Removes everything up to and including the first \p marker (nothing when
/// it does not occur).
void dropThrough(QString& text, QStringView marker, Qt::CaseSensitivity cs = Qt::CaseSensitive)
{
    const qsizetype at = text.indexOf(marker, 0, cs);
    if (at >= 0)
        text.remove(0, at + marker.size());
}

/// The integer of the text before the first \p stop (of the whole text when
/// there is none); anything but a number reads as 0.
int intBefore(const QString& text, QChar stop)
{
    const qsizetype at = text.indexOf(stop);
    return QStringView(text).left(at < 0 ? text.size() : at).toInt();
}

/// A declared driver's "f" numbers written as channel references take the
/// frame the node's ".chn" member gives them, where it gives one: the number
/// in the reference is only the value Houdini last cached.
void applyFrameChannels(Driver& d, const QString& value)
{
    if (!d.declared())
        return;
    int* const numbers[3] = { &d.frameStart, &d.frameEnd, &d.frameStep };
    for (int channel = 1; channel <= 3; ++channel) {
        if (!value.contains(QStringLiteral("f%1").arg(channel), Qt::CaseInsensitive))
            continue;
        const auto frame = frameFromExpression(
            d.scene.section.channels.expression(channel), d.scene.frameStart, d.scene.frameEnd);
        if (frame)
            *numbers[channel - 1] = *frame;
    }
}

/// "f" holds start, end and step, separated by tabs; start and end may be
/// channel references "[ f1\t1 ]" and "[ f2\t240 ]".
Step frameNumbers(Driver& d, const QString& line)
{
    QString v = bracketValue(line);
    if (d.declared()) {
        // Any of the three may be keyed, not only the start with the end.
        const QStringList numbers = withCachedValues(v).simplified().split(u' ');
        if (numbers.size() >= 2) {
            d.frameStart = numbers[0].toInt();
            d.frameEnd = numbers[1].toInt();
            d.frameStep = numbers.size() > 2 ? numbers[2].toInt() : 1;
        }
        applyFrameChannels(d, v);
        return Step::Next;
    }
    if (v.contains("f1"_L1, Qt::CaseInsensitive)) {
        dropThrough(v, u"f1", Qt::CaseInsensitive);
        v = v.trimmed();
        d.frameStart = intBefore(v, u' ');
        if (v.contains("f2"_L1, Qt::CaseInsensitive)) {
            dropThrough(v, u"f2", Qt::CaseInsensitive);
            d.frameEnd = intBefore(v, u' ');
            dropThrough(v, u"]");
            v.remove(0, 1);
        } else {
            dropThrough(v, u"]");
            v.remove(0, 1);
            v = v.trimmed();
            d.frameEnd = intBefore(v, u'\t');
            dropThrough(v, u"\t");
        }
        d.frameStep = QStringView(v).trimmed().toInt();
        return Step::Next;
    }
    if (!v.contains(u'\t'))
        return Step::Next;
    d.frameStart = intBefore(v, u'\t');
    dropThrough(v, u"\t");
    v = v.trimmed();
    if (!v.contains(u'\t')) {
        d.frameEnd = v.toInt();
        d.frameStep = 1;
        return Step::Next;
    }
    d.frameEnd = intBefore(v, u'\t');
    dropThrough(v, u"\t");
    d.frameStep = v.toInt();
    return Step::Next;
}

Step resolution(Driver& d, const QString& line)
{
    QString v = bracketValue(line);
    d.overrideResX = intBefore(v, u'\t');
    dropThrough(v, u"\t");
    d.overrideResY = QStringView(v).trimmed().toInt();
    return Step::Next;
}

/// "override_camerares" / "RS_overrideCameraRes": whether the driver's own
/// size counts at all.
Step resolutionToggle(Driver& d, const QString& line)
{
    const QString v = unquotedBracketValue(line);
    d.resToggle = v.compare("on"_L1, Qt::CaseInsensitive) == 0
            || v.compare("1"_L1, Qt::CaseInsensitive) == 0
        ? Driver::Toggle::On
        : Driver::Toggle::Off;
    return Step::Next;
}

/// "res_fraction": the size as a fraction of the camera's, or "specific".
Step resolutionFraction(Driver& d, const QString& line)
{
    bool isNumber = false;
    const double fraction = unquotedBracketValue(line).toDouble(&isNumber);
    d.resFraction = isNumber && std::isfinite(fraction) && fraction > 0 ? fraction : 0.0;
    return Step::Next;
}

Step camera(Driver& d, const QString& line)
{
    const QString v = parameterLine::withoutSelfReference(
        unquotedBracketValue(line), parameterLine::parameterName(line));
    if (parameterLine::isChannelExpression(v))
        return Step::Next;
    d.proxyCamera = v.startsWith("proxy_export"_L1, Qt::CaseInsensitive);
    // Houdini reads "/obj/cam1/" as the node; a declared driver's camera is a node path.
    const QString node = d.declared() && v.size() > 1 && v.endsWith(u'/') ? v.chopped(1) : v;
    if (!d.proxyCamera)
        d.scene.cameras.addDriver(_zkString8_allSize<150>(node), d.path);
    return Step::Next;
}

Step take(Driver& d, const QString& line)
{
    d.takeName = unquotedBracketValue(line);
    d.takeName.remove("_current_"_L1);
    return Step::Next;
}

/// "RS_outputFileFormat": the extension that follows Redshift's file-name prefix.
Step redshiftExtension(Driver& d, const QString& line)
{
    const QString extension = unquotedBracketValue(line);
    if (!d.imagePath.endsWith(extension, Qt::CaseInsensitive))
        d.imagePath += extension;
    return Step::Next;
}

/// "loppath": an hdprman LOP node may carry the image output itself.
Step lopLink(Driver& d, const QString& line)
{
    const QString v = unquotedBracketValue(line);
    if (!v.contains("/hdprman"_L1))
        return Step::Next;
    const int index = d.scene.lops.addDriver(v, d.path);
    if (index >= 0 && !d.scene.lops.list.at(index).imageOut.isEmpty())
        d.imagePath = d.scene.lops.list.at(index).imageOut;
    return Step::Next;
}

/// "lopoutput": the USD file a LOP driver writes; such a driver always exports.
Step usdOutput(Driver& d, const QString& line)
{
    bool singleFile = false;
    if (replaceImageOutVars(nodeLocal(d, line), false, d.exportPath, d.scene.takeFound, singleFile))
        d.isSingleFile = singleFile;
    d.marked |= bit(Renderer::Usd);
    d.exportMode = true;
    return Step::Next;
}

/// "renderer": the render delegate of a USD driver, kept as a LOP entry of its own.
Step lopRenderer(Driver& d, const QString& line)
{
    const QString v = unquotedBracketValue(line);
    const int index = d.scene.lops.addDriver(v, d.path);
    if (index >= 0)
        d.scene.lops.list[index].setRenderer(v);
    return Step::Next;
}

Step exportToggle(Driver& d, const QString& line)
{
    d.exportMode = bracketValue(line).contains("on"_L1);
    return Step::Next;
}

/// V-Ray's export mode: 0 renders, 1 and 2 export (2 also renders).
Step vrayExportMode(Driver& d, const QString& line)
{
    const QString v = bracketValue(line);
    d.exportMode = v.contains(u'1') || v.contains(u'2');
    return Step::Next;
}

/// "fileperframe": Houdini 18.0 writes a single scene file when it is off.
Step filePerFrame(Driver& d, const QString& line)
{
    if (d.scene.houdiniMajor == 18 && d.scene.houdiniMinorForReaders.startsWith(u'0')
        && !d.exportPath.contains(u'%'))
        d.isSingleFile = !line.contains("on"_L1);
    return Step::Next;
}

/// A scene-description file; the first accepted one wins (later lines meet the
/// rule that ignores every line once an export file is known).
Step exportFile(Driver& d, const QString& line)
{
    bool singleFile = false;
    const bool accepted = replaceImageOutVars(
        nodeLocal(d, line), false, d.exportPath, d.scene.takeFound, singleFile);
    if (d.marks(Renderer::VRay) && accepted && singleFile)
        d.isSingleFile = true;
    return Step::Next;
}

enum class AovPart { ArnoldFile, RedshiftPrefix, RedshiftSuffix, RedshiftFormat };

constexpr QLatin1String aovKeyword(AovPart part)
{
    switch (part) {
    case AovPart::ArnoldFile:
        return "ar_aov_separate_file"_L1;
    case AovPart::RedshiftPrefix:
        return "RS_aovCustomPrefix_"_L1;
    case AovPart::RedshiftSuffix:
        return "RS_aovSuffix_"_L1;
    case AovPart::RedshiftFormat:
        break;
    }
    return "RS_aovFileFormat_"_L1;
}

/// Per-AOV parameters carry the AOV's number behind their keyword, such as
/// "RS_aovSuffix_3\t...". Numbers outside 1 to 19 are taken and ignored.
template <AovPart Part>
Step aov(Driver& d, const QString& line)
{
    const int n = intBefore(line.mid(aovKeyword(Part).size()), u'\t');
    if (n < 1 || n >= Driver::AovSlots)
        return Step::Next;
    QString value;
    switch (Part) {
    case AovPart::ArnoldFile:
        value = unquotedBracketValue(line);
        if (value.isEmpty())
            return Step::Next;
        d.aovFile[n] = value;
        break;
    case AovPart::RedshiftPrefix:
    case AovPart::RedshiftSuffix:
        value = bracketValue(line);
        if (value.startsWith(u'"'))
            value.remove(0, 1);
        if (value.endsWith(u'"'))
            value.chop(1);
        (Part == AovPart::RedshiftPrefix ? d.aovPrefix : d.aovSuffix)[n] = value;
        break;
    case AovPart::RedshiftFormat:
        value = bracketValue(line);
        value.remove(u'"');
        d.aovFormat[n] = value;
        break;
    }
    // An AOV written next to the scene ties the render to the scene's folder.
    if (value.contains("$HIP"_L1, Qt::CaseInsensitive))
        d.scene.aovBesideScene = true;
    return Step::Next;
}

using Handler = Step (*)(Driver&, const QString&);

/// A line that also names the renderer: it is marked before the value is read.
template <Renderer R, Handler Then>
Step markThen(Driver& d, const QString& line)
{
    d.marked |= bit(R);
    return Then(d, line);
}

/// Redshift's file-name prefix and archive go in front of what was read before.
template <Handler Then>
Step redshiftThen(Driver& d, const QString& line)
{
    d.marked |= bit(Renderer::Redshift);
    d.prependPicture = true;
    return Then(d, line);
}

Step abandon(Driver&, const QString&)
{
    return Step::Abandon;
}

bool ownFrameRange(const Driver& d)
{
    return d.ownFrameRange;
}

// ---- File Cache paths -------------------------------------------------------

/// The parameters a File Cache builds its constructed path from.
const QLatin1String FileCacheKeywords[] = { "filemethod\t"_L1, "basedir\t"_L1, "basename\t"_L1,
    "version\t"_L1, "enableversion\t"_L1, "timedependent\t"_L1, "filetype\t"_L1 };

/// A File Cache parameter's value; one keyed to a channel, "[ version\t2 ]",
/// gives the number Houdini cached there.
QString fileCacheValue(const QString& line)
{
    QString value = unquotedBracketValue(line);
    if (value.startsWith(u'[') && value.endsWith(u']')) {
        const QStringView inside = QStringView(value).sliced(1, value.size() - 2).trimmed();
        qsizetype blank = inside.size();
        while (blank > 0 && !inside[blank - 1].isSpace())
            --blank;
        value = inside.mid(blank).toString();
    }
    return value;
}

void takeFileCacheLine(Driver& d, const sectionLoop::SectionLine& line)
{
    for (QLatin1String keyword : FileCacheKeywords) {
        if (line.startsWith(keyword)) {
            d.cache.take(QString(keyword.chopped(1)), fileCacheValue(line.text()));
            return;
        }
    }
}

/// One part of a constructed path with its variables expanded, as the
/// node's own expression expands each part before joining them; null when
/// the part is refused (an unresolved reference).
QString expandedFileCachePart(const Driver& d, zkJ::_JobBasics_largePath& job, const QString& part)
{
    const QString local = nodeLocal(d, part);
    if (local.contains("chs("_L1))
        return QString();
    const QString expanded
        = replaceHoudiniVariables(local, &job, d.scene.variables, d.scene.sceneFile);
    return expanded.isNull() ? QStringLiteral("") : expanded;
}

/// A File Cache in constructed mode writes the path its parameters build;
/// its "file" value is a stale default and never used then.
void constructFileCachePath(Driver& d)
{
    if (d.type != "filecache"_L1 || !fileCacheConstructed(d.cache.filemethod))
        return;
    // The expansion reads the scene's folder, the node and its range from a
    // job record; one stands in for the job the driver is about to make.
    auto job = std::make_unique<zkJ::_JobBasics_largePath>();
    job->sceneDatabaseDir.set(d.scene.databaseDir);
    job->layer.set(d.path);
    job->seqStart = d.frameStart;
    job->seqEnd = d.frameEnd;
    const QString path = composeFileCachePath(
        d.cache, [&](const QString& part) { return expandedFileCachePart(d, *job, part); });
    d.imagePath.clear();
    d.isSingleFile = false;
    // A LOP File Cache's "lopoutput" is the same path as an expression, not an export.
    d.exportMode = false;
    d.exportPath.clear();
    if (path.isEmpty())
        return;
    // Through the picture rule, so that ".$F4" becomes the job's frame token.
    picture(d, QStringLiteral("file\t[ 0 ]\t(\t\"") + path + QStringLiteral("\"\t)"));
}

// ---- the rule table --------------------------------------------------------

using Condition = bool (*)(const Driver&);

struct Rule
{
    std::array<QLatin1String, 2> keywords; ///< none: any line
    Condition when; ///< null: always
    Handler handle; ///< null: the line is taken and ignored
};

/// A renderer's export toggles count until a renderer that blocks them was named.
template <Renderer R>
Rule toggleRule()
{
    return { rendererRow(R).exportToggles,
        [](const Driver& d) { return (d.marked & rendererRow(R).blockedBy) == 0; }, exportToggle };
}

const Rule Rules[] = {
    { { "trange"_L1 }, nullptr, frameRangeMode },
    { { "f\t"_L1 }, ownFrameRange, frameNumbers },
    { { "vm_picture\t"_L1 }, nullptr, picture },
    { { "copoutput\t"_L1 }, nullptr, picture },
    { { "ar_picture\t"_L1 }, nullptr, markThen<Renderer::Arnold, picture> },
    { { "RS_outputFileNamePrefix\t"_L1 }, nullptr, redshiftThen<picture> },
    { { "picture\t"_L1 }, nullptr, markThen<Renderer::OpenGl, picture> },
    { { "sopoutput\t"_L1 }, nullptr, markThen<Renderer::Geometry, picture> },
    { { "file\t"_L1 }, nullptr, markThen<Renderer::Geometry, picture> },
    { { "filename\t"_L1 }, nullptr, markThen<Renderer::Alembic, picture> },
    { { "SettingsOutput_img_file_path\t"_L1 }, nullptr, markThen<Renderer::VRay, picture> },
    { { "outputimage\t"_L1 }, nullptr, markThen<Renderer::Usd, picture> },
    { { "ri_display_0\t"_L1, "ri_display\t"_L1 }, nullptr, markThen<Renderer::RenderMan, picture> },
    { { "take\t"_L1 }, nullptr, take },
    { { "camera\t"_L1, "RS_renderCamera\t"_L1 }, nullptr, camera },
    { { "RS_outputFileFormat\t"_L1 }, nullptr, redshiftExtension },
    { { "loppath\t"_L1 }, nullptr, lopLink },
    { { "lopoutput\t"_L1 }, nullptr, usdOutput },
    { { "renderer\t"_L1 }, nullptr, lopRenderer },
    toggleRule<Renderer::Mantra>(),
    toggleRule<Renderer::Arnold>(),
    toggleRule<Renderer::Redshift>(),
    toggleRule<Renderer::RenderMan>(),
    { { "render_export_mode\t"_L1 }, nullptr, vrayExportMode },
    { { "fileperframe\t"_L1 }, nullptr, filePerFrame },
    { { "res_override\t"_L1, "RS_overrideRes\t"_L1 }, nullptr, resolution },
    // The resolution toggle and fraction belong with the size and, like it,
    // must not be hidden by an export file read earlier.
    { { "override_camerares\t"_L1, "RS_overrideCameraRes\t"_L1 }, nullptr, resolutionToggle },
    { { "res_fraction\t"_L1 }, nullptr, resolutionFraction },
    { { aovKeyword(AovPart::ArnoldFile) }, nullptr, aov<AovPart::ArnoldFile> },
    { { aovKeyword(AovPart::RedshiftPrefix) }, nullptr, aov<AovPart::RedshiftPrefix> },
    { { aovKeyword(AovPart::RedshiftSuffix) }, nullptr, aov<AovPart::RedshiftSuffix> },
    { { aovKeyword(AovPart::RedshiftFormat) }, nullptr, aov<AovPart::RedshiftFormat> },
    // An Alembic driver with these lines reads geometry in rather than writing it.
    { { "objectPath"_L1, "missing_texture_color"_L1 },
        [](const Driver& d) { return d.marks(Renderer::Alembic); }, abandon },
    // Once a scene-description file is known, later file lines are not read.
    { {}, [](const Driver& d) { return !d.exportPath.isEmpty(); }, nullptr },
    { { "soho_diskfile\t"_L1 }, nullptr, exportFile },
    { { "ar_ass_file"_L1 }, nullptr, markThen<Renderer::Arnold, exportFile> },
    { { "RS_archive_file"_L1 }, nullptr, redshiftThen<exportFile> },
    { { "render_export_filepath"_L1 }, nullptr, markThen<Renderer::VRay, exportFile> },
};

/// The rules a line may meet, by its first byte: most lines of a section begin
/// with a letter no keyword begins with and are done after one look.
struct RuleIndex
{
    sectionLoop::KeywordStarts starts;
    std::array<std::vector<int>, 256> byFirstByte;

    RuleIndex()
    {
        for (int r = 0; r < int(std::size(Rules)); ++r) {
            const Rule& rule = Rules[r];
            bool anyKeyword = false;
            for (QLatin1String keyword : rule.keywords) {
                if (keyword.isEmpty())
                    continue;
                anyKeyword = true;
                starts.add(keyword);
            }
            for (int b = 0; b < 256; ++b) {
                if (!anyKeyword || b >= 0x80 || mayBegin(rule, static_cast<unsigned char>(b)))
                    byFirstByte[b].push_back(r);
            }
        }
        // Only a File Cache's lines are read for them, ahead of the rules.
        for (QLatin1String keyword : FileCacheKeywords)
            starts.add(keyword);
    }

    static bool mayBegin(const Rule& rule, unsigned char b)
    {
        for (QLatin1String keyword : rule.keywords) {
            if (!keyword.isEmpty()
                && zkAscii::lower(static_cast<unsigned char>(keyword.front().toLatin1()))
                    == zkAscii::lower(b))
                return true;
        }
        return false;
    }
};

bool takes(const Rule& rule, const Driver& d, const sectionLoop::SectionLine& line)
{
    if (rule.when && !rule.when(d))
        return false;
    if (rule.keywords[0].isEmpty())
        return true;
    for (QLatin1String keyword : rule.keywords) {
        if (!keyword.isEmpty() && line.startsWith(keyword))
            return true;
    }
    return false;
}

/// "out/mantra1.parm {" gives "/out/mantra1": the text from the first network
/// prefix found ("out/", then "stage/", "img/", "obj/") up to ".parm".
QString driverPathOf(const QString& header)
{
    QString path = header;
    for (const char* network : { "out/", "stage/", "img/", "obj/" }) {
        const qsizetype at = path.indexOf(QLatin1String(network));
        if (at >= 0) {
            path.remove(0, at);
            break;
        }
    }
    const qsizetype parm = path.indexOf(".parm"_L1);
    if (parm >= 0)
        path.truncate(parm);
    return u'/' + path;
}

} // namespace

LoadResult readDriverSection(Scene& scene, LineSource& in, QString& line)
{
    if (scene.jobs.count > MaxJobsBeforeDriver)
        return LoadOk;

    Driver d(scene);
    d.path = sectionNodePath(scene, driverPathOf(line));
    d.type = scene.section.type;
    d.bypass = scene.section.bypass;
    const bool fileCache = d.type == "filecache"_L1;

    static const RuleIndex index;
    const sectionLoop::SectionEnd end
        = sectionLoop::readSection(in, line, index.starts, [&](const sectionLoop::SectionLine& l) {
              if (fileCache)
                  takeFileCacheLine(d, l);
              for (const int r : index.byFirstByte[l.firstByte()]) {
                  const Rule& rule = Rules[r];
                  if (takes(rule, d, l))
                      return !rule.handle || rule.handle(d, l.text()) == Step::Next;
              }
              return true;
          });
    if (end != sectionLoop::SectionEnd::Closed)
        return LoadOk;
    constructFileCachePath(d);
    // A USD ROP that writes only its USD file: the export job alone.
    d.usdFileOnly = (d.type == "usd_rop"_L1 || d.type == "usd"_L1) && d.imagePath.isEmpty()
        && !d.exportPath.isEmpty();
    return makeDriverJobs(d);
}
