#include "shared/zkShared.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <utility>

namespace {

// Both forms climb a directory at a time in the job variables of
// vars_render_job ("/r/shot/render/" to "/r/shot/" to "/r/"); here the ends.
TEST(ZkPaths, DirectoryAndBaseNameAtTheirEnds)
{
    const char* dirs[][2] = { { "/proj/", "/" }, { "/", "" }, { "img.exr", "" }, { "", "" },
        { "C:\\r\\img.exr", "" } }; // only the given separator counts
    for (const auto& d : dirs)
        EXPECT_EQ(zkGetDirName(QLatin1String(d[0]), u'/'), QLatin1String(d[1])) << d[0];
    EXPECT_EQ(zkGetDirName(QStringLiteral("C:\\r\\img.exr"), u'\\'), QStringLiteral("C:\\r\\"));
    EXPECT_TRUE(zkGetDirName(_zkString<500>("file")).isEmpty());

    const char* bases[][2] = { { "/r/img.0001.exr", "img.0001" }, { "/r/noext", "noext" },
        { "/r/.hidden", ".hidden" }, { "img.exr", "img" }, { "/r/dir/", "" }, { "", "" } };
    for (const auto& b : bases)
        EXPECT_EQ(zkGetFileNameBase(QLatin1String(b[0]), u'/'), QLatin1String(b[1])) << b[0];
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
