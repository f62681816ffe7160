#include "ZK_DataTypes_jobs_defines.h"

#include <climits>
#include <cstring>
#include <initializer_list>

namespace zkRS {

namespace {

constexpr int NoLimit = INT_MAX;

void setParam(_jobParam& p, const char* name, unsigned typeA, unsigned typeB, unsigned char flag1,
    unsigned char flag2, int def, int min, int max, std::initializer_list<const char*> options = {})
{
    p.paramTypeA = typeA;
    p.paramTypeB = typeB;
    p.paramFlag1 = flag1;
    p.paramFlag2 = flag2;
    p.defaultValue = def;
    p.minValue = min;
    p.maxValue = max;
    p.paramName.setLatin1(name);
    int k = 0;
    for (const char* option : options) {
        if (k < 6)
            p.paramOptions[k++].setLatin1(option);
    }
}

} // namespace

_jobParamArray makeParamArray()
{
    _jobParamArray a;
    // Zero bytes first: the host compares and copies slots as raw memory.
    std::memset(static_cast<void*>(a.data()), 0, sizeof(_jobParam) * a.size());
    setParam(a[0], "Number of Preview frames", 1, 1, 0, 0, 7, 1, 18);
    setParam(a[1], "Max Clients At A Time", 1, 1, 0, 1, 1500, 1, 1500);
    setParam(a[2], "Required Memory (GB)", 1, 1, 0, 1, 0, 0, 500);
    setParam(a[3], "Max Frame Time (minutes)", 1, 1, 0, 1, 0, 0, 7200);
    setParam(a[4], "Min File Size Kb", 1, 1, 0, 1, 0, 0, NoLimit);
    setParam(a[5], "Max Crashes", 1, 1, 0, 1, 30, 0, NoLimit);
    setParam(a[6], "Max Thresholds", 1, 1, 0, 1, 30, 0, NoLimit);
    setParam(a[7], "Render Verbose", 3, 2, 0, 1, 0, 0, 6,
        { "Default", "No Verbose", "Errors & Warnings", "Information", "Progress", "Debug" });
    setParam(a[8], "Render Quality", 3, 2, 0, 1, 0, 0, NoLimit,
        { "Default", "Preview", "Normal", "Production", "Best" });
    setParam(a[9], "Color", 2, 2, 1, 1, 13, 0, NoLimit);
    setParam(a[10], "Approve Job", 2, 2, 0, 1, 0, 0, NoLimit,
        { "-", "After Preview", "After frames done", "After both" });
    setParam(a[11], "Re-Execute Job After Hours", 2, 1, 0, 1, 0, 0, NoLimit);
    setParam(a[12], "Start Multiple Instances", 1, 1, 0, 1, 1, 1, 10);
    setParam(a[13], "Override Image Width", 3, 1, 1, 0, 0, 0, 100000);
    setParam(a[14], "Override Image Height", 3, 1, 1, 0, 0, 0, 100000);
    setParam(a[15], "Restrict Core Count", 3, 1, 1, 1, 0, 0, 256);
    setParam(a[16], "Restrict Memory (GB)", 3, 1, 1, 1, 0, 0, 1000);
    setParam(a[17], "Required GPU Memory (GB)", 1, 1, 0, 1, 0, 0, 500);
    return a;
}

} // namespace zkRS

