// A LineSource over text in memory, for reader tests.
//
//     zkTest::TextLines lines("picture\t[ 0 ]\t(\t\"a.exr\"\t)\n}\n");
//     QString header = QStringLiteral("out/mantra1.parm {");
//     readDriverSection(scene, lines.source, header);
#pragma once

#include "plugin/lineSource.h"

#include <QBuffer>
#include <QByteArray>
#include <QTextStream>

namespace zkTest {

/// Owns the bytes, the device and the stream behind \p source, so the three
/// live exactly as long as the source. Not copyable or movable: the members
/// point at each other.
class TextLines
{
public:
    explicit TextLines(const QByteArray& text)
        : bytes(text)
        , device(&bytes)
        , stream(&device)
        , source(stream)
    {
        // Binary mode, as the plugin opens scene files.
        device.open(QIODevice::ReadOnly);
    }
    explicit TextLines(const char* text)
        : TextLines(QByteArray(text))
    { }
    TextLines(const TextLines&) = delete;
    TextLines& operator=(const TextLines&) = delete;

private:
    QByteArray bytes;
    QBuffer device;
    QTextStream stream;

public:
    /// Declared last so it is built after, and destroyed before, what it reads.
    LineSource source;
};

} // namespace zkTest
