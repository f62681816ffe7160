// Fixed-capacity strings: a length and an inline character array, no heap.
// Host records embed them by value and move them with memcpy, so their layout
// and the bytes behind the terminator are part of the host contract.
#pragma once

#include <QChar>
#include <QString>

#include <cstddef>
#include <cstring>
#include <type_traits>

namespace zkStr {

inline bool unitEqualNoCase(unsigned short a, unsigned short b)
{
    return a == b || QChar(a).toCaseFolded() == QChar(b).toCaseFolded();
}

template <typename Unit>
inline bool unitsEqual(const Unit* a, const Unit* b, int n, bool caseSensitive)
{
    for (int i = 0; i < n; ++i) {
        const auto ua = static_cast<unsigned short>(static_cast<std::make_unsigned_t<Unit>>(a[i]));
        const auto ub = static_cast<unsigned short>(static_cast<std::make_unsigned_t<Unit>>(b[i]));
        if (caseSensitive ? ua != ub : !unitEqualNoCase(ua, ub))
            return false;
    }
    return true;
}

/// First position >= from where needle (length m) occurs in hay (length n), or -1.
template <typename Unit>
inline int findUnits(
    const Unit* hay, int n, const Unit* needle, int m, int from, bool caseSensitive)
{
    if (from < 0)
        from = 0;
    if (m == 0)
        return from <= n ? from : -1;
    for (int i = from; i + m <= n; ++i) {
        if (unitsEqual(hay + i, needle, m, caseSensitive))
            return i;
    }
    return -1;
}

/// What both string kinds do alike. Derived holds `length` and `data`; the
/// base has no members, so it adds no bytes and the host layout is Derived's.
template <typename Derived, typename Unit>
struct FixedString
{
    void clear() { terminateAt(0); }
    bool isEmpty() const { return self().length == 0; }
    int size() const { return self().length; }

    /// Cuts to n units; n above the current length (or negative) does nothing.
    void setLength(const short& n)
    {
        if (n < 0 || n > self().length)
            return;
        terminateAt(n);
    }

    void remove(const int& pos, const int& count)
    {
        const int length = self().length;
        if (pos < 0 || pos >= length || count <= 0)
            return;
        const int n = count > length - pos ? length - pos : count;
        Unit* data = self().data;
        std::memmove(data + pos, data + pos + n, size_t(length - pos - n) * sizeof(Unit));
        terminateAt(length - n);
    }

    int indexOf(const Derived& text, int from) const
    {
        return findUnits(self().data, self().length, text.data, text.length, from, false);
    }

    /// Exact comparison of the texts; stale units behind the terminator do not count.
    bool isEqual(const Derived& other) const
    {
        return self().length == other.length
            && unitsEqual(self().data, other.data, self().length, true);
    }

    bool endsWith(const Unit& ch) const
    {
        return self().length > 0 && self().data[self().length - 1] == ch;
    }

protected:
    /// min(n, capacity) units (n < 0 reads as 0), then the terminator; units
    /// may lie inside data.
    void assignUnits(const Unit* units, int n)
    {
        if (n < 0)
            n = 0;
        if (n > Derived::capacity)
            n = Derived::capacity;
        if (n > 0)
            std::memmove(self().data, units, size_t(n) * sizeof(Unit));
        terminateAt(n);
    }

    void terminateAt(int n)
    {
        self().length = static_cast<unsigned short>(n);
        self().data[n] = 0;
    }

private:
    Derived& self() { return static_cast<Derived&>(*this); }
    const Derived& self() const { return static_cast<const Derived&>(*this); }
};

} // namespace zkStr

/// UTF-16 string of at most N units: u16 length, a reserved u16, N+1 units.
/// Members whose name ends in CaseSen compare letter case exactly; the others
/// ignore it (except isEqual and left, which are exact).
template <int N>
struct _zkString : zkStr::FixedString<_zkString<N>, unsigned short>
{
    using Base = zkStr::FixedString<_zkString<N>, unsigned short>;
    using Base::endsWith;
    using Base::indexOf;

    unsigned short length;
    unsigned short reserved;
    unsigned short data[N + 1];

    static constexpr int capacity = N;

    _zkString()
        : length(0)
        , reserved(0)
    {
        data[0] = 0;
    }
    explicit _zkString(const char* text)
        : length(0)
        , reserved(0)
    {
        data[0] = 0;
        setLatin1(text);
    }
    explicit _zkString(const char& ch)
        : length(0)
        , reserved(0)
    {
        data[0] = static_cast<unsigned char>(ch);
        data[1] = 0;
        length = 1;
    }
    explicit _zkString(const QString& text)
        : length(0)
        , reserved(0)
    {
        data[0] = 0;
        set(text);
    }
    _zkString(const _zkString&) = default;
    _zkString& operator=(const _zkString&) = default;

    // ---- conversions -------------------------------------------------------

