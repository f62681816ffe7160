// The one line source that the scanner and every reader share.
#pragma once

#include <QString>
#include <QTextStream>

/// Lines of a scene read through one QTextStream. Every "\r" is removed and
/// each line is trimmed at both ends; a last line without "\n" is still read.
class LineSource
{
public:
    explicit LineSource(QTextStream& stream)
        : in(stream)
    { }

    /// Reads the next line, trimmed, into \p line. False (and \p line emptied)
    /// when the input is exhausted.
    bool next(QString& line);
    bool atEnd() const { return in.atEnd(); }

private:
    QTextStream& in;
};
