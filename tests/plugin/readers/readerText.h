// Helpers of the reader tests; sections are fed through the same LineSource
// the scanner uses (support/textLines.h).
#pragma once

#include "plugin/parserState.h"
#include "support/textLines.h"

#include <QString>

#include <ostream>

/// Readable failure messages for QString comparisons.
static inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

/// Table rows hold scene text as UTF-8 literals.
static inline QString qs(const char* text)
{
    return QString::fromUtf8(text);
}
