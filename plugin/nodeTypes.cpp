#include "plugin/nodeTypes.h"

#include "plugin/textSearch.h"

#include <array>

namespace {

constexpr qsizetype CpioDigits = 70;
constexpr qsizetype HouDigits = 28;
// A member name is a node path and a suffix; real ones are far shorter. A
// longer run before a NUL is binary data that happens to follow a magic.
constexpr qsizetype MaxMemberName = 4096;

// Each member header's digits are checked: a template lets the test inline.
template <typename Accept>
bool allOf(QStringView text, Accept accept)
{
    for (const QChar c : text)
        if (!accept(c.unicode()))
            return false;
    return true;
}

bool isOctal(char16_t c)
{
    return c >= u'0' && c <= u'7';
}

bool isHex(char16_t c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

bool isVersionText(QStringView text)
{
    return !text.isEmpty()
        && allOf(text, [](char16_t c) { return (c >= u'0' && c <= u'9') || c == u'.'; });
}

struct Suffix
{
    QStringView text;
    NodeMember member;
};

constexpr std::array<Suffix, 4> MemberSuffixes { {
    { u".init", NodeMember::Init },
    { u".def", NodeMember::Def },
    { u".chn", NodeMember::Chn },
    { u".parm", NodeMember::Parm },
} };

std::optional<NodeMember> memberOfName(QStringView name, QStringView& path)
{
    for (const Suffix& s : MemberSuffixes) {
        // The last character tells the suffixes apart before any comparison.
        if (name.size() > s.text.size() && name.back() == s.text.back()
            && name.right(s.text.size()) == s.text) {
            path = name.chopped(s.text.size());
            return s.member;
        }
    }
    return std::nullopt;
}

/// Where the member name of a header starting at \p magic begins, or -1 when
/// the digits after the magic are not a header's.
qsizetype nameStart(QStringView line, qsizetype magic)
{
    // Called at a magic: only the cpio one starts with '0'.
    if (line[magic] == u'0') {
        const QStringView digits = line.mid(magic + 6, CpioDigits);
        return digits.size() == CpioDigits && allOf(digits, [](char16_t c) { return isOctal(c); })
            ? magic + 6 + CpioDigits
            : -1;
    }
    const QStringView digits = line.mid(magic + 6, HouDigits);
    return digits.size() == HouDigits && allOf(digits, [](char16_t c) { return isHex(c); })
        ? magic + 6 + HouDigits
        : -1;
}

// Types that write a file or a picture wherever they sit.
constexpr std::array<QStringView, 17> DriverTypes { {
    u"ifd",
    u"arnold",
    u"Redshift_ROP",
    u"opengl",
    u"karma",
    u"rop_geometry",
    u"rop_alembic",
    u"rop_comp",
    u"rop_fbx",
    u"rop_dop",
    u"rop_image",
    u"filecache",
    u"usd_rop",
    u"usdrender_rop",
    u"vray_renderer",
    u"ris",
    u"baketexture",
} };

// The ROP-network spellings of the SOP/LOP-level drivers above.
constexpr std::array<QStringView, 7> RopNetworkDriverTypes { {
    u"geometry",
    u"alembic",
    u"comp",
    u"usd",
    u"usdrender",
    u"dop",
    u"fbx",
} };

// Nodes of a ROP network that route or group drivers but write nothing.
constexpr std::array<QStringView, 9> PassThroughTypes { {
    u"merge",
    u"null",
    u"switch",
    u"fetch",
    u"batch",
    u"subnet",
    u"ropnet",
    u"shell",
    u"Redshift_IPR",
} };

template <std::size_t N>
bool listed(const std::array<QStringView, N>& list, QStringView type)
{
    for (QStringView t : list)
        if (t == type)
            return true;
    return false;
}

} // namespace

namespace {

/// Whether one of the three magics starts at \p at. The scan hands over
/// short header lines and long ones with binary members before a header; one
/// walk that tests each '0' and 'H' is cheaper on both than a substring
/// search per magic, whose set-up the short lines never pay back.
bool magicAt(const char16_t* c, qsizetype size, qsizetype at)
{
    if (size - at < 6)
        return false;
    if (c[at] == u'0')
        return c[at + 1] == u'7' && c[at + 2] == u'0' && c[at + 3] == u'7' && c[at + 4] == u'0'
            && c[at + 5] == u'7';
    return c[at] == u'H' && c[at + 1] == u'o' && c[at + 2] == u'u'
        && (c[at + 3] == u'N' || c[at + 3] == u'L') && c[at + 4] == u'C' && c[at + 5] == u'\x1a';
}

/// Whether \p text holds a 0x1a or "0707", the tell-tale bytes of a further
/// header. One walk: the rest of a header line is mostly a short ".init" or
/// ".def" line, where two of Qt's searches cost more to set up than this.
bool mayHoldMagic(QStringView text)
{
    const char16_t* c = text.utf16();
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        if (c[i] == u'\x1a')
            return true;
        if (c[i] == u'0' && i + 3 < n && c[i + 1] == u'7' && c[i + 2] == u'0' && c[i + 3] == u'7')
            return true;
    }
    return false;
}

} // namespace

