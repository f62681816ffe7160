// Feeds section text to a reader through the same LineSource the scanner uses.
#pragma once

#include "plugin/lineSource.h"
#include "plugin/parserState.h"

#include <QBuffer>
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTextStream>

#include <gtest/gtest.h>

#include <initializer_list>

/// The lines of a section body, joined with "\n", read from a text-mode QBuffer.
class SectionFeed
{
public:
    explicit SectionFeed(const QStringList& lines)
        : bytes(lines.join(u'\n').toUtf8())
        , buffer(&bytes)
        , stream(&buffer)
        , source(stream)
    {
        buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    }

    /// The line after the ones the reader consumed, or "<end>" at the end of input.
    QString nextUnread()
    {
        QString line;
        return source.next(line) ? line : QStringLiteral("<end>");
    }

    QByteArray bytes;
    QBuffer buffer;
    QTextStream stream;
    LineSource source;
};

/// Every test starts from the state of a fresh load.
class ReaderTest : public ::testing::Test
{
protected:
    void SetUp() override { resetParserState(); }
    void TearDown() override { resetParserState(); }
};

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
