#include "lineSource.h"

#include "shared/zkAscii.h"

#include <cstring>
#include <string_view>

#if defined(__x86_64__) || defined(__i386__)
#    include <immintrin.h>
#    define ZK_HAVE_AVX2_PATH 1
#endif

namespace {

/// Zero bytes kept behind the input, so a 64-byte block (and the byte after
/// it) may be read from any byte of it.
constexpr qsizetype Padding = 72;

// Byte classes of the nibble tables. The two blank classes are exact: a lead
// is looked for at the first byte that is no blank. A pair's second-byte class
// is one bit above its first-byte class, so one shift lines them up. Leads
// have exact byte sets of their own (Marks::leadFirst, leadSecond), since
// lines start with many letters that a nibble product would let in.
constexpr std::uint8_t BlankControl = 1; ///< "\t", "\v", "\f"
constexpr std::uint8_t BlankSpace = 2; ///< " "
constexpr unsigned PairFirstBit[2] = { 4, 6 };
constexpr std::uint8_t PairClasses = (1u << PairFirstBit[0]) | (1u << PairFirstBit[1]);

/// One 64-byte block as bit masks, bit i for byte i.
struct BlockBits
{
    quint64 newline = 0;
    quint64 blank = 0;
    quint64 nonAscii = 0;
    quint64 lead = 0; ///< a lead's first byte, followed by a lead's second byte
    quint64 pair = 0; ///< a pair's first byte, followed by its second byte
};

inline unsigned lowestBit(quint64 mask)
{
    return unsigned(__builtin_ctzll(mask));
}

inline unsigned highestBit(quint64 mask)
{
    return 63u - unsigned(__builtin_clzll(mask));
}

/// Reads bytes [0, 64] of \p p: the block and the byte after it.
BlockBits classifyPlain(const char* p, const LineSource::Marks& marks)
{
    BlockBits out;
    std::uint8_t next = marks.classOf(p[0]);
    for (unsigned i = 0; i < 64; ++i) {
        const unsigned char byte = static_cast<unsigned char>(p[i]);
        const quint64 bit = quint64(1) << i;
        const std::uint8_t c = next;
        next = marks.classOf(p[i + 1]);
        const std::uint8_t followed = c & std::uint8_t(next >> 1);
        out.newline |= byte == '\n' ? bit : 0;
        out.nonAscii |= byte >= 0x80 ? bit : 0;
        out.blank |= c & (BlankControl | BlankSpace) ? bit : 0;
        out.lead
            |= marks.inLeadSet(marks.leadFirst, p[i]) && marks.inLeadSet(marks.leadSecond, p[i + 1])
            ? bit
            : 0;
        out.pair |= followed & PairClasses ? bit : 0;
    }
    return out;
}

/// Where a search for marks stands between two blocks.
struct MarkScan
{
    quint64 lineStartCarry = 1; ///< the next block's byte 0 starts a line
    quint64 blankCarry = 0; ///< a line's leading blanks run into the next block
    qsizetype lastNewline = -1; ///< the last "\n" seen, or one before the search start
};

/// Candidates of one block, before their keys are checked.
struct BlockMarks
{
    quint64 lead = 0; ///< first visible bytes: a lead's first two bytes, or not ASCII
    quint64 pair = 0; ///< a pair's first two bytes
};

/// The candidates of one block, of which \p valid bytes are input.
inline BlockMarks blockMarks(const BlockBits& b, unsigned valid, MarkScan& scan)
{
    const quint64 inside = valid >= 64 ? ~quint64(0) : (quint64(1) << valid) - 1;
    const quint64 newline = b.newline & inside;
    const quint64 blank = b.blank & inside;
    // Line starts: after each "\n". A line's first visible byte is its start,
    // or the byte after the run of blanks at its start, which an addition
    // finds for every line at once: the carry runs through each such run.
    const quint64 starts = (newline << 1) | scan.lineStartCarry;
    const quint64 partial = blank + (starts & blank);
    const quint64 sum = partial + scan.blankCarry;
    scan.blankCarry = quint64(partial < blank) | quint64(sum < partial);
    const quint64 firstVisible = (starts | sum) & ~blank & ~newline & inside;
    scan.lineStartCarry = newline >> 63;

    BlockMarks marks;
    marks.lead = firstVisible & (b.lead | b.nonAscii);
    marks.pair = b.pair & ~newline & inside;
    return marks;
}

/// A search for marks over the blocks of a buffer.
struct BlockScan
{
    const char* data;
    qsizetype size;
    const LineSource::Marks& marks;
    qsizetype block; ///< start of the block to look at next
    MarkScan scan;
    quint64 newline = 0; ///< the line ends of the last block looked at
};

/// The first byte of a classified block where a key stands, or -1 after
/// moving the search past the block.
__attribute__((always_inline)) inline qsizetype checkBlock(BlockScan& s, const BlockBits& bits)
{
    const qsizetype valid = s.size - s.block;
    const BlockMarks m = blockMarks(bits, valid > 64 ? 64u : unsigned(valid), s.scan);
    s.newline = valid >= 64 ? bits.newline : bits.newline & ((quint64(1) << valid) - 1);
    for (quint64 candidates = m.lead | m.pair; candidates; candidates &= candidates - 1) {
        const unsigned i = lowestBit(candidates);
        const qsizetype at = s.block + i;
        const quint64 bit = quint64(1) << i;
        if (((m.lead & bit) && s.marks.holdsAt(s.data + at, s.size - at, true))
            || ((m.pair & bit) && s.marks.holdsAt(s.data + at, s.size - at, false)))
            return at;
    }
    if (s.newline)
        s.scan.lastNewline = s.block + highestBit(s.newline);
    s.block += 64;
    return -1;
}

/// Index of the first byte from s.block on where a key stands, or -1;
/// s.block is then the start of its block.
qsizetype scanBlocksPlain(BlockScan& s)
{
    while (s.block < s.size) {
        const qsizetype at = checkBlock(s, classifyPlain(s.data + s.block, s.marks));
        if (at >= 0)
            return at;
    }
    return -1;
}

qsizetype findNewlinePlain(const char* data, qsizetype from, qsizetype size)
{
    const void* hit = from < size ? std::memchr(data + from, '\n', size_t(size - from)) : nullptr;
    return hit ? static_cast<const char*>(hit) - data : -1;
}

#ifdef ZK_HAVE_AVX2_PATH

bool vectorSearch = true;

bool haveAvx2()
{
    static const bool supported = __builtin_cpu_supports("avx2");
    return supported && vectorSearch;
}

__attribute__((target("avx2"))) inline quint64 newlineBitsAvx2(const char* p)
{
    const __m256i newline = _mm256_set1_epi8('\n');
    const __m256i a = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p));
    const __m256i b = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + 32));
    const quint64 low = std::uint32_t(_mm256_movemask_epi8(_mm256_cmpeq_epi8(a, newline)));
    const quint64 high = std::uint32_t(_mm256_movemask_epi8(_mm256_cmpeq_epi8(b, newline)));
    return low | high << 32;
}

