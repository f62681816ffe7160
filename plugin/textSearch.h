// Substring search in time linear in the text and the needle, for needles
// that come from the scene: a parameter's name, a variable's name.
//
// Qt's search skips along the text by its last character, and on a text such
// as a long run of one letter against a needle that differs from that run
// only in its first character it compares the whole needle at nearly every
// place, so its time grows with the product of the two lengths. This one
// (Knuth-Morris-Pratt) finds the same places in time proportional to their sum.
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

/// A key under which texts that QString::compare(..., Qt::CaseInsensitive)
/// finds equal are equal: each unit case-folded as that comparison folds it,
/// a surrogate pair as the one character it encodes. It has the text's
/// length, unit for unit.
QString caseFoldedKey(QStringView text);

class LinearSearch
{
public:
    /// Ignoring case, it finds what QString::indexOf(..., Qt::CaseInsensitive)
    /// finds, in a text given as its caseFoldedKey().
    LinearSearch(QStringView needle, Qt::CaseSensitivity cs);

    /// Position of the first occurrence at or after \p from in \p text
    /// (its caseFoldedKey() when ignoring case), or -1.
    qsizetype indexIn(QStringView text, qsizetype from = 0) const;

    qsizetype size() const { return pattern.size(); }

private:
    QString pattern;
    /// failure[i]: length of the longest proper border of pattern[0..i].
    std::vector<qsizetype> failure;
};

/// \p text without any occurrence of \p needle (exact case), as
/// QString::remove(needle) leaves it.
QString removeAll(QStringView text, QStringView needle);

/// Whether \p needle (exact case) occurs in \p text.
inline bool containsLinear(QStringView text, QStringView needle)
{
    return LinearSearch(needle, Qt::CaseSensitive).indexIn(text) >= 0;
}

/// Whether \p needle (exact case, two units or more) occurs in \p text, for
/// a fixed needle in a line of a few hundred units, where Qt's substring
/// search costs more to set up than this takes: the needle is compared only
/// where its second unit stands (found by Qt's vectorised character search),
/// which for a needle such as " bypass on" is rare.
inline bool containsShort(QStringView text, QStringView needle)
{
    const char16_t* t = text.utf16();
    const char16_t* n = needle.utf16();
    const qsizetype last = text.size() - needle.size() + 1;
    for (qsizetype at = text.indexOf(needle[1], 1); at >= 1 && at <= last;
         at = text.indexOf(needle[1], at + 1)) {
        qsizetype i = 0;
        while (i < needle.size() && t[at - 1 + i] == n[i])
            ++i;
        if (i == needle.size())
            return true;
    }
    return false;
}
