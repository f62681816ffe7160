// The one line source that the scanner and every reader share.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QIODevice>
#include <QString>
#include <QStringView>
#include <QTextStream>

/// Lines of a scene read through the device behind one QTextStream. Every
/// "\r" is removed wherever it stands, lines end at "\n", a last line without
/// "\n" is still read, and each line is decoded as UTF-8 (a leading byte-order
/// mark is skipped, invalid bytes become U+FFFD) and trimmed at both ends.
///
/// Scenes run to gigabytes and almost every line is rejected after a glance,
/// so the device is read in large chunks of raw bytes and a line is decoded
/// only when someone asks for its text: the scanner looks at the raw bytes
/// first (nextRaw) and decodes the few lines that can matter.
class LineSource
{
public:
    explicit LineSource(QTextStream& stream)
        : in(stream)
    { }

    /// Reads the next line, decoded and trimmed, into \p line. False (and
    /// \p line emptied) when the input is exhausted.
    bool next(QString& line);

    /// As next(); \p line stays valid until the next call of any next*().
    bool nextView(QStringView& line);

    /// The next line's raw bytes, "\r" removed, neither decoded nor trimmed;
    /// valid until the next call of any next*(). Decode with decode().
    /// \p hasUnderscore, when given, tells whether the line holds a '_': the
    /// source finds them with one pass over each chunk, far cheaper than a
    /// search per line, and the scanner needs them to rule lines out.
    bool nextRaw(QByteArrayView& bytes, bool* hasUnderscore = nullptr);

    /// The text of a raw line: UTF-8 decoded and trimmed.
    static QString decode(QByteArrayView raw) { return QString::fromUtf8(raw).trimmed(); }

    bool atEnd();

private:
    bool nextLine(QByteArrayView& bytes);
    /// Appends the next chunk of the input to the unread bytes; false when
    /// there is nothing more.
    bool fill();

    QTextStream& in;
    QByteArray buffer;
    QString decoded; ///< backing text of the last nextView()
    qsizetype pos = 0; ///< start of the unread bytes in buffer
    qsizetype searched = 0; ///< no "\n" stands between pos and this index
    qsizetype underscore = -1; ///< a '_' at or after pos, or -1 when none is known
    qsizetype underscoreSearched = 0; ///< no '_' stands between pos and this index
    bool started = false;
    bool exhausted = false;
};
