#include "support/textLines.h"

#include <gtest/gtest.h>

namespace {

QStringList readAll(LineSource& source)
{
    QStringList lines;
    QString line;
    while (source.next(line))
        lines.append(line);
    return lines;
}

QStringList readAll(const QByteArray& text)
{
    zkTest::TextLines lines(text);
    return readAll(lines.source);
}

struct LinesCase
{
    const char* text;
    QStringList expected;
};

TEST(LineSource, SplitsTrimsAndDropsCarriageReturns)
{
    const LinesCase cases[] = {
        { "", {} },
        { "\n", { QString() } },
        { "a", { QStringLiteral("a") } },
        { "a\nb\n", { QStringLiteral("a"), QStringLiteral("b") } },
        { "a\n\nb", { QStringLiteral("a"), QString(), QStringLiteral("b") } },
        { "a\r\nb\r\n", { QStringLiteral("a"), QStringLiteral("b") } },
        { "a\rb\r\rc\n", { QStringLiteral("abc") } },
        { "\r", {} },
        { "  \t a b \t \nlast  ", { QStringLiteral("a b"), QStringLiteral("last") } },
        { "\xc3\xa4\xe2\x82\xac\xf0\x9f\x8e\xac\n", { QStringLiteral("\u00e4\u20ac\U0001F3AC") } },
    };
    for (const LinesCase& c : cases)
        EXPECT_EQ(readAll(QByteArray(c.text)), c.expected) << c.text;
}

TEST(LineSource, InvalidUtf8BecomesReplacementCharacters)
{
    const QStringList lines = readAll(QByteArray("ok\n\xff\xfe\xc3 x\xe2\x82\n\x80tail"));
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0], QStringLiteral("ok"));
    EXPECT_TRUE(lines[1].contains(QChar::ReplacementCharacter));
    EXPECT_TRUE(lines[1].contains(QStringLiteral(" x")));
    EXPECT_TRUE(lines[2].endsWith(QStringLiteral("tail")));
}

TEST(LineSource, LinesAcrossChunkBoundariesStayWhole)
{
    // Lines of growing length push their ends across every position of the
    // source's read chunks; multi-byte characters and "\r\n" pairs among them.
    QByteArray text;
    QStringList expected;
    for (int i = 0; text.size() < 5 * 1024 * 1024; ++i) {
        const QString line
            = QString(i % 3000, u'x') + QStringLiteral("\u00e4\u20ac") + QString::number(i);
        text += line.toUtf8() + (i % 2 ? "\r\n" : "\n");
        expected.append(line);
    }
    EXPECT_EQ(readAll(text), expected);
}

TEST(LineSource, VeryLongSingleLine)
{
    QByteArray text(50 * 1024 * 1024, 'a');
    text[0] = ' ';
    text.append("b\r\nend");
    const QStringList lines = readAll(text);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].size(), 50 * 1024 * 1024);
    EXPECT_TRUE(lines[0].endsWith(QStringLiteral("ab")));
    EXPECT_EQ(lines[1], QStringLiteral("end"));
}

TEST(LineSource, ViewsAndCopiesShareOnePosition)
{
    zkTest::TextLines lines("one\ntwo\nthree\n");
    QStringView view;
    QString copy;
    ASSERT_TRUE(lines.source.nextView(view));
    EXPECT_EQ(view, u"one");
    ASSERT_TRUE(lines.source.next(copy));
    EXPECT_EQ(copy, QStringLiteral("two"));
    EXPECT_FALSE(lines.source.atEnd());
    ASSERT_TRUE(lines.source.nextView(view));
    EXPECT_EQ(view, u"three");
    EXPECT_TRUE(lines.source.atEnd());
    EXPECT_FALSE(lines.source.next(copy));
    EXPECT_TRUE(copy.isEmpty());
    EXPECT_FALSE(lines.source.nextView(view));
}

} // namespace

namespace {

TEST(LineSource, LeadingByteOrderMarkIsSkipped)
{
    EXPECT_EQ(readAll(QByteArray("\xef\xbb\xbf"
                                 "frange 1 2\nx")),
        QStringList({ QStringLiteral("frange 1 2"), QStringLiteral("x") }));
}

TEST(LineSource, RawLinesReportTheirUnderscores)
{
    // Underscores far apart and lines longer than a read chunk check that the
    // one-pass search stays in step with the lines across chunk boundaries.
    QByteArray text;
    QList<bool> expected;
    for (int i = 0; i < 4000; ++i) {
        const bool withUnderscore = i % 7 == 0 || i % 11 == 0;
        QByteArray line(i % 5 == 0 ? 3000 : 40, 'a');
        if (withUnderscore)
            line[i % line.size()] = '_';
        if (i % 13 == 0)
            line.append('\r');
        text += line + '\n';
        expected.append(withUnderscore);
    }
    text += QByteArray(3 * 1024 * 1024, 'b') + "_tail";
    expected.append(true);

    zkTest::TextLines lines(text);
    QList<bool> seen;
    QByteArrayView raw;
    bool hasUnderscore = false;
    while (lines.source.nextRaw(raw, &hasUnderscore)) {
        EXPECT_EQ(hasUnderscore, raw.contains('_')) << seen.size();
        EXPECT_FALSE(raw.contains('\r')) << seen.size();
        seen.append(hasUnderscore);
    }
    EXPECT_EQ(seen, expected);
}

} // namespace