    /// min(size, N) units, then the terminator; longer text is cut silently.
    void set(const QString& text) { setUnits(text.utf16(), int(text.size())); }
    void set(QStringView text) { setUnits(text.utf16(), int(text.size())); }
    void setUnits(const char16_t* units, int n)
    {
        setUnits(reinterpret_cast<const unsigned short*>(units), n);
    }
    void setUnits(const unsigned short* units, int n) { this->assignUnits(units, n); }
    void setLatin1(const char* text)
    {
        int n = 0;
        if (text) {
            for (; text[n] && n < N; ++n)
                data[n] = static_cast<unsigned char>(text[n]);
        }
        this->terminateAt(n);
    }

    QString toQString() const
    {
        return QString::fromUtf16(reinterpret_cast<const char16_t*>(data), length);
    }
    QStringView view() const
    {
        return QStringView(reinterpret_cast<const char16_t*>(data), length);
    }

    /// Appends as many units as still fit.
    void append(QStringView text)
    {
        int n = int(text.size());
        if (n > N - length)
            n = N - length;
        if (n > 0)
            std::memcpy(data + length, text.utf16(), size_t(n) * 2);
        this->terminateAt(length + n);
    }

    // ---- editing -----------------------------------------------------------

    void insert(const int& pos, const _zkString& text)
    {
        if (pos < 0 || pos > length || text.length == 0)
            return;
        unsigned short buf[N + 1];
        const _zkString copy = text; // text may alias *this
        int total = 0;
        auto put = [&](const unsigned short* src, int n) {
            if (n > N - total)
                n = N - total;
            if (n > 0)
                std::memcpy(buf + total, src, size_t(n) * 2);
            total += n;
        };
        put(data, pos);
        put(copy.data, copy.length);
        put(data + pos, length - pos);
        setUnits(buf, total);
    }

    void replace(const unsigned short& from, const unsigned short& to)
    {
        for (int i = 0; i < length; ++i) {
            if (data[i] == from)
                data[i] = to;
        }
    }

    void replace(const _zkString& from, const _zkString& to) { replaceImpl(from, to, false); }

    // ---- searching ---------------------------------------------------------

    int indexOf(const unsigned short& ch, int from) const
    {
        for (int i = from < 0 ? 0 : from; i < length; ++i) {
            if (data[i] == ch)
                return i;
        }
        return -1;
    }

    /// Last position of ch at or before from; from -1 (or beyond the end) searches from the end.
    int lastIndexOf(const unsigned short& ch, int from) const
    {
        if (from < 0 || from >= length)
            from = length - 1;
        for (int i = from; i >= 0; --i) {
            if (data[i] == ch)
                return i;
        }
        return -1;
    }

    bool startsWith(const unsigned short& ch) const { return length > 0 && data[0] == ch; }
    bool startsWith(const _zkString& text) const
    {
        return text.length <= length && zkStr::unitsEqual(data, text.data, text.length, false);
    }
    bool endsWith(const char* text) const
    {
        const int m = text ? int(std::strlen(text)) : 0;
        if (m > length)
            return false;
        for (int i = 0; i < m; ++i) {
            if (!zkStr::unitEqualNoCase(data[length - m + i], static_cast<unsigned char>(text[i])))
                return false;
        }
        return true;
    }
    bool endsWith(const QString& text) const
    {
        return toQString().endsWith(text, Qt::CaseInsensitive);
    }

    /// Text before the first ch (exact); the whole text when ch does not occur.
    /// The flag is kept for the host's signature and has no effect.
    _zkString left(const unsigned short& ch, const bool& flag) const
    {
        (void)flag;
        _zkString out;
        const int p = indexOf(ch, 0);
        out.setUnits(data, p < 0 ? length : p);
        return out;
    }

private:
    void replaceImpl(const _zkString& fromIn, const _zkString& toIn, bool caseSensitive)
    {
        if (fromIn.length == 0)
            return;
        const _zkString from = fromIn; // either may alias *this
        const _zkString to = toIn;
        // Built in a larger buffer so the cut happens once, after every
        // replacement; once N units are out, the rest cannot show.
        unsigned short out[2 * N + 2];
        int total = 0;
        int i = 0;
        while (i < length && total < N) {
            if (i + from.length <= length
                && zkStr::unitsEqual(data + i, from.data, from.length, caseSensitive)) {
                std::memcpy(out + total, to.data, size_t(to.length) * 2);
                total += to.length;
                i += from.length;
            } else {
                out[total++] = data[i++];
            }
        }
        setUnits(out, total);
    }
};

/// 8-bit (Latin-1) string of at most N bytes: u16 length, then the bytes and a
/// terminator, the whole rounded up to an even size.
template <int N>
struct _zkString8_allSize : zkStr::FixedString<_zkString8_allSize<N>, char>
{
    using Base = zkStr::FixedString<_zkString8_allSize<N>, char>;
    using Base::remove;

