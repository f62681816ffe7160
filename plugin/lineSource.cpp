#include "lineSource.h"

namespace {

/// Characters decoded per read: large enough that the per-call cost of the
/// stream vanishes, small enough to stay in the cache-friendly megabyte range.
constexpr qint64 ChunkChars = qint64(1) << 20;

} // namespace

bool LineSource::next(QString& line)
{
    QStringView view;
    if (!nextView(view)) {
        line.clear();
        return false;
    }
    line = view.toString();
    return true;
}

bool LineSource::nextView(QStringView& line)
{
    for (;;) {
        const qsizetype newline = QStringView(buffer).indexOf(u'\n', searched);
        if (newline >= 0) {
            line = QStringView(buffer).mid(pos, newline - pos).trimmed();
            pos = newline + 1;
            searched = pos;
            return true;
        }
        searched = buffer.size();
        if (!fill())
            break;
    }
    if (pos >= buffer.size()) {
        line = QStringView();
        return false;
    }
    line = QStringView(buffer).mid(pos).trimmed();
    pos = buffer.size();
    searched = pos;
    return true;
}

bool LineSource::fill()
{
    if (in.atEnd())
        return false;
    QString chunk = in.read(ChunkChars);
    if (chunk.isEmpty())
        return false;
    if (chunk.contains(u'\r'))
        chunk.remove(u'\r');
    if (pos >= buffer.size()) {
        // Everything before was consumed: take the chunk as it is.
        buffer.swap(chunk);
        pos = 0;
        searched = 0;
        return true;
    }
    // A line runs across the chunk boundary: keep its start, drop the rest.
    buffer.remove(0, pos);
    searched -= pos;
    pos = 0;
    buffer.append(chunk);
    return true;
}