namespace zkJ {

namespace {

QChar idLetter(unsigned long long x)
{
    return ID_letters.at(qsizetype(x % unsigned(ID_letters.size())));
}

QChar idLetterSmall(unsigned long long x)
{
    return ID_letters_small.at(qsizetype(x % unsigned(ID_letters_small.size())));
}

/// The pre-job part: nothing for a main job, one or two small letters otherwise.
QString prePart(unsigned char preNumber)
{
    QString p;
    if (preNumber == 0)
        return p;
    const unsigned pre = preNumber - 1u;
    const unsigned char q = static_cast<unsigned char>(pre / 24);
    if (q != 0)
        p.append(idLetterSmall(q));
    p.append(idLetterSmall(pre));
    return p;
}

QString mainPart(unsigned int mainNumber)
{
    const unsigned m = mainNumber / 10000;
    QString s;
    s.append(idLetter(m / 1296));
    s.append(idLetter(m / 36));
    s.append(idLetter(m));
    return s;
}

} // namespace

void _IDDecomp::fromID(const unsigned long long& id)
{
    static_assert(sizeof(*this) == sizeof(id), "same bits");
    std::memcpy(static_cast<void*>(this), &id, sizeof(id));
}

QString _IDDecomp::str() const
{
    QString s = QStringLiteral("{") + mainPart(mainNumber);
    if (preNumber == 0)
        s.append(u' ');
    else
        s.append(prePart(preNumber));
    s.append(u'}');
    return s;
}

QString _IDDecomp::strFull() const
{
    const unsigned u = (mainNumber % 10000) / 7;
    QString s = mainPart(mainNumber) + prePart(preNumber);
    s.append(u'_');
    s.append(idLetter(u / 36));
    s.append(idLetter(u));
    s.append(idLetter(extraByte2));
    s.append(idLetter(extraByte1));
    return s;
}

void _IDShort::fromID(const unsigned long long& id)
{
    _IDDecomp d;
    d.fromID(id);
    fromIDDecomp(d);
}

void _IDShort::fromIDDecomp(_IDDecomp id)
{
    preNumber = id.preNumber;
    const unsigned m = id.mainNumber;
    mainLow = static_cast<unsigned short>((m / 10000) % 65536);
    mainHigh = static_cast<unsigned char>(m / 655360000u);
}

void _IDShort::fromInt32(unsigned int v)
{
    preNumber = static_cast<unsigned char>(v & 0xFF);
    mainLow = static_cast<unsigned short>((v >> 8) & 0xFFFF);
    mainHigh = static_cast<unsigned char>(v >> 24);
}

unsigned int _IDShort::int32() const
{
    return unsigned(preNumber) | (unsigned(mainLow) << 8) | (unsigned(mainHigh) << 24);
}

QString _IDShort::str() const
{
    _IDDecomp d;
    std::memset(static_cast<void*>(&d), 0, sizeof(d));
    d.preNumber = preNumber;
    d.mainNumber = (unsigned(mainHigh) * 65536u + mainLow) * 10000u;
    return d.str();
}

QString ID2str(const unsigned long long& id)
{
    _IDDecomp d;
    d.fromID(id);
    return d.str();
}

QString ID2strFull(const unsigned long long& id)
{
    _IDDecomp d;
    d.fromID(id);
    return d.strFull();
}

// ---- path helpers --------------------------------------------------------------

void replaceSquareBracketVariablesSub(_zkString<1000>& text)
{
    if (text.indexOf(u'[', 0) < 0 || text.indexOf(u']', 0) < 0)
        return;
    // "[Camera]" before "[Camera_no.]" is safe: the first cannot match inside the second.
    static const char* const names[] = { "User", "LocalHost", "CompanyProject", "Layer", "Channel",
        "Camera", "Camera_no.", "Scene", "SceneFolder", "Database", "DatabaseName" };
    for (const char* name : names) {
        const QString n = QLatin1String(name);
        text.replace(_zkString<1000>(QLatin1Char('[') + n + QLatin1Char(']')),
            _zkString<1000>(QLatin1Char('<') + n + QLatin1Char('>')));
    }
}

namespace {

/// Length of the part of \p name that getSSV takes when no length or suffix decides.
int partBySeparator(const QString& name, std::initializer_list<QChar> separators)
{
    for (const QChar sep : separators) {
        const qsizetype p = name.indexOf(sep, 1);
        if (p >= 1)
            return int(p);
    }
    return int(name.size());
}

} // namespace

void getSSV(QString name, _zkString<50>& first, _zkString<50>& second, _zkString<50>& third,
    QString prefix1, QString prefix2, QString prefix3, QString suffix1, QString suffix2,
    QString suffix3, int length1, int length2)
{
    _zkString<50>* outs[3] = { &first, &second, &third };
    const QString* prefixes[3] = { &prefix1, &prefix2, &prefix3 };
    const QString* suffixes[3] = { &suffix1, &suffix2, &suffix3 };
    const int lengths[3] = { length1, length2, 0 };
    const QString none = QStringLiteral("none");

    for (int k = 0; k < 3; ++k) {
        const QString& prefix = *prefixes[k];
        const QString& suffix = *suffixes[k];
        if (prefix == none)
            continue;
        outs[k]->clear();
        if (!prefix.isEmpty()) {
            const qsizetype p = name.indexOf(prefix, 0, Qt::CaseInsensitive);
            if (p < 0) {
                if (k == 2)
                    return;
                continue;
            }
            name.remove(0, p + prefix.size());
        }
        int take;
        qsizetype s = -1;
        if (lengths[k] >= 1)
            take = qMin(lengths[k], int(name.size()));
        else if (!suffix.isEmpty() && (s = name.indexOf(suffix, 0, Qt::CaseInsensitive)) >= 0)
            take = int(s);
        else if (k == 1)
            take = partBySeparator(name, { u'_', u'<', u'.' });
        else
            take = partBySeparator(name, { u'_', u'.' });
        outs[k]->set(QStringView(name).left(take));
        name.remove(0, take);
    }
}

namespace {

/// The leading network, root and drive parts that getDirectoryNo does not count.
void dropPathHead(QString& s)
{
    if (s.size() > 1 && s.at(1) == u'/')
        s.remove(0, 2);
    if (s.startsWith(u'/'))
        s.remove(0, 1);
    if (s.size() > 2 && s.at(1) == u':' && s.at(2) == u'/')
        s.remove(0, 3);
}

/// Drops \p levels leading directory levels; false when a separator is missing.
bool dropLevels(QString& s, int levels)
{
    for (int i = 0; i < levels; ++i) {
        const qsizetype p = s.indexOf(u'/');
        if (p < 0)
            return false;
        s.remove(0, p + 1);
    }
    return true;
}

} // namespace

QString getDirectoryNo(QString path, int no, int count)
{
    if (path.size() <= 4)
        return path;
    dropPathHead(path);
    if (!dropLevels(path, no - 1))
        return path;
    for (int i = 0; i < count - 1; ++i) {
        const qsizetype p = path.indexOf(u'/');
        if (p < 0)
            return path;
        path[p] = u'_';
    }
    const qsizetype p = path.indexOf(u'/');
    if (p >= 1)
        path.truncate(p);
    return path;
}

QString getDirectoryUntilNo(QString path, int no, int count)
{
    if (path.size() <= 4)
        return path;
    QString w = path;
    if (w.at(1) == u'/') {
        // A network path: the server counts as the first level.
        w.remove(0, 2);
        const qsizetype p = w.indexOf(u'/');
        if (p < 0)
            return path;
        w.remove(0, p + 1);
        --no;
    }
    dropPathHead(w);
    if (!dropLevels(w, no - 1))
        return path;
    // Marked, not replaced, so that the search below skips them and the
    // working copy keeps its length.
    const QString mark = QStringLiteral("%#%");
    for (int i = 0; i < count - 1; ++i) {
        const qsizetype p = w.indexOf(u'/');
        if (p < 0)
            return path;
        w.replace(p, 1, mark);
    }
    const qsizetype p = w.indexOf(u'/');
    if (p >= 1)
        w.remove(0, p + 1);
    else
        w.clear();
    w.replace(mark, PDs);
    return path.left(path.size() - w.size());
}

// ---- log messages --------------------------------------------------------------

namespace {

bool typeIn(unsigned int type, std::initializer_list<unsigned int> types)
{
    for (const unsigned int t : types) {
        if (t == type)
            return true;
    }
    return false;
}

} // namespace

bool log_IsClientSegmentClosed(const _LogMessage& m)
{
    return typeIn(
        m.type, { 14, 15, 34, 35, 36, 38, 39, 44, 45, 46, 47, 48, 49, 50, 51, 61, 66, 71 });
}

bool log_hasFrameSegment(const _LogMessage& m)
{
    return typeIn(m.type,
        { 14, 15, 21, 34, 35, 36, 38, 39, 41, 44, 45, 46, 47, 48, 49, 50, 51, 57, 58, 61, 66, 71,
            72 });
}

} // namespace zkJ
