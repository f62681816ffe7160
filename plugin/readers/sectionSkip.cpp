#include "readerCommon.h"

void skipSection(LineSource& in, QString& line)
{
    // Skipped sections can be long; only a line that may close the section
    // (its first visible byte "}" or not ASCII, which decoding may trim) is
    // decoded.
    QByteArrayView raw;
    while (in.nextRaw(raw)) {
        const QByteArrayView body = LineSource::trimmedAscii(raw);
        if (body.isEmpty())
            continue;
        const char head = body.front();
        if (head != '}' && static_cast<unsigned char>(head) < 0x80)
            continue;
        line = LineSource::decode(raw);
        if (line.startsWith(u'}'))
            return;
    }
    line.clear();
}
