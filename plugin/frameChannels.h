// Frame numbers that real scenes write in forms the integer reading misses:
// a decimal scene range ("frange 1001.0000000000001 1120") and a driver's
// range keyed to the scene by channel expressions, whose "f" line holds only
// the last value Houdini cached ("[ f1\t0 ]").
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// A "frange" number: read as a decimal, rounded to the nearest integer with
/// halves away from zero, clamped to the int range. Text that is no number
/// gives 0.
int roundedFrameNumber(QStringView text);

/// The frame an expression of a frame channel gives: "$FSTART"/"$RFSTART" the
/// scene's start, "$FEND"/"$RFEND" its end, a plain integer itself; anything
/// else (another expression, an empty one) none.
std::optional<int> frameFromExpression(QStringView expr, int sceneStart, int sceneEnd);

/// Reads the lines of one ".chn" member and keeps, for the channels "f1",
/// "f2" and "f3", the expression of each channel's first segment:
///     channel f1 {
///       segment { options = { ... }
///          length = 0 expr = $FSTART }
///       segment { ... }
///     }
class FrameChannelReader
{
public:
    void readLine(QStringView line);

    /// The first segment's expression of "f1" (1), "f2" (2) or "f3" (3);
    /// empty when the member gave none.
    const QString& expression(int channel) const { return expressions[channel - 1]; }

private:
    int current = 0; ///< 1 to 3 inside "f1".."f3", 0 elsewhere
    bool inFirstSegment = false;
    bool segmentSeen = false;
    QString expressions[3];
};