    unsigned short length;
    char data[((N + 3 + 1) & ~1) - 2];

    static constexpr int capacity = N;

    _zkString8_allSize()
        : length(0)
    {
        data[0] = 0;
    }
    explicit _zkString8_allSize(const char* text)
        : length(0)
    {
        data[0] = 0;
        setLatin1(text);
    }
    explicit _zkString8_allSize(const QString& text)
        : length(0)
    {
        data[0] = 0;
        set(text);
    }
    _zkString8_allSize(const _zkString8_allSize&) = default;
    _zkString8_allSize& operator=(const _zkString8_allSize&) = default;

    /// Latin-1 bytes of text, cut at N; characters above U+00FF become '?'.
    void set(const QString& text) { set(QStringView(text)); }
    void set(QStringView text)
    {
        int n = int(text.size());
        if (n > N)
            n = N;
        for (int i = 0; i < n; ++i) {
            const char16_t u = text[i].unicode();
            data[i] = static_cast<char>(u > 0xFF ? '?' : u);
        }
        this->terminateAt(n);
    }
    void setLatin1(const char* text) { setBytes(text, text ? int(std::strlen(text)) : 0); }
    void setBytes(const char* bytes, int n) { this->assignUnits(bytes, n); }
    QString toQString() const { return QString::fromLatin1(data, length); }

    /// Removes every occurrence of ch.
    void remove(const char& ch)
    {
        int w = 0;
        for (int r = 0; r < length; ++r) {
            if (data[r] != ch)
                data[w++] = data[r];
        }
        this->terminateAt(w);
    }
    void makeUpper()
    {
        for (int i = 0; i < length; ++i) {
            if (data[i] >= 'a' && data[i] <= 'z')
                data[i] = static_cast<char>(data[i] - 'a' + 'A');
        }
    }
    bool startsWith(const char* text) const
    {
        const int m = text ? int(std::strlen(text)) : 0;
        return m <= length && zkStr::unitsEqual(data, text, m, false);
    }
};

/// The 16-byte digest of a command password.
using _passHash = _zkString8_allSize<16>;

#define ZK_ASSERT_STRING_SIZE(N)                                                                   \
    static_assert(sizeof(_zkString<N>) == 2 * (N) + 6, "length, reserved unit, N+1 units");        \
    static_assert(alignof(_zkString<N>) == 2, "UTF-16 string is 2-aligned");                       \
    static_assert(offsetof(_zkString<N>, length) == 0 && offsetof(_zkString<N>, reserved) == 2     \
            && offsetof(_zkString<N>, data) == 4,                                                  \
        "the shared base adds no bytes");                                                          \
    static_assert(std::is_trivially_copyable_v<_zkString<N>>, "records are memcpy'd");             \
    static_assert(std::is_standard_layout_v<_zkString<N>>, "host reads it by offset")

ZK_ASSERT_STRING_SIZE(10);
ZK_ASSERT_STRING_SIZE(15);
ZK_ASSERT_STRING_SIZE(25);
ZK_ASSERT_STRING_SIZE(50);
ZK_ASSERT_STRING_SIZE(100);
ZK_ASSERT_STRING_SIZE(150);
ZK_ASSERT_STRING_SIZE(200);
ZK_ASSERT_STRING_SIZE(250);
ZK_ASSERT_STRING_SIZE(500);
ZK_ASSERT_STRING_SIZE(1000);
#undef ZK_ASSERT_STRING_SIZE

#define ZK_ASSERT_STRING8_SIZE(N, BYTES)                                                           \
    static_assert(sizeof(_zkString8_allSize<N>) == (BYTES), "u16 length, N+1 bytes, even size");   \
    static_assert(alignof(_zkString8_allSize<N>) == 2, "8-bit string is 2-aligned");               \
    static_assert(offsetof(_zkString8_allSize<N>, length) == 0                                     \
            && offsetof(_zkString8_allSize<N>, data) == 2,                                         \
        "the shared base adds no bytes");                                                          \
    static_assert(std::is_trivially_copyable_v<_zkString8_allSize<N>>, "records are memcpy'd");    \
    static_assert(std::is_standard_layout_v<_zkString8_allSize<N>>, "host reads it by offset")

ZK_ASSERT_STRING8_SIZE(10, 14);
ZK_ASSERT_STRING8_SIZE(15, 18);
ZK_ASSERT_STRING8_SIZE(16, 20);
ZK_ASSERT_STRING8_SIZE(20, 24);
ZK_ASSERT_STRING8_SIZE(40, 44);
ZK_ASSERT_STRING8_SIZE(50, 54);
ZK_ASSERT_STRING8_SIZE(100, 104);
ZK_ASSERT_STRING8_SIZE(150, 154);
ZK_ASSERT_STRING8_SIZE(5000, 5004);
#undef ZK_ASSERT_STRING8_SIZE
