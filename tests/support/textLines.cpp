#include "textLines.h"

namespace zkTest {

TextLines::TextLines(const QByteArray& text)
    : bytes(text)
    , device(&bytes)
    , stream(&device)
    , source(stream)
{
    // Binary mode, as the plugin opens scene files.
    device.open(QIODevice::ReadOnly);
}

} // namespace zkTest