/// A 16-byte table in both 128-bit lanes, as the byte shuffle wants it.
__attribute__((target("avx2"))) inline __m256i nibbleTable(
    const std::array<std::uint8_t, 16>& nibbles)
{
    return _mm256_broadcastsi128_si256(
        _mm_loadu_si128(reinterpret_cast<const __m128i*>(nibbles.data())));
}

struct NibbleTables
{
    __m256i low;
    __m256i high;
    __m256i leadFirst;
    __m256i leadSecond;
    __m256i highBit; ///< 1 << high nibble for ASCII, 0 above
};

/// The nibble classes of 32 bytes, and in \p lead whether each byte is in \p leadSet.
__attribute__((target("avx2"))) inline __m256i classesAvx2(
    __m256i v, const NibbleTables& t, __m256i leadSet, __m256i& lead)
{
    const __m256i nibble = _mm256_set1_epi8(0x0F);
    const __m256i lowNibbles = _mm256_and_si256(v, nibble);
    const __m256i highNibbles = _mm256_and_si256(_mm256_srli_epi16(v, 4), nibble);
    lead = _mm256_and_si256(
        _mm256_shuffle_epi8(leadSet, lowNibbles), _mm256_shuffle_epi8(t.highBit, highNibbles));
    return _mm256_and_si256(
        _mm256_shuffle_epi8(t.low, lowNibbles), _mm256_shuffle_epi8(t.high, highNibbles));
}

/// The top bit of each byte.
__attribute__((target("avx2"))) inline std::uint32_t mask(__m256i v)
{
    return std::uint32_t(_mm256_movemask_epi8(v));
}

/// Bytes [0, 32] of \p p as 32 bits of each mask.
struct HalfBits
{
    std::uint32_t newline, blank, nonAscii, lead, pair;
};

