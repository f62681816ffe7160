#include "readerCommon.h"

namespace {

bool isAsciiSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

} // namespace

void skipSection(LineSource& in, QString& line)
{
    // Skipped sections can be long; only a line that may close the section
    // (its first visible byte "}" or not ASCII, which decoding may trim) is
    // decoded.
    QByteArrayView raw;
    while (in.nextRaw(raw)) {
        qsizetype first = 0;
        while (first < raw.size() && isAsciiSpace(raw[first]))
            ++first;
        if (first == raw.size())
            continue;
        const char head = raw[first];
        if (head != '}' && static_cast<unsigned char>(head) < 0x80)
            continue;
        line = LineSource::decode(raw);
        if (line.startsWith(u'}'))
            return;
    }
    line.clear();
}
