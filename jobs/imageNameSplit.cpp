// Splitting an output path into the job's directory, file name, frame padding
// and extension, and rewriting the directory relative to the scene folder or
// the scene database, so that the host can move jobs between machines.
#include "ZK_DataTypes_jobs0_Basics.h"

#include <QStringList>

namespace zkJ {

namespace {

constexpr int ExtensionCap = 25;

QString cut(QString s, int cap)
{
    s.truncate(cap);
    return s;
}

/// Tokens whose own separators must not be taken for the directory's end.
const QStringList& dirStopTokens()
{
    static const QStringList tokens { QStringLiteral("<Layer>"), QStringLiteral("<Channel"),
        QStringLiteral("<Camera>"), QStringLiteral("userpass>"), QStringLiteral("<removeVar"),
        QStringLiteral("<ValueVar") };
    return tokens;
}

/// Extensions of outputs that hold all frames in one file.
bool isSingleFileExtension(const QString& upper)
{
    static const QStringList videos { QStringLiteral(".AVI"), QStringLiteral(".MOV"),
        QStringLiteral(".WMV"), QStringLiteral(".DV"), QStringLiteral(".FLV"),
        QStringLiteral(".MPEG"), QStringLiteral(".MPG"), QStringLiteral(".MP4"),
        QStringLiteral(".MPE"), QStringLiteral(".OMF"), QStringLiteral(".OMFI"),
        QStringLiteral(".MXF"), QStringLiteral(".WMA"), QStringLiteral(".WAV"),
        QStringLiteral(".MP3"), QStringLiteral(".VOB"), QStringLiteral(".ASF"),
        QStringLiteral(".SWF"), QStringLiteral(".SWFT"), QStringLiteral(".SVG") };
    return videos.contains(upper);
}

/// Collapses doubled separators behind the start; a leading pair (a network
/// path) is kept.
void collapseDoubled(QString& s)
{
    for (const QString& pair : { QStringLiteral("\\\\"), QStringLiteral("//") }) {
        qsizetype p;
        while ((p = s.indexOf(pair, 2)) > 0)
            s.remove(p, 1);
    }
}

void removeFourBackslashes(QString& s)
{
    const QString four = QStringLiteral("\\\\\\\\");
    qsizetype p;
    while ((p = s.indexOf(four)) >= 0)
        s.remove(p, 2);
}

unsigned char clampPadding(long long n)
{
    return static_cast<unsigned char>(n < 1 ? 1 : (n > 255 ? 255 : n));
}

/// Replaces \p folder at the start of \p dir (and, as the string's replace
/// does, wherever else it occurs) by \p token. Short folders such as "/"
/// or "C:\" would match nearly everything and are left alone.
void relativeTo(QString& dir, const QString& folder, const QString& token, int dirCap)
{
    if (folder.size() > 10 && dir.startsWith(folder, Qt::CaseSensitive))
        dir = cut(dir.replace(folder, token, Qt::CaseSensitive), dirCap);
}

/// The separator the paths use, with the other kind turned into it in all four
/// paths. A file name that mixes both kinds follows the one it uses first.
QChar unifySeparators(QString& fileName, QString& dir, QString& sceneName, QString& databaseDir)
{
    const qsizetype firstSlash = fileName.indexOf(u'/');
    const qsizetype firstBackslash = fileName.indexOf(u'\\');
    QChar sep = firstBackslash >= 0 ? QChar(u'\\') : QChar(u'/');
    if (firstSlash >= 0 && firstBackslash >= 0) {
        sep = firstSlash < firstBackslash ? QChar(u'/') : QChar(u'\\');
        const QChar other = sep == u'/' ? QChar(u'\\') : QChar(u'/');
        fileName.replace(other, sep);
        dir.replace(other, sep);
    } else {
        dir.replace(sep == u'/' ? QChar(u'\\') : QChar(u'/'), sep);
    }
    const QChar otherSep = sep == u'/' ? QChar(u'\\') : QChar(u'/');
    sceneName.replace(otherSep, sep);
    databaseDir.replace(otherSep, sep);
    return sep;
}

/// Runs of separators shrunk, then "." and ".." resolved.
void cleanFileName(QString& fileName, int fileCap)
{
    removeFourBackslashes(fileName);
    const QString fourSlashes = QStringLiteral("////");
    while (fileName.contains(fourSlashes))
        fileName.remove(fileName.indexOf(QStringLiteral("//")), 2);
    collapseDoubled(fileName);
    fileName = cut(zkPathResolve(fileName), fileCap);
}

/// Without a directory of its own the job takes the file name's, up to the
/// last separator before any token that has separators inside it.
void takeDirectory(QString& fileName, QString& dir, QChar sep, int dirCap)
{
    if (dir.isEmpty() && fileName.contains(sep)) {
        qsizetype stop = -1;
        for (const QString& token : dirStopTokens()) {
            const qsizetype p = fileName.indexOf(token, 0, Qt::CaseInsensitive);
            if (p >= 0 && (stop < 0 || p < stop))
                stop = p;
        }
        const qsizetype i = fileName.lastIndexOf(sep, stop < 0 ? -1 : stop);
        if (i >= 0) {
            dir = cut(fileName.left(i + 1), dirCap);
            fileName.remove(0, i + 1);
        }
    }
    // A drive letter gets its separator: "C:dir" becomes "C:\dir".
    if (dir.size() > 3 && dir.at(1) == u':' && dir.at(2) != sep)
        dir = cut(dir.insert(2, sep), dirCap);
}

/// Splits the frame token off a file name that came without an extension: a
/// printf placeholder or a run of "#" give the padding; a written frame number
/// is dropped and the padding stays. True when a placeholder or "#" was found.
bool splitFrameToken(
    bool printfStyle, QString& fileName, QString& extension, unsigned char& padding, int fileCap)
{
    if (!extension.isEmpty() || fileName.endsWith(QStringLiteral(".file"), Qt::CaseInsensitive))
        return false;
    QString s = fileName;
    const qsizetype lastPercent = s.lastIndexOf(u'%');
    if (printfStyle && lastPercent >= 0 && s.lastIndexOf(u'd') > lastPercent) {
        // "name.%04d.exr": the digits between "%" and "d" are the padding.
        const qsizetype d = s.indexOf(u'd', lastPercent + 1);
        bool isNumber = false;
        const long long n = s.mid(lastPercent + 1, d - lastPercent - 1).toLongLong(&isNumber);
        fileName = cut(s.left(lastPercent), fileCap);
        extension = cut(s.mid(d + 1).remove(u'#'), ExtensionCap);
        padding = isNumber ? clampPadding(n) : 1;
        return true;
    }
    if (s.contains(u'#')) {
        s.replace(QStringLiteral("[#"), QStringLiteral("#"));
        s.replace(QStringLiteral("#]"), QStringLiteral("#"));
        const qsizetype first = s.indexOf(u'#');
        qsizetype end = first;
        while (end < s.size() && s.at(end) == u'#')
            ++end;
        fileName = cut(s.left(first), fileCap);
        padding = clampPadding(end - first);
        extension = cut(s.mid(end), ExtensionCap);
        return true;
    }
    if (s.contains(u'.')) {
        // "name.0001.exr": a frame number written out, padding stays.
        const qsizetype dot = s.lastIndexOf(u'.');
        QString base = s.left(dot);
        while (base.size() > 1 && base.back() >= u'0' && base.back() <= u'9')
            base.chop(1);
        fileName = cut(base, fileCap);
        extension = cut(s.mid(dot), ExtensionCap);
    }
    return false;
}

/// A single-file output keeps its whole name; a per-frame output has its frame
/// token and extension split off, unless the extension is a video's (or a
/// frame-less V-Ray scene's), which makes it a single file after all.
void splitFrameAndExtension(bool printfStyle, QString& fileName, QString& extension,
    bool& singleFile, unsigned char& padding, int fileCap)
{
    if (singleFile) {
        if (!extension.isEmpty()) {
            fileName = cut(fileName + extension, fileCap);
            extension.clear();
        }
        return;
    }
    const QString f0 = fileName;
    const QString e0 = extension;
    const bool found = splitFrameToken(printfStyle, fileName, extension, padding, fileCap);
    const QString upper = extension.toUpper();
    if (isSingleFileExtension(upper)
        || (upper == QStringLiteral(".VRSCENE") && !found && e0.isEmpty())) {
        fileName = cut(f0 + e0, fileCap);
        extension.clear();
        singleFile = true;
    } else if (fileName.endsWith(extension, Qt::CaseInsensitive)) {
        fileName.chop(extension.size());
    }
}

/// Rewrites the directory relative to the scene folder, the scene database,
/// and up to three parents of the scene folder, in that order, then tidies
/// its separators and ends it with one.
void makeDirRelative(
    QString& dir, const QString& sceneName, const QString& databaseDir, QChar sep, int dirCap)
{
    QString folder;
    if (!sceneName.isEmpty()) {
        folder = zkGetDirName(sceneName, sep.unicode());
        relativeTo(dir, folder, QStringLiteral("<SceneFolder>"), dirCap);
    }

    if (!databaseDir.isEmpty()) {
        QString d = databaseDir;
        if (!d.endsWith(u'/') && d.size() < dirCap)
            d.append(u'/');
        if (dir.startsWith(d, Qt::CaseSensitive))
            dir = cut(
                dir.replace(databaseDir, QStringLiteral("<Database>"), Qt::CaseSensitive), dirCap);
    }

    if (!folder.isEmpty()) {
        QString token = QStringLiteral("<SceneFolder>");
        for (int level = 0; level < 3; ++level) {
            folder = zkGetDirName(folder, sep.unicode());
            token += QStringLiteral("..") + sep;
            relativeTo(dir, folder, token, dirCap);
        }
    }

    removeFourBackslashes(dir);
    collapseDoubled(dir);
    if (!dir.isEmpty() && !dir.endsWith(sep) && dir.size() < dirCap)
        dir.append(sep);
}

} // namespace

template <int DirCap, int FileCap>
void template_splitImageFileInto_DirFileExt(const bool& printfStyle, _zkString<FileCap>& fileNameIO,
    _zkString<DirCap>& dirIO, _zkString<25>& extensionIO, bool& singleFile, unsigned char& padding,
    _zkString<DirCap> databaseDirIn, _zkString<DirCap> sceneNameIn)
{
    QString fileName = fileNameIO.toQString();
    QString dir = dirIO.toQString();
    QString extension = extensionIO.toQString();
    QString databaseDir = databaseDirIn.toQString();
    QString sceneName = sceneNameIn.toQString();

    const QChar sep = unifySeparators(fileName, dir, sceneName, databaseDir);
    cleanFileName(fileName, FileCap);
    takeDirectory(fileName, dir, sep, DirCap);
    splitFrameAndExtension(printfStyle, fileName, extension, singleFile, padding, FileCap);
    makeDirRelative(dir, sceneName, databaseDir, sep, DirCap);

    fileNameIO.set(fileName);
    dirIO.set(dir);
    extensionIO.set(extension);
}

template ZK_JOBS_EXPORT void template_splitImageFileInto_DirFileExt<500, 250>(const bool&,
    _zkString<250>&, _zkString<500>&, _zkString<25>&, bool&, unsigned char&, _zkString<500>,
    _zkString<500>);
template ZK_JOBS_EXPORT void template_splitImageFileInto_DirFileExt<500, 500>(const bool&,
    _zkString<500>&, _zkString<500>&, _zkString<25>&, bool&, unsigned char&, _zkString<500>,
    _zkString<500>);
template ZK_JOBS_EXPORT void template_splitImageFileInto_DirFileExt<1000, 1000>(const bool&,
    _zkString<1000>&, _zkString<1000>&, _zkString<25>&, bool&, unsigned char&, _zkString<1000>,
    _zkString<1000>);

// ---- compact record ------------------------------------------------------------

namespace {

/// A channel name that is neither absolute nor a token lives in the job's
/// image directory.
template <int N>
bool isRelativeChannelName(const _zkString<N>& name)
{
    if (name.length < 2)
        return true;
    const unsigned short c0 = name.data[0];
    return c0 != u'<' && c0 != u'\\' && c0 != u'/' && name.data[1] != u':';
}

} // namespace

void _JobBasics::splitImageFileInto_DirFileExt_Channel(const bool& printfStyle)
{
    for (int k = 0; k < channelCount; ++k) {
        _zkString<500> name = channelFileName(k);
        _zkString<25> extension = channelExtension(k);
        if (isRelativeChannelName(name)) {
            QString full = imageDir.toQString() + name.toQString();
            name.set(full);
        }
        _zkString<500> dir;
        bool single = imageSingleOutputFile;
        unsigned char pad = padding;
        template_splitImageFileInto_DirFileExt<500, 500>(
            printfStyle, name, dir, extension, single, pad, sceneDatabaseDir, sceneName);
        channelSetFileName(k, _zkString<500>(dir.toQString() + name.toQString()));
        channelSetExtension(k, extension);
    }
}

void _JobBasics::splitImageFileInto_DirFileExt(const bool& printfStyle)
{
    // Channels first: their relative names refer to the directory as given.
    splitImageFileInto_DirFileExt_Channel(printfStyle);
    template_splitImageFileInto_DirFileExt<500, 250>(printfStyle, imageFileName, imageDir,
        imageExtension, imageSingleOutputFile, padding, sceneDatabaseDir, sceneName);
}

// ---- large-path record ---------------------------------------------------------

void _JobBasics_largePath::splitImageFileInto_DirFileExt_Channel(const bool& printfStyle)
{
    for (_channelSlot& slot : channels) {
        if (slot.fileName.isEmpty())
            continue;
        _zkString<1000> name = slot.fileName;
        if (isRelativeChannelName(name))
            name.set(imageDir.toQString() + name.toQString());
        _zkString<1000> dir;
        bool single = imageSingleOutputFile;
        unsigned char pad = padding;
        template_splitImageFileInto_DirFileExt<1000, 1000>(
            printfStyle, name, dir, slot.extension, single, pad, sceneDatabaseDir, sceneName);
        slot.fileName.set(dir.toQString() + name.toQString());
    }
}

void _JobBasics_largePath::splitImageFileInto_DirFileExt(const bool& printfStyle)
{
    splitImageFileInto_DirFileExt_Channel(printfStyle);
    template_splitImageFileInto_DirFileExt<1000, 1000>(printfStyle, imageFileName, imageDir,
        imageExtension, imageSingleOutputFile, padding, sceneDatabaseDir, sceneName);
}

} // namespace zkJ