std::optional<MemberHeader> archiveMemberHeader(QStringView line)
{
    // One pass over the candidates in line order, so that a hostile line of
    // magics and NULs costs time linear in its length: the next NUL after a
    // name's start only moves forward.
    static constexpr QStringView Magics[] = { u"070707", u"HouNC\x1a", u"HouLC\x1a" };
    // Nearly every header the scan meets starts its line, and nothing after
    // its NUL looks like another: that one is read without a search.
    for (const QStringView magic : Magics) {
        if (!line.startsWith(magic))
            continue;
        const qsizetype start = nameStart(line, 0);
        const qsizetype end = start < 0 ? -1 : line.indexOf(QChar(u'\0'), start);
        if (end < 0 || end - start > MaxMemberName)
            break;
        const QStringView rest = line.mid(end + 1);
        // Too short a rest holds no further header.
        if (rest.size() >= 6 + HouDigits && mayHoldMagic(rest))
            break;
        // The header of another member (".spareparmdef", ".userdata"): none
        // of the scan's.
        MemberHeader header;
        const auto member = memberOfName(line.mid(start, end - start), header.path);
        if (!member)
            return std::nullopt;
        header.member = *member;
        header.rest = rest;
        return header;
    }
    const char16_t* const c = line.utf16();
    const qsizetype size = line.size();
    qsizetype nul = -1;
    std::optional<MemberHeader> last;
    for (qsizetype magic = 0; magic + 6 <= size; ++magic) {
        if (!magicAt(c, size, magic))
            continue;
        const qsizetype start = nameStart(line, magic);
        if (start < 0)
            continue;
        if (nul < start)
            nul = line.indexOf(QChar(u'\0'), start);
        if (nul < 0)
            return last;
        if (nul - start > MaxMemberName)
            continue;
        MemberHeader header;
        if (const auto member = memberOfName(line.mid(start, nul - start), header.path)) {
            header.member = *member;
            header.rest = line.mid(nul + 1);
            last = header;
        }
    }
    return last;
}

std::optional<MemberHeader> mimeMemberHeader(QStringView line)
{
    static constexpr QStringView Lead = u"Content-Disposition: attachment; filename=\"";
    if (!line.startsWith(Lead))
        return std::nullopt;
    const QStringView quoted = line.mid(Lead.size());
    const qsizetype close = quoted.indexOf(u'"');
    if (close < 0 || !quoted.mid(close + 1).trimmed().isEmpty())
        return std::nullopt;
    MemberHeader header;
    const auto member = memberOfName(quoted.left(close), header.path);
    if (!member)
        return std::nullopt;
    header.member = *member;
    return header;
}

QStringView initTypeValue(QStringView line)
{
    static constexpr QStringView Lead = u"type = ";
    if (!line.startsWith(Lead))
        return QStringView();
    const QStringView type = line.mid(Lead.size()).trimmed();
    return type.isEmpty() ? QStringView() : type;
}

QStringView baseTypeName(QStringView declared)
{
    QStringView type = declared;
    // Most types have no namespace: a character test spares a substring search.
    if (!type.contains(u':'))
        return type;
    const qsizetype lastSep = type.lastIndexOf(u"::");
    if (lastSep >= 0 && isVersionText(type.mid(lastSep + 2)))
        type = type.left(lastSep);
    const qsizetype nsSep = type.lastIndexOf(u"::");
    return nsSep >= 0 ? type.mid(nsSep + 2) : type;
}

bool readFlagsLine(QStringView line, bool& bypass)
{
    if (!line.startsWith(u"flags ="))
        return false;
    bypass = containsShort(line, u" bypass on");
    return true;
}

NodeReader readerForType(QStringView type, bool inRopNetwork)
{
    if (listed(DriverTypes, type))
        return NodeReader::OutputDriver;
    if (type == u"cam" || type == u"stereocamrig")
        return NodeReader::Camera;
    if (type == u"karmarenderproperties" || type == u"rendersettings")
        return NodeReader::UsdRenderSettings;
    if (type == u"hdprman")
        return NodeReader::Lop;
    if (!inRopNetwork)
        return NodeReader::None;
    if (type == u"wedge")
        return NodeReader::Wedge;
    if (listed(RopNetworkDriverTypes, type))
        return NodeReader::OutputDriver;
    if (listed(PassThroughTypes, type))
        return NodeReader::None;
    // A studio's own ROP asset: read as a driver, as "/out" sections of
    // undeclared scenes are.
    return NodeReader::OutputDriver;
}

bool childOfRopNetwork(QStringView parentPath, QStringView parentType, bool parentInRopNetwork)
{
    if (parentPath == u"out")
        return true;
    if (parentType == u"ropnet")
        return true;
    return parentType == u"subnet" && parentInRopNetwork;
}

QStringView parentPath(QStringView memberPath)
{
    const qsizetype slash = memberPath.lastIndexOf(u'/');
    return slash < 0 ? QStringView() : memberPath.left(slash);
}
