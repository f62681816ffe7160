// The one line source that the scanner and every reader share.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QIODevice>
#include <QString>
#include <QStringView>
#include <QTextStream>

#include <array>
#include <cstdint>

/// Lines of a scene read through the device behind one QTextStream. Every
/// "\r" is removed wherever it stands, lines end at "\n", a last line without
/// "\n" is still read, and each line is decoded as UTF-8 (a leading byte-order
/// mark is skipped, invalid bytes become U+FFFD) and trimmed at both ends.
///
/// A line longer than MaxLineBytes (after "\r" removal) is read past without
/// being kept: it reads as an empty line, so it matches nothing, and memory
/// stays bounded whatever the input holds.
///
/// Scenes run to gigabytes and almost every line is rejected after a glance,
/// so the device is read in chunks of raw bytes, each chunk is searched for
/// line ends 64 bytes at a time, and a line is decoded only when someone asks
/// for its text. The scanner goes further and asks only for the lines that
/// hold one of its marks (nextMarked); a reader's line loop
/// (sectionLoop::readSection) rejects most lines on their first visible byte
/// and decodes the rest.
class LineSource
{
public:
    /// Longest line kept, in bytes. The longest line of the real scenes we
    /// know is a 3 MB stashed-geometry value; 4 MiB keeps every such line
    /// whole, and a line of that size still decodes to 8 MiB of text, so the
    /// few copies a reader makes of a line stay far below 64 MB.
    static constexpr qsizetype MaxLineBytes = qsizetype(4) << 20;

    /// Bytes read at a time: large enough that the per-call cost vanishes,
    /// small enough that a chunk is still in the second-level cache when it
    /// is searched. The fuzz build reads small chunks, so that lines often
    /// run across chunk ends.
#ifdef ZK_LINE_CHUNK_BYTES
    static constexpr qsizetype ChunkBytes = ZK_LINE_CHUNK_BYTES;
#else
    static constexpr qsizetype ChunkBytes = qsizetype(256) << 10;
#endif

    /// What makes a line worth handing to the scanner: a key at the line's
    /// first visible byte (a lead, after ASCII blanks) or anywhere in it (a
    /// pair). Every 64-byte block is searched at once for the first two bytes
    /// of the keys; only where they stand is the whole key compared. A line
    /// whose first visible byte may start a non-ASCII blank is marked too,
    /// since decoding trims those. Marks are generous: nextMarked may hand
    /// over a line that the decoded text then rules out, never skip one that
    /// holds a key.
    class Marks
    {
    public:
        Marks();
        /// A line whose first visible bytes are \p text (two bytes or more)
        /// and which, when \p alsoHolds is given, also holds those bytes
        /// (exactly) somewhere.
        void addLead(const char* text, bool anyCase, const char* alsoHolds = nullptr);
        /// A line holding \p text (two bytes or more) anywhere. Texts of at
        /// most two different first bytes: one that starts like an earlier
        /// pair shares its byte classes (".parm", ".init"), so only its
        /// second byte widens the search.
        ///
        /// Keys that ignore case do so for ASCII letters and for the two
        /// non-ASCII characters that fold to one (U+017F to 's', U+212A to
        /// 'k'), except as a pair's first two bytes. Keys are compared up to
        /// 32 bytes, which can only mark more lines.
        void addPair(const char* text, bool anyCase);

        /// Whether a key stands at \p p, a lead's at a line's first visible
        /// byte, within \p available bytes. A key cut off by their end does
        /// not count: the search takes up an unfinished last line again once
        /// more input has been read.
        bool holdsAt(const char* p, qsizetype available, bool lead) const;

        /// The classes of \p byte in the nibble tables.
        std::uint8_t classOf(char byte) const
        {
            const unsigned char b = static_cast<unsigned char>(byte);
            return std::uint8_t(low[b & 15] & high[b >> 4]);
        }