__attribute__((target("avx2"))) inline HalfBits classifyHalfAvx2(
    const char* p, const NibbleTables& t)
{
    const __m256i zero = _mm256_setzero_si256();
    const __m256i v = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p));
    __m256i leadFirst;
    __m256i leadSecond;
    const __m256i c = classesAvx2(v, t, t.leadFirst, leadFirst);
    const __m256i next = classesAvx2(
        _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + 1)), t, t.leadSecond, leadSecond);
    // Second-byte classes of the next byte moved onto their first-byte classes;
    // the bit that crosses into the byte below lands on bit 7, which is masked.
    const __m256i followed = _mm256_and_si256(c, _mm256_srli_epi16(next, 1));
    HalfBits h;
    h.newline = mask(_mm256_cmpeq_epi8(v, _mm256_set1_epi8('\n')));
    h.nonAscii = mask(v);
    h.blank = ~mask(_mm256_cmpeq_epi8(
        _mm256_and_si256(c, _mm256_set1_epi8(char(BlankControl | BlankSpace))), zero));
    h.lead = ~mask(
        _mm256_or_si256(_mm256_cmpeq_epi8(leadFirst, zero), _mm256_cmpeq_epi8(leadSecond, zero)));
    h.pair = ~mask(
        _mm256_cmpeq_epi8(_mm256_and_si256(followed, _mm256_set1_epi8(char(PairClasses))), zero));
    return h;
}

__attribute__((target("avx2"))) inline BlockBits classifyAvx2(const char* p, const NibbleTables& t)
{
    const HalfBits a = classifyHalfAvx2(p, t);
    const HalfBits b = classifyHalfAvx2(p + 32, t);
    const auto join
        = [](std::uint32_t low, std::uint32_t high) { return quint64(low) | quint64(high) << 32; };
    BlockBits out;
    out.newline = join(a.newline, b.newline);
    out.blank = join(a.blank, b.blank);
    out.nonAscii = join(a.nonAscii, b.nonAscii);
    out.lead = join(a.lead, b.lead);
    out.pair = join(a.pair, b.pair);
    return out;
}

__attribute__((target("avx2"))) qsizetype scanBlocksAvx2(BlockScan& s)
{
    const std::array<std::uint8_t, 16> highBit { 1, 2, 4, 8, 16, 32, 64, 128 };
    const NibbleTables tables { nibbleTable(s.marks.low), nibbleTable(s.marks.high),
        nibbleTable(s.marks.leadFirst), nibbleTable(s.marks.leadSecond), nibbleTable(highBit) };
    while (s.block < s.size) {
        const qsizetype at = checkBlock(s, classifyAvx2(s.data + s.block, tables));
        if (at >= 0)
            return at;
    }
    return -1;
}

__attribute__((target("avx2"))) qsizetype findNewlineAvx2(
    const char* data, qsizetype from, qsizetype size)
{
    for (; from < size; from += 64) {
        quint64 bits = newlineBitsAvx2(data + from);
        if (size - from < 64)
            bits &= (quint64(1) << (size - from)) - 1;
        if (bits)
            return from + lowestBit(bits);
    }
    return -1;
}

#endif

/// Removes every "\r" from bytes [from, size) of \p data; returns the new size.
qsizetype dropCarriageReturns(char* data, qsizetype from, qsizetype size)
{
    char* const end = data + size;
    char* cr = static_cast<char*>(std::memchr(data + from, '\r', size_t(size - from)));
    if (!cr)
        return size;
    char* out = cr;
    for (const char* p = cr + 1; p < end;) {
        const char* next = static_cast<const char*>(std::memchr(p, '\r', size_t(end - p)));
        const char* stop = next ? next : end;
        std::memmove(out, p, size_t(stop - p));
        out += stop - p;
        p = stop + 1;
    }
    return out - data;
}

} // namespace

void LineSource::Marks::add(unsigned firstBit, const char* text, bool anyCase)
{
    for (int i = 0; i < 2; ++i) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        const unsigned bit = 1u << (i == 0 ? firstBit : firstBit + 1);
        const unsigned char other = zkAscii::otherCase(c);
        for (const unsigned char form : { c, anyCase ? other : c }) {
            low[form & 15] |= std::uint8_t(bit);
            high[form >> 4] |= std::uint8_t(bit);
        }
    }
}

LineSource::Marks::Marks()
{
    for (const unsigned char c : { '\t', '\v', '\f' })
        low[c & 15] |= BlankControl;
    high[0] |= BlankControl;
    low[' ' & 15] |= BlankSpace;
    high[' ' >> 4] |= BlankSpace;
}

