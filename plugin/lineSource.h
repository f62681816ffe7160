// The one line source that the scanner and every reader share.
#pragma once

#include <QString>
#include <QStringView>
#include <QTextStream>

/// Lines of a scene read through one QTextStream. Every "\r" is removed
/// wherever it stands, lines end at "\n", a last line without "\n" is still
/// read, and each line is trimmed at both ends.
///
/// The stream is read in large chunks rather than line by line: scenes run to
/// gigabytes and almost every line is rejected after a glance, so the cost of
/// a line must stay close to that of finding its "\n". The stream should come
/// from a device opened without QIODevice::Text; the "\r" removal here does
/// what that flag would, at a fraction of its cost.
class LineSource
{
public:
    explicit LineSource(QTextStream& stream)
        : in(stream)
    { }

    /// Reads the next line, trimmed, into \p line. False (and \p line emptied)
    /// when the input is exhausted.
    bool next(QString& line);

    /// As next(), without a copy: \p line points into the source's buffer and
    /// stays valid only until the next call of next() or nextView().
    bool nextView(QStringView& line);

    bool atEnd() const { return pos >= buffer.size() && in.atEnd(); }

private:
    /// Appends the next chunk of the stream to the unread text; false when
    /// the stream has nothing more.
    bool fill();

    QTextStream& in;
    QString buffer;
    qsizetype pos = 0; ///< start of the unread text in buffer
    qsizetype searched = 0; ///< no "\n" stands between pos and this index
};
