// What a real scene says about each node outside its parameters: the type its
// ".init" member declares and the bypass flag of its ".def" member. A scene
// that declares a node's type decides by that type alone which reader reads
// the node, so a File SOP named "geo" is never taken for an output driver and
// a cache named "pyro_sim" is never missed for want of a marker in its name.
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// The members of one node that the scan reads, by their name's suffix.
enum class NodeMember {
    Init, ///< "PATH.init": "type = T"
    Def, ///< "PATH.def": flags, inputs
    Chn, ///< "PATH.chn": channels with their expressions
    Parm, ///< "PATH.parm": parameter lines
};

/// A member header found in a line: the node's path as the archive names it
/// (no leading "/", "out/mantra1"), which member, and in the archive forms the
/// text after the name's NUL ("type = ifd" for an ".init", "{" for a ".parm").
struct MemberHeader
{
    QStringView path;
    NodeMember member = NodeMember::Parm;
    QStringView rest;
};

/// The last member header of \p line in the cpio ("070707" and 70 octal
/// digits) and HouNC/HouLC ("HouNC" 0x1a and 28 hex digits) forms, followed by
/// ".init", ".def", ".chn" or ".parm" and a NUL. A binary member written
/// before it without a line end may share the line, so the header is searched
/// for anywhere in it.
std::optional<MemberHeader> archiveMemberHeader(QStringView line);

/// The member named by a MIME part header line
/// `Content-Disposition: attachment; filename="PATH.init"`; rest is empty.
std::optional<MemberHeader> mimeMemberHeader(QStringView line);

/// The type of an ".init" body line "type = T", or a null view when the line
/// is none. T is returned as written ("labs::filecache::2.0").
QStringView initTypeValue(QStringView line);

/// \p declared without a namespace prefix and a version suffix:
/// "filecache::2.0" and "labs::filecache::2.0" give "filecache",
/// "gamedev::rop_motion_vectors" gives "rop_motion_vectors".
QStringView baseTypeName(QStringView declared);

/// Whether \p line is a ".def" "flags =" line; \p bypass then tells whether it
/// holds "bypass on".
bool readFlagsLine(QStringView line, bool& bypass);

/// The reader a declared node's section goes to.
enum class NodeReader {
    None, ///< skipped: its lines are no driver's
    OutputDriver,
    Camera,
    Wedge,
    UsdRenderSettings,
    Lop,
};

/// The reader of a node whose base type is \p type; \p inRopNetwork when its
/// parent is a ROP network (see childOfRopNetwork()).
NodeReader readerForType(QStringView type, bool inRopNetwork);

/// Whether a node whose parent is \p parentPath ("out", "obj/ropnet1", no
/// leading "/") of base type \p parentType lies in a ROP network: "/out"
/// itself, a ropnet anywhere, and a subnet that itself lies in one
/// (\p parentInRopNetwork).
bool childOfRopNetwork(QStringView parentPath, QStringView parentType, bool parentInRopNetwork);

/// The parent path of a member path: "obj/ropnet1/mantra1" gives
/// "obj/ropnet1"; a top-level "out" gives an empty view.
QStringView parentPath(QStringView memberPath);
