// The line loop every section reader runs: read the section's lines up to
// its closing "}", skip blank and "#" lines, and hand the rest to the
// reader's keyword rules.
//
// Sections run to thousands of lines and nearly all of them match no
// keyword, so a line is looked at as raw bytes first: its first visible byte
// rules most lines out, and keywords are compared on the bytes. The text is
// decoded only for a line a rule takes, or where a byte outside ASCII makes
// the bytes unreliable for Qt's case-insensitive comparison.
#pragma once

#include "plugin/lineSource.h"
#include "shared/zkAscii.h"

#include <QByteArrayView>
#include <QLatin1String>
#include <QString>

#include <bitset>
#include <initializer_list>

namespace sectionLoop {

inline bool isAsciiSpace(unsigned char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// One line of a section: its bytes trimmed of ASCII blanks, decoded on demand.
class SectionLine
{
public:
    /// \p raw must hold a visible byte.
    explicit SectionLine(QByteArrayView raw);

    /// The first visible byte.
    unsigned char firstByte() const { return static_cast<unsigned char>(bytes.front()); }

    /// Whether the trimmed line begins with \p keyword (ASCII) ignoring case,
    /// exactly as QString::startsWith(keyword, Qt::CaseInsensitive) on text().
    bool startsWith(QLatin1String keyword) const;

    /// The line decoded from UTF-8 and trimmed.
    const QString& text() const;
    bool isDecoded() const { return decoded; }

private:
    QByteArrayView bytes;
    /// First and last visible bytes are ASCII: then the bytes and the decoded
    /// text agree character for character wherever the bytes are ASCII.
    bool asciiEnds;
    mutable bool decoded = false;
    mutable QString textCache;
};

/// The first bytes a reader's keywords can begin with, in either letter case.
/// A line whose first visible byte is ASCII and not in the set matches no
/// keyword; a byte above 0x7F may begin a character that folds to one.
class KeywordStarts
{
public:
    KeywordStarts(std::initializer_list<QLatin1String> keywords)
    {
        for (QLatin1String keyword : keywords)
            add(keyword);
    }
    KeywordStarts() = default;

    void add(QLatin1String keyword)
    {
        if (keyword.isEmpty())
            return;
        const auto c = static_cast<unsigned char>(keyword.front().toLatin1());
        bytes.set(c);
        bytes.set(zkAscii::lower(c));
        if (c >= 'a' && c <= 'z')
            bytes.set(c - 'a' + 'A');
    }

    bool mayBegin(unsigned char c) const { return c >= 0x80 || bytes.test(c); }

private:
    std::bitset<256> bytes;
};

/// How a section's reading ended.
enum class SectionEnd {
    Closed, ///< its "}" line was read
    Cut, ///< the input ended before the "}"
    Left, ///< the reader stopped early; the rest is left to the scanner
};

/// Reads a section's lines after its header. Blank lines and lines starting
/// with "#" are skipped, a line starting with "}" closes the section, and any
/// other line that \p starts lets through goes to \p onLine, which returns
/// false to stop reading there. \p lastLine receives the text of the last
/// line decoded (the closing "}" line when there is one).
template <typename OnLine>
SectionEnd readSection(
    LineSource& in, QString& lastLine, const KeywordStarts& starts, OnLine&& onLine)
{
    QByteArrayView raw;
    while (in.nextRaw(raw)) {
        qsizetype first = 0;
        while (first < raw.size() && isAsciiSpace(static_cast<unsigned char>(raw[first])))
            ++first;
        if (first == raw.size())
            continue;
        const auto head = static_cast<unsigned char>(raw[first]);
        if (head == '#')
            continue;
        if (head == '}') {
            lastLine = LineSource::decode(raw);
            return SectionEnd::Closed;
        }
        if (!starts.mayBegin(head))
            continue;
        const SectionLine line(raw.sliced(first));
        if (head >= 0x80) {
            // Only the decoded text tells where a line with a non-ASCII start begins.
            const QString& text = line.text();
            if (text.isEmpty() || text.startsWith(u'#'))
                continue;
            if (text.startsWith(u'}')) {
                lastLine = text;
                return SectionEnd::Closed;
            }
        }
        const bool goOn = onLine(line);
        if (line.isDecoded())
            lastLine = line.text();
        if (!goOn)
            return SectionEnd::Left;
    }
    return SectionEnd::Cut;
}

} // namespace sectionLoop
