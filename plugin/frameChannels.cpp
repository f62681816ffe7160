#include "plugin/frameChannels.h"

#include <cmath>
#include <limits>

int roundedFrameNumber(QStringView text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value))
        return 0;
    // std::round rounds halves away from zero.
    const double rounded = std::round(value);
    if (rounded <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    if (rounded >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    return int(rounded);
}

std::optional<int> frameFromExpression(QStringView expr, int sceneStart, int sceneEnd)
{
    const QStringView e = expr.trimmed();
    if (e == u"$FSTART" || e == u"$RFSTART")
        return sceneStart;
    if (e == u"$FEND" || e == u"$RFEND")
        return sceneEnd;
    bool ok = false;
    const int value = e.toInt(&ok);
    if (ok)
        return value;
    return std::nullopt;
}

void FrameChannelReader::readLine(QStringView line)
{
    const QStringView t = line.trimmed();
    if (t.startsWith(u"channel ")) {
        const QStringView name = t.mid(8).trimmed().chopped(t.endsWith(u'{') ? 1 : 0).trimmed();
        current = name == u"f1" ? 1 : name == u"f2" ? 2 : name == u"f3" ? 3 : 0;
        segmentSeen = false;
        inFirstSegment = false;
        return;
    }
    if (current == 0)
        return;
    if (t.startsWith(u"segment")) {
        inFirstSegment = !segmentSeen;
        segmentSeen = true;
    }
    if (t == u"}") {
        // The channel's own closing brace: a segment closes on its own line's end.
        current = 0;
        return;
    }
    if (!inFirstSegment)
        return;
    const qsizetype at = t.indexOf(u"expr = ");
    if (at < 0)
        return;
    QStringView expr = t.mid(at + 7).trimmed();
    if (expr.endsWith(u'}'))
        expr = expr.chopped(1).trimmed();
    if (expressions[current - 1].isEmpty())
        expressions[current - 1] = expr.toString();
    inFirstSegment = false;
}
