#include "shared/zkShared.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <utility>

namespace {

TEST(ZkGetDirName, KeepsTheSeparatorAndClimbsFromADirectory)
{
    struct Row
    {
        const char* path;
        char16_t sep;
        const char* expected;
    };
    const Row rows[] = {
        { "/r/img.exr", u'/', "/r/" },
        { "/proj/shot/render/", u'/', "/proj/shot/" }, // one trailing separator is dropped
        { "/proj/", u'/', "/" }, { "/", u'/', "" }, { "img.exr", u'/', "" }, { "", u'/', "" },
        { "C:\\r\\img.exr", u'\\', "C:\\r\\" },
        { "C:\\r\\img.exr", u'/', "" }, // only the given separator counts
    };
    for (const Row& r : rows) {
        EXPECT_EQ(zkGetDirName(QLatin1String(r.path), r.sep), QLatin1String(r.expected)) << r.path;
    }

    // The fixed-capacity form climbs the same way.
    const _zkString<500> p("/proj/shot/render/");
    EXPECT_EQ(zkGetDirName(p).toQString(), QStringLiteral("/proj/shot/"));
    EXPECT_EQ(zkGetDirName(zkGetDirName(p)).toQString(), QStringLiteral("/proj/"));
    EXPECT_TRUE(zkGetDirName(_zkString<500>("file")).isEmpty());
}

TEST(ZkGetFileNameBase, LastComponentWithoutExtension)
{
    struct Row
    {
        const char* path;
        const char* expected;
    };
    const Row rows[] = {
        { "/r/img.exr", "img" },
        { "/r/img.0001.exr", "img.0001" },
        { "/r/noext", "noext" },
        { "/r/.hidden", ".hidden" },
        { "img.exr", "img" },
        { "/r/dir/", "" },
        { "", "" },
    };
    for (const Row& r : rows)
        EXPECT_EQ(zkGetFileNameBase(QLatin1String(r.path), u'/'), QLatin1String(r.expected))
            << r.path;

    const QString p = QStringLiteral("/r/img.exr");
    EXPECT_EQ(zkGetDirName(p, u'/') + zkGetFileNameBase(p, u'/'), QStringLiteral("/r/img"));
}

TEST(ZkChecksums, Crc64IsXZAndTheDigestKeepsSixteenBytesOfSha1)
{
    EXPECT_EQ(zkCRCCalc64("123456789", 9), 0x995DC9BBDF1939FAULL);
    EXPECT_EQ(zkCRCCalc64("", 0), 0ULL);
    EXPECT_NE(zkCRCCalc64("123456789", 8), zkCRCCalc64("123456789", 9));

    // SHA-1("abc") = a9993e36 4706816a ba3e2571 7850c26c 9cd0d89d; SHA-1("") = da39a3ee ...
    const unsigned char abc[] = { 'a', 'b', 'c' };
    for (const auto& [digest, hex] :
        { std::pair { zkCRC_SHA1_16B(abc, 3), "a9993e364706816aba3e25717850c26c" },
            std::pair { zkCRC_SHA1_16B(nullptr, 0), "da39a3ee5e6b4b0d3255bfef95601890" } }) {
        ASSERT_EQ(digest.length, 16);
        EXPECT_EQ(QByteArray(digest.data, 16).toHex(), QByteArray(hex));
        EXPECT_EQ(digest.data[16], 0);
    }
}

TEST(ZkTexts, IllegalFileNameCharactersRemoved)
{
    EXPECT_EQ(zkRemoveIllegalCharFromHtmlFile(QStringLiteral("a/b\\c:d*e?f\"g<h>i|j\tk\nl")),
        QStringLiteral("abcdefghijkl"));
    EXPECT_EQ(zkRemoveIllegalCharFromHtmlFile(QString::fromUtf8("Layer 1 \xC3\xA9-_.")),
        QString::fromUtf8("Layer 1 \xC3\xA9-_."));
}

} // namespace
