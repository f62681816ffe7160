// Path, checksum and environment services of the shared library.
#pragma once

#include "zkSharedExport.h"
#include "zkString.h"

#include <QList>
#include <QString>

/// Operating-system code stored in job records.
enum _zkOS : unsigned char {
    zkOS_unknown = 0,
    zkOS_windows = 1,
    zkOS_linux = 2,
    zkOS_mac = 3,
};

/// One variable: its name and its value.
struct _varValue
{
    QString name;
    QString value;
};

/// Ordered name/value list; duplicate names are kept, order is insertion order.
class ZK_SHARED_EXPORT _varValList
{
public:
    void add(const QString& name, const QString& value);
    int size() const { return int(items.size()); }
    bool isEmpty() const { return items.isEmpty(); }
    const _varValue& at(int i) const { return items.at(i); }
    /// Value of the first pair named \p name (exact), or an empty string.
    QString value(const QString& name) const;
    bool contains(const QString& name) const;
    void clear() { items.clear(); }

    QList<_varValue> items;
};

/// Directory part of \p path ending with \p separator: one trailing separator
/// is dropped first, then the text up to and including the last separator is
/// returned; empty when there is none.
ZK_SHARED_EXPORT QString zkGetDirName(QString path, unsigned short separator);
/// The same with "/" on a 500-unit string, cut to its capacity.
ZK_SHARED_EXPORT _zkString<500> zkGetDirName(_zkString<500> path);
/// Last component of \p path without its extension: the text after the last
/// separator, cut at its last "." unless that "." is its first character.
ZK_SHARED_EXPORT QString zkGetFileNameBase(QString path, unsigned short separator);
/// Machine normalisation of a path; it keeps separators and frame tokens, and
/// on this platform it returns the path unchanged.
ZK_SHARED_EXPORT QString zkPathResolve(QString path);
/// CRC-64/XZ (ECMA-182 polynomial, reflected, all-ones init and final XOR).
ZK_SHARED_EXPORT unsigned long long zkCRCCalc64(const void* data, unsigned long size);
/// First 16 bytes of the SHA-1 digest of \p size bytes.
ZK_SHARED_EXPORT _zkString8_allSize<16> zkCRC_SHA1_16B(
    const unsigned char* data, const unsigned int& size);
/// \p text without characters below U+0020 and without \ / : * ? " < > |.
ZK_SHARED_EXPORT QString zkRemoveIllegalCharFromHtmlFile(QString text);
/// "true" or "false"; the flag has no effect.
ZK_SHARED_EXPORT QString bool2str(const bool& value, const bool& flag);
/// "", "win", "lx" or "mac".
ZK_SHARED_EXPORT QString OS2String(const _zkOS& os);
/// The process environment in the order of environ, each entry split at its
/// first "="; the flag has no effect.
ZK_SHARED_EXPORT _varValList zkGetEnvironmentVariableList(const bool& flag);