void LineSource::Marks::addLead(const char* text, bool anyCase, const char* alsoHolds)
{
    addKey(text, anyCase, true).alsoHolds = alsoHolds;
    for (int i = 0; i < 2; ++i) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        const unsigned char other = zkAscii::otherCase(c);
        std::array<std::uint8_t, 16>& set = i == 0 ? leadFirst : leadSecond;
        for (const unsigned char form : { c, anyCase ? other : c }) {
            if (form < 0x80)
                set[form & 15] |= std::uint8_t(1u << (form >> 4));
        }
    }
}

void LineSource::Marks::addPair(const char* text, bool anyCase)
{
    const char first = anyCase ? zkAscii::lower(text[0]) : text[0];
    for (int k = 0; k < keyCount; ++k) {
        const Key& earlier = keys[size_t(k)];
        if (!earlier.lead && earlier.anyCase == anyCase && earlier.text[0] == first) {
            const unsigned shared = earlier.pairBit;
            addKey(text, anyCase, false).pairBit = shared;
            add(shared, text, anyCase);
            return;
        }
    }
    if (pairs >= 2)
        return;
    addKey(text, anyCase, false).pairBit = PairFirstBit[pairs];
    add(PairFirstBit[pairs], text, anyCase);
    ++pairs;
}

LineSource::Marks::Key& LineSource::Marks::addKey(const char* text, bool anyCase, bool lead)
{
    // Past the last slot a key is dropped: so many keys are a programming error.
    static Key spare;
    if (keyCount >= int(keys.size()))
        return spare;
    Key& key = keys[size_t(keyCount++)];
    key.anyCase = anyCase;
    key.lead = lead;
    // A longer key is checked by its beginning only, which can only let more lines through.
    for (key.size = 0; text[key.size] && key.size < qsizetype(key.text.size()); ++key.size) {
        const char c = text[key.size];
        key.text[size_t(key.size)] = anyCase ? zkAscii::lower(c) : c;
    }
    return key;
}

namespace {

/// Whether the line that goes on at \p p holds \p text within the \p available bytes.
bool lineHolds(const char* p, qsizetype available, const char* text)
{
    const void* newline = std::memchr(p, '\n', size_t(available));
    const qsizetype length = newline ? static_cast<const char*>(newline) - p : available;
    return std::string_view(p, size_t(length)).find(text) != std::string_view::npos;
}

} // namespace

bool LineSource::Marks::holdsAt(const char* p, qsizetype available, bool lead) const
{
    // Decoding trims non-ASCII blanks too, and all of them start with one of
    // these bytes; 0xC5 and 0xE2 also start the two characters that fold to
    // ASCII letters (U+017F to 's', U+212A to 'k').
    if (lead && static_cast<unsigned char>(p[0]) >= 0x80) {
        const unsigned char c = static_cast<unsigned char>(p[0]);
        return c == 0xC2 || c == 0xC5 || c == 0xE1 || c == 0xE2 || c == 0xE3;
    }
    for (int k = 0; k < keyCount; ++k) {
        const Key& key = keys[size_t(k)];
        if (key.lead != lead)
            continue;
        qsizetype i = 0;
        for (; i < key.size; ++i) {
            if (i == available)
                break;
            const unsigned char c = static_cast<unsigned char>(p[i]);
            const char want = key.text[size_t(i)];
            if (key.anyCase) {
                // U+017F folds to 's' and U+212A to 'k', the only non-ASCII
                // characters that fold to ASCII letters.
                if (c >= 0x80) {
                    if (want == 's' || want == 'k')
                        return true;
                    break;
                }
                if (zkAscii::lower(c) != static_cast<unsigned char>(want))
                    break;
            } else if (c != static_cast<unsigned char>(want)) {
                break;
            }
        }
        if (i == key.size && (!key.alsoHolds || lineHolds(p, available, key.alsoHolds)))
            return true;
    }
    return false;
}

LineSource::LineSource(QTextStream& stream)
    : in(stream)
{
    buffer.resize(Padding, '\0');
}

qsizetype LineSource::findNewline(qsizetype from)
{
#ifdef ZK_HAVE_AVX2_PATH
    if (haveAvx2())
        return findNewlineAvx2(buffer.constData(), from, size);
#endif
    return findNewlinePlain(buffer.constData(), from, size);
}

QByteArrayView LineSource::take(qsizetype end)
{
    QByteArrayView line(buffer.constData() + pos, end - pos);
    lineStart = offsetAt(pos);
    pos = end < size ? end + 1 : size;
    searched = pos;
    // Over-long lines read as empty; fill() keeps an unfinished one from growing past the limit.
    if (line.size() > MaxLineBytes)
        line.truncate(0);
    return line;
}

