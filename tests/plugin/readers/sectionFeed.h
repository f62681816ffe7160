// Feeds section text to a reader through the same LineSource the scanner uses.
#pragma once

#include "plugin/lineSource.h"
#include "plugin/parserState.h"
#include "support/textLines.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>

/// The lines of a section body, joined with "\n", behind a LineSource.
class SectionFeed
{
public:
    explicit SectionFeed(const QStringList& lines)
        : text(lines.join(u'\n').toUtf8())
        , source(text.source)
    { }

    /// The line after the ones the reader consumed, or "<end>" at the end of input.
    QString nextUnread()
    {
        QString line;
        return source.next(line) ? line : QStringLiteral("<end>");
    }

private:
    zkTest::TextLines text;

public:
    LineSource& source;
};

/// Every test starts from the state of a fresh load.
class ReaderTest : public ::testing::Test
{
protected:
    void SetUp() override { resetParserState(); }
    void TearDown() override { resetParserState(); }
};

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

static inline QStringList qsl(std::initializer_list<const char*> lines)
{
    QStringList out;
    for (const char* line : lines)
        out.append(qs(line));
    return out;
}
