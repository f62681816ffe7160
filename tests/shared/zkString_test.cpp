#include "shared/zkString.h"

#include <QString>

#include <gtest/gtest.h>

namespace {

template <int N>
QString q(const _zkString<N>& s)
{
    return s.toQString();
}

template <int N>
_zkString<N> z(const char* text)
{
    return _zkString<N>(text);
}

// ---- capacity and terminator ----------------------------------------------

TEST(ZkString, AssignmentCutsAtCapacityAndTerminates)
{
    const QString long1200 = QString(1200, u'x');
    _zkString<1000> s;
    s.set(long1200);
    EXPECT_EQ(s.length, 1000);
    EXPECT_EQ(s.data[999], u'x');
    EXPECT_EQ(s.data[1000], 0);

    _zkString<10> fromChars("0123456789abc");
    EXPECT_EQ(q(fromChars), QStringLiteral("0123456789"));
    EXPECT_EQ(fromChars.data[10], 0);

    _zkString<500> one('/');
    EXPECT_EQ(q(one), QStringLiteral("/"));
    EXPECT_EQ(one.data[1], 0);
}

TEST(ZkString, AppendKeepsWhatFits)
{
    _zkString<10> s("abcdefgh");
    s.append(u"123");
    EXPECT_EQ(q(s), QStringLiteral("abcdefgh12"));
    EXPECT_EQ(s.data[10], 0);
}

TEST(ZkString, ClearLeavesStaleUnitsThatNeverCount)
{
    _zkString<25> a("a much longer text");
    _zkString<25> b("short");
    a.clear();
    b.clear();
    EXPECT_EQ(a.length, 0);
    EXPECT_EQ(a.data[0], 0);
    EXPECT_TRUE(a.isEqual(b));
    EXPECT_TRUE(a.isEmpty());

    a.set(QStringLiteral("xy"));
    EXPECT_EQ(q(a), QStringLiteral("xy"));
    EXPECT_EQ(a.data[2], 0);
}

// ---- case rules ---------------------------------------------------------------

TEST(ZkString, SearchesIgnoreCase)
{
    const _zkString<250> s("Render/Beauty.EXR");
    EXPECT_EQ(s.indexOf(z<250>("beauty"), 0), 7);

    EXPECT_TRUE(s.startsWith(z<250>("RENDER")));

    EXPECT_TRUE(s.endsWith(".exr"));
    const _zkString<250> lower("beauty.exr");
    EXPECT_TRUE(lower.endsWith(QStringLiteral(".EXR")));
    EXPECT_FALSE(lower.endsWith(QStringLiteral(".tif")));
}

TEST(ZkString, IsEqualAndLeftAreExact)
{
    EXPECT_FALSE(z<25>("Cam").isEqual(z<25>("cam")));
    EXPECT_TRUE(z<25>("cam").isEqual(z<25>("cam")));
    EXPECT_FALSE(z<25>("cam").isEqual(z<25>("cam1")));

    EXPECT_EQ(q(z<15>("5.370").left(u'.', false)), QStringLiteral("5"));
    EXPECT_EQ(q(z<15>("537").left(u'.', false)), QStringLiteral("537"));
    EXPECT_EQ(q(z<15>(".5").left(u'.', false)), QString());
    EXPECT_EQ(q(z<15>("aXb").left(u'x', false)), QStringLiteral("aXb"));
}

// ---- searching --------------------------------------------------------------

TEST(ZkString, SearchPositions)
{
    const _zkString<250> path("/a/b/c");
    EXPECT_EQ(path.lastIndexOf(u'/', -1), 4);
    EXPECT_EQ(path.lastIndexOf(u'/', 3), 2);
    EXPECT_EQ(path.lastIndexOf(u'/', 999), 4);
    EXPECT_EQ(path.lastIndexOf(u'x', -1), -1);
    EXPECT_EQ(path.indexOf(u'/', 1), 2);
    EXPECT_EQ(path.indexOf(u'/', -5), 0);
    EXPECT_EQ(path.indexOf(u'/', 100), -1);

    EXPECT_EQ(z<150>("abcabc").indexOf(z<150>("c"), 3), 5);
    EXPECT_EQ(z<150>("abc").indexOf(z<150>("abcd"), 0), -1);
    EXPECT_TRUE(z<500>("/x").startsWith(u'/'));
    EXPECT_FALSE(_zkString<500>().startsWith(u'/'));
    EXPECT_TRUE(z<500>("x/").endsWith(u'/'));
    EXPECT_FALSE(_zkString<500>().endsWith(u'/'));
    EXPECT_FALSE(z<250>("exr").endsWith(".exr"));
}

// ---- editing ------------------------------------------------------------------

TEST(ZkString, ReplaceScansOnAndCutsOnceAtTheEnd)
{
    struct Row
    {
        const char* text;
        const char* from;
        const char* to;
        const char* expected;
    };
    const Row rows[] = {
        { "aXa", "A", "aa", "aaXaa" }, // ignores case, continues behind each inserted text
        { "aaaaaaaaaa", "a", "bb", "bbbbbbbbbb" }, // 20 units, cut to 10
        { "abcabc", "abc", "", "" },
        { "xyz", "", "q", "xyz" }, // an empty pattern changes nothing
        { "ab", "abc", "q", "ab" },
    };
    for (const Row& r : rows) {
        _zkString<10> s(r.text);
        s.replace(_zkString<10>(r.from), _zkString<10>(r.to));
        EXPECT_EQ(q(s), QLatin1String(r.expected)) << r.text << " " << r.from;
        EXPECT_EQ(s.data[s.length], 0);
    }

    _zkString<10> self("abc");
    self.replace(self, _zkString<10>("xy"));
    EXPECT_EQ(q(self), QStringLiteral("xy"));
}

TEST(ZkString, InsertBounds)
{
    _zkString<10> s("abcd");
    s.insert(2, _zkString<10>("XY"));
    EXPECT_EQ(q(s), QStringLiteral("abXYcd"));
    s.insert(6, _zkString<10>("!"));
    EXPECT_EQ(q(s), QStringLiteral("abXYcd!"));
    s.insert(8, _zkString<10>("?")); // beyond the end
    s.insert(-1, _zkString<10>("?"));
    EXPECT_EQ(q(s), QStringLiteral("abXYcd!"));
    s.insert(0, _zkString<10>("123456")); // cut at capacity, tail lost
    EXPECT_EQ(q(s), QStringLiteral("123456abXY"));
    EXPECT_EQ(s.data[10], 0);

    _zkString<10> twice("ab");
    twice.insert(1, twice);
    EXPECT_EQ(q(twice), QStringLiteral("aabb"));
}

TEST(ZkString, RemoveBounds)
{
    _zkString<10> s("abcdef");
    s.remove(1, 2);
    EXPECT_EQ(q(s), QStringLiteral("adef"));
    s.remove(2, 100);
    EXPECT_EQ(q(s), QStringLiteral("ad"));
    s.remove(2, 1); // at the length: nothing
    s.remove(-1, 1);
    s.remove(0, 0);
    s.remove(0, -3);
    EXPECT_EQ(q(s), QStringLiteral("ad"));
    EXPECT_EQ(s.data[2], 0);
}

TEST(ZkString, SetLengthBounds)
{
    _zkString<250> s("abcdef");
    s.setLength(3);
    EXPECT_EQ(q(s), QStringLiteral("abc"));
    EXPECT_EQ(s.data[3], 0);
    s.setLength(5); // above the length: nothing
    s.setLength(-1);
    EXPECT_EQ(q(s), QStringLiteral("abc"));
    s.setLength(0);
    EXPECT_TRUE(s.isEmpty());
}

// ---- 8-bit strings ---------------------------------------------------------

TEST(ZkString8, Latin1WithQuestionMarkAboveFF)
{
    _zkString8_allSize<10> s;
    s.set(QString::fromUtf8("a\xC3\xA9\xE2\x82\xAC"
                            "b")); // a, e-acute, euro sign, b
    ASSERT_EQ(s.length, 4);
    EXPECT_EQ(static_cast<unsigned char>(s.data[1]), 0xE9);
    EXPECT_EQ(s.data[2], '?');
    EXPECT_EQ(s.toQString(), QString::fromUtf8("a\xC3\xA9?b"));

    s.set(QStringLiteral("0123456789ABC"));
    EXPECT_EQ(s.length, 10);
    EXPECT_EQ(s.data[10], 0);
    _zkString8_allSize<150> fromChars(std::string(200, 'z').c_str());
    EXPECT_EQ(fromChars.length, 150);
}

TEST(ZkString8, Members)
{
    _zkString8_allSize<15> v("5.3.70");
    v.remove('.');
    EXPECT_EQ(v.toQString(), QStringLiteral("5370"));
    EXPECT_TRUE(v.endsWith('0'));
    v.setLength(2);
    EXPECT_EQ(v.toQString(), QStringLiteral("53"));
    v.setLength(9);
    EXPECT_EQ(v.length, 2);

    _zkString8_allSize<5000> up;
    up.set(QString::fromUtf8("abc-xyz \xC3\xA9"));
    up.makeUpper();
    EXPECT_EQ(up.toQString(), QString::fromUtf8("ABC-XYZ \xC3\xA9")); // ASCII letters only

    const _zkString8_allSize<150> frames("1-10,20");
    EXPECT_TRUE(frames.startsWith("1-1"));
    EXPECT_FALSE(frames.startsWith("1-10,20,30"));
    EXPECT_EQ(frames.indexOf(_zkString8_allSize<150>(",2"), 0), 4);
    EXPECT_TRUE(_zkString8_allSize<150>("Ab").startsWith("aB"));
    EXPECT_FALSE(_zkString8_allSize<150>("Ab").isEqual(_zkString8_allSize<150>("ab")));

    _zkString8_allSize<150> cut("abcdef");
    cut.remove(1, 3);
    EXPECT_EQ(cut.toQString(), QStringLiteral("aef"));
    cut.remove(3, 1);
    EXPECT_EQ(cut.toQString(), QStringLiteral("aef"));

    _zkString8_allSize<16> a("longer stale");
    _zkString8_allSize<16> b("x");
    a.clear();
    b.clear();
    EXPECT_TRUE(a.isEqual(b));
}

} // namespace
