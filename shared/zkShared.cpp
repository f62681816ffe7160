#include "zkShared.h"

#include <QCryptographicHash>

#include <cstring>

extern char** environ;

void _varValList::add(const QString& name, const QString& value)
{
    items.append(_varValue { name, value });
}

QString _varValList::value(const QString& name) const
{
    for (const _varValue& v : items) {
        if (v.name == name)
            return v.value;
    }
    return QString();
}

bool _varValList::contains(const QString& name) const
{
    for (const _varValue& v : items) {
        if (v.name == name)
            return true;
    }
    return false;
}

QString zkGetDirName(QString path, unsigned short separator)
{
    const QChar sep(separator);
    if (path.endsWith(sep))
        path.chop(1);
    const qsizetype p = path.lastIndexOf(sep);
    if (p < 0)
        return QString();
    return path.left(p + 1);
}

_zkString<500> zkGetDirName(_zkString<500> path)
{
    return _zkString<500>(zkGetDirName(path.toQString(), u'/'));
}

QString zkGetFileNameBase(QString path, unsigned short separator)
{
    QString name = path.mid(path.lastIndexOf(QChar(separator)) + 1);
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot > 0)
        name.truncate(dot);
    return name;
}

QString zkPathResolve(QString path)
{
    return path;
}

namespace {

struct Crc64Table
{
    unsigned long long entries[256];
    Crc64Table()
    {
        const unsigned long long poly = 0xC96C5795D7870F42ULL; // ECMA-182, reflected
        for (unsigned i = 0; i < 256; ++i) {
            unsigned long long crc = i;
            for (int k = 0; k < 8; ++k)
                crc = (crc & 1) ? (crc >> 1) ^ poly : crc >> 1;
            entries[i] = crc;
        }
    }
};

} // namespace

unsigned long long zkCRCCalc64(const void* data, unsigned long size)
{
    static const Crc64Table table;
    const auto* bytes = static_cast<const unsigned char*>(data);
    unsigned long long crc = ~0ULL;
    for (unsigned long i = 0; i < size; ++i)
        crc = table.entries[(crc ^ bytes[i]) & 0xFF] ^ (crc >> 8);
    return ~crc;
}

_zkString8_allSize<16> zkCRC_SHA1_16B(const unsigned char* data, const unsigned int& size)
{
    const QByteArray digest = QCryptographicHash::hash(
        QByteArrayView(reinterpret_cast<const char*>(data), qsizetype(size)),
        QCryptographicHash::Sha1);
    _zkString8_allSize<16> out;
    out.setBytes(digest.constData(), 16);
    return out;
}

QString zkRemoveIllegalCharFromHtmlFile(QString text)
{
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u < 0x20)
            continue;
        switch (u) {
        case u'\\':
        case u'/':
        case u':':
        case u'*':
        case u'?':
        case u'"':
        case u'<':
        case u'>':
        case u'|':
            continue;
        default:
            out.append(c);
        }
    }
    return out;
}

QString bool2str(const bool& value, const bool& flag)
{
    (void)flag;
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString OS2String(const _zkOS& os)
{
    switch (os) {
    case zkOS_windows:
        return QStringLiteral("win");
    case zkOS_linux:
        return QStringLiteral("lx");
    case zkOS_mac:
        return QStringLiteral("mac");
    default:
        return QString();
    }
}

_varValList zkGetEnvironmentVariableList(const bool& flag)
{
    (void)flag;
    _varValList list;
    for (char** e = environ; e && *e; ++e) {
        const char* entry = *e;
        const char* eq = std::strchr(entry, '=');
        if (!eq) {
            list.add(QString::fromLocal8Bit(entry), QString());
            continue;
        }
        list.add(
            QString::fromLocal8Bit(entry, qsizetype(eq - entry)), QString::fromLocal8Bit(eq + 1));
    }
    return list;
}