bool LineSource::nextRaw(QByteArrayView& bytes)
{
    for (;;) {
        const qsizetype end = findNewline(searched);
        if (end >= 0) {
            bytes = take(end);
            break;
        }
        searched = size;
        if (!fill()) {
            if (pos >= size) {
                bytes = QByteArrayView();
                return false;
            }
            bytes = take(size);
            break;
        }
    }
    return true;
}

bool LineSource::nextMarked(QByteArrayView& bytes, const Marks& marks)
{
    for (;;) {
        BlockScan s { buffer.constData(), size, marks, pos, MarkScan() };
        s.scan.lastNewline = pos - 1;
#ifdef ZK_HAVE_AVX2_PATH
        const qsizetype hit = haveAvx2() ? scanBlocksAvx2(s) : scanBlocksPlain(s);
#else
        const qsizetype hit = scanBlocksPlain(s);
#endif
        if (hit < 0) {
            // No mark up to the end of the buffer: every complete line is read past.
            pos = s.scan.lastNewline + 1;
            searched = size;
            if (!fill()) {
                pos = size;
                searched = size;
                return false;
            }
            continue;
        }
        const quint64 before = s.newline & ((quint64(1) << (hit - s.block)) - 1);
        pos = before ? s.block + highestBit(before) + 1 : s.scan.lastNewline + 1;
        const qsizetype end = findNewline(hit);
        if (end < 0 && !exhausted) {
            // The marked line runs past the buffer: read on and search again from its start.
            searched = size;
            fill();
            continue;
        }
        bytes = take(end < 0 ? size : end);
        if (bytes.isEmpty())
            continue; // an over-long line, read past
        return true;
    }
}

void LineSource::useVectorSearch(bool on)
{
#ifdef ZK_HAVE_AVX2_PATH
    vectorSearch = on;
#else
    (void)on;
#endif
}

void LineSource::dropConsumed()
{
    if (pos == 0)
        return;
    char* const data = buffer.data();
    std::memmove(data, data + pos, size_t(size - pos));
    dropped(pos);
    size -= pos;
    searched -= pos;
    pos = 0;
}

void LineSource::dropped(qsizetype count)
{
    if (count >= chunkIndex) {
        bufferOffset = chunkOffset + (count - chunkIndex);
        chunkIndex = 0;
        chunkOffset = bufferOffset;
    } else {
        bufferOffset += count;
        chunkIndex -= count;
    }
}

bool LineSource::readChunk()
{
    if (buffer.size() < size + ChunkBytes + Padding)
        buffer.resize(size + ChunkBytes + Padding);
    const qsizetype before = size;
    if (QIODevice* device = in.device()) {
        const qint64 at = device->pos();
        const qint64 got = device->read(buffer.data() + size, ChunkBytes);
        size += got > 0 ? qsizetype(got) : 0;
        if (got > 0) {
            chunkIndex = before;
            chunkOffset = at;
            if (before == 0)
                bufferOffset = at;
        }
    } else if (const QString* text = in.string(); text && !started) {
        // A stream over a string: its text is in memory already.
        const QByteArray utf8 = text->toUtf8();
        buffer.resize(size + utf8.size() + Padding);
        std::memcpy(buffer.data() + size, utf8.constData(), size_t(utf8.size()));
        size += utf8.size();
    }
    if (size == before)
        return false;
    if (!started) {
        started = true;
        if (size >= 3 && std::memcmp(buffer.constData(), "\xEF\xBB\xBF", 3) == 0) {
            std::memmove(buffer.data(), buffer.constData() + 3, size_t(size - 3));
            size -= 3;
        }
    }
    size = dropCarriageReturns(buffer.data(), before, size);
    std::memset(buffer.data() + size, 0, Padding);
    return true;
}

bool LineSource::fill()
{
    if (exhausted)
        return false;
    dropConsumed();
    // An unfinished line past the limit: forget it and read up to its end,
    // keeping the "\n", so it reads as an empty line.
    bool skipping = size > MaxLineBytes;
    if (skipping) {
        size = 0;
        searched = 0;
    }
    for (;;) {
        if (!readChunk()) {
            exhausted = true;
            if (skipping) {
                buffer[0] = '\n';
                size = 1;
                return true;
            }
            return false;
        }
        if (!skipping)
            return true;
        const qsizetype end = findNewline(0);
        if (end >= 0) {
            char* const data = buffer.data();
            std::memmove(data, data + end, size_t(size - end));
            dropped(end);
            size -= end;
            std::memset(data + size, 0, Padding);
            searched = 0;
            return true;
        }
        size = 0;
    }
}
