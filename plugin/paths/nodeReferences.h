// The parts of an output path that name something of a node rather than of
// the scene: "$OS" (the node's own name), a backtick pair around a single
// variable, and a backticked chs() reference to another node's parameter.
// Expressions beyond these need Houdini and are left to the present rules.
#pragma once

#include <QString>
#include <QStringView>

/// \p path with "$OS" and "${OS}" replaced by \p nodeName. "$OSX" is another
/// variable and stays.
QString expandNodeName(const QString& path, QStringView nodeName);

/// \p path with every backtick pair that holds only one variable reference
/// ("`$HIPNAME`", "`${OS}`") replaced by that reference in its braced form
/// ("${HIPNAME}"), so that the variable expansion that follows gives its
/// value and text after the backtick stays apart from the name.
QString unwrapVariableBackticks(const QString& path);

/// A backticked chs() reference found in a path value.
struct ChannelReference
{
    /// Where the backticked expression starts in the value and its length,
    /// backticks included.
    qsizetype start = -1;
    qsizetype length = 0;
    /// The referenced parameter as written: "/obj/geo1/file1/file", "../x/file".
    QString reference;
};

/// The first "`chs("REF")`" or "`chs('REF')`" of \p value (the quotes may be
/// written escaped, \"), or a reference with start -1.
ChannelReference findChannelReference(QStringView value);

/// \p reference resolved against the node \p nodePath ("/obj/geo1/rop1"): an
/// absolute reference stays, a relative one is read from inside the node
/// ("file" is its own parameter, "../x/file" its sibling's). "." and ".."
/// steps are applied; a ".." above the root gives an empty string.
QString resolveParameterReference(QStringView reference, QStringView nodePath);

/// The node part and the parameter name of a resolved reference
/// "/obj/geo1/file1/file": "/obj/geo1/file1" and "file".
QStringView referencedNode(QStringView resolved);
QStringView referencedParameter(QStringView resolved);

/// \p value with each channel reference "[ resx\t1280 ]" replaced by the
/// number in it: a parameter keyed to a channel holds the value Houdini last
/// cached there ("1\t[ f2\t16 ]\t1" gives "1\t16\t1").
QString withCachedValues(QString value);
