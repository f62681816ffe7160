#include "textSearch.h"

#include <QChar>

QString caseFoldedKey(QStringView text)
{
    QString key;
    key.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (QChar::isHighSurrogate(unit) && i + 1 < text.size()
            && QChar::isLowSurrogate(text[i + 1].unicode())) {
            const char32_t folded
                = QChar::toCaseFolded(QChar::surrogateToUcs4(unit, text[i + 1].unicode()));
            // Unicode folds no character across planes; keep the length if one did.
            const bool pair = QChar::requiresSurrogates(folded);
            key.append(QChar(pair ? QChar::highSurrogate(folded) : unit));
            key.append(QChar(pair ? QChar::lowSurrogate(folded) : text[i + 1].unicode()));
            ++i;
            continue;
        }
        key.append(QChar(char16_t(QChar::toCaseFolded(char32_t(unit)))));
    }
    return key;
}

LinearSearch::LinearSearch(QStringView needle, Qt::CaseSensitivity cs)
    : pattern(cs == Qt::CaseInsensitive ? caseFoldedKey(needle) : needle.toString())
    , failure(size_t(pattern.size()), 0)
{
    qsizetype k = 0;
    for (qsizetype i = 1; i < pattern.size(); ++i) {
        while (k > 0 && pattern[i] != pattern[k])
            k = failure[size_t(k - 1)];
        if (pattern[i] == pattern[k])
            ++k;
        failure[size_t(i)] = k;
    }
}

qsizetype LinearSearch::indexIn(QStringView text, qsizetype from) const
{
    const qsizetype m = pattern.size();
    if (from < 0)
        from = 0;
    if (m == 0)
        return from <= text.size() ? from : -1;
    qsizetype k = 0;
    for (qsizetype i = from; i < text.size(); ++i) {
        while (k > 0 && text[i] != pattern[k])
            k = failure[size_t(k - 1)];
        if (text[i] == pattern[k])
            ++k;
        if (k == m)
            return i - m + 1;
    }
    return -1;
}

QString removeAll(QStringView text, QStringView needle)
{
    if (needle.isEmpty())
        return text.toString();
    const LinearSearch search(needle, Qt::CaseSensitive);
    QString out;
    qsizetype from = 0;
    for (qsizetype at = search.indexIn(text); at >= 0; at = search.indexIn(text, from)) {
        out += text.mid(from, at - from);
        from = at + needle.size();
    }
    out += text.mid(from);
    return out;
}
