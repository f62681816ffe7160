#include "shared/zkString.h"

#include <QString>

#include <gtest/gtest.h>

#include <string>

namespace {

template <int N>
std::string s(const _zkString<N>& text)
{
    return text.toQString().toStdString();
}

template <int N>
_zkString<N> z(const char* text)
{
    return _zkString<N>(text);
}

/// Every edit must leave the terminator right behind the text.
template <int N>
std::string terminated(const _zkString<N>& text)
{
    EXPECT_EQ(text.data[text.length], 0) << s(text);
    return s(text);
}

// ---- capacity and terminator ----------------------------------------------

TEST(ZkString, AssignAndAppendCutAtCapacity)
{
    _zkString<1000> big;
    big.set(QString(1200, u'x'));
    EXPECT_EQ(big.length, 1000);
    EXPECT_EQ(terminated(big).back(), 'x');
    EXPECT_EQ(terminated(z<10>("0123456789abc")), "0123456789");
    EXPECT_EQ(terminated(_zkString<500>('/')), "/");

    _zkString<10> appended("abcdefgh");
    appended.append(u"123");
    EXPECT_EQ(terminated(appended), "abcdefgh12");

    // A cleared string keeps stale units that never count.
    _zkString<25> a("a much longer text");
    _zkString<25> b("short");
    a.clear();
    b.clear();
    EXPECT_TRUE(a.isEqual(b) && a.isEmpty());
    a.set(QStringLiteral("xy"));
    EXPECT_EQ(terminated(a), "xy");
}

// ---- case rules and positions ---------------------------------------------

TEST(ZkString, SearchesIgnoreCaseEqualityAndLeftAreExact)
{
    const _zkString<250> text("Render/Beauty.EXR");
    EXPECT_EQ(text.indexOf(z<250>("beauty"), 0), 7);
    EXPECT_TRUE(text.startsWith(z<250>("RENDER")));
    EXPECT_TRUE(text.endsWith(".exr"));
    EXPECT_TRUE(z<250>("beauty.exr").endsWith(QStringLiteral(".EXR")));
    EXPECT_FALSE(z<250>("beauty.exr").endsWith(QStringLiteral(".tif")));
    EXPECT_FALSE(z<250>("exr").endsWith(".exr"));

    EXPECT_FALSE(z<25>("Cam").isEqual(z<25>("cam")));
    EXPECT_FALSE(z<25>("cam").isEqual(z<25>("cam1")));
    const char* lefts[][2] = { { "5.370", "5" }, { "537", "537" }, { ".5", "" } };
    for (const auto& l : lefts)
        EXPECT_EQ(s(z<15>(l[0]).left(u'.', false)), l[1]);
    EXPECT_EQ(s(z<15>("aXb").left(u'x', false)), "aXb");

    const _zkString<250> path("/a/b/c");
    const int positions[] = { path.lastIndexOf(u'/', -1), path.lastIndexOf(u'/', 3),
        path.lastIndexOf(u'/', 999), path.lastIndexOf(u'x', -1), path.indexOf(u'/', 1),
        path.indexOf(u'/', -5), path.indexOf(u'/', 100), z<150>("abcabc").indexOf(z<150>("c"), 3),
        z<150>("abc").indexOf(z<150>("abcd"), 0) };
    const int expected[] = { 4, 2, 4, -1, 2, 0, -1, 5, -1 };
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(positions[i], expected[i]) << i;
    EXPECT_TRUE(z<500>("/x").startsWith(u'/') && z<500>("x/").endsWith(u'/'));
    EXPECT_FALSE(_zkString<500>().startsWith(u'/') || _zkString<500>().endsWith(u'/'));
}

// ---- editing ------------------------------------------------------------------

TEST(ZkString, ReplaceScansOnAndCutsOnceAtTheEnd)
{
    const char* rows[][4] = {
        { "aXa", "A", "aa", "aaXaa" }, // ignores case, continues behind each inserted text
        { "aaaaaaaaaa", "a", "bb", "bbbbbbbbbb" }, // 20 units, cut to 10
        { "abcabc", "abc", "", "" },
        { "xyz", "", "q", "xyz" }, // an empty pattern changes nothing
        { "ab", "abc", "q", "ab" },
    };
    for (const auto& r : rows) {
        _zkString<10> text(r[0]);
        text.replace(_zkString<10>(r[1]), _zkString<10>(r[2]));
        EXPECT_EQ(terminated(text), r[3]) << r[0] << " " << r[1];
    }
    _zkString<10> self("abc");
    self.replace(self, _zkString<10>("xy"));
    EXPECT_EQ(s(self), "xy");
}

TEST(ZkString, InsertRemoveAndSetLengthStayInBounds)
{
    _zkString<10> text("abcd");
    text.insert(2, _zkString<10>("XY"));
    text.insert(6, _zkString<10>("!"));
    text.insert(8, _zkString<10>("?")); // beyond the end
    text.insert(-1, _zkString<10>("?"));
    EXPECT_EQ(s(text), "abXYcd!");
    text.insert(0, _zkString<10>("123456")); // cut at capacity, tail lost
    EXPECT_EQ(terminated(text), "123456abXY");
    _zkString<10> twice("ab");
    twice.insert(1, twice);
    EXPECT_EQ(s(twice), "aabb");

    _zkString<10> cut("abcdef");
    cut.remove(1, 2);
    cut.remove(2, 100);
    for (const int pos : { 2, -1, 0 })
        cut.remove(pos, pos == 0 ? -3 : 1); // at the length, before it, negative count
    cut.remove(0, 0);
    EXPECT_EQ(terminated(cut), "ad");

    _zkString<250> shortened("abcdef");
    shortened.setLength(3);
    shortened.setLength(5); // above the length: nothing
    shortened.setLength(-1);
    EXPECT_EQ(terminated(shortened), "abc");
    shortened.setLength(0);
    EXPECT_TRUE(shortened.isEmpty());
}

// ---- 8-bit strings ---------------------------------------------------------
// Latin-1 conversion with "?" and the 150-byte cut show in reader_cameras;
// removing dots, trailing zeros, exact equality and upper case in the job
// variables and custom data tests.

TEST(ZkString8, Members)
{
    _zkString8_allSize<10> cut10;
    cut10.set(QStringLiteral("0123456789ABC"));
    EXPECT_EQ(cut10.length, 10);
    EXPECT_EQ(cut10.data[10], 0);

    const _zkString8_allSize<150> frames("1-10,20");
    EXPECT_TRUE(frames.startsWith("1-1") && !frames.startsWith("1-10,20,30"));
    EXPECT_EQ(frames.indexOf(_zkString8_allSize<150>(",2"), 0), 4);
    EXPECT_TRUE(_zkString8_allSize<150>("Ab").startsWith("aB"));

    _zkString8_allSize<150> cut("abcdef");
    cut.remove(1, 3);
    cut.remove(3, 1);
    EXPECT_EQ(cut.toQString(), QStringLiteral("aef"));
    _zkString8_allSize<15> v("5.3.70");
    v.setLength(2);
    v.setLength(9);
    EXPECT_EQ(v.toQString(), QStringLiteral("5."));

    _zkString8_allSize<16> a("longer stale");
    _zkString8_allSize<16> b("x");
    a.clear();
    b.clear();
    EXPECT_TRUE(a.isEqual(b));
}

} // namespace
