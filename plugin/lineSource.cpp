#include "lineSource.h"

#include <cstring>

namespace {

/// Bytes read per chunk: large enough that the per-call cost vanishes, small
/// enough to stay in the cache-friendly megabyte range. The fuzz build reads
/// small chunks, so that lines often run across chunk ends.
#ifndef ZK_LINE_CHUNK_BYTES
#    define ZK_LINE_CHUNK_BYTES (1 << 20)
#endif
constexpr qint64 ChunkBytes = ZK_LINE_CHUNK_BYTES;

/// Removes every "\r" from bytes [from, end) of \p buffer, in place.
void dropCarriageReturns(QByteArray& buffer, qsizetype from)
{
    char* const begin = buffer.data();
    char* const end = begin + buffer.size();
    char* cr = static_cast<char*>(std::memchr(begin + from, '\r', size_t(end - (begin + from))));
    if (!cr)
        return;
    char* out = cr;
    for (const char* p = cr + 1; p < end; ++p) {
        if (*p != '\r')
            *out++ = *p;
    }
    buffer.truncate(out - begin);
}

} // namespace

bool LineSource::next(QString& line)
{
    QByteArrayView raw;
    if (!nextRaw(raw)) {
        line.clear();
        return false;
    }
    line = decode(raw);
    return true;
}

bool LineSource::nextView(QStringView& line)
{
    if (!next(decoded)) {
        line = QStringView();
        return false;
    }
    line = decoded;
    return true;
}

bool LineSource::nextRaw(QByteArrayView& bytes, bool* hasUnderscore)
{
    const bool found = nextLine(bytes);
    if (found && hasUnderscore) {
        // Reading the line may have moved the buffer: take its place from the view.
        const qsizetype start = bytes.data() - buffer.constData();
        const qsizetype end = start + bytes.size();
        if (underscore < start) {
            const qsizetype from = underscoreSearched > start ? underscoreSearched : start;
            const void* hit = from < buffer.size()
                ? std::memchr(buffer.constData() + from, '_', size_t(buffer.size() - from))
                : nullptr;
            underscore = hit ? static_cast<const char*>(hit) - buffer.constData() : -1;
            underscoreSearched = hit ? underscore : buffer.size();
        }
        *hasUnderscore = underscore >= start && underscore < end;
    }
    return found;
}

bool LineSource::nextLine(QByteArrayView& bytes)
{
    for (;;) {
        const char* data = buffer.constData();
        const void* newline = searched < buffer.size()
            ? std::memchr(data + searched, '\n', size_t(buffer.size() - searched))
            : nullptr;
        if (newline) {
            const qsizetype end = static_cast<const char*>(newline) - data;
            bytes = QByteArrayView(data + pos, end - pos);
            pos = end + 1;
            searched = pos;
            return true;
        }
        searched = buffer.size();
        if (!fill())
            break;
    }
    if (pos >= buffer.size()) {
        bytes = QByteArrayView();
        return false;
    }
    bytes = QByteArrayView(buffer.constData() + pos, buffer.size() - pos);
    pos = buffer.size();
    searched = pos;
    return true;
}

bool LineSource::atEnd()
{
    if (pos < buffer.size())
        return false;
    return !fill();
}

bool LineSource::fill()
{
    if (exhausted)
        return false;
    // Drop what was consumed; a line running across the chunk boundary keeps its start.
    if (pos > 0) {
        buffer.remove(0, pos);
        searched -= pos;
        underscore = underscore >= pos ? underscore - pos : -1;
        underscoreSearched = underscoreSearched > pos ? underscoreSearched - pos : 0;
        pos = 0;
    }
    const qsizetype before = buffer.size();
    QIODevice* device = in.device();
    if (device) {
        buffer.resize(before + ChunkBytes);
        const qint64 got = device->read(buffer.data() + before, ChunkBytes);
        buffer.truncate(before + (got > 0 ? got : 0));
    } else if (const QString* text = in.string()) {
        // A stream over a string: its text is in memory already.
        if (!started)
            buffer.append(text->toUtf8());
    }
    if (buffer.size() == before) {
        exhausted = true;
        return false;
    }
    if (!started) {
        started = true;
        if (buffer.startsWith("\xEF\xBB\xBF"))
            buffer.remove(0, 3);
    }
    dropCarriageReturns(buffer, before);
    return true;
}