        /// Byte classes as two nibble tables: a byte's classes are
        /// low[byte & 15] & high[byte >> 4]. Blank classes are exact; the
        /// mark classes may include bytes that were not asked for, which
        /// holdsAt() then rules out.
        std::array<std::uint8_t, 16> low {};
        std::array<std::uint8_t, 16> high {};
        /// Exact sets of the ASCII bytes that may start a lead and follow its
        /// first byte: bit h of set[l] holds byte 16 h + l.
        std::array<std::uint8_t, 16> leadFirst {};
        std::array<std::uint8_t, 16> leadSecond {};

        static bool inLeadSet(const std::array<std::uint8_t, 16>& set, char byte)
        {
            const unsigned char b = static_cast<unsigned char>(byte);
            return b < 0x80 && (set[b & 15] >> (b >> 4) & 1u);
        }

    private:
        struct Key
        {
            std::array<char, 32> text {}; ///< lower case when anyCase
            qsizetype size = 0;
            bool anyCase = false;
            bool lead = false;
            const char* alsoHolds = nullptr;
            unsigned pairBit = 0; ///< a pair's first-byte class
        };
        void add(unsigned firstBit, const char* text, bool anyCase);
        Key& addKey(const char* text, bool anyCase, bool lead);

        std::array<Key, 12> keys {};
        int keyCount = 0;
        int pairs = 0;
    };

    explicit LineSource(QTextStream& stream);

    /// The next line's raw bytes, "\r" removed, neither decoded nor trimmed;
    /// valid until the next call of any next*(). Decode with decode().
    bool nextRaw(QByteArrayView& bytes);

    /// The next line that holds one of \p marks, as nextRaw(); every line
    /// before it is read past, and so is a line over MaxLineBytes.
    bool nextMarked(QByteArrayView& bytes, const Marks& marks);

    /// The text of a raw line: UTF-8 decoded and trimmed.
    static QString decode(QByteArrayView raw)
    {
        return QString::fromUtf8(raw).trimmed();
    }

    /// At or before the file offset of the last line handed out: "\r" bytes
    /// removed from the chunk it stands in may put it that much early. -1
    /// when the lines come from no device. A reader may seek the device
    /// there later, in a line source of its own, to read a passed line again.
    qint64 lineOffset() const
    {
        return in.device() ? lineStart : -1;
    }
    /// The device the lines come from; null for a stream over a string.
    QIODevice* device() const
    {
        return in.device();
    }

    /// Whether lines are searched with AVX2 where the processor has it (the
    /// default) or byte by byte, as on processors without it. For tests and
    /// benchmarks; affects every line source.
    static void useVectorSearch(bool on);

private:
    /// Appends the next chunk of the input to the unread bytes; false when
    /// there is nothing more.
    bool fill();
    bool readChunk();
    void dropConsumed();
    /// Index of the first "\n" at or after \p from, or -1 within the buffer.
    qsizetype findNewline(qsizetype from);
    /// Hands out the line [pos, end) and moves past its "\n".
    QByteArrayView take(qsizetype end);
    /// The first \p count bytes of the buffer were dropped.
    void dropped(qsizetype count);
    /// At or before the file offset of buffer[index].
    qint64 offsetAt(qsizetype index) const
    {
        return index >= chunkIndex ? chunkOffset + (index - chunkIndex) : bufferOffset + index;
    }

    QTextStream& in;
    /// The unread bytes and some consumed ones before them, then Padding
    /// zero bytes so 64-byte blocks may be read past the end.
    QByteArray buffer;
    qsizetype size = 0; ///< bytes of input in buffer
    qsizetype pos = 0; ///< start of the unread bytes in buffer, always a line start
    qsizetype searched = 0; ///< no "\n" stands between pos and this index
    bool started = false;
    bool exhausted = false;
    /// At or before the file offset of buffer[0]; removed "\r" bytes only
    /// move a byte's buffer index below its file offset.
    qint64 bufferOffset = 0;
    /// Where the newest chunk starts in the buffer, and its file offset.
    qsizetype chunkIndex = 0;
    qint64 chunkOffset = 0;
    qint64 lineStart = 0;
};
