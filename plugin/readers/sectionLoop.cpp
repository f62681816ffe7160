#include "sectionLoop.h"

namespace sectionLoop {

SectionLine::SectionLine(QByteArrayView raw)
{
    qsizetype first = 0;
    qsizetype last = raw.size() - 1;
    while (first < last && isAsciiSpace(static_cast<unsigned char>(raw[first])))
        ++first;
    while (last > first && isAsciiSpace(static_cast<unsigned char>(raw[last])))
        --last;
    bytes = raw.sliced(first, last - first + 1);
    asciiEnds = static_cast<unsigned char>(bytes.front()) < 0x80
        && static_cast<unsigned char>(bytes.back()) < 0x80;
}

bool SectionLine::startsWith(QLatin1String keyword) const
{
    if (!asciiEnds)
        return text().startsWith(keyword, Qt::CaseInsensitive);
    // A character takes at least one byte, so a shorter line cannot hold the keyword.
    if (bytes.size() < keyword.size())
        return false;
    for (qsizetype i = 0; i < keyword.size(); ++i) {
        const auto c = static_cast<unsigned char>(bytes[i]);
        if (c >= 0x80)
            return text().startsWith(keyword, Qt::CaseInsensitive);
        if (zkAscii::lower(c) != zkAscii::lower(static_cast<unsigned char>(keyword[i].toLatin1())))
            return false;
    }
    return true;
}

const QString& SectionLine::text() const
{
    if (!decoded) {
        // With ASCII ends the bytes are already trimmed as the text would be.
        textCache = asciiEnds ? QString::fromUtf8(bytes) : LineSource::decode(bytes);
        decoded = true;
    }
    return textCache;
}

} // namespace sectionLoop
