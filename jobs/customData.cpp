// The custom data block: an entry table followed by the values, inside a
// fixed 4000-byte area of the record. The host may hand back a block written
// by anyone, so every read stays inside the area whatever the counters say.
#include "ZK_DataTypes_jobs0_Basics.h"
#include "ZK_DataTypes_jobs_defines.h"

#include <QList>

#include <cstring>

namespace zkJ {

namespace {

constexpr int BlockBytes = _JobSettingsScene::CustomDataBytes;
/// What the admission rule lets in, counted in characters plus five per entry.
constexpr int AdmissionLimit = 3990;
constexpr unsigned char Kind8bit = 'c';
constexpr unsigned char Kind16bit = 'u';

struct Entry
{
    QString name;
    QString value;
};

struct RawEntry
{
    int tableOffset; ///< where the entry starts in the table
    unsigned char kind;
    int valueStart;
    int valueLength; ///< in characters
    QString name;
};

int clampToBlock(int v)
{
    return v < 0 ? 0 : (v > BlockBytes ? BlockBytes : v);
}

int readBE16(const unsigned char* p)
{
    return (int(p[0]) << 8) | int(p[1]);
}

void writeBE16(unsigned char* p, int v)
{
    p[0] = static_cast<unsigned char>((v >> 8) & 0xFF);
    p[1] = static_cast<unsigned char>(v & 0xFF);
}

/// Walks the entry table; \p visit returns false to stop early.
template <typename Visit>
void walkEntries(const _JobSettingsScene& s, Visit visit)
{
    const unsigned char* data = s.customData;
    const int tableEnd = clampToBlock(s.customDataValuesStart);
    int o = 0;
    while (o < tableEnd && (data[o] == Kind8bit || data[o] == Kind16bit)) {
        if (o + 5 > BlockBytes)
            return;
        RawEntry e;
        e.tableOffset = o;
        e.kind = data[o];
        e.valueStart = readBE16(data + o + 1);
        e.valueLength = readBE16(data + o + 3);
        int end = o + 5;
        while (end < BlockBytes && data[end] != 0)
            ++end;
        e.name = QString::fromLatin1(reinterpret_cast<const char*>(data + o + 5), end - (o + 5));
        if (!visit(e))
            return;
        o = end + 1;
    }
}

QString valueOf(const _JobSettingsScene& s, const RawEntry& e)
{
    return s.customData_sub(e.valueStart, e.valueLength,
        e.kind == Kind16bit ? CUSTOMData_Mode16bit : CUSTOMData_Mode8bit);
}

/// Entry number \p id in table order; false when \p id is not below the count.
bool entryAt(const _JobSettingsScene& s, int id, RawEntry& out)
{
    if (id < 0 || id >= s.customDataCount)
        return false;
    bool found = false;
    int k = 0;
    walkEntries(s, [&](const RawEntry& e) {
        if (k++ != id)
            return true;
        out = e;
        found = true;
        return false;
    });
    return found;
}

QList<Entry> readAll(const _JobSettingsScene& s)
{
    QList<Entry> all;
    walkEntries(s, [&](const RawEntry& e) {
        all.append(Entry { e.name, valueOf(s, e) });
        return true;
    });
    return all;
}

bool needs16bit(const QString& value)
{
    for (const QChar c : value) {
        if (c.unicode() > 0xFF)
            return true;
    }
    return false;
}

/// Names end at their first zero character: the table cannot store more.
QString storableName(const QString& name)
{
    const qsizetype z = name.indexOf(QChar(0));
    return z < 0 ? name : name.left(z);
}

void writeBlock(_JobSettingsScene& s, const QList<Entry>& entriesIn)
{
    std::memset(s.customData, 0, sizeof(s.customData));

    // Admission, then the physical bound: a 16-bit value takes two bytes per
    // character and each entry one byte more than admission counts, so an
    // entry that was admitted may still not fit. Either drops it and the rest.
    QList<Entry> entries;
    int admitted = 0;
    int tableBytes = 0;
    int valueBytes = 0;
    for (const Entry& in : entriesIn) {
        const Entry e { storableName(in.name), in.value };
        admitted += int(e.name.size() + e.value.size()) + 5;
        if (admitted > AdmissionLimit)
            break;
        const int entryBytes = 6 + int(e.name.size());
        const int bytes = int(e.value.size()) * (needs16bit(e.value) ? 2 : 1);
        if (tableBytes + entryBytes + valueBytes + bytes > BlockBytes)
            break;
        tableBytes += entryBytes;
        valueBytes += bytes;
        entries.append(e);
    }

    unsigned char* data = s.customData;
    int o = 0;
    QList<int> offsetFields;
    for (const Entry& e : entries) {
        data[o] = needs16bit(e.value) ? Kind16bit : Kind8bit;
        offsetFields.append(o + 1);
        writeBE16(data + o + 3, int(e.value.size()));
        for (qsizetype i = 0; i < e.name.size(); ++i)
            data[o + 5 + i] = static_cast<unsigned char>(e.name.at(i).unicode() & 0xFF);
        o += 6 + int(e.name.size()); // the zero byte is already there
    }
    s.customDataValuesStart = o;

    for (int k = 0; k < entries.size(); ++k) {
        const QString& v = entries.at(k).value;
        writeBE16(data + offsetFields.at(k), o);
        if (needs16bit(v)) {
            for (const QChar c : v) {
                writeBE16(data + o, c.unicode());
                o += 2;
            }
        } else {
            for (const QChar c : v)
                data[o++] = static_cast<unsigned char>(c.unicode());
        }
    }
    s.customDataUsed = o;
    s.customDataCount = int(entries.size());
}

} // namespace

// ---- reading ---------------------------------------------------------------------

QString _JobSettingsScene::customData_sub(
    const int& start, const int& length, const CUSTOMData_Modes& mode) const
{
    if (length <= 0 || start < 0 || start >= BlockBytes)
        return QString();
    const int width = mode == CUSTOMData_Mode16bit ? 2 : 1;
    const int n = qMin(length, (BlockBytes - start) / width);
    const unsigned char* p = customData + start;
    if (width == 1)
        return QString::fromLatin1(reinterpret_cast<const char*>(p), n);
    QString out(n, Qt::Uninitialized);
    for (int i = 0; i < n; ++i)
        out[i] = QChar(static_cast<char16_t>(readBE16(p + 2 * i)));
    return out;
}

QString _JobSettingsScene::customData_Str(const QString& name) const
{
    QString value;
    walkEntries(*this, [&](const RawEntry& e) {
        if (e.name.compare(name, Qt::CaseInsensitive) != 0)
            return true;
        value = valueOf(*this, e);
        return false;
    });
    return value;
}

bool _JobSettingsScene::customData_Contains(const QString& name) const
{
    bool found = false;
    walkEntries(*this, [&](const RawEntry& e) {
        found = e.name.compare(name, Qt::CaseInsensitive) == 0;
        return !found;
    });
    return found;
}

int _JobSettingsScene::customData_maxIDs() const
{
    return customDataCount;
}

QString _JobSettingsScene::customData_NameByID(const int& id) const
{
    RawEntry e;
    return entryAt(*this, id, e) ? e.name : QString();
}

QString _JobSettingsScene::customData_StrByID(const int& id) const
{
    RawEntry e;
    return entryAt(*this, id, e) ? valueOf(*this, e) : QString();
}

void _JobSettingsScene::customData_All(QStringList& names, QStringList& values) const
{
    names.clear();
    values.clear();
    for (const Entry& e : readAll(*this)) {
        names.append(e.name);
        values.append(e.value);
    }
}

void _JobSettingsScene::customData_All(_varValList& list) const
{
    list.clear();
    for (const Entry& e : readAll(*this))
        list.add(e.name, e.value);
}

QString _JobSettingsScene::customData_UserInfo() const
{
    return customData_Str(QLatin1String(CUSTOMUserInfoName));
}

QString _JobSettingsScene::customData_CommentInfo() const
{
    return customData_Str(QLatin1String(CUSTOMCommentInfoName));
}

bool _JobSettingsScene::customData_ContainCommentInfo() const
{
    return customData_Contains(QLatin1String(CUSTOMCommentInfoName));
}

QString _JobSettingsScene::customData_AllAsString() const
{
    const QLatin1String userInfo(CUSTOMUserInfoName);
    const QLatin1String comment(CUSTOMCommentInfoName);
    QString out;
    for (const Entry& e : readAll(*this)) {
        if (e.name == userInfo || e.name == comment)
            continue;
        out += QStringLiteral("|%1: '%2' ").arg(e.name, e.value);
    }
    return out;
}

_zkString8_allSize<5000> _JobSettingsScene::customData_allValuesAsBlock_Uppercase() const
{
    _zkString8_allSize<5000> out;
    const int start = clampToBlock(customDataValuesStart);
    const int end = clampToBlock(customDataUsed);
    const int n = customDataUsed - customDataValuesStart;
    if (customDataUsed <= 0 || n > 4999 || end <= start)
        return out;
    out.setBytes(reinterpret_cast<const char*>(customData + start), end - start);
    out.makeUpper();
    return out;
}

bool _JobSettingsScene::customData_isEqual(_JobSettingsScene* other) const
{
    return other && std::memcmp(customData, other->customData, sizeof(customData)) == 0;
}

// ---- writing ---------------------------------------------------------------------

void _JobSettingsScene::customDataSet_All(const QStringList& names, const QStringList& values)
{
    QList<Entry> entries;
    const qsizetype n = qMin(names.size(), values.size());
    for (qsizetype i = 0; i < n; ++i)
        entries.append(Entry { names.at(i), values.at(i) });
    writeBlock(*this, entries);
}

void _JobSettingsScene::customDataSet_All(const _varValList& list)
{
    QList<Entry> entries;
    for (const _varValue& v : list.items)
        entries.append(Entry { v.name, v.value });
    writeBlock(*this, entries);
}

void _JobSettingsScene::customDataSet_Str(const QString& name, const QString& value)
{
    QList<Entry> entries = readAll(*this);
    bool matched = false;
    for (qsizetype i = 0; i < entries.size();) {
        if (entries.at(i).name.compare(name, Qt::CaseInsensitive) != 0) {
            ++i;
            continue;
        }
        matched = true;
        if (value.isEmpty()) {
            entries.removeAt(i);
        } else {
            entries[i].value = value; // the stored spelling of the name stays
            ++i;
        }
    }
    if (!matched) {
        if (value.isEmpty())
            return;
        entries.append(Entry { name, value });
    }
    writeBlock(*this, entries);
}

void _JobSettingsScene::customDataSet_StrByID(const int& id, const QString& value)
{
    if (id < 0 || id >= customDataCount)
        return;
    QList<Entry> entries = readAll(*this);
    if (id >= entries.size())
        return;
    if (value.isEmpty())
        entries.removeAt(id);
    else
        entries[id].value = value;
    writeBlock(*this, entries);
}

void _JobSettingsScene::customDataAppend_Str(const QString& name, const QString& value)
{
    customDataSet_Str(name, customData_Str(name) + value);
}

void _JobSettingsScene::customDataSet_UserInfo(const QString& value)
{
    customDataSet_Str(QLatin1String(CUSTOMUserInfoName), value);
}

void _JobSettingsScene::customDataSet_CommentInfo(const QString& value)
{
    customDataSet_Str(QLatin1String(CUSTOMCommentInfoName), value);
}

void _JobSettingsScene::customData_ClearAll()
{
    customDataCount = 0;
    customDataUsed = 0;
    customDataValuesStart = 0;
}

} // namespace zkJ
