#include "support/textLines.h"

#include <gtest/gtest.h>

#include <random>

namespace {

QStringList readAll(LineSource& source)
{
    QStringList lines;
    QByteArrayView raw;
    while (source.nextRaw(raw))
        lines.append(LineSource::decode(raw));
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

TEST(LineSource, SplitsAndTrims)
{
    const LinesCase cases[] = {
        { "", {} },
        { "\n", { QString() } },
        { "a", { QStringLiteral("a") } },
        { "a\nb\n", { QStringLiteral("a"), QStringLiteral("b") } },
        { "a\n\nb", { QStringLiteral("a"), QString(), QStringLiteral("b") } },
        { "  \t a b \t \nlast  ", { QStringLiteral("a b"), QStringLiteral("last") } },
        { "\xc3\xa4\xe2\x82\xac\xf0\x9f\x8e\xac\n", { QStringLiteral("\u00e4\u20ac\U0001F3AC") } },
    };
    for (const LinesCase& c : cases)
        EXPECT_EQ(readAll(QByteArray(c.text)), c.expected) << c.text;
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

// A reader that comes back to a passed line seeks to its offset: that must
// never lie after the line ("\r" removal shifts the buffer against the file)
// nor more than a chunk before it, so the line is found again close by.
TEST(LineSource, LineOffsetsLeadBackToTheirLines)
{
    QByteArray text;
    std::vector<qint64> offsets;
    for (int i = 0; text.size() < 3 * LineSource::ChunkBytes; ++i) {
        offsets.push_back(text.size());
        text += QByteArray(i % 700, 'x') + QByteArray::number(i) + (i % 3 ? "\r\n" : "\r\r\n");
    }
    zkTest::TextLines lines(text);
    QByteArrayView raw;
    for (size_t i = 0; lines.source.nextRaw(raw); ++i) {
        ASSERT_LT(i, offsets.size());
        EXPECT_LE(lines.source.lineOffset(), offsets[i]) << i;
        EXPECT_GT(lines.source.lineOffset(), offsets[i] - LineSource::ChunkBytes) << i;
    }
}

TEST(LineSource, NothingAfterTheLastLine)
{
    zkTest::TextLines lines("one\ntwo\n");
    QByteArrayView raw;
    ASSERT_TRUE(lines.source.nextRaw(raw));
    ASSERT_TRUE(lines.source.nextRaw(raw));
    EXPECT_EQ(raw, QByteArrayView("two"));
    EXPECT_FALSE(lines.source.nextRaw(raw));
}

TEST(LineSource, LeadingByteOrderMarkIsSkipped)
{
    EXPECT_EQ(readAll(QByteArray("\xef\xbb\xbf"
                                 "frange 1 2\nx")),
        QStringList({ QStringLiteral("frange 1 2"), QStringLiteral("x") }));
}

} // namespace

namespace {

struct MarkedCase
{
    const char* line;
    bool marked;
};

// Leads: "frange" in any case, "take name" exact and "set -g " only with " = ";
// pairs: "_hip_saveversion" in any case and ".parm" exact.
const MarkedCase MarkedLines[] = {
    { "frange 1 240", true },
    { "FrAnGe", true },
    { "fran", false },
    { "x frange", false },
    { "take name Main", true },
    { "Take name Main", false },
    { "set -g JOB = 'a'", true },
    { "set -g JOB", false },
    { "\xc5\xbf"
      "et -g A = 'b'",
        true }, // U+017F folds to 's'
    { "obj/geo1.parm {", true },
    { "obj/geo1.PARM {", false },
    { "a_HIP_SAVEVERSION", true },
    { "_hip_\xc5\xbf"
      "aveversion",
        true },
    { "_hip_saveversio", false },
    { "\xc2\xa0"
      "frange 1 2",
        true }, // a no-break space before the lead
    { "\xc3\xa4 frange", false },
    { "#", false },
    { "", false },
};

LineSource::Marks testMarks()
{
    LineSource::Marks marks;
    marks.addLead("frange", true);
    marks.addLead("take name", false);
    marks.addLead("set -g ", true, " = ");
    marks.addPair("_hip_saveversion", true);
    marks.addPair(".parm", false);
    return marks;
}

class MarkedLinesTest : public ::testing::TestWithParam<bool>
{
protected:
    void SetUp() override { LineSource::useVectorSearch(GetParam()); }
    void TearDown() override { LineSource::useVectorSearch(true); }
};

// Lines of every length with blank runs of every length before them put keys,
// "\r\n" pairs and line ends on every side of 64-byte blocks and read chunks.
TEST_P(MarkedLinesTest, EveryLineHoldingAKeyAndNoOther)
{
    std::mt19937 rng(7);
    const char blanks[] = { ' ', '\t', '\v', '\f' };
    QByteArray text;
    QList<QByteArray> lines;
    QList<bool> marked;
    while (text.size() < 1200 * 1024) {
        const MarkedCase& c = MarkedLines[rng() % std::size(MarkedLines)];
        QByteArray line(int(rng() % 70), ' ');
        for (char& b : line)
            b = blanks[rng() % std::size(blanks)];
        const QByteArray filler(int(rng() % 3 ? rng() % 40 : rng() % 600), 'x');
        line += c.line;
        line += ' ' + filler;
        lines.append(line);
        marked.append(c.marked);
        for (int cr = int(rng() % 3); cr > 0; --cr)
            line.insert(qsizetype(rng() % quint32(line.size() + 1)), '\r');
        text += line + "\n";
    }
    text += "obj/last.parm {"; // a key on a last line without "\n"
    lines.append("obj/last.parm {");
    marked.append(true);

    // After each marked line the next line is read raw: both reads share one position.
    const LineSource::Marks marks = testMarks();
    zkTest::TextLines source(text);
    QByteArrayView raw;
    qsizetype at = 0;
    while (source.source.nextMarked(raw, marks)) {
        while (at < lines.size() && !marked[at])
            ++at;
        ASSERT_LT(at, lines.size()) << raw.toByteArray().constData();
        ASSERT_EQ(raw, lines[at]) << "line " << at;
        if (++at < lines.size()) {
            ASSERT_TRUE(source.source.nextRaw(raw));
            ASSERT_EQ(raw, lines[at]) << "line " << at;
            ++at;
        }
    }
    while (at < lines.size() && !marked[at])
        ++at;
    EXPECT_EQ(at, lines.size());
}

// The end of the first read chunk falls on each byte of a marked line in
// turn: its leading blanks, its key, a "\r" before its "\n", the "\n".
TEST_P(MarkedLinesTest, KeysAcrossTheEndOfAChunk)
{
    const LineSource::Marks marks = testMarks();
    for (const QByteArray& line :
        { QByteArray(" \t frange 1 2\r"), QByteArray("obj/x.parm {\r") }) {
        for (qsizetype shift = 0; shift <= line.size() + 1; ++shift) {
            QByteArray text(LineSource::ChunkBytes - shift - 1, 'x');
            text += "\n" + line + "\nx\n";
            zkTest::TextLines lines(text);
            QByteArrayView raw;
            ASSERT_TRUE(lines.source.nextMarked(raw, marks)) << shift;
            EXPECT_EQ(raw, line.chopped(1)) << shift;
            EXPECT_FALSE(lines.source.nextMarked(raw, marks)) << shift;
        }
    }
}

// A line of exactly the limit is kept; a longer one, over many chunks or last
// without "\n", reads as one empty line, matching no key, and the next line is whole.
TEST_P(MarkedLinesTest, LinesOverTheLimitReadAsEmpty)
{
    const qsizetype limit = LineSource::MaxLineBytes;
    const QByteArray text = "frange" + QByteArray(limit - 6, 'a') + "\nfrange"
        + QByteArray(3 * limit, 'b') + "\r\nframe\r\n}" + QByteArray(limit, 'c')
        + "\ntake name x\nfrange" + QByteArray(limit, 'd');
    const QStringList lines = readAll(text);
    ASSERT_EQ(lines.size(), 6);
    EXPECT_EQ(lines[0].size(), limit);
    EXPECT_EQ(lines.mid(1),
        QStringList({ QString(), QStringLiteral("frame"), QString(), QStringLiteral("take name x"),
            QString() }));

    zkTest::TextLines source(text);
    const LineSource::Marks marks = testMarks();
    QByteArrayView raw;
    ASSERT_TRUE(source.source.nextMarked(raw, marks));
    EXPECT_EQ(raw.size(), limit);
    ASSERT_TRUE(source.source.nextMarked(raw, marks));
    EXPECT_EQ(raw, "take name x");
    EXPECT_FALSE(source.source.nextMarked(raw, marks));
}

INSTANTIATE_TEST_SUITE_P(VectorAndPlain, MarkedLinesTest, ::testing::Bool());

} // namespace
