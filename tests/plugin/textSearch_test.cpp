// The linear search must find exactly what Qt's own search finds, with and
// without letter case, also for characters whose folding is not ASCII's.
#include "plugin/textSearch.h"

#include <gtest/gtest.h>

namespace {

TEST(LinearSearch, FindsWhatQtFinds)
{
    const QString deseretUpper = QString::fromUcs4(U"\U00010400");
    const QString deseretLower = QString::fromUcs4(U"\U00010428");
    const QString texts[] = { QStringLiteral("$HIP/render/$HIPNAME.$F4.exr"),
        QStringLiteral("aaaaaaaaab aaaaab"), QStringLiteral("\u00c9t\u00e9 \u212a\u0131 \u017fs"),
        QStringLiteral("x") + deseretUpper + QStringLiteral("y") + deseretLower, QString() };
    const QString needles[] = { QStringLiteral("$hip"), QStringLiteral("$HIPNAME"),
        QStringLiteral("aaab"), QStringLiteral("\u00e9T\u00c9"), QStringLiteral("k"),
        QStringLiteral("S"), deseretLower + QStringLiteral("Y"), QStringLiteral("zz") };
    for (const QString& text : texts) {
        for (const QString& needle : needles) {
            for (const Qt::CaseSensitivity cs : { Qt::CaseSensitive, Qt::CaseInsensitive }) {
                const LinearSearch search(needle, cs);
                const QString t = cs == Qt::CaseInsensitive ? caseFoldedKey(text) : text;
                for (qsizetype from = 0; from <= text.size(); ++from)
                    EXPECT_EQ(search.indexIn(t, from), text.indexOf(needle, from, cs))
                        << qPrintable(text) << " / " << qPrintable(needle) << " from " << from
                        << (cs == Qt::CaseInsensitive ? " ignoring case" : "");
            }
        }
    }
}

TEST(LinearSearch, RemoveAllLeavesWhatQtLeaves)
{
    for (const char* text : { "[ picture[ picture x", "[ [ picture", "none", "" }) {
        const QString t = QString::fromLatin1(text);
        EXPECT_EQ(removeAll(t, u"[ picture"), QString(t).remove(QStringLiteral("[ picture")));
    }
}

TEST(LinearSearch, ContainsShortAgreesWithQt)
{
    // Needle at either end, cut off by the end, its second character first.
    for (const char* text : { " bypass on", "x bypass on", "x bypass o", "bypass on bypass",
             "b bypass off", " b", "", "flags =  xray off bypass on display off" }) {
        const QString t = QString::fromLatin1(text);
        for (const QStringView needle : { QStringView(u" bypass on"), QStringView(u" display on") })
            EXPECT_EQ(containsShort(t, needle), t.contains(needle)) << text;
    }
}

} // namespace
